// The look at the database file for damage: quick at the first opening of a day, whole at the first
// of a week, in the background. What it finds is told in a box; nothing is mended.
#pragma once

#include <QString>

namespace quartela {

// Has the file checked once the main window is up, so that the login is no slower for it.
void Agenda_verificacao(const QString& arquivo);

// Begins the check of the file that is due today, if one is; returns at once. One at a time.
void Comeca_verificacao(const QString& arquivo);

// Ends a check that is under way or to come and waits for that; called before the file is closed.
void Encerra_verificacao();

}  // namespace quartela
