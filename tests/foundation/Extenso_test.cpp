#include "foundation/Textos.h"
#include "tests/support/TestMain.h"

using namespace quartela;

class ExtensoTest : public QObject {
  Q_OBJECT

 private slots:
  void writesAmounts_data();
  void writesAmounts();
  void givesNothingForOthers_data();
  void givesNothingForOthers();
  void staysWithin512Characters();
};

void ExtensoTest::writesAmounts_data() {
  QTest::addColumn<QString>("valor");
  QTest::addColumn<QString>("palavras");
  const auto row = [](const char* valor, const char* palavras) {
    QTest::newRow(valor) << QString::fromUtf8(valor) << QString::fromUtf8(palavras);
  };
  // Cents alone.
  row("0,01", "um centavo");
  row("0,02", "dois centavos");
  row("0,10", "dez centavos");
  row("0,5", "cinquenta centavos");
  row(",99", "noventa e nove centavos");
  row("0,16", "dezesseis centavos");
  // Reais alone; below a hundred "e" joins tens and units.
  row("0,00", "zero reais");
  row("0", "zero reais");
  row("-0,00", "zero reais");
  row("1,00", "um real");
  row("1", "um real");
  row("2,00", "dois reais");
  row("3,00", "três reais");
  row("10,00", "dez reais");
  row("14,00", "catorze reais");
  row("15,00", "quinze reais");
  row("16,00", "dezesseis reais");
  row("17,00", "dezessete reais");
  row("18,00", "dezoito reais");
  row("19,00", "dezenove reais");
  row("20,00", "vinte reais");
  row("21,00", "vinte e um reais");
  row("22,00", "vinte e dois reais");
  row("50,00", "cinquenta reais");
  row("66,00", "sessenta e seis reais");
  row("99,00", "noventa e nove reais");
  // "cem" alone, "cento e" before more; masculine hundreds.
  row("100,00", "cem reais");
  row("101,00", "cento e um reais");
  row("116,00", "cento e dezesseis reais");
  row("200,00", "duzentos reais");
  row("345,00", "trezentos e quarenta e cinco reais");
  row("400,00", "quatrocentos reais");
  row("500,00", "quinhentos reais");
  row("600,00", "seiscentos reais");
  row("700,00", "setecentos reais");
  row("800,00", "oitocentos reais");
  row("999,00", "novecentos e noventa e nove reais");
  // "mil" without "um"; "e" behind it only before numbers up to a hundred and whole hundreds.
  row("1.000,00", "mil reais");
  row("1000,00", "mil reais");
  row("1.001,00", "mil e um reais");
  row("1.016,00", "mil e dezesseis reais");
  row("1.099,00", "mil e noventa e nove reais");
  row("1.100,00", "mil e cem reais");
  row("1.101,00", "mil cento e um reais");
  row("1.200,00", "mil e duzentos reais");
  row("1.234,00", "mil duzentos e trinta e quatro reais");
  row("2.000,00", "dois mil reais");
  row("2.500,00", "dois mil e quinhentos reais");
  row("2.510,00", "dois mil quinhentos e dez reais");
  row("10.000,00", "dez mil reais");
  row("21.021,00", "vinte e um mil e vinte e um reais");
  row("100.000,00", "cem mil reais");
  row("100.100,00", "cem mil e cem reais");
  row("101.000,00", "cento e um mil reais");
  row("345.678,00", "trezentos e quarenta e cinco mil seiscentos e setenta e oito reais");
  row("999.999,00", "novecentos e noventa e nove mil novecentos e noventa e nove reais");
  // Whole millions and more take "de"; "e" stands only before the last class.
  row("1.000.000,00", "um milhão de reais");
  row("1.000.001,00", "um milhão e um reais");
  row("1.000.100,00", "um milhão e cem reais");
  row("1.000.101,00", "um milhão cento e um reais");
  row("1.001.000,00", "um milhão e mil reais");
  row("1.001.001,00", "um milhão mil e um reais");
  row("1.100.000,00", "um milhão e cem mil reais");
  row("1.234.000,00", "um milhão duzentos e trinta e quatro mil reais");
  row("1.234.567,00",
      "um milhão duzentos e trinta e quatro mil quinhentos e sessenta e sete reais");
  row("2.000.000,00", "dois milhões de reais");
  row("2.000.001,00", "dois milhões e um reais");
  row("2.200.200,00", "dois milhões duzentos mil e duzentos reais");
  row("21.000.000,00", "vinte e um milhões de reais");
  row("100.000.000,00", "cem milhões de reais");
  row("1.000.000.000,00", "um bilhão de reais");
  row("1.500.000.000,00", "um bilhão e quinhentos milhões de reais");
  row("1.250.000.000,00", "um bilhão duzentos e cinquenta milhões de reais");
  row("2.000.000.000,00", "dois bilhões de reais");
  row("2.000.000.005,00", "dois bilhões e cinco reais");
  row("1.000.000.000.000,00", "um trilhão de reais");
  row("2.000.000.000.000,00", "dois trilhões de reais");
  // Reais and cents.
  row("1,01", "um real e um centavo");
  row("2,50", "dois reais e cinquenta centavos");
  row("100,01", "cem reais e um centavo");
  row("1.000,01", "mil reais e um centavo");
  row("1.234,56", "mil duzentos e trinta e quatro reais e cinquenta e seis centavos");
  row("1.000.000,01", "um milhão de reais e um centavo");
  row("1.000.000,50", "um milhão de reais e cinquenta centavos");
  row("999.999.999.999,99",
      "novecentos e noventa e nove bilhões novecentos e noventa e nove milhões novecentos e "
      "noventa e nove mil novecentos e noventa e nove reais e noventa e nove centavos");
  // What no double holds to the cent.
  row("90.071.992.547.409,93",
      "noventa trilhões setenta e um bilhões novecentos e noventa e dois milhões quinhentos e "
      "quarenta e sete mil quatrocentos e nove reais e noventa e três centavos");
  // Negative amounts and more decimals.
  row("-1,00", "menos um real");
  row("-0,01", "menos um centavo");
  row("-1.234,50", "menos mil duzentos e trinta e quatro reais e cinquenta centavos");
  row("0,005", "um centavo");
  row("0,00499", "zero reais");
  row("1,995", "dois reais");
  row("-0,004", "zero reais");
  row(" 5,00 ", "cinco reais");
}

void ExtensoTest::writesAmounts() {
  QFETCH(QString, valor);
  QTEST(Extenso(valor), "palavras");
}

void ExtensoTest::givesNothingForOthers_data() {
  QTest::addColumn<QString>("valor");
  for (const char* valor : {"", " ", "abc", "12.50", "1.23,5", "1,2,3", "R$ 5,00", "(5,00)",
                            "5,00-", "1.000.000.000.000.000,00", "-1.000.000.000.000.000,00",
                            "999.999.999.999.999,995", "99999999999999999999999999"}) {
    QTest::newRow(*valor ? valor : "empty") << QString::fromUtf8(valor);
  }
}

void ExtensoTest::givesNothingForOthers() {
  QFETCH(QString, valor);
  QCOMPARE(Extenso(valor), QString());
}

// The longest words of each place: "quatrocentos e cinquenta e quatro" and the like.
void ExtensoTest::staysWithin512Characters() {
  for (const char* grupo : {"454", "444", "474", "494", "999", "888"}) {
    const QByteArray g(grupo);
    const QByteArray valor = "-" + g + "." + g + "." + g + "." + g + "." + g + ",44";
    const QString palavras = Extenso(QString::fromLatin1(valor));
    QVERIFY2(palavras.size() > 200 && palavras.size() <= 512, qPrintable(palavras));
  }
}

QUARTELA_TEST_MAIN(ExtensoTest)
#include "Extenso_test.moc"
