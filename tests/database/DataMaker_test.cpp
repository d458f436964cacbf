// The demonstration data: the same for the same seed, and fit for a town hall.
#include "demonstration/DataMaker.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "demonstration/Names.h"
#include "platform/values/RuntimeError.h"
#include "tests/database/PlainDatabase.h"
#include "tests/support/TestMain.h"

namespace quartela::test {

namespace {

demonstration::Options smallTown() {
  demonstration::Options options;
  options.today = DateTime::of(2014, 11, 21);
  options.processes = 300;
  return options;
}

// The check digits as the revenue office tells them, written down a second time.
bool cpfIsRight(const QString& formatted) {
  const QString cpf = QString(formatted).remove('.').remove('-');
  if (cpf.size() != 11 || cpf.count(cpf[0]) == 11) {
    return false;
  }
  for (const int length : {9, 10}) {
    int sum = 0;
    for (int i = 0; i < length; ++i) {
      sum += cpf[i].digitValue() * (length + 1 - i);
    }
    const int rest = sum % 11;
    if (cpf[length].digitValue() != (rest < 2 ? 0 : 11 - rest)) {
      return false;
    }
  }
  return true;
}

}  // namespace

class DataMakerTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void sameSeedSameRows();
  void otherOptionsOtherRows_data();
  void otherOptionsOtherRows();
  void fileIsSound();
  void countsAreAsAsked();
  void rowsExist_data();
  void rowsExist();
  void rulesHold_data();
  void rulesHold();
  void taxpayerNumbersAreRight();
  void checkDigitsOfAKnownNumber();
  void yearsTakeFourDigitNumbers();
  void deliveredProcessesCanBeOpened_data();
  void deliveredProcessesCanBeOpened();
  void oddSizes_data();
  void oddSizes();
  void optionsOutOfRange_data();
  void optionsOutOfRange();

 private:
  QByteArray hashOf(const demonstration::Options& options);

  QTemporaryDir folder_;
  std::unique_ptr<PlainDatabase> plain_;
};

void DataMakerTest::initTestCase() {
  QVERIFY(folder_.isValid());
  demonstration::makeDatabase(folder_.filePath("cidade.mdb"), smallTown());
  plain_ = std::make_unique<PlainDatabase>(folder_.filePath("cidade.mdb"));
}

QByteArray DataMakerTest::hashOf(const demonstration::Options& options) {
  const QString path = folder_.filePath("outra.mdb");
  QFile::remove(path);
  demonstration::makeDatabase(path, options);
  return PlainDatabase(path).contentHash();
}

void DataMakerTest::sameSeedSameRows() {
  QCOMPARE(hashOf(smallTown()), plain_->contentHash());
  QCOMPARE(hashOf(smallTown()), plain_->contentHash());
}

void DataMakerTest::otherOptionsOtherRows_data() {
  QTest::addColumn<int>("processes");
  QTest::addColumn<int>("notes");
  QTest::addColumn<int>("seed");
  QTest::addColumn<int>("day");
  QTest::newRow("seed") << 300 << 2100 << 2 << 21;
  QTest::newRow("processes") << 301 << 2100 << 1 << 21;
  QTest::newRow("notes") << 300 << 2101 << 1 << 21;
  QTest::newRow("today") << 300 << 2100 << 1 << 22;
}

void DataMakerTest::otherOptionsOtherRows() {
  QFETCH(const int, processes);
  QFETCH(const int, notes);
  QFETCH(const int, seed);
  QFETCH(const int, day);
  demonstration::Options options;
  options.today = DateTime::of(2014, 11, day);
  options.processes = processes;
  options.notes = notes;
  options.seed = static_cast<std::uint64_t>(seed);
  QVERIFY(hashOf(options) != plain_->contentHash());
}

void DataMakerTest::fileIsSound() {
  QCOMPARE(plain_->text("PRAGMA integrity_check"), QString("ok"));
  QCOMPARE(plain_->text("PRAGMA journal_mode"), QString("delete"));
  QVERIFY(plain_->query("PRAGMA foreign_key_check").rows.isEmpty());
  QVERIFY(QDir(folder_.path()).entryList({"cidade.mdb-*"}).isEmpty());
}

void DataMakerTest::countsAreAsAsked() {
  QCOMPARE(plain_->number("SELECT count(*) FROM Requisicao"), 300);
  QCOMPARE(plain_->number("SELECT count(*) FROM PrestContas"), 2100);
  QCOMPARE(plain_->number("SELECT count(*) FROM Orgao"), 12);
  QCOMPARE(plain_->number("SELECT count(*) FROM Executor"), 20);
  QCOMPARE(plain_->number("SELECT count(*) FROM Tomador"), 80);
}

// Each of these selects rows that must be there.
void DataMakerTest::rowsExist_data() {
  QTest::addColumn<QByteArray>("from");
  const auto add = [](const char* name, const char* from) {
    QTest::newRow(name) << QByteArray(from);
  };
  add("requisition only this year",
      "Requisicao WHERE DATA >= '2014-01-01' AND SEQ NOT IN (SELECT PROCESSO FROM Adiantamento)");
  add("open", "Adiantamento WHERE FECHAMENTO IS NULL AND FECHAR_EM > '2014-11-27'");
  add("about to fall due",
      "Adiantamento WHERE FECHAMENTO IS NULL AND FECHAR_EM BETWEEN '2014-11-21' AND '2014-11-27'");
  add("overdue", "Adiantamento WHERE FECHAMENTO IS NULL AND FECHAR_EM < '2014-11-21'");
  add("closed", "Adiantamento WHERE FECHAMENTO IS NOT NULL AND ANULADO = 0");
  add("closed this year",
      "Adiantamento WHERE FECHAMENTO > '2014-01-01' AND ABERTURA > '2014-01-01'");
  add("annulled and open", "Adiantamento WHERE FECHAMENTO IS NULL AND ANULADO = 1");
  add("annulled and closed", "Adiantamento WHERE FECHAMENTO IS NOT NULL AND ANULADO = 1");
  const char* kSpent =
      "(SELECT r.VALOR AS v, sum(n.DESPESAS) AS s FROM Requisicao r JOIN Adiantamento a ON "
      "a.PROCESSO = r.SEQ JOIN PrestContas n ON n.PROCESSO = a.EMPENHO GROUP BY r.SEQ) WHERE ";
  QTest::newRow("overspent") << QByteArray(kSpent) + "s > v";
  QTest::newRow("spent exactly") << QByteArray(kSpent) + "s = v";
  QTest::newRow("money left") << QByteArray(kSpent) + "s < v";
  add("notes of a travel sheet", "PrestContas WHERE ID_VIAGEM IN (SELECT ITEM FROM Viagem)");
  add("several sheets of a process", "IdentificaTransp WHERE PLANILHA > 1");
  add("documents", "ItensTransp");
  add("standalone", "ReqAvulso");
  add("goods", "Produtos");
  add("services", "Servicos");
  add("clauses", "Inciso");
  add("a name with an apostrophe", "Tomador WHERE NOME1 LIKE '%''%'");
  add("a name with an accent", "Tomador WHERE NOME1 LIKE '%ã%'");
  add("someone no longer in office", "Tomador WHERE ATIVO = 0");
  add("a type out of use", "Tipos WHERE ATIVO = 0");
  add("small expenses", "Tipos WHERE TIPO = 'Miúdas'");
}

void DataMakerTest::rowsExist() {
  QFETCH(const QByteArray, from);
  QVERIFY(plain_->number("SELECT count(*) FROM " + from) > 0);
}

// Each of these selects rows that break a rule.
void DataMakerTest::rulesHold_data() {
  QTest::addColumn<QByteArray>("from");
  const auto add = [](const char* name, const char* from) {
    QTest::newRow(name) << QByteArray(from);
  };
  add("periods are of the three texts",
      "Tipos WHERE PRAZO NOT IN ('05 dias', '30 dias', '60 dias')");
  add("types are named after purposes",
      "Tipos WHERE TIPO NOT IN (SELECT FINALIDADE FROM Finalidade)");
  add("process numbers end in the year", "Requisicao WHERE SEQ % 100 <> substr(DATA, 3, 2) + 0");
  add("running numbers have no gap",
      "(SELECT count(*) AS c, max(SEQ / 100) AS m, min(SEQ / 100) AS f FROM Requisicao "
      "GROUP BY SEQ % 100) WHERE c <> m - f + 1");
  add("years begin with their first number, this one with its 201st",
      "(SELECT min(SEQ / 100) AS f, SEQ % 100 AS y FROM Requisicao GROUP BY 2) "
      "WHERE f <> CASE y WHEN 14 THEN 201 ELSE 1 END");
  add("running numbers follow the dates",
      "Requisicao a JOIN Requisicao b ON b.SEQ = a.SEQ + 100 WHERE b.DATA < a.DATA");
  add("empenho numbers end in the year",
      "Adiantamento WHERE EMPENHO % 100 <> substr(ABERTURA, 3, 2) + 0");
  add("one empenho a process",
      "(SELECT PROCESSO FROM Adiantamento GROUP BY 1 HAVING count(*) > 1)");
  add("deadline is the withdrawal and the period",
      "Adiantamento a JOIN Requisicao r ON r.SEQ = a.PROCESSO JOIN Tipos t ON "
      "t.SEQUENCIA = r.FINALIDADE WHERE date(a.RETIRADA, substr(t.PRAZO, 1, 2) || ' days') <> "
      "date(a.FECHAR_EM)");
  add("dates follow each other",
      "Adiantamento a JOIN Requisicao r ON r.SEQ = a.PROCESSO WHERE NOT (r.DATA <= a.ABERTURA AND "
      "a.ABERTURA <= a.RETIRADA AND (a.FECHAMENTO IS NULL OR a.RETIRADA <= a.FECHAMENTO))");
  add("nothing happened in the future",
      "(SELECT DATA AS d FROM Requisicao UNION ALL SELECT RETIRADA FROM Adiantamento UNION ALL "
      "SELECT FECHAMENTO FROM Adiantamento UNION ALL SELECT DATA FROM PrestContas UNION ALL "
      "SELECT DATA_CHEGADA FROM Viagem UNION ALL SELECT DATADOC FROM ItensTransp UNION ALL "
      "SELECT DATA FROM ReqAvulso) WHERE d > '2014-11-21 00:00:00'");
  add("notes lie between withdrawal and deadline",
      "PrestContas n JOIN Adiantamento a ON a.EMPENHO = n.PROCESSO "
      "WHERE n.DATA NOT BETWEEN a.RETIRADA AND a.FECHAR_EM");
  add("notes are above zero", "PrestContas WHERE DESPESAS <= 0");
  add("what is left was returned",
      "Adiantamento a JOIN Requisicao r ON r.SEQ = a.PROCESSO WHERE a.FECHAMENTO IS NOT NULL AND "
      "a.DEVOLUCAO <> max(0, r.VALOR - (SELECT coalesce(sum(DESPESAS), 0) FROM PrestContas "
      "WHERE PROCESSO = a.EMPENHO))");
  add("returned on the closing day",
      "Adiantamento WHERE DATADEV IS NOT (CASE WHEN DEVOLUCAO > 0 THEN FECHAMENTO END)");
  add("tied notes belong to the sheet's process",
      "PrestContas n LEFT JOIN Viagem v ON v.ITEM = n.ID_VIAGEM WHERE n.ID_VIAGEM <> 0 AND "
      "(v.PROCESSO IS NOT n.PROCESSO OR n.DATA NOT BETWEEN v.DATA_SAIDA AND v.DATA_CHEGADA)");
  add("a sheet has room for its notes",
      "(SELECT count(*) AS c FROM PrestContas WHERE ID_VIAGEM <> 0 GROUP BY ID_VIAGEM) WHERE c > "
      "20");
  add("sheets lead to known cities",
      "Viagem v LEFT JOIN Cidades c ON c.nome = v.DESTINO AND c.uf = v.UF "
      "WHERE c.distancia IS NOT v.DISTANCIA");
  add("transport is of commitments",
      "IdentificaTransp WHERE PROCESSO NOT IN (SELECT EMPENHO FROM Adiantamento)");
  add("transport sheets bear their day as it is written",
      "(SELECT DATA AS d, substr(DATA, 7) || '-' || substr(DATA, 4, 2) || '-' || "
      "substr(DATA, 1, 2) AS day FROM IdentificaTransp) "
      "WHERE date(day, '+0 days') IS NOT day OR length(d) <> 10 OR substr(d, 3, 1) <> '/' OR "
      "substr(d, 6, 1) <> '/'");
  add("documents are of the sheet's day",
      "IdentificaTransp s JOIN ItensTransp d ON d.IDENT_TRANSP = s.ITEM WHERE "
      "strftime('%d/%m/%Y', d.DATADOC) <> s.DATA");
  add("odometers run forward", "IdentificaTransp WHERE HCHEGADA <= HSAIDA");
  add("orderers order for their secretariat",
      "Requisicao r JOIN Executor e ON e.ORDEM = r.ORGAO JOIN Tipos t ON t.SEQUENCIA = "
      "r.FINALIDADE WHERE e.IDORGAO <> t.IDORGAO");
  add("allocations of the requisitions exist",
      "Requisicao WHERE FICHA NOT IN (SELECT CAST(DOTACAO AS TEXT) FROM Dotacao)");
  add("allocations are of three years", "Dotacao WHERE ANO NOT BETWEEN 2012 AND 2014");
  add("names are not given twice",
      "(SELECT NOME1 AS n FROM Tomador UNION ALL SELECT NOME FROM Executor) GROUP BY n "
      "HAVING count(*) > 1");
  add("names fit their field", "Executor WHERE length(NOME) > 50 OR length(FUNCAO) > 50");
  add("secretariats fit the travel sheet", "Orgao WHERE length(ORGAO) > 35");
  add("payment orders have five digits", "Adiantamento WHERE OP NOT BETWEEN 1 AND 99999");
}

void DataMakerTest::rulesHold() {
  QFETCH(const QByteArray, from);
  const PlainRows broken = plain_->query("SELECT * FROM " + from + " LIMIT 3");
  QVERIFY2(broken.rows.isEmpty(),
           broken.rows.isEmpty() ? "" : qPrintable(broken.rows.first().join("|")));
}

void DataMakerTest::taxpayerNumbersAreRight() {
  const PlainRows people =
      plain_->query("SELECT CPF1 FROM Tomador UNION ALL SELECT CPF FROM Executor");
  QCOMPARE(people.rows.size(), 100);
  for (const QStringList& row : people.rows) {
    QVERIFY2(cpfIsRight(row.first()), qPrintable(row.first()));
    QCOMPARE(row.first().size(), 14);
  }
}

void DataMakerTest::checkDigitsOfAKnownNumber() {
  QVERIFY(cpfIsRight("123.456.789-09"));
  QVERIFY(!cpfIsRight("123.456.789-08"));
  QCOMPARE(demonstration::cpfCheckDigits("123456789"), std::string("09"));
  QCOMPARE(demonstration::cpfCheckDigits("111444777"), std::string("35"));
}

void DataMakerTest::yearsTakeFourDigitNumbers() {
  demonstration::Options options = smallTown();
  options.processes = 30'000;
  options.notes = 0;
  const QString path = folder_.filePath("grande.mdb");
  demonstration::makeDatabase(path, options);
  PlainDatabase plain(path);
  QCOMPARE(plain.number("SELECT count(*) FROM Requisicao"), 30'000);
  QCOMPARE(plain.number("SELECT count(*) FROM PrestContas"), 0);
  QVERIFY(plain.number("SELECT max(SEQ / 100) FROM Requisicao") <= 9'999);
  QVERIFY(plain.number("SELECT max(EMPENHO / 100) FROM Adiantamento") <= 99'999);
}

void DataMakerTest::deliveredProcessesCanBeOpened_data() {
  QTest::addColumn<DateTime>("today");
  QTest::newRow("first day of a year") << DateTime::of(2014, 1, 1);
  QTest::newRow("early in the year") << DateTime::of(2014, 3, 15);
  QTest::newRow("middle of the year") << DateTime::of(2014, 7, 1);
  QTest::newRow("last day of a year") << DateTime::of(2014, 12, 31);
}

// The process screen opens numbers of 16 bits only: in the delivered data that is every process.
// The counter file is one for both databases: the first 200 numbers of this year are free.
void DataMakerTest::deliveredProcessesCanBeOpened() {
  QFETCH(const DateTime, today);
  demonstration::Options options;
  options.today = today;
  const QString path = folder_.filePath("entrega.mdb");
  QFile::remove(path);
  demonstration::makeDatabase(path, options);
  PlainDatabase plain(path);
  QCOMPARE(plain.number("SELECT count(*) FROM Requisicao"), 900);
  QVERIFY(plain.number("SELECT max(SEQ) FROM Requisicao") <= 32'767);
  QCOMPARE(plain.number("SELECT count(*) FROM Requisicao WHERE SEQ % 100 = 14 AND "
                        "SEQ / 100 NOT BETWEEN 201 AND 327"),
           0);
}

void DataMakerTest::oddSizes_data() {
  QTest::addColumn<int>("processes");
  QTest::addColumn<int>("notes");
  QTest::addColumn<DateTime>("today");
  QTest::newRow("one process") << 1 << 7 << DateTime::of(2014, 11, 21);
  QTest::newRow("no notes") << 40 << 0 << DateTime::of(2014, 11, 21);
  QTest::newRow("many notes") << 20 << 4000 << DateTime::of(2014, 11, 21);
  QTest::newRow("New Year's Day") << 100 << 700 << DateTime::of(2015, 1, 1);
  QTest::newRow("leap day, late in the evening") << 100 << 700 << DateTime::of(2016, 2, 29, 23, 59);
}

void DataMakerTest::oddSizes() {
  QFETCH(const int, processes);
  QFETCH(const int, notes);
  QFETCH(const DateTime, today);
  demonstration::Options options;
  options.today = today;
  options.processes = processes;
  options.notes = notes;
  const QString path = folder_.filePath("avulsa.mdb");
  QFile::remove(path);
  demonstration::makeDatabase(path, options);
  PlainDatabase plain(path);
  QCOMPARE(plain.number("SELECT count(*) FROM Requisicao"), processes);
  QVERIFY(plain.query("PRAGMA foreign_key_check").rows.isEmpty());
  const int spending = plain.number("SELECT count(*) FROM Adiantamento WHERE ANULADO = 0");
  QCOMPARE(plain.number("SELECT count(*) FROM PrestContas"), spending > 0 ? notes : 0);
}

void DataMakerTest::optionsOutOfRange_data() {
  QTest::addColumn<int>("processes");
  QTest::addColumn<int>("notes");
  QTest::newRow("no process") << 0 << 10;
  QTest::newRow("fewer than none") << -1 << 10;
  QTest::newRow("more than years can count") << 500'001 << 10;
  QTest::newRow("fewer notes than none") << 10 << -1;
  QTest::newRow("too many notes") << 10 << 20'000'001;
}

void DataMakerTest::optionsOutOfRange() {
  QFETCH(const int, processes);
  QFETCH(const int, notes);
  demonstration::Options options = smallTown();
  options.processes = processes;
  options.notes = notes;
  const QString path = folder_.filePath("nunca.mdb");
  try {
    demonstration::makeDatabase(path, options);
    QFAIL("no error");
  } catch (const RuntimeError& error) {
    QCOMPARE(error.number(), 5);
  }
  QVERIFY(!QFile::exists(path));
}

}  // namespace quartela::test

using quartela::test::DataMakerTest;
QUARTELA_TEST_MAIN(DataMakerTest)
#include "DataMaker_test.moc"
