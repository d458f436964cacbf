// The yearly numbers: what is proposed, what is written, and what stops the numbering.
#include "records/Numeracao.h"

#include <QFile>
#include <QLineEdit>
#include <QTest>

#include "foundation/Ini.h"
#include "platform/values/Clock.h"
#include "tests/platform/files/NoMoreFiles.h"
#include "tests/support/Files.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/Samples.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;
const QString kLabel = QStringLiteral("Função Novo_item");

}  // namespace

class NumeracaoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    folder_ = std::make_unique<QTemporaryDir>();
    Clock::stopAt(DateTime::of(2014, 11, 21));
  }

  void proposes_data() {
    QTest::addColumn<QByteArray>("counter");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QByteArray>("after");
    const auto file = [](const char* year, const char* number) {
      return QByteArray("[Contador]\nano=") + year + "\nnumber=" + number + "\n";
    };
    QTest::newRow("goes on") << file("2014", "4") << "000514" << file("2014", "4");
    QTest::newRow("first of the year") << file("2014", "0") << "000114" << file("2014", "0");
    QTest::newRow("new year") << file("2013", "88") << "000114"
                              << file("2014", "0") + "[Anterior]\nano=2013\nnumber=88\n";
    QTest::newRow("several years later") << file("1999", "88") << "000114"
                                         << file("2014", "0") + "[Anterior]\nano=1999\nnumber=88\n";
    QTest::newRow("year left empty") << file("", "88") << "000114" << file("2014", "0");
    QTest::newRow("a number of four digits")
        << file("2014", "0099") << "010014" << file("2014", "0099");
    QTest::newRow("grows beyond 9999") << file("2014", "9999") << "1000014" << file("2014", "9999");
    QTest::newRow("section in small letters")
        << QByteArray("[contador]\nANO=2014\nNUMBER=6\n") << "000714"
        << QByteArray("[contador]\nANO=2014\nNUMBER=6\n");
  }
  void proposes() {
    QFETCH(QByteArray, counter);
    QFETCH(QString, number);
    write(counter);
    QLineEdit box(QStringLiteral("antes"));
    test::ScriptedDialogs dialogs;
    Novo_item(box, path());
    QCOMPARE(box.text(), number);
    QTEST(read(), "after");
  }

  void anAbandonedNumberIsNotWasted() {
    write("[Contador]\nano=2014\nnumber=4\n");
    QLineEdit first;
    QLineEdit second;
    Novo_item(first, path());
    Novo_item(second, path());
    QCOMPARE(first.text(), second.text());
  }

  void aMissingFileIsMade() {
    QLineEdit box;
    test::ScriptedDialogs dialogs;
    Novo_item(box, path());
    QCOMPARE(box.text(), QStringLiteral("000114"));
    QCOMPARE(Le_ini(QStringLiteral("Contador"), QStringLiteral("ano"), path()),
             QStringLiteral("2014"));
    QCOMPARE(Le_ini(QStringLiteral("Contador"), QStringLiteral("number"), path()),
             QStringLiteral("0"));
  }

  // The clock was a year ahead when a process was begun and given up.
  void aClockThatWasAheadCostsNoNumber() {
    write("[Contador]\nano=2014\nnumber=327\n");
    test::ScriptedDialogs dialogs;
    QLineEdit box;
    Clock::stopAt(DateTime::of(2015, 11, 21));
    Novo_item(box, path());
    QCOMPARE(box.text(), QStringLiteral("000115"));
    Clock::stopAt(DateTime::of(2014, 11, 21));
    Novo_item(box, path());
    QCOMPARE(box.text(), QStringLiteral("032814"));
    QCOMPARE(key("ano"), QStringLiteral("2014"));
    QCOMPARE(key("number"), QStringLiteral("327"));
  }

  // But a number of the later year has been given.
  void aClockThatWasAheadWhileSavingStopsTheNumbering() {
    write("[Contador]\nano=2015\nnumber=1\n[Anterior]\nano=2014\nnumber=327\n");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        {.text = QStringLiteral("Erro no relógio do micro ou o arquivo INI está adulterado."),
         .title = QStringLiteral("Aviso")});
    QLineEdit box;
    Novo_item(box, path());
    QCOMPARE(box.text(), QString());
  }

  void aFileWithoutANumberIsTold_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(40, '\0');
    QTest::newRow("another file") << QByteArray("[Diretorio]\ncaminho=Banco.mdb\n");
    QTest::newRow("cut short") << QByteArray("[Contador]\nan");
  }
  void aFileWithoutANumberIsTold() {
    QFETCH(QByteArray, content);
    write(content);
    QLineEdit box(QStringLiteral("antes"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox({.text = QStringLiteral("Houve um erro interno:") + test::kAnything + path() +
                               QStringLiteral("\" existe, mas não traz ano nem número.") +
                               test::kAnything,
                       .title = QStringLiteral("Aviso"),
                       .icon = BoxIcon::Exclamation});
    Novo_item(box, path());
    QCOMPARE(box.text(), QStringLiteral("antes"));
    QCOMPARE(read(), content);
  }

  void aFileThatCannotBeOpenedIsTold() {
    const QByteArray content("[Contador]\nano=2014\nnumber=327\n");
    write(content);
    QLineEdit box(QStringLiteral("antes"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::PathFileAccess, kLabel, path()));
    {
      const test::NoMoreFiles none;
      Novo_item(box, path());
    }
    QCOMPARE(box.text(), QStringLiteral("antes"));
    QCOMPARE(read(), content);
  }

  void theCounterPassesTheTable_data() {
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("number");
    QTest::newRow("behind") << QByteArray("[Contador]\nano=2014\nnumber=4\n") << "032814";
    QTest::newRow("far ahead") << QByteArray("[Contador]\nano=2014\nnumber=400\n") << "040114";
    QTest::newRow("of last year") << QByteArray("[Contador]\nano=2013\nnumber=9\n") << "032814";
  }
  void theCounterPassesTheTable() {
    QFETCH(QByteArray, before);
    QFETCH(QString, number);
    test::Office office;
    test::addMasterRows(office);
    office.run(
        "INSERT INTO Requisicao (SEQ, ORGAO, TOMADOR, FINALIDADE) VALUES"
        " (514, 1, 1, 1), (32714, 1, 1, 1), (99913, 1, 1, 1), (40015, 1, 1, 1)");
    write(before);
    Avanca_contador(path());
    QLineEdit box;
    Novo_item(box, path());
    QCOMPARE(box.text(), number);
  }

  void aClockSetBackStopsTheNumbering() {
    const QByteArray counter = "[Contador]\nano=2015\nnumber=7\n";
    write(counter);
    QLineEdit box(QStringLiteral("antes"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        {.text = QStringLiteral("Erro no relógio do micro ou o arquivo INI está adulterado."),
         .title = QStringLiteral("Aviso")});
    Novo_item(box, path());
    QCOMPARE(box.text(), QStringLiteral("antes"));
    QCOMPARE(read(), counter);
  }

  void garbageIsReported_data() {
    QTest::addColumn<QByteArray>("counter");
    QTest::addColumn<int>("error");
    QTest::newRow("letters for the year")
        << QByteArray("[Contador]\nano=dois mil\nnumber=7\n") << 13;
    QTest::newRow("letters for the number") << QByteArray("[Contador]\nano=2014\nnumber=x\n") << 13;
    QTest::newRow("no number in its year") << QByteArray("[Contador]\nano=2014\n") << 13;
    QTest::newRow("a year out of range")
        << QByteArray("[Contador]\nano=99999999999\nnumber=7\n") << 6;
  }
  void garbageIsReported() {
    QFETCH(QByteArray, counter);
    QFETCH(int, error);
    write(counter);
    QLineEdit box(QStringLiteral("antes"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(static_cast<ErrorNumber>(error), kLabel));
    Novo_item(box, path());
    QCOMPARE(box.text(), QStringLiteral("antes"));
    QCOMPARE(read(), counter);
  }

  void aFileThatCannotBeWrittenIsReported() {
    QLineEdit box(QStringLiteral("antes"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::PathNotFound, kLabel,
                                           folder_->filePath(QStringLiteral("sem/pasta.ini"))));
    Novo_item(box, folder_->filePath(QStringLiteral("sem/pasta.ini")));
    QCOMPARE(box.text(), QStringLiteral("antes"));
  }

 private:
  QString path() const { return folder_->filePath(QStringLiteral("Number.Ini")); }
  void write(const QByteArray& content) {
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QString key(const char* name) const {
    return Le_ini(QStringLiteral("Contador"), QLatin1String(name), path());
  }
  QByteArray read() const { return test::contentOf(path()); }

  std::unique_ptr<QTemporaryDir> folder_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::NumeracaoTest)
#include "Numeracao_test.moc"
