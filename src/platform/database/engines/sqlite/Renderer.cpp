#include "platform/database/engines/sqlite/Renderer.h"

#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Names.h"

namespace quartela::sqlite {

using bound::Join;
using bound::Joins;
using bound::Select;
using bound::Source;

namespace {

// What a SELECT with its clauses takes of the engine's parser stack, at most.
constexpr int kSelectEntries = 14;
constexpr int kGroupEntries = 4;

}  // namespace

Renderer::Renderer(const bound::Statement& statement)
    : statement_(statement), open_(kSelectEntries) {
  out_.reserve(1024);
}

std::string Renderer::render(std::vector<Parameter>& parameters) {
  if (statement_.kind == dialect::StatementKind::Delete) {
    deletion();
  } else {
    select(*statement_.select, false);
  }
  if (usesNow_) {
    parameters.push_back(Parameter::Now);
  }
  return std::move(out_);
}

std::string Renderer::renderExact(Index column) {
  out_ += "SELECT ";
  outputs(*statement_.select, false);
  out_ += " FROM ";
  from(statement_.select->from);
  out_ += " WHERE ";
  expression(column);
  out_ += " = ?1 COLLATE NOCASE LIMIT 1";
  return std::move(out_);
}

void Renderer::select(const Select& select, bool derived) {
  out_ += select.distinct ? "SELECT DISTINCT " : "SELECT ";
  outputs(select, derived);
  if (!select.from.empty()) {
    out_ += " FROM ";
    from(select.from);
  }
  conditions(" WHERE ", select.where);
  grouping(select);
  ordering(select);
  if (select.top >= 0) {
    out_ += " LIMIT ";
    out_ += std::to_string(select.top);
  }
}

// A derived table's columns are called c0, c1 and so on, whatever names the result bears.
void Renderer::outputs(const Select& select, bool derived) {
  for (std::size_t i = 0; i < select.outputs.size(); ++i) {
    if (i > 0) {
      out_ += ", ";
    }
    const Index node = select.outputs[i].node;
    select.distinct ? collated(node) : expression(node);
    if (derived) {
      out_ += " AS c";
      out_ += std::to_string(i);
    }
  }
  if (!derived) {
    for (const Index key : statement_.keyNodes) {
      out_ += ", ";
      expression(key);
    }
  }
}

void Renderer::from(const Joins& joins) {
  for (const Join& step : joins) {
    join(step, &step == &joins.front());
  }
}

void Renderer::join(const Join& join, bool first) {
  if (!first) {
    out_ += join.kind == Join::Kind::Left ? " LEFT JOIN " : " JOIN ";
  }
  if (join.group) {
    out_ += '(';
    open_ += kGroupEntries;
    from(*join.group);
    open_ -= kGroupEntries;
    out_ += ')';
  } else {
    source(statement_.source(join.source));
  }
  conditions(" ON ", join.on);
}

void Renderer::source(const Source& source) {
  if (source.derived) {
    out_ += '(';
    open_ += kSelectEntries;
    select(*source.derived, true);
    open_ -= kSelectEntries;
    out_ += ") AS ";
    name(source.alias);
    return;
  }
  name(source.table->name);
  if (source.alias != source.table->name) {
    out_ += " AS ";
    name(source.alias);
  }
}

void Renderer::conditions(const char* keyword, const std::vector<Index>& nodes) {
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    out_ += i == 0 ? keyword : " AND ";
    expression(nodes[i]);
  }
}

void Renderer::grouping(const Select& select) {
  for (std::size_t i = 0; i < select.groupBy.size(); ++i) {
    out_ += i == 0 ? " GROUP BY " : ", ";
    collated(select.groupBy[i]);
  }
  if (select.having != kNone) {
    out_ += " HAVING ";
    expression(select.having);
  }
}

void Renderer::ordering(const Select& select) {
  for (std::size_t i = 0; i < select.orderBy.size(); ++i) {
    out_ += i == 0 ? " ORDER BY " : ", ";
    collated(select.orderBy[i].node);
    if (select.orderBy[i].descending) {
      out_ += " DESC";
    }
  }
}

void Renderer::deletion() {
  out_ += "DELETE FROM ";
  from(statement_.select->from);
  conditions(" WHERE ", statement_.select->where);
}

void Renderer::name(QStringView text) {
  out_ += '"';
  dialect::appendUtf8(out_, text, u'"');
  out_ += '"';
}

}  // namespace quartela::sqlite
