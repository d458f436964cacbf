#include "platform/database/engines/sqlite/LeastMatch.h"

#include <QRandomGenerator>

#include "platform/database/Connection.h"
#include "platform/database/engines/sqlite/Latin.h"
#include "platform/values/Convert.h"
#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/SqliteSession.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

namespace {

const char* kIndex = "CREATE INDEX h ON PrestContas (HISTORICO COLLATE NOCASE)";

QString statement(const QString& prefix) {
  return "SELECT TOP 1 HISTORICO FROM PrestContas WHERE HISTORICO Like '" + prefix +
         "%' ORDER BY HISTORICO  Asc;";
}

void addTexts(const SmallDatabase& database, const QStringList& texts) {
  PlainSql sql(database.path());
  sql.run("DELETE FROM PrestContas");
  for (const QString& text : texts) {
    sql.run("INSERT INTO PrestContas (PROCESSO, HISTORICO) VALUES (114, '" +
            QString(text).replace('\'', "''").toUtf8() + "')");
  }
}

// A word of letters that differ in case and accents, so that many texts begin alike.
QString anyWord(QRandomGenerator& random) {
  static const QString letters = QStringLiteral("aAáÁãÃbBcCçÇeEéÉêoOõÕ zZ@[_`{-.'ŠšĿłK");
  QString word;
  for (int length = random.bounded(7); length > 0; --length) {
    word += letters[random.bounded(static_cast<int>(letters.size()))];
  }
  return random.bounded(10) == 0 ? word.normalized(QString::NormalizationForm_D) : word;
}

}  // namespace

class LeastMatch_test : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    database_ = std::make_unique<SmallDatabase>();
    connection_ = std::make_unique<Connection>();
  }
  void cleanup() {
    connection_.reset();
    database_.reset();
  }

  void findsTheLeast_data() {
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("found");

    const QStringList shops{"PADARIA PÃO QUENTE", "PADARIA PAPAI", "PADARIA PZ", "AÇOUGUE", "ABC"};
    QTest::newRow("accents count last") << shops << "PADARIA P"
                                        << "PADARIA PÃO QUENTE";
    QTest::newRow("another case") << shops << "padaria pa"
                                  << "PADARIA PAPAI";
    QTest::newRow("an accented letter of another case") << shops << "aço"
                                                        << "AÇOUGUE";
    QTest::newRow("an accent is not left out") << shops << "ACO" << QString();
    QTest::newRow("nothing typed") << shops << ""
                                   << "ABC";
    QTest::newRow("no such beginning") << shops << "X" << QString();
    QTest::newRow("no texts at all") << QStringList() << "" << QString();
    QTest::newRow("a text is its own beginning") << QStringList{"HOTEL SOL", "HOTEL"} << "HOTEL"
                                                 << "HOTEL";
    QTest::newRow("a text twice") << QStringList{"HOTEL", "HOTEL"} << "H"
                                  << "HOTEL";
    QTest::newRow("letters alike but for their accents") << QStringList{"SÉ", "SÊ", "SE"} << "S"
                                                         << "SE";
    QTest::newRow("the accent decides at the end") << QStringList{"PÃO B", "PAO C"} << "P"
                                                   << "PÃO B";
    QTest::newRow("signs between the letters' cases")
        << QStringList{"A@Z", "A[B", "A_C", "A`D"} << "A"
        << "A@Z";
    QTest::newRow("behind an at sign") << QStringList{"A@Z", "A[B"} << "A@"
                                       << "A@Z";
    QTest::newRow("an apostrophe") << QStringList{"CAIXA D'ÁGUA"} << "caixa d''á"
                                   << "CAIXA D'ÁGUA";
    QTest::newRow("an accent behind its letter") << QStringList{"PA\u0303O B", "PAO C"} << "P"
                                                 << "PA\u0303O B";
    QTest::newRow("an accented letter finds it") << QStringList{"PA\u0303O B", "PAO A"} << "pã"
                                                 << "PA\u0303O B";
    QTest::newRow("as does one typed so") << QStringList{"PÃO B", "PAO A"} << "pa\u0303"
                                          << "PÃO B";
    QTest::newRow("a plain letter does not") << QStringList{"PA\u0303O B", "PAZ"} << "pa"
                                             << "PAZ";
    QTest::newRow("a sign that folds to a plain letter") << QStringList{"K"} << "k"
                                                         << "K";
  }

  void findsTheLeast() {
    QFETCH(const QStringList, texts);
    QFETCH(const QString, prefix);
    QFETCH(const QString, found);
    addTexts(*database_, texts);
    compareBoth(prefix);
    QCOMPARE(answer(prefix), found);
    // Accents behind their letters stand in no order of the index.
    QCOMPARE(byIndex(prefix).known, !texts.join(QString()).contains(QChar(0x303)));
  }

  // Whatever stands in the column, the index gives what the statement gives.
  void equalsTheStatement() {
    QRandomGenerator random(7);
    for (int round = 0; round < 12; ++round) {
      QStringList texts;
      for (int i = 0; i < 60; ++i) {
        texts << anyWord(random);
      }
      addTexts(*database_, texts);
      for (int i = 0; i < 25; ++i) {
        compareBoth(anyWord(random).left(3).replace('_', "A").replace('\'', "''"));
      }
    }
  }

  void otherIndexesAreNotTaken_data() {
    QTest::addColumn<QByteArray>("index");
    QTest::newRow("none") << QByteArray("SELECT 1");
    QTest::newRow("binary") << QByteArray("CREATE INDEX h ON PrestContas (HISTORICO)");
    QTest::newRow("second column")
        << QByteArray("CREATE INDEX h ON PrestContas (SEQ, HISTORICO COLLATE NOCASE)");
    QTest::newRow("partial") << QByteArray(
        "CREATE INDEX h ON PrestContas (HISTORICO COLLATE NOCASE) WHERE SEQ > 2");
    QTest::newRow("descending") << QByteArray(
        "CREATE INDEX h ON PrestContas (HISTORICO COLLATE NOCASE DESC)");
  }

  void otherIndexesAreNotTaken() {
    QFETCH(const QByteArray, index);
    PlainSql(database_->path()).run(index);
    database_->open(*connection_);
    QVERIFY(!byIndex("P").known);
    QCOMPARE(answerOfOpen("P"), QStringLiteral("PAPELARIA É"));
  }

  void bytesThatAreNoTextAreLeftToTheStatement() {
    PlainSql sql(database_->path());
    sql.run(kIndex);
    sql.run("INSERT INTO PrestContas (PROCESSO, HISTORICO) VALUES (114, CAST(x'50ff41' AS TEXT))");
    database_->open(*connection_);
    QVERIFY(!byIndex("P").known);
    QVERIFY(byIndex("H").known);
  }

  void aRowBegunKeepsItsLock() {
    PlainSql(database_->path()).run(kIndex);
    database_->open(*connection_);
    Recordset row;
    row.open("PrestContas", *connection_, CursorType::Keyset, LockType::Pessimistic);
    row.addNew();
    row.setField(u"PROCESSO", Value(std::int32_t{114}));
    row.setField(u"HISTORICO", Value(QStringLiteral("ABACAXI")));
    QCOMPARE(answerOfOpen("H"), QStringLiteral("Hotel"));
    row.update();
    QCOMPARE(answerOfOpen("A"), QStringLiteral("ABACAXI"));
  }

  // Statements that are kept for their next use make room for others when there are many: whenever
  // that happens, those that a look-up is at work with stay.
  void aLookUpKeepsItsStatements() {
    PlainSql(database_->path()).run(kIndex);
    for (int writes = 55; writes <= 70; ++writes) {
      connection_ = std::make_unique<Connection>();
      database_->open(*connection_);
      writeInManyWays(writes);
      QCOMPARE(answerOfOpen("Pos"), QStringLiteral("Posto São João"));
    }
  }

  void theKeyIsThereToWriteThrough() {
    PlainSql(database_->path()).run(kIndex);
    database_->open(*connection_);
    Recordset row;
    row.open(statement("Pos"), *connection_, CursorType::Keyset, LockType::Pessimistic);
    row.setField(0, Value(QStringLiteral("POSTO")));
    row.update();
    row.close();
    QCOMPARE(answerOfOpen("Pos"), QStringLiteral("POSTO"));
  }

  void onlySuchStatements_data() {
    QTest::addColumn<QString>("sql");
    const QString such = statement("P");
    QTest::newRow("two rows") << QString(such).replace("TOP 1", "TOP 2");
    QTest::newRow("all rows") << QString(such).remove("TOP 1 ");
    QTest::newRow("descending") << QString(such).replace("Asc", "DESC");
    QTest::newRow("in another order") << QString(such).replace("BY HISTORICO", "BY SEQ");
    QTest::newRow("unordered") << QString(such).remove(" ORDER BY HISTORICO  Asc");
    QTest::newRow("two columns") << QString(such).replace("TOP 1 HISTORICO",
                                                          "TOP 1 HISTORICO, SEQ");
    QTest::newRow("not like") << QString(such).replace("Like", "Not Like");
    QTest::newRow("another condition") << QString(such).replace(" ORDER", " AND SEQ > 1 ORDER");
    QTest::newRow("a sign inside") << QString(such).replace("P%", "P_%");
    QTest::newRow("in the middle") << QString(such).replace("P%", "%P%");
    QTest::newRow("no sign") << QString(such).replace("P%", "P");
  }

  void onlySuchStatements() {
    QFETCH(const QString, sql);
    database_->open(*connection_);
    QVERIFY(translated(statement("P")).leastMatch);
    QVERIFY(!translated(sql).leastMatch);
  }

 private:
  sqlite::EngineStatement translated(const QString& sql) const {
    return sqlite::translate(dialect::analyse(sql, connection_->catalogue()));
  }

  sqlite::FoundText byIndex(const QString& prefix) const {
    return sqlite::findLeastMatch(test::sqliteSession(*connection_),
                                  *translated(statement(prefix)).leastMatch);
  }

  QString answerOfOpen(const QString& prefix) const {
    Recordset rows;
    rows.open(statement(prefix), *connection_);
    return rows.recordCount() == 0 ? QString() : Convert::toText(rows.field(0));
  }

  QString answer(const QString& prefix) {
    connection_ = std::make_unique<Connection>();
    database_->open(*connection_);
    return answerOfOpen(prefix);
  }

  // Each change sets other columns, to what they hold: as many statements as changes.
  void writeInManyWays(int ways) {
    connection_->beginTransaction();
    for (const char* source : {"SELECT * FROM Requisicao WHERE SEQ = 114", "SELECT * FROM Orgao"}) {
      Recordset row;
      row.open(QLatin1String(source), *connection_, CursorType::Keyset, LockType::Pessimistic);
      for (int columns = 1; columns < 1 << row.fieldCount() && ways > 0; ++columns, --ways) {
        for (int i = 0; i < row.fieldCount(); ++i) {
          if ((columns >> i & 1) != 0) {
            row.setField(i, row.field(i));
          }
        }
        row.update();
      }
    }
    connection_->rollback();
    QCOMPARE(ways, 0);
  }

  void compareBoth(const QString& prefix) {
    PlainSql(database_->path()).run("DROP INDEX IF EXISTS h");
    const QString plain = answer(prefix);
    PlainSql(database_->path()).run(kIndex);
    const QString indexed = answer(prefix);
    QVERIFY2(sqlite::compareLatin(plain.toStdString(), indexed.toStdString()) == 0,
             qUtf8Printable(prefix + ": " + plain + " | " + indexed));
    const sqlite::FoundText found = byIndex(prefix);
    if (found.known) {
      QCOMPARE(QString::fromStdString(found.text.value_or("")), indexed);
    }
  }

  std::unique_ptr<SmallDatabase> database_;
  std::unique_ptr<Connection> connection_;
};

QUARTELA_TEST_MAIN(LeastMatch_test)
#include "LeastMatch_test.moc"
