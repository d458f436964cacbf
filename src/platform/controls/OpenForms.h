// The program's open windows, known by their object name ("frmAviso"), in the order of their
// opening.
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace quartela::OpenForms {

// The window that those entered from now on stay above; null for none. Not owned; it need not be
// entered.
void setMainWindow(QWidget* window);

// Enters a window, and puts one without a parent above the main window: whatever is clicked there,
// it stays in front of it, but not in front of other programs. It leaves by itself when it is
// closed or destroyed. Not owned; entering it twice changes nothing.
void add(QWidget* form);

// Shows a window in front of the others and with the keyboard. One that was hidden opens in the
// middle of the window that it stays above; one that was minimised comes back.
void showInFront(QWidget& form);

// From the first opened to the last.
QList<QWidget*> all();

// The first with that very name; null for none.
QWidget* find(const QString& name);

// Closes the window. False when it refused to close and stays open.
bool unload(QWidget* form);

}  // namespace quartela::OpenForms
