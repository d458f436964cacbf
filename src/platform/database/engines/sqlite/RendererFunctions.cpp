#include "platform/database/engines/sqlite/Renderer.h"

namespace quartela::sqlite {

using bound::Node;
using bound::Op;

void Renderer::concat(const Node& node) {
  const char* before = node.negated ? "coalesce(" : "";
  const char* after = node.negated ? ", '')" : "";
  out_ += '(';
  wrapped(before, statement_.operand(node, 0), after);
  out_ += " || ";
  wrapped(before, statement_.operand(node, 1), after);
  out_ += ')';
}

void Renderer::convert(const Node& node) {
  const Index operand = statement_.operand(node, 0);
  const ValueType from = typeOf(operand);
  switch (node.type) {
    case ValueType::Text:
      return convertToText(operand, from);
    case ValueType::Money:
      return from == ValueType::Number ? rounded("", operand, " * 10000.0")
                                       : wrapped("(", operand, " * 10000)");
    case ValueType::Number:
      return from == ValueType::Money ? wrapped("(", operand, " / 10000.0)")
                                      : wrapped("CAST(", operand, " AS REAL)");
    default:
      break;
  }
  if (from == ValueType::Bool) {
    return wrapped("(-", operand, ")");
  }
  wrapped("whole(", operand, from == ValueType::Money ? " / 10000.0)" : ")");
}

// The same texts that cells have on the screen: decimal comma, day before month.
void Renderer::convertToText(Index operand, ValueType from) {
  switch (from) {
    case ValueType::Bool:
      return wrapped("CASE ", operand, " WHEN 0 THEN 'Falso' WHEN 1 THEN 'Verdadeiro' END");
    case ValueType::Money:
      return decimalText(operand, " / 10000.0");
    case ValueType::Number:
      return decimalText(operand, "");
    case ValueType::DateTime:
      return wrapped("replace(strftime('%d/%m/%Y %H:%M:%S', ", operand, "), ' 00:00:00', '')");
    default:
      return wrapped("CAST(", operand, " AS TEXT)");
  }
}

// The engine writes "10.0" for ten; the bar marks the end, where ".0" is dropped.
void Renderer::decimalText(Index operand, const char* scale) {
  wrapped("rtrim(replace(replace(CAST(", operand, scale);
  out_ += " AS TEXT) || '|', '.0|', '|'), '.', ','), '|')";
}

void Renderer::aggregate(const Node& node) {
  if (node.operandCount == 0) {
    out_ += "count(*)";
    return;
  }
  const Index operand = statement_.operand(node, 0);
  switch (node.op) {
    case Op::Sum:
      return wrapped("sum(", operand, ")");
    case Op::Count:
      return wrapped("count(", operand, ")");
    default:
      out_ += node.op == Op::Max ? "max(" : "min(";
      collated(operand);
      out_ += ')';
  }
}

}  // namespace quartela::sqlite
