// An operator at the main window's ribbon.
#pragma once

#include <QTest>

#include "shell/frmOficce.h"
#include "shell/ribbon/FaixaRibbon.h"

namespace quartela::test {

// Clicks the button of that key where it stands.
inline void pressRibbon(frmOficce& window, const QString& key) {
  FaixaRibbon& faixa = window.Ribbon();
  const ribbon::ElementTable& elements = faixa.elements();
  for (int i = 0; i < elements.count(ribbon::Element::ButMouse); ++i) {
    const ribbon::Piece& button = elements.at(ribbon::Element::ButMouse, i);
    if (button.visible && button.tag == key) {
      QTest::mouseClick(&faixa, Qt::LeftButton, {},
                        (button.rect().center() / ribbon::kTwipsPerPixel).toPoint());
      return;
    }
  }
  QFAIL(qPrintable(QStringLiteral("no button ") + key));
}

}  // namespace quartela::test
