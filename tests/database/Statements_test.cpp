// Every statement of the program, run on the demonstration database, against rows found another
// way.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>

#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"
#include "platform/database/engines/sqlite/Translation.h"
#include "platform/values/Clock.h"
#include "platform/values/RuntimeError.h"
#include "tests/database/PlainDatabase.h"
#include "tests/database/Samples.h"
#include "tests/database/statements/StatementCase.h"
#include "tests/support/Errors.h"
#include "tests/support/SqliteSession.h"
#include "tests/support/TestMain.h"

namespace quartela::test {

namespace {

// A cell as PlainDatabase shows it.
QString shown(const Value& value) {
  switch (value.type()) {
    case ValueType::Null:
      return kNull;
    case ValueType::Bool:
      return value.boolean() ? "1" : "0";
    case ValueType::I16:
      return QString::number(value.i16());
    case ValueType::I32:
      return QString::number(value.i32());
    case ValueType::Money:
      return QString::number(value.money().units());
    case ValueType::Number:
      return QString::number(value.number(), 'g', 17);
    case ValueType::DateTime:
      return value.dateTime().toIso();
    case ValueType::Text:
      return value.text();
  }
  return {};
}

QList<QStringList> rowsOf(Recordset& records) {
  QList<QStringList> rows;
  while (!records.eof()) {
    QStringList row;
    for (int field = 0; field < records.fieldCount(); ++field) {
      row << shown(records.field(field));
    }
    rows << row;
    records.moveNext();
  }
  return rows;
}

// A text as the order of lists sees it first: without letter case and without accents.
QString sortText(const QString& text) {
  QString bare;
  for (const QChar c : text.normalized(QString::NormalizationForm_D)) {
    if (!c.isMark()) {
      bare += c;
    }
  }
  return bare.toCaseFolded();
}

// Below 0, 0 or above 0. Nulls come first; numbers by their value, dates and texts as texts.
int compareCells(const QString& a, const QString& b) {
  if (a == kNull || b == kNull) {
    return int(b == kNull) - int(a == kNull) == 0 ? 0 : (a == kNull ? -1 : 1);
  }
  bool aIsNumber = false;
  bool bIsNumber = false;
  const double left = a.toDouble(&aIsNumber);
  const double right = b.toDouble(&bIsNumber);
  if (aIsNumber && bIsNumber) {
    return left < right ? -1 : int(left > right);
  }
  return sortText(a).compare(sortText(b));
}

bool inOrder(const QStringList& a, const QStringList& b, const QList<SortKey>& order) {
  for (const SortKey& key : order) {
    const int result = compareCells(a[key.column], b[key.column]);
    if (result != 0) {
      return (result < 0) != key.descending;
    }
  }
  return true;
}

bool passes(const QStringList& row, const TextFilter& filter) {
  const QString& cell = row[filter.column];
  if (cell == kNull) {
    return false;
  }
  return filter.begins ? cell.startsWith(filter.text, Qt::CaseInsensitive)
                       : cell.contains(filter.text, Qt::CaseInsensitive);
}

QList<QStringList> expectedRows(const PlainRows& plain, const StatementCase& one) {
  QList<QStringList> rows;
  for (const QStringList& row : plain.rows) {
    if (!one.filter || passes(row, *one.filter)) {
      rows << row;
    }
  }
  if (one.firstRowOnly) {
    std::stable_sort(rows.begin(), rows.end(), [&one](const QStringList& a, const QStringList& b) {
      return !inOrder(b, a, one.order);
    });
    rows = rows.mid(0, 1);
  }
  return rows;
}

// The type that a column of the file must have in the program; Null says nothing.
ValueType declaredType(const QString& type) {
  static const QHash<QString, ValueType> kTypes = {
      {"SMALLINT", ValueType::I16}, {"INTEGER", ValueType::I32},
      {"MONEY", ValueType::Money},  {"DATETIME", ValueType::DateTime},
      {"BOOLEAN", ValueType::Bool}, {"DOUBLE", ValueType::Number},
      {"TEXT", ValueType::Text}};
  return kTypes.value(type, ValueType::Null);
}

QMap<QString, int> countsOfTables(PlainDatabase& plain) {
  QMap<QString, int> counts;
  for (const QString& table : plain.tables()) {
    counts[table] = plain.number("SELECT count(*) FROM " + table.toUtf8());
  }
  return counts;
}

QString connectionText(const QString& path) {
  return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path + ";";
}

}  // namespace

class StatementsTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void selects_data();
  void selects();
  void rowsComeInOneOrder_data();
  void rowsComeInOneOrder();
  void everyIndexServes();
  void deletes_data();
  void deletes();
  void deletionCanBeRolledBack();
  void wrongStatements_data();
  void wrongStatements();
  void newKeyIsAnswered();
  void columnsByName_data();
  void columnsByName();
  void searchesFindSomething();

 private:
  QStringList planOf(const QString& statement);
  void checkHead(const Recordset& records, const PlainRows& plain);
  void checkRows(const QList<QStringList>& found, const QList<QStringList>& expected,
                 const StatementCase& one);

  QTemporaryDir folder_;
  Connection connection_;
  std::unique_ptr<PlainDatabase> plain_;
  StatementCases selects_;
  DeletionCases deletions_;
};

void StatementsTest::initTestCase() {
  QVERIFY(folder_.isValid());
  const QString path = folder_.filePath("cidade.mdb");
  makeSampleDatabase(path);
  QVERIFY(QFile::copy(path, folder_.filePath("modelo.mdb")));
  plain_ = std::make_unique<PlainDatabase>(path);
  connection_.open(connectionText(path));
  Clock::stopAt(DateTime::of(kYear, 11, 21, 10, 30));
}

void StatementsTest::selects_data() {
  const Samples samples(*plain_);
  selects_.clear();
  addCommonCases(selects_, samples);
  addRequisitionCases(selects_, samples);
  addAdvanceCases(selects_, samples);
  addNoteCases(selects_, samples);
  addListCases(selects_, samples);
  addMasterDataCases(selects_, samples);
  addSheetCases(selects_, samples);
  addRequestCases(selects_, samples);
  addReportCases(selects_, samples);
  QTest::addColumn<int>("place");
  for (int i = 0; i < selects_.size(); ++i) {
    QTest::addRow("%03d %s", i, selects_[i].name) << i;
  }
}

void StatementsTest::selects() {
  QFETCH(const int, place);
  const StatementCase& one = selects_[place];
  const PlainRows plain = plain_->query(one.expected);
  Recordset records;
  records.open(one.statement, connection_, CursorType::Static, LockType::Optimistic);
  checkHead(records, plain);
  const int count = records.recordCount();
  const QList<QStringList> found = rowsOf(records);
  QCOMPARE(found.size(), count);
  checkRows(found, expectedRows(plain, one), one);
}

void StatementsTest::checkHead(const Recordset& records, const PlainRows& plain) {
  QCOMPARE(records.fieldCount(), plain.names.size());
  for (int field = 0; field < records.fieldCount(); ++field) {
    if (plain.names.count(plain.names[field]) == 1) {
      QCOMPARE(records.fieldName(field).toUpper(), plain.names[field].toUpper());
    }
    const ValueType type = declaredType(plain.types[field]);
    if (type != ValueType::Null) {
      QCOMPARE(records.fieldType(field), type);
    }
  }
}

void StatementsTest::checkRows(const QList<QStringList>& found, const QList<QStringList>& expected,
                               const StatementCase& one) {
  for (int i = 1; i < found.size(); ++i) {
    QVERIFY2(inOrder(found[i - 1], found[i], one.order), qPrintable(found[i].join('|')));
  }
  QList<QStringList> left = one.firstRowOnly ? found.mid(0, 1) : found;
  QList<QStringList> right = expected;
  std::sort(left.begin(), left.end());
  std::sort(right.begin(), right.end());
  QCOMPARE(left, right);
}

void StatementsTest::rowsComeInOneOrder_data() {
  selects_data();
}

// Whatever way the engine takes to the rows, they come alike: here it goes through its tables from
// either end.
void StatementsTest::rowsComeInOneOrder() {
  QFETCH(const int, place);
  sqlite3* const handle = test::sqliteSession(connection_).handle();
  const auto read = [&](const char* direction) {
    sqlite3_exec(handle, direction, nullptr, nullptr, nullptr);
    Recordset records;
    records.open(selects_[place].statement, connection_, CursorType::Static, LockType::Optimistic);
    return rowsOf(records);
  };
  const QList<QStringList> forwards = read("PRAGMA reverse_unordered_selects = OFF");
  const QList<QStringList> backwards = read("PRAGMA reverse_unordered_selects = ON");
  sqlite3_exec(handle, "PRAGMA reverse_unordered_selects = OFF", nullptr, nullptr, nullptr);
  QCOMPARE(backwards, forwards);
}

// An index that no statement and no relation looks up costs every write and gives nothing.
void StatementsTest::everyIndexServes() {
  selects_data();
  QStringList idle;
  for (const QStringList& index :
       plain_->query("SELECT name FROM sqlite_schema WHERE type = 'index' AND sql IS NOT NULL")
           .rows) {
    idle << index.first();
  }
  QVERIFY(!idle.isEmpty());
  for (const QStringList& index :
       plain_
           ->query("SELECT i.name FROM sqlite_schema t, pragma_foreign_key_list(t.name) f, "
                   "pragma_index_list(t.name) i, pragma_index_info(i.name) c "
                   "WHERE t.type = 'table' AND c.seqno = 0 AND c.name = f.\"from\"")
           .rows) {
    idle.removeAll(index.first());
  }
  for (const StatementCase& one : selects_) {
    for (const QString& step : planOf(one.statement).filter(QStringLiteral("SEARCH"))) {
      idle.removeIf([&step](const QString& index) {
        return step.contains("INDEX " + index + " ") || step.endsWith("INDEX " + index);
      });
    }
  }
  QVERIFY2(idle.isEmpty(), qPrintable(idle.join(' ')));
}

// What the engine tells of its way to the rows; of the look-ups that stand for a statement too.
QStringList StatementsTest::planOf(const QString& statement) {
  sqlite3* const handle = test::sqliteSession(connection_).handle();
  const sqlite::EngineStatement engine =
      sqlite::translate(dialect::analyse(statement, connection_.catalogue()));
  std::vector<std::string> texts{engine.sql};
  if (engine.leastMatch) {
    texts.push_back(engine.leastMatch->sql);
  }
  QStringList steps;
  for (const std::string& text : texts) {
    sqlite::Statement plan(handle, "EXPLAIN QUERY PLAN " + text, sqlite::Activity::Reading);
    while (plan.step()) {
      steps << plan.text(3);
    }
  }
  return steps;
}

void StatementsTest::deletes_data() {
  deletions_.clear();
  addDeletionCases(deletions_, Samples(*plain_));
  QTest::addColumn<int>("place");
  for (int i = 0; i < deletions_.size(); ++i) {
    QTest::newRow(deletions_[i].name) << i;
  }
}

void StatementsTest::deletes() {
  QFETCH(const int, place);
  const DeletionCase& one = deletions_[place];
  const QString path = folder_.filePath("apaga.mdb");
  QFile::remove(path);
  QVERIFY(QFile::copy(folder_.filePath("modelo.mdb"), path));
  PlainDatabase plain(path);
  QCOMPARE(plain.run(one.before), 0);
  QMap<QString, int> expected = countsOfTables(plain);
  int first = 0;
  for (const DeletionCase::Loss& loss : one.losses) {
    const int count = plain.number(loss.count);
    expected[loss.table] -= count;
    first = loss.table == one.losses.first().table ? count : first;
  }
  {
    Connection connection;
    connection.open(connectionText(path));
    connection.beginTransaction();
    int removed = 0;
    QCOMPARE(errorOf([&] { removed = connection.execute(one.statement); }), one.error);
    QCOMPARE(removed, first);
    one.error == 0 ? connection.commit() : connection.rollback();
  }
  QCOMPARE(countsOfTables(plain), expected);
  QVERIFY(plain.query("PRAGMA foreign_key_check").rows.isEmpty());
}

void StatementsTest::deletionCanBeRolledBack() {
  const QByteArray before = plain_->contentHash();
  connection_.beginTransaction();
  QVERIFY(connection_.execute("DELETE FROM Viagem where ITEM = 1") == 1);
  connection_.rollback();
  QCOMPARE(plain_->contentHash(), before);
}

void StatementsTest::wrongStatements_data() {
  QTest::addColumn<QString>("statement");
  QTest::addColumn<int>("number");
  const auto add = [](const char* name, const char* statement, int number) {
    QTest::newRow(name) << QString(statement) << number;
  };
  add("a key that the table does not have", "Select * From Orgao WHERE ID =3", 3061);
  add("a quote in the search text",
      "SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 LIKE '%D'Ávila%';", 3075);
  add("an unclosed text", "SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 LIKE '%O';';", 3075);
  add("a second statement behind the first",
      "SELECT Orgao.IDORGAO, Orgao.Orgao FROM Orgao WHERE Orgao.ORGAO Like '%x'; DELETE FROM "
      "Orgao;",
      3075);
  add("a table that does not exist", "Select * From Ninguem", 3078);
  add("a table that is not part of the query",
      "SELECT * FROM Sel_Req_left  WHERE PrestContas.SEQ = 1", 3061);
  add("a deletion where rows are asked for", "DELETE FROM Orgao where IDORGAO = 1", 3065);
}

void StatementsTest::wrongStatements() {
  QFETCH(const QString, statement);
  QFETCH(const int, number);
  Recordset records;
  QCOMPARE(errorOf([&] { records.open(statement, connection_); }), number);
  QCOMPARE(records.state(), Recordset::Closed);
}

void StatementsTest::newKeyIsAnswered() {
  const int before = plain_->number("SELECT seq FROM sqlite_sequence WHERE name = 'ReqAvulso'");
  Recordset row;
  row.open("ReqAvulso", connection_, CursorType::Static, LockType::Pessimistic);
  row.addNew();
  row.setField(u"VALOR", Money::fromReais(50));
  row.update();
  row.close();
  Recordset key;
  key.open(kNewKey, connection_);
  QCOMPARE(key.recordCount(), 1);
  QCOMPARE(key.field(0).i32(), before + 1);
}

// The columns that screens and reports ask a stored query for by name.
void StatementsTest::columnsByName_data() {
  QTest::addColumn<QString>("query");
  QTest::addColumn<QString>("columns");
  const char* kPrinted =
      "SEQ DATA VALOR JUSTIFICATIVA FICHA ORGAO NOME1 RG1 CPF1 CARGO NOME RG CPF FUNCAO TIPO "
      "ELEMENTO LEI MATERIAIS PRAZO";
  QTest::newRow("Sel_Print_req") << "Sel_Print_req" << kPrinted;
  QTest::newRow("Sel_Print_reqavulso") << "Sel_Print_reqavulso" << kPrinted;
  QTest::newRow("Sel_Planilha") << "Sel_Planilha"
                                << "EMPENHO ABERTURA RETIRADA NOME NOME1 CARGO ORGAO VALOR";
  QTest::newRow("Sel_Viagem") << "Sel_Viagem"
                              << "ITEM ORGAO VEICULO MOTIVO LOCALIDADE DISTANCIA PLACA "
                                 "DATA_SAIDA DATA_CHEGADA HSAIDA HCHEGADA DESTINO UF "
                                 "PARTICIPANTES OBS MOTORISTA";
}

void StatementsTest::columnsByName() {
  QFETCH(const QString, query);
  QFETCH(const QString, columns);
  Recordset records;
  records.open(query, connection_);
  QVERIFY(records.recordCount() > 0);
  for (const QString& column : columns.split(' ')) {
    QCOMPARE(errorOf([&] { records.field(column); }), 0);
  }
  QCOMPARE(records.fieldType(records.fieldPosition(u"ORGAO")), ValueType::Text);
}

// Guards the table above: a search that nothing matches would prove little.
void StatementsTest::searchesFindSomething() {
  Recordset records;
  records.open("SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 LIKE '%joão%';", connection_);
  QSet<QString> names;
  while (!records.eof()) {
    names << records.field(u"NOME1").text();
    records.moveNext();
  }
  QVERIFY(names.contains("João Batista Quintão Barcelos"));
  QVERIFY(names.contains("JOÃO ÉLCIO D'ÁVILA"));
  QVERIFY(names.contains("josé joão de sant'ana"));
}

}  // namespace quartela::test

using quartela::test::StatementsTest;
QUARTELA_TEST_MAIN(StatementsTest)
#include "Statements_test.moc"
