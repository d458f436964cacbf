// How controls are drawn: the toolkit's own style, with the focus plain to see on every control,
// scroll bars whose handle stands out, header texts away from their borders, frames that are whole
// at every scale, and pictures that keep their colours in a selected row.
#pragma once

#include <QProxyStyle>

namespace quartela {

class Desenho : public QProxyStyle {
  Q_OBJECT

 public:
  Desenho();

  void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcao, QPainter* pintor,
                     const QWidget* controle) const override;
  void drawControl(ControlElement elemento, const QStyleOption* opcao, QPainter* pintor,
                   const QWidget* controle) const override;
  void drawComplexControl(ComplexControl elemento, const QStyleOptionComplex* opcao,
                          QPainter* pintor, const QWidget* controle) const override;
  int pixelMetric(PixelMetric medida, const QStyleOption* opcao,
                  const QWidget* controle) const override;
  QPixmap generatedIconPixmap(QIcon::Mode modo, const QPixmap& figura,
                              const QStyleOption* opcao) const override;
};

}  // namespace quartela
