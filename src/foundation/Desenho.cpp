#include "foundation/Desenho.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QColor>
#include <QFrame>
#include <QPainter>
#include <QPen>
#include <QStyleOption>

#include "foundation/Estilo.h"

namespace quartela {
namespace {

constexpr qreal kAnel = 2;
constexpr qreal kCanto = 3;
constexpr int kMargemCabecalho = 6;
constexpr int kMoldura = 2;
constexpr QRgb kAlca = 0xFF8796A7;
constexpr QRgb kAlcaSegura = 0xFF5F7186;
constexpr QRgb kLinhaQuadro = 0xFFB4BCC6;
constexpr int kEscuro = 128;

bool tem_foco(const QStyleOption& opcao) {
  return opcao.state.testFlag(QStyle::State_HasFocus) &&
         opcao.state.testFlag(QStyle::State_Enabled);
}

void desenha_anel(QPainter& pintor, const QRect& lugar, const QColor& cor) {
  pintor.save();
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.setPen(QPen(cor, kAnel));
  pintor.setBrush(Qt::NoBrush);
  const qreal meio = kAnel / 2;
  pintor.drawRoundedRect(QRectF(lugar).adjusted(meio, meio, -meio, -meio), kCanto, kCanto);
  pintor.restore();
}

// On a dark button the ring is light.
QColor cor_do_anel(const QStyleOption& opcao) {
  const QColor fundo = opcao.palette.color(QPalette::Button);
  return fundo.lightness() < kEscuro ? QColor(Qt::white) : QColor(Estilo::kDestaque);
}

// One line that no part of it is covered of, at any scale; the ring in the place of it.
void desenha_quadro(QPainter& pintor, const QStyleOption& opcao) {
  if (tem_foco(opcao)) {
    desenha_anel(pintor, opcao.rect, QColor(Estilo::kDestaque));
    return;
  }
  constexpr qreal kMeio = 0.5;
  pintor.save();
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.setPen(QPen(QColor(kLinhaQuadro), 1));
  pintor.setBrush(Qt::NoBrush);
  pintor.drawRoundedRect(QRectF(opcao.rect).adjusted(kMeio, kMeio, -kMeio, -kMeio), kCanto, kCanto);
  pintor.restore();
}

void desenha_alca(QPainter& pintor, const QStyleOptionComplex& opcao, const QRect& lugar) {
  constexpr qreal kRecuo = 3;
  const bool segura = opcao.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) &&
                      opcao.state.testFlag(QStyle::State_Sunken);
  pintor.save();
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(QColor(segura ? kAlcaSegura : kAlca));
  pintor.drawRoundedRect(QRectF(lugar).adjusted(kRecuo, kRecuo, -kRecuo, -kRecuo), kCanto, kCanto);
  pintor.restore();
}

bool eh_pagina_rolante(const QWidget* controle) {
  return qobject_cast<const QAbstractScrollArea*>(controle) != nullptr;
}

bool eh_quadro_rolante(const QStyleOption& opcao, const QWidget* controle) {
  const auto* const quadro = qstyleoption_cast<const QStyleOptionFrame*>(&opcao);
  return eh_pagina_rolante(controle) && quadro && quadro->frameShape == QFrame::StyledPanel;
}

}  // namespace

Desenho::Desenho() : QProxyStyle(QStringLiteral("Fusion")) {}

void Desenho::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcao, QPainter* pintor,
                            const QWidget* controle) const {
  const bool marca =
      elemento == PE_FrameFocusRect && qobject_cast<const QAbstractButton*>(controle);
  if (marca) {
    desenha_anel(*pintor, opcao->rect, cor_do_anel(*opcao));
    return;
  }
  QProxyStyle::drawPrimitive(elemento, opcao, pintor, controle);
  const bool campo = elemento == PE_PanelLineEdit || elemento == PE_FrameLineEdit;
  const auto* const quadro = qstyleoption_cast<const QStyleOptionFrame*>(opcao);
  if (campo && tem_foco(*opcao) && quadro && quadro->lineWidth > 0) {
    desenha_anel(*pintor, opcao->rect, QColor(Estilo::kDestaque));
  }
}

void Desenho::drawControl(ControlElement elemento, const QStyleOption* opcao, QPainter* pintor,
                          const QWidget* controle) const {
  if (elemento == CE_ShapedFrame && eh_quadro_rolante(*opcao, controle)) {
    desenha_quadro(*pintor, *opcao);
    return;
  }
  QProxyStyle::drawControl(elemento, opcao, pintor, controle);
  if (tem_foco(*opcao) && (elemento == CE_PushButton || elemento == CE_TabBarTabShape)) {
    constexpr int kRecuo = 2;
    desenha_anel(*pintor, opcao->rect.adjusted(kRecuo, kRecuo, -kRecuo, -kRecuo),
                 cor_do_anel(*opcao));
  }
}

void Desenho::drawComplexControl(ComplexControl elemento, const QStyleOptionComplex* opcao,
                                 QPainter* pintor, const QWidget* controle) const {
  QProxyStyle::drawComplexControl(elemento, opcao, pintor, controle);
  if (elemento == CC_ScrollBar && opcao->state.testFlag(State_Enabled)) {
    desenha_alca(*pintor, *opcao,
                 subControlRect(CC_ScrollBar, opcao, SC_ScrollBarSlider, controle));
  } else if (elemento == CC_ComboBox && tem_foco(*opcao)) {
    desenha_anel(*pintor, opcao->rect, QColor(Estilo::kDestaque));
  }
}

int Desenho::pixelMetric(PixelMetric medida, const QStyleOption* opcao,
                         const QWidget* controle) const {
  if (medida == PM_HeaderMargin) {
    return kMargemCabecalho;
  }
  // What is framed by one pixel covers a part of it at a scale between two whole ones.
  if (medida == PM_DefaultFrameWidth && eh_pagina_rolante(controle)) {
    return kMoldura;
  }
  return QProxyStyle::pixelMetric(medida, opcao, controle);
}

QPixmap Desenho::generatedIconPixmap(QIcon::Mode modo, const QPixmap& figura,
                                     const QStyleOption* opcao) const {
  return modo == QIcon::Selected ? figura : QProxyStyle::generatedIconPixmap(modo, figura, opcao);
}

}  // namespace quartela
