#include "foundation/Fechamento.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <utility>

#include "platform/controls/MoneyEdit.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Format.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

// The same amount is the same content, with or without its thousands dots.
QString conteudo_valor(const MoneyEdit& campo) {
  try {
    return Format(campo.value(), campo.format());
  } catch (const RuntimeError&) {
    return campo.text();
  }
}

// A calendar's year is turned over, not typed in; it stands in a field within a field.
bool esta_em_outro(const QWidget* campo) {
  return qobject_cast<const QAbstractSpinBox*>(campo->parentWidget()) != nullptr;
}

QString conteudo(const QWidget* campo) {
  if (esta_em_outro(campo)) {
    return {};
  }
  if (const auto* valor = qobject_cast<const MoneyEdit*>(campo)) {
    return conteudo_valor(*valor);
  }
  if (const auto* linha = qobject_cast<const QLineEdit*>(campo)) {
    return linha->text();
  }
  if (const auto* texto = qobject_cast<const QPlainTextEdit*>(campo)) {
    return texto->toPlainText();
  }
  if (const auto* combo = qobject_cast<const QComboBox*>(campo)) {
    return combo->currentText();
  }
  if (const auto* botao = qobject_cast<const QAbstractButton*>(campo)) {
    return botao->isCheckable() && botao->isChecked() ? QStringLiteral("x") : QString();
  }
  return {};
}

}  // namespace

QString Conteudo_campo(const QWidget& campo) {
  return conteudo(&campo);
}

QString Conteudo_digitado(const QWidget& tela) {
  QString tudo;
  const QList<QWidget*> campos = tela.findChildren<QWidget*>();
  for (const QWidget* campo : campos) {
    tudo += conteudo(campo) + QChar(QChar::Null);
  }
  return tudo;
}

bool Confirma_abandono() {
  return Dialogs::box(
             {.text = QStringLiteral("O que foi digitado não foi gravado. Sair assim mesmo?"),
              .icon = BoxIcon::Question,
              .buttons = {Button::Yes, Button::No},
              .defaultButton = Button::No}) == Button::Yes;
}

Fechamento::Fechamento(QWidget& janela, std::function<bool()> tem_digitacao)
    : janela_(janela), tem_digitacao_(std::move(tem_digitacao)) {
  janela.installEventFilter(this);
}

void Fechamento::fecha() {
  decidido_ = true;
  janela_.close();
  decidido_ = false;
}

bool Fechamento::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::Close && !decidido_ && !permite()) {
    evento->ignore();
    return true;
  }
  return QObject::eventFilter(objeto, evento);
}

}  // namespace quartela
