#include "platform/database/dialect/Errors.h"

namespace quartela::dialect {
namespace {

QString qualified(QStringView qualifier, QStringView name) {
  return qualifier.isEmpty() ? name.toString()
                             : qualifier.toString() + QLatin1Char('.') + name.toString();
}

}  // namespace

void syntaxError(qsizetype position, const char* detail) {
  throw RuntimeError(
      ErrorNumber::SyntaxError,
      QStringLiteral("posição %1: %2").arg(position + 1).arg(QString::fromUtf8(detail)));
}

void syntaxError(const char* detail) {
  throw RuntimeError(ErrorNumber::SyntaxError, QString::fromUtf8(detail));
}

void tooComplex() {
  syntaxError("consulta complexa demais");
}

void unknownName(QStringView qualifier, QStringView name) {
  throw RuntimeError(ErrorNumber::UnknownName, qualified(qualifier, name));
}

void ambiguousName(QStringView qualifier, QStringView name) {
  throw RuntimeError(ErrorNumber::UnknownName,
                     QStringLiteral("o nome %1 pode ser de mais de uma tabela da consulta")
                         .arg(qualified(qualifier, name)));
}

void unknownTable(QStringView name) {
  throw RuntimeError(ErrorNumber::UnknownTable, name.toString());
}

void operandMismatch() {
  throw RuntimeError(ErrorNumber::OperandMismatch);
}

void invalidStatement(QStringView word) {
  throw RuntimeError(ErrorNumber::InvalidStatement, word.toString());
}

}  // namespace quartela::dialect
