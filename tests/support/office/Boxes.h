// The boxes that the record classes and the common routines show, word for word.
#pragma once

#include <QString>

#include "platform/dialogs/Dialogs.h"
#include "platform/values/RuntimeError.h"

namespace quartela::test::boxes {

inline Box question(const QString& text) {
  return {.text = text,
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Question,
          .buttons = {Button::Yes, Button::No},
          .defaultButton = Button::Yes};
}

inline Box askInclusion() {
  return question(QStringLiteral("Confirma inclusão do novo registro?"));
}

inline Box askAlteration() {
  return question(QStringLiteral("Confirma alteração do registro?"));
}

// Before a window closes over what was typed.
inline Box askAbandon() {
  return {.text = QStringLiteral("O que foi digitado não foi gravado. Sair assim mesmo?"),
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Question,
          .buttons = {Button::Yes, Button::No},
          .defaultButton = Button::No};
}

inline Box told(const QString& text) {
  return {.text = text, .title = QStringLiteral("Aviso"), .icon = BoxIcon::Information};
}

inline Box saved() {
  return told(QStringLiteral("Registro Salvo!"));
}

inline Box altered() {
  return told(QStringLiteral("Registro Alterado!"));
}

inline Box deleted() {
  return told(
      QStringLiteral("Se o registro não for excluido da listagem,\n"
                     "será porque tem algum outro cadastro\n"
                     "ligado a ele. Operação concluida !!!!!!"));
}

// The stop box of a failed save or delete; `detail` says which field, of which table.
inline Box saveFailure(ErrorNumber number, const QString& detail = {}) {
  return {.text = QStringLiteral("Erro n°: %1 Descrição: ").arg(static_cast<int>(number)) +
                  RuntimeError(number, detail).description(),
          .title = {},
          .icon = BoxIcon::Stop};
}

// The common error box of the routine with that label.
inline Box internalError(ErrorNumber number, const QString& label, const QString& detail = {}) {
  const RuntimeError error(number, detail);
  return {.text = QStringLiteral("Houve um erro interno:\n\nNúmero do erro:\n%1\nDescrição :\n%2\n"
                                 "Origem :\nQuartela / %3")
                      .arg(QString::number(error.number()), error.description(), label),
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Exclamation};
}

// A print command whose document nothing serves.
inline Box documentMissing() {
  Box box = internalError(ErrorNumber::InvalidProcedureCall, QStringLiteral("Função imprimir"));
  box.text.replace(errorDescription(ErrorNumber::InvalidProcedureCall),
                   QStringLiteral("Este documento não está disponível nesta instalação."));
  return box;
}

}  // namespace quartela::test::boxes
