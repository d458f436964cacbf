#include "platform/database/Recordset.h"

#include <algorithm>

#include "platform/database/Connection.h"
#include "platform/database/RecordsetData.h"
#include "platform/database/StatementListener.h"
#include "platform/database/dialect/CompleteOrder.h"
#include "platform/values/Convert.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

bool isTableName(const QString& source, const Catalogue& catalogue) {
  QStringView name = QStringView(source).trimmed();
  if (name.startsWith(QLatin1Char('[')) && name.endsWith(QLatin1Char(']'))) {
    name = name.mid(1, name.size() - 2);
  }
  return catalogue.table(name) != nullptr;
}

// A letter and an accent behind it are kept as the composed letter.
Value composed(Value value) {
  return value.type() == ValueType::Text
             ? Value(value.text().normalized(QString::NormalizationForm_C))
             : std::move(value);
}

}  // namespace

Recordset::Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;

Recordset::~Recordset() {
  close();
}

Recordset& Recordset::operator=(Recordset&& other) noexcept {
  if (this != &other) {
    close();
    data_ = std::move(other.data_);
  }
  return *this;
}

void Recordset::open(const QString& source, Connection& connection, CursorType, LockType lock) {
  if (data_) {
    throw RuntimeError(ErrorNumber::ObjectOpen);
  }
  Engine& engine = connection.engine();
  dialect::AnalysedStatement statement = dialect::analyse(source, engine.catalogue());
  if (statement.kind() != dialect::StatementKind::Select) {
    throw RuntimeError(ErrorNumber::InvalidStatement);
  }
  tellOfStatement(source);
  dialect::completeOrder(statement.bound);
  auto data = std::make_unique<Data>(engine, std::move(statement.result), lock);
  const bool toAddTo = lock == LockType::Pessimistic && isTableName(source, engine.catalogue());
  if (!toAddTo) {
    engine.select(statement, data->layout.loaded, data->rows);
  }
  data_ = std::move(data);
}

void Recordset::close() {
  cancelUpdate();
  data_.reset();
}

Recordset::State Recordset::state() const {
  return data_ ? Open : Closed;
}

Recordset::Data& Recordset::opened() const {
  if (!data_) {
    throw RuntimeError(ErrorNumber::ObjectClosed);
  }
  return *data_;
}

int Recordset::recordCount() const {
  return opened().rows.rowCount();
}

bool Recordset::eof() const {
  const Data& data = opened();
  return !data.edit && data.position >= data.rows.rowCount();
}

bool Recordset::bof() const {
  const Data& data = opened();
  return !data.edit && (data.position < 0 || data.rows.rowCount() == 0);
}

void Recordset::moveFirst() {
  moveTo(0);
}

void Recordset::moveLast() {
  moveTo(std::max(0, recordCount() - 1));
}

void Recordset::moveTo(int row) {
  Data& data = opened();
  data.requireNoEdit();
  if (data.rows.rowCount() == 0) {
    throw RuntimeError(ErrorNumber::CurrentRowMissing);
  }
  data.position = row;
}

void Recordset::moveNext() {
  Data& data = opened();
  data.requireNoEdit();
  if (data.position >= data.rows.rowCount()) {
    throw RuntimeError(ErrorNumber::CurrentRowMissing);
  }
  ++data.position;
}

void Recordset::movePrevious() {
  Data& data = opened();
  data.requireNoEdit();
  if (data.position < 0 || data.rows.rowCount() == 0) {
    throw RuntimeError(ErrorNumber::CurrentRowMissing);
  }
  --data.position;
}

int Recordset::fieldCount() const {
  return static_cast<int>(opened().result.columns.size());
}

const QString& Recordset::fieldName(int position) const {
  const Data& data = opened();
  data.checkPosition(position);
  return data.result.columns[static_cast<std::size_t>(position)].name;
}

ValueType Recordset::fieldType(int position) const {
  const Data& data = opened();
  data.checkPosition(position);
  return data.rows.type(position);
}

int Recordset::fieldPosition(QStringView name) const {
  const auto& columns = opened().result.columns;
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto& column) {
    return column.name.size() == name.size() && name.compare(column.name, Qt::CaseInsensitive) == 0;
  });
  if (found == columns.end()) {
    throw RuntimeError(ErrorNumber::ColumnNotFound, name.toString());
  }
  return static_cast<int>(found - columns.begin());
}

Value Recordset::field(int position) const {
  const Data& data = opened();
  data.checkPosition(position);
  return data.cell(position);
}

Value Recordset::field(QStringView name) const {
  return field(fieldPosition(name));
}

Value Recordset::cell(int row, int position) const {
  const Data& data = opened();
  data.checkPosition(position);
  if (row < 0 || row >= data.rows.rowCount()) {
    throw RuntimeError(ErrorNumber::CurrentRowMissing);
  }
  return data.rows.value(row, position);
}

void Recordset::addNew() {
  Data& data = opened();
  data.requireNoEdit();
  data.beginNew();
}

void Recordset::setField(int position, const Value& value) {
  Data& data = opened();
  data.checkPosition(position);
  const int kept = data.writablePosition(position);
  if (!data.edit) {
    data.requireCurrentRow();
  }
  Value converted = composed(Convert::toType(value, data.rows.type(kept)));
  if (!data.edit) {
    data.beginChange();
  }
  data.edit->cells[static_cast<std::size_t>(kept)] = std::move(converted);
}

void Recordset::setField(QStringView name, const Value& value) {
  setField(fieldPosition(name), value);
}

void Recordset::update() {
  Data& data = opened();
  if (!data.edit) {
    data.requireCurrentRow();
    return;
  }
  data.write(*data.openEngine());
}

void Recordset::cancelUpdate() {
  if (data_) {
    data_->endEdit();
  }
}

}  // namespace quartela
