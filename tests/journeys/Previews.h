// The preview window of a document that a screen prints, worked with its keys.
#pragma once

#include <QAction>
#include <QApplication>

#include "platform/reporting/ReportPreview.h"
#include "tests/journeys/Keyboard.h"
#include "tests/support/ScriptedDialogs.h"

namespace quartela::test {

// The documents' titles, which their windows and files bear.
inline const QString kRequisicao = QStringLiteral("Requisição de Adiantamento");
inline const QString kPrestacao = QStringLiteral("Prestação de Contas de Adiantamento");
inline const QString kGuia = QStringLiteral("Guia de Arrecadação");

// The preview windows on the screen.
inline QList<reporting::ReportPreview*> previews() {
  QList<reporting::ReportPreview*> shown;
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (QWidget* const window : windows) {
    auto* const preview = qobject_cast<reporting::ReportPreview*>(window);
    if (preview != nullptr && preview->isVisible()) {
      shown << preview;
    }
  }
  return shown;
}

// Waits for the one preview, which must bear that title, and for its last page.
inline void awaitPreview(const QString& title) {
  QTRY_COMPARE(previews().size(), 1);
  reporting::ReportPreview* const preview = previews().constFirst();
  QCOMPARE(preview->windowTitle(), title);
  QTRY_VERIFY(preview->isActiveWindow());
  QTRY_VERIFY(preview->findChild<QAction*>(QStringLiteral("save"))->isEnabled());
}

inline void closePreview() {
  press(Qt::Key_Escape);
  QTRY_VERIFY(previews().isEmpty());
}

inline FileRequest pdfRequest(const QString& title) {
  return {.title = QStringLiteral("Salvar como PDF"),
          .filter = QStringLiteral("Arquivos PDF|*.pdf|"),
          .folder = {},
          .fileName = title};
}

// Saves what the preview of that title shows into `path` and closes the window.
inline void savePreview(ScriptedDialogs& dialogs, const QString& title, const QString& path) {
  awaitPreview(title);
  dialogs.expectSaveFile(pdfRequest(title), path);
  press(Qt::Key_S, Qt::ControlModifier);
  QVERIFY2(dialogs.satisfied(), dialogs.report());
  closePreview();
}

}  // namespace quartela::test
