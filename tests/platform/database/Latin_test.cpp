#include "platform/database/engines/sqlite/Latin.h"

#include <algorithm>

#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;
using quartela::sqlite::compareLatin;
using quartela::sqlite::LikePattern;

namespace {

int sign(int number) {
  return number < 0 ? -1 : (number > 0 ? 1 : 0);
}

std::string_view view(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace

class Latin : public QObject {
  Q_OBJECT

 private slots:
  void compares_data();
  void compares();
  void ordersAsAReaderExpects();
  void matches_data();
  void matches();
  void accentsBehindTheirLetters();
  void accentsBehindTheirLettersMatch();
  void inStatements_data();
  void inStatements();
  void nullsStayNull_data();
  void nullsStayNull();
};

void Latin::compares_data() {
  QTest::addColumn<QByteArray>("a");
  QTest::addColumn<QByteArray>("b");
  QTest::addColumn<int>("result");

  QTest::newRow("names") << QByteArray("JOÃO") << QByteArray("joão") << 0;
  QTest::newRow("É") << QByteArray("é") << QByteArray("É") << 0;
  QTest::newRow("Ç") << QByteArray("ç") << QByteArray("Ç") << 0;
  QTest::newRow("Ñ") << QByteArray("ñ") << QByteArray("Ñ") << 0;
  QTest::newRow("Ÿ") << QByteArray("ÿ") << QByteArray("Ÿ") << 0;
  QTest::newRow("ẞ") << QByteArray("ß") << QByteArray("ẞ") << 0;
  QTest::newRow("Extended-A") << QByteArray("Œuvre Š Ž Ő") << QByteArray("œUVRE š ž ő") << 0;
  QTest::newRow("Extended-B") << QByteArray("Ǆ Ƣ Ⱥ") << QByteArray("ǆ ƣ ⱥ") << 0;
  QTest::newRow("Additional") << QByteArray("Ḁ Ẽ Ỹ") << QByteArray("ḁ ẽ ỹ") << 0;
  QTest::newRow("signs are no letters") << QByteArray("×") << QByteArray("÷") << -1;
  QTest::newRow("accents apart") << QByteArray("e") << QByteArray("é") << -1;
  QTest::newRow("é and ê") << QByteArray("É") << QByteArray("ê") << -1;
  QTest::newRow("c and ç") << QByteArray("C") << QByteArray("ç") << -1;
  QTest::newRow("ß is not ss") << QByteArray("ss") << QByteArray("ß") << -1;
  QTest::newRow("empty") << QByteArray() << QByteArray() << 0;
  QTest::newRow("empty first") << QByteArray() << QByteArray("a") << -1;
  QTest::newRow("shorter first") << QByteArray("Ana") << QByteArray("ANAC") << -1;
  QTest::newRow("blanks count") << QByteArray("a") << QByteArray("a ") << -1;
  QTest::newRow("numbers") << QByteArray("10") << QByteArray("9") << -1;
  QTest::newRow("cut-off character") << QByteArray("a\xC3") << QByteArray("a\xC3") << 0;
  QTest::newRow("invalid behind all") << QByteArray("z") << QByteArray("\xFF") << -1;
}

void Latin::compares() {
  QFETCH(QByteArray, a);
  QFETCH(QByteArray, b);
  QFETCH(int, result);
  QCOMPARE(sign(compareLatin(view(a), view(b))), result);
  QCOMPARE(sign(compareLatin(view(b), view(a))), -result);
  QCOMPARE(sqlite::foldLatin(view(a)) == sqlite::foldLatin(view(b)), result == 0);
}

void Latin::ordersAsAReaderExpects() {
  std::vector<QByteArray> names{"Zélia", "álvaro", "ALVARO",  "Alvarenga",
                                "Ávila", "bento",  "Álvares", "alvo"};
  std::sort(names.begin(), names.end(),
            [](const auto& a, const auto& b) { return compareLatin(view(a), view(b)) < 0; });
  const std::vector<QByteArray> expected{"Alvarenga", "Álvares", "ALVARO", "álvaro",
                                         "alvo",      "Ávila",   "bento",  "Zélia"};
  QCOMPARE(names, expected);
}

void Latin::matches_data() {
  QTest::addColumn<QByteArray>("pattern");
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<bool>("result");

  const QByteArray name("José João da CONCEIÇÃO");
  QTest::newRow("anywhere") << QByteArray("%conceição%") << name << true;
  QTest::newRow("upper case") << QByteArray("%JOÃO%") << name << true;
  QTest::newRow("accents count") << QByteArray("%joao%") << name << false;
  QTest::newRow("beginning") << QByteArray("JOSÉ%") << name << true;
  QTest::newRow("not the beginning") << QByteArray("joão%") << name << false;
  QTest::newRow("end") << QByteArray("%ção") << name << true;
  QTest::newRow("whole") << QByteArray("josé joão da conceição") << name << true;
  QTest::newRow("not whole") << QByteArray("josé") << name << false;
  QTest::newRow("two pieces") << QByteArray("%josé%ção%") << name << true;
  QTest::newRow("wrong order") << QByteArray("%ção%josé%") << name << false;
  QTest::newRow("any character") << QByteArray("jos_ jo_o%") << name << true;
  QTest::newRow("one character only") << QByteArray("jo_ joão%") << name << false;
  QTest::newRow("underscore alone") << QByteArray("_") << QByteArray("É") << true;
  QTest::newRow("underscore needs one") << QByteArray("_") << QByteArray() << false;
  QTest::newRow("come back") << QByteArray("%aab") << QByteArray("aaaab") << true;
  QTest::newRow("come back with _") << QByteArray("%_ã%o") << QByteArray("ãã ão o") << true;
  QTest::newRow("percent matches nothing") << QByteArray("%%a%%") << QByteArray("A") << true;
  QTest::newRow("percent and empty") << QByteArray("%") << QByteArray() << true;
  QTest::newRow("two percent and empty") << QByteArray("%%") << QByteArray() << true;
  QTest::newRow("empty and empty") << QByteArray() << QByteArray() << true;
  QTest::newRow("empty pattern") << QByteArray() << QByteArray("a") << false;
  QTest::newRow("long text") << QByteArray("%FIM%") << QByteArray(2000, 'x') + "É fim" << true;
  QTest::newRow("long text without") << QByteArray("%ffim%") << QByteArray(2000, 'x') << false;
  QTest::newRow("growing letter") << QByteArray("%Ⱥb%") << QByteArray("xⱥB") << true;
}

void Latin::matches() {
  QFETCH(QByteArray, pattern);
  QFETCH(QByteArray, text);
  QFETCH(bool, result);
  QCOMPARE(LikePattern(view(pattern)).matches(view(text)), result);
}

// Whether a letter bears its accent or has it behind it makes no difference, in either text.
void Latin::accentsBehindTheirLetters() {
  const QStringList words{"",          "e",    "é",    "É",    "ê",         "ex",
                          "éx",        "ea",   "éa",   "f",    "João",      "JOAO",
                          "joãozinho", "Ação", "ação", "acao", "A\u0301b̧",  "x\u0301",
                          "ỗ",         "o",    "Ấ",    "zé",   "Conceição", "Conceicão"};
  for (const QString& a : words) {
    for (const QString& b : words) {
      const QByteArray apart = a.normalized(QString::NormalizationForm_D).toUtf8();
      const QByteArray together = a.normalized(QString::NormalizationForm_C).toUtf8();
      const QByteArray other = b.normalized(QString::NormalizationForm_C).toUtf8();
      const QByteArray otherApart = b.normalized(QString::NormalizationForm_D).toUtf8();
      const int expected = sign(compareLatin(view(together), view(other)));
      const QByteArray told = together + " and " + other;
      QVERIFY2(sign(compareLatin(view(apart), view(other))) == expected, told.constData());
      QVERIFY2(sign(compareLatin(view(other), view(apart))) == -expected, told.constData());
      QVERIFY2(sign(compareLatin(view(apart), view(otherApart))) == expected, told.constData());
      QCOMPARE(sqlite::foldLatin(view(apart)), sqlite::foldLatin(view(together)));
    }
  }
  // Bytes that are no text stay what they are.
  QVERIFY(compareLatin("e\xCC\x81\xFF", "\xC3\xA9\xFF") == 0);
  QVERIFY(compareLatin("e\xCC", "e\xCC") == 0);
}

void Latin::accentsBehindTheirLettersMatch() {
  const auto matches = [](const QString& pattern, const QString& text) {
    return sqlite::LikePattern(pattern.toStdString()).matches(text.toStdString());
  };
  const QString apart =
      QStringLiteral("JOSÉ DA CONCEIÇÃO").normalized(QString::NormalizationForm_D);
  const QString together = apart.normalized(QString::NormalizationForm_C);
  QVERIFY(apart.size() > together.size());
  for (const QString& text : {apart, together, apart + QString(600, u'x')}) {
    QVERIFY(matches(QStringLiteral("%conceição%"), text));
    QVERIFY(matches(QStringLiteral("%conceição%").normalized(QString::NormalizationForm_D), text));
    QVERIFY(matches(QStringLiteral("JOS_ DA%"), text));
    QVERIFY(!matches(QStringLiteral("JOSE%"), text));
    QVERIFY(!matches(QStringLiteral("JOS__ DA%"), text));
  }
}

void Latin::inStatements_data() {
  QTest::addColumn<QString>("condition");
  QTest::addColumn<QStringList>("found");

  QTest::newRow("equal") << "ORGAO = 'saúde'" << QStringList{QStringLiteral("Saúde")};
  QTest::newRow("equal upper") << "ORGAO = 'educação'" << QStringList{QStringLiteral("EDUCAÇÃO")};
  QTest::newRow("accents") << "ORGAO = 'saude'" << QStringList{};
  QTest::newRow("like") << "ORGAO Like '%ÚDE%'" << QStringList{QStringLiteral("Saúde")};
  QTest::newRow("like several") << "ORGAO Like '%A%' ORDER BY ORGAO"
                                << QStringList{QStringLiteral("EDUCAÇÃO"), QStringLiteral("Obras"),
                                               QStringLiteral("Saúde")};
  QTest::newRow("order") << "IDORGAO > 0 ORDER BY ORGAO DESC"
                         << QStringList{QStringLiteral("Saúde"), QStringLiteral("Obras"),
                                        QStringLiteral("EDUCAÇÃO")};
}

void Latin::inStatements() {
  QFETCH(QString, condition);
  QFETCH(QStringList, found);
  SmallDatabase database;
  Connection connection;
  database.open(connection);
  Recordset rows;
  rows.open(QStringLiteral("SELECT ORGAO FROM Orgao WHERE ") + condition, connection);
  QStringList names;
  for (; !rows.eof(); rows.moveNext()) {
    names.append(rows.field(0).text());
  }
  QCOMPARE(names, found);
}

void Latin::nullsStayNull_data() {
  QTest::addColumn<QByteArray>("expression");
  QTest::addColumn<QString>("result");

  QTest::newRow("pattern") << QByteArray("latin_like(NULL, 'a')") << QStringLiteral("null");
  QTest::newRow("text") << QByteArray("latin_like('a', NULL)") << QStringLiteral("null");
  QTest::newRow("neither") << QByteArray("latin_like('A', 'a')") << QStringLiteral("integer");
}

void Latin::nullsStayNull() {
  QFETCH(QByteArray, expression);
  QFETCH(QString, result);
  sqlite3* db = nullptr;
  QCOMPARE(sqlite3_open(":memory:", &db), SQLITE_OK);
  QCOMPARE(sqlite::registerLatin(db), SQLITE_OK);
  sqlite3_stmt* statement = nullptr;
  const QByteArray sql = "SELECT typeof(" + expression + ")";
  QCOMPARE(sqlite3_prepare_v2(db, sql.constData(), -1, &statement, nullptr), SQLITE_OK);
  QCOMPARE(sqlite3_step(statement), SQLITE_ROW);
  QCOMPARE(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0))),
           result);
  sqlite3_finalize(statement);
  QCOMPARE(sqlite3_close(db), SQLITE_OK);
}

QUARTELA_TEST_MAIN(Latin)
#include "Latin_test.moc"
