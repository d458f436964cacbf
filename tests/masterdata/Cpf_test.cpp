// The check digits of taxpayer numbers.
#include "masterdata/Cpf.h"

#include <QLabel>
#include <QTest>

#include "platform/controls/MaskedBox.h"
#include "tests/support/TestMain.h"

namespace quartela {

class CpfTest : public QObject {
  Q_OBJECT

 private slots:
  void theDigits_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("fits");
    QTest::newRow("plain") << QStringLiteral("52998224725") << true;
    QTest::newRow("with its marks") << QStringLiteral("529.982.247-25") << true;
    QTest::newRow("both digits nought: remainder ten") << QStringLiteral("100.000.046-00") << true;
    QTest::newRow("another") << QStringLiteral("123.456.789-09") << true;
    QTest::newRow("last digit wrong") << QStringLiteral("529.982.247-26") << false;
    QTest::newRow("last but one wrong") << QStringLiteral("529.982.247-15") << false;
    QTest::newRow("two digits changed places") << QStringLiteral("592.982.247-25") << false;
    QTest::newRow("one digit repeated") << QStringLiteral("111.111.111-11") << false;
    QTest::newRow("noughts") << QStringLiteral("000.000.000-00") << false;
    QTest::newRow("ten digits") << QStringLiteral("5299822472") << false;
    QTest::newRow("twelve digits") << QStringLiteral("529982247251") << false;
    QTest::newRow("unfilled") << QStringLiteral("___.___.___-__") << false;
    QTest::newRow("nothing") << QString() << false;
  }
  void theDigits() {
    QFETCH(QString, text);
    QTEST(Cpf_confere(text), "fits");
  }

  void theHint_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("hinted");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("half") << QStringLiteral("529982") << false;
    QTest::newRow("right") << QStringLiteral("52998224725") << false;
    QTest::newRow("wrong") << QStringLiteral("52998224726") << true;
  }
  void theHint() {
    QFETCH(QString, typed);
    QFETCH(bool, hinted);
    MaskedBox field;
    field.setMask(QStringLiteral("###.###.###-##"));
    QLabel mark;
    Avisa_cpf(field, mark);
    QCOMPARE(mark.text(), QString());
    QTest::keyClicks(&field, typed);
    QCOMPARE(mark.text(), hinted ? QStringLiteral("Confira: os dígitos não fecham") : QString());
    QCOMPARE(field.accessibleDescription().isEmpty(), !hinted);
    field.setText(QString());
    QCOMPARE(mark.text(), QString());
  }
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::CpfTest)
#include "Cpf_test.moc"
