#include "foundation/Textos.h"

#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"

using namespace quartela;

Q_DECLARE_METATYPE(quartela::Value)

class TextosTest : public QObject {
  Q_OBJECT

 private slots:
  void acceptsDates_data();
  void acceptsDates();
  void stripsAccents_data();
  void stripsAccents();
  void assemblesBarCodes_data();
  void assemblesBarCodes();
  void tellsWhyThereIsNoBarCode_data();
  void tellsWhyThereIsNoBarCode();
};

void TextosTest::acceptsDates_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<bool>("valida");
  const auto row = [](const char* texto, bool valida) {
    QTest::newRow(*texto ? texto : "empty") << QString::fromUtf8(texto) << valida;
  };
  row("21/11/2014", true);
  row("29/02/2012", true);
  row("31/12/9999", true);
  row("31/02/2014", false);
  row("29/02/2014", false);
  row("1/1/2014", false);
  row("01/01/14", false);
  row("00/01/2014", false);
  row("32/01/2014", false);
  row("01/00/2014", false);
  row("01/13/2014", false);
  row("01-01-2014", false);
  row("2014/01/01", false);
  row("a1/01/2014", false);
  row("01/01/201x", false);
  row("01/01/2014 ", false);
  row(" 1/01/2014", false);
  row("01/01/2014 10:30", false);
  row("  /  /    ", false);
  row("", false);
}

void TextosTest::acceptsDates() {
  QFETCH(QString, texto);
  QTEST(Valida_data(texto), "valida");
}

void TextosTest::stripsAccents_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<QString>("simples");
  const auto row = [](const char* name, const char* texto, const char* simples) {
    QTest::newRow(name) << QString::fromUtf8(texto) << QString::fromUtf8(simples);
  };
  row("capitals", "ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÒÓÔÕÖÙÚÛÜ", "AAAAAACEEEEIIIIOOOOOUUUU");
  row("small", "àáâãäåçèéêëìíîïòóôõöùúûü", "aaaaaaceeeeiiiiooooouuuu");
  row("others stay", "ÿñÑýß ºª€;5", "ÿñÑýß ºª€;5");
  row("words", "Prestação de Contas à Secretária", "Prestacao de Contas a Secretaria");
  row("empty", "", "");
}

void TextosTest::stripsAccents() {
  QFETCH(QString, texto);
  QTEST(Remove_acentos(texto), "simples");
}

// 7 October 1997 is serial 35710. A code is bank and currency ("0009"), the fixed "1", the days
// since then, the cents on 10 digits, "12" on 8 digits, "1" on 17 digits.
void TextosTest::assemblesBarCodes_data() {
  QTest::addColumn<Value>("vencimento");
  QTest::addColumn<QString>("valor");
  QTest::addColumn<QString>("codigo");
  // 21 November 2014 is serial 41964: 41964 - 35710 = 6254.
  QTest::newRow("text") << Value("21/11/2014") << "123456"
                        << "00091"
                           "6254"
                           "0000123456"
                           "00000012"
                           "00000000000000001";
  QTest::newRow("date and time") << Value(DateTime::of(2014, 11, 21, 10, 30)) << "1"
                                 << "00091"
                                    "6254"
                                    "0000000001"
                                    "00000012"
                                    "00000000000000001";
  // 3 July 2000 is serial 36710: 1000, the first with four digits.
  QTest::newRow("first of four digits") << Value("03/07/2000") << "0"
                                        << "00091"
                                           "1000"
                                           "0000000000"
                                           "00000012"
                                           "00000000000000001";
  // 21 February 2025 is serial 45709: 9999, the last with four digits.
  QTest::newRow("last of four digits") << Value("21/02/2025") << "9999999999"
                                       << "00091"
                                          "9999"
                                          "9999999999"
                                          "00000012"
                                          "00000000000000001";
  // The day after gives 10000: of the 44 characters the last 39 leave its "1" out.
  QTest::newRow("five digits") << Value("22/02/2025") << "50"
                               << "00091"
                                  "0000"
                                  "0000000050"
                                  "00000012"
                                  "00000000000000001";
  // 2 July 2000 gives 999: the last 39 of 42 characters begin with the currency digit "9".
  QTest::newRow("three digits") << Value("02/07/2000") << "50"
                                << "00091"
                                   "9999"
                                   "0000000050"
                                   "00000012"
                                   "00000000000000001";
  // 11 digits of cents: the last 39 of 44 characters leave the first digit of the days (6) out.
  QTest::newRow("too large an amount") << Value("21/11/2014") << "12345678901"
                                       << "00091"
                                          "254"
                                          "12345678901"
                                          "00000012"
                                          "00000000000000001";
}

void TextosTest::assemblesBarCodes() {
  QFETCH(Value, vencimento);
  QFETCH(QString, valor);
  const test::ScriptedDialogs dialogs;
  const QString codigo = Monta_barras(QStringLiteral("000"), QStringLiteral("9"), valor, vencimento,
                                      QStringLiteral("12"), QStringLiteral("1"));
  QCOMPARE(codigo.size(), 44);
  QTEST(codigo, "codigo");
}

void TextosTest::tellsWhyThereIsNoBarCode_data() {
  QTest::addColumn<Value>("vencimento");
  QTest::newRow("empty") << Value("");
  QTest::newRow("null") << Value();
  QTest::newRow("no date") << Value("31/02/2014");
}

void TextosTest::tellsWhyThereIsNoBarCode() {
  QFETCH(Value, vencimento);
  test::ScriptedDialogs dialogs;
  dialogs.expectBox(
      {QStringLiteral("Error 13 (O valor digitado não é do tipo que o campo pede.) in "
                      "procedure Monta_barras of Formulário frmMain"),
       QStringLiteral("Aviso"), BoxIcon::Exclamation});
  QCOMPARE(Monta_barras(QStringLiteral("000"), QStringLiteral("9"), QStringLiteral("1"), vencimento,
                        QStringLiteral("12"), QStringLiteral("1")),
           QString());
  QVERIFY2(dialogs.satisfied(), dialogs.report());
}

QUARTELA_TEST_MAIN(TextosTest)
#include "Textos_test.moc"
