// The picker of empenhos: what it lists, what it hands over and to whom.
#include "screens/frmProcura.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "foundation/UmaJanela.h"
#include "platform/controls/ListView.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/Typing.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

class frmProcuraTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
    office_->run(
        "INSERT INTO Tomador(ID, NOME1, CARGO) VALUES (2, 'José Ávila', 'Fiscal');"
        "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO) VALUES (2, 1, 'Viagem');"
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE) VALUES "
        "(214, '2014-10-01 00:00:00', 1, 2, 12345600, 2), (314, '2014-10-01 00:00:00', 1, 2, 5, 2);"
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO, ABERTURA, RETIRADA, FECHAR_EM, FECHAMENTO) "
        "VALUES "
        "(60014, 214, '2014-10-02 00:00:00', '2014-10-03 00:00:00', '2014-10-08 00:00:00', NULL),"
        "(70014, 314, '2014-10-02 00:00:00', '2014-10-03 00:00:00', '2014-10-08 00:00:00', "
        "'2014-10-07 00:00:00')");
    received_.clear();
  }
  void cleanup() {
    picker_.reset();
    for (std::int16_t mode = 1; mode <= 4; ++mode) {
      registra_procura(mode, {});
    }
    office_.reset();
  }

  void listsByTheWindowThatAsked_data() {
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("rows");
    for (int mode : {1, 3, 4}) {
      QTest::addRow("%d: all open", mode) << mode << QStringList{"00500/14", "00600/14"};
    }
    QTest::newRow("2: the closed ones") << 2 << QStringList{"00700/14"};
  }
  void listsByTheWindowThatAsked() {
    QFETCH(int, mode);
    open(mode);
    QTEST(shown(), "rows");
  }

  void searchesByNameAndByType_data() {
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("byType");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("by name") << 1 << false << "ávila"
                             << "ÁVILA" << QStringList{"00600/14"};
    QTest::newRow("by type") << 1 << true << "miú"
                             << "MIÚ" << QStringList{"00500/14"};
    QTest::newRow("nothing found") << 1 << false << "xyz"
                                   << "XYZ" << QStringList{};
    QTest::newRow("always over the open ones") << 2 << false << "josé"
                                               << "JOSÉ" << QStringList{"00600/14"};
  }
  void searchesByNameAndByType() {
    QFETCH(int, mode);
    QFETCH(bool, byType);
    QFETCH(QString, text);
    open(mode);
    if (byType) {
      child<QRadioButton>("Option2")->click();
    }
    auto* box = child<QLineEdit>("txtprocura");
    test::typeText(box, text);
    QTEST(box->text(), "typed");
    QTest::mouseClick(child<QPushButton>("Command3"), Qt::LeftButton);
    QTEST(shown(), "rows");
  }

  void handsOver_data() {
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("empenho");
    QTest::addColumn<bool>("handed");
    QTest::newRow("accountability") << 1 << "00600/14" << true;
    QTest::newRow("wizard") << 2 << "00700/14" << true;
    QTest::newRow("transport") << 3 << "00600/14" << true;
    QTest::newRow("transport, small expenses") << 3 << "00500/14" << false;
    QTest::newRow("travel, small expenses") << 4 << "00500/14" << true;
  }
  void handsOver() {
    QFETCH(int, mode);
    QFETCH(QString, empenho);
    QFETCH(bool, handed);
    open(mode);
    pick(empenho);
    QTest::mouseClick(child<QPushButton>("Command1"), Qt::LeftButton);
    QVERIFY(!picker_->isVisible());
    QCOMPARE(received_.size(), handed ? 1 : 0);
    if (handed) {
      QCOMPARE(received_.first().first, mode);
      QCOMPARE(received_.first().second.empenho, empenho);
    }
  }

  void handsOverEverySubItem() {
    open(1);
    pick(QStringLiteral("00600/14"));
    QTest::keyClick(list(), Qt::Key_Return);
    QCOMPARE(received_.size(), 1);
    QCOMPARE(received_.first().second.subitens,
             QStringList({"", "José Ávila", "Viagem", "1.234,56", "03/10/2014", "08/10/2014",
                          "02/10/2014", "Fiscal", "0002/14"}));
  }

  // The first row of a list just filled is current, and yet nobody has picked it.
  void withNothingPickedOkStays() {
    open(1);
    QCOMPARE(list()->count(), 2);
    QTest::mouseClick(child<QPushButton>("Command1"), Qt::LeftButton);
    QVERIFY(picker_->isVisible());
    QVERIFY(received_.isEmpty());
  }

  void handsOverTheRowThatWasPickedWhateverWasSearchedSince_data() {
    QTest::addColumn<QString>("search");
    QTest::newRow("another row found") << QStringLiteral("resp");
    QTest::newRow("nothing found") << QStringLiteral("xyz");
    QTest::newRow("found again") << QStringLiteral("ávila");
  }
  void handsOverTheRowThatWasPickedWhateverWasSearchedSince() {
    QFETCH(QString, search);
    open(1);
    pick(QStringLiteral("00600/14"));
    test::typeText(child<QLineEdit>("txtprocura"), search);
    QTest::mouseClick(child<QPushButton>("Command3"), Qt::LeftButton);
    QTest::mouseClick(child<QPushButton>("Command1"), Qt::LeftButton);
    QCOMPARE(received_.size(), 1);
    QCOMPARE(received_.first().second.empenho, QStringLiteral("00600/14"));
    QCOMPARE(received_.first().second.subitens,
             QStringList({"", "José Ávila", "Viagem", "1.234,56", "03/10/2014", "08/10/2014",
                          "02/10/2014", "Fiscal", "0002/14"}));
  }

  void enterHandsOverItsOwnRow() {
    open(1);
    pick(QStringLiteral("00600/14"));
    test::typeText(child<QLineEdit>("txtprocura"), QStringLiteral("resp"));
    QTest::mouseClick(child<QPushButton>("Command3"), Qt::LeftButton);
    QCOMPARE(shown(), QStringList{"00500/14"});
    QTest::keyClick(list(), Qt::Key_Return);
    QCOMPARE(received_.size(), 1);
    QCOMPARE(received_.first().second.empenho, QStringLiteral("00500/14"));
    QCOMPARE(received_.first().second.subitens.at(1), QStringLiteral("Responsável"));
  }

  void thePickedRowIsCurrentAgainWhenItIsFound() {
    open(1);
    pick(QStringLiteral("00600/14"));
    for (const char* search : {"resp", ""}) {
      child<QLineEdit>("txtprocura")->selectAll();
      QTest::keyClick(child<QLineEdit>("txtprocura"), Qt::Key_Delete);
      test::typeText(child<QLineEdit>("txtprocura"), QString::fromUtf8(search));
      QTest::mouseClick(child<QPushButton>("Command3"), Qt::LeftButton);
    }
    QCOMPARE(list()->count(), 2);
    QVERIFY(list()->hasSelection());
    QCOMPARE(list()->text(list()->selectedRow()), QStringLiteral("00600/14"));
  }

  void anotherWindowThatAsksSeesItsOwnRows() {
    received_.clear();
    ask(1);
    auto* const first = UmaJanela<frmProcura>::aberta();
    rowsOf(first, {"00500/14", "00600/14"});
    QTest::keyClick(first->findChild<ListView*>("ListView1"), Qt::Key_Home);
    ask(2);
    QCOMPARE(UmaJanela<frmProcura>::aberta(), first);
    rowsOf(first, {"00700/14"});
    // What was picked for the first window is nothing to the second.
    QTest::mouseClick(first->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    QVERIFY(first->isVisible());
    QTest::keyClick(first->findChild<ListView*>("ListView1"), Qt::Key_Home);
    QTest::keyClick(first->findChild<ListView*>("ListView1"), Qt::Key_Return);
    QCOMPARE(received_.size(), 1);
    QCOMPARE(received_.first().first, 2);
    QCOMPARE(received_.first().second.empenho, QStringLiteral("00700/14"));
  }

  void theSameWindowThatAsksAgainFindsItsSearch() {
    ask(1);
    auto* const window = UmaJanela<frmProcura>::aberta();
    test::typeText(window->findChild<QLineEdit*>("txtprocura"), QStringLiteral("ávila"));
    QTest::mouseClick(window->findChild<QPushButton*>("Command3"), Qt::LeftButton);
    ask(1);
    rowsOf(window, {"00600/14"});
    window->close();
  }

  void theSearchBearsItsPicture() {
    open(1);
    // The tests' screen is narrower than any office's, so the window has opened smaller than it is.
    picker_->resize(1004, 480);
    QVERIFY(!child<QPushButton>("Command3")->icon().pixmap(16).isNull());
  }

  void cancelHandsNothingOver() {
    open(1);
    pick(QStringLiteral("00600/14"));
    QTest::mouseClick(child<QPushButton>("Command2"), Qt::LeftButton);
    QVERIFY(!picker_->isVisible());
    QVERIFY(received_.isEmpty());
  }

 private:
  // As another window asks.
  void ask(int mode) {
    mostra_frmProcura(static_cast<std::int16_t>(mode),
                      [this, mode](const EmpenhoEscolhido& chosen) {
                        received_.append({mode, chosen});
                      });
  }
  static void rowsOf(const frmProcura* window, const QStringList& rows) {
    const auto* const list = window->findChild<ListView*>("ListView1");
    QStringList shown;
    for (int row = 0; row < list->count(); ++row) {
      shown << list->text(row);
    }
    shown.sort();
    QCOMPARE(shown, rows);
  }
  void open(int mode) {
    ModoProcura = static_cast<std::int16_t>(mode);
    for (std::int16_t each = 1; each <= 4; ++each) {
      registra_procura(each, [this, each](const EmpenhoEscolhido& chosen) {
        received_.append({int{each}, chosen});
      });
    }
    picker_ = std::make_unique<frmProcura>();
    picker_->show();
    QVERIFY(QTest::qWaitForWindowExposed(picker_.get()));
  }
  template <typename T>
  T* child(const char* name) const {
    return picker_->findChild<T*>(QString::fromLatin1(name));
  }
  ListView* list() const { return child<ListView>("ListView1"); }
  QStringList shown() const {
    QStringList rows;
    for (int row = 0; row < list()->count(); ++row) {
      rows << list()->text(row);
    }
    rows.sort();
    return rows;
  }
  // Clicks the row as an operator does.
  void pick(const QString& empenho) const {
    list()->flush();
    for (int row = 0; row < list()->count(); ++row) {
      if (list()->text(row) == empenho) {
        const QRect place = list()->visualRect(list()->model()->index(row, 0));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        return;
      }
    }
    QFAIL("the row is not there");
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmProcura> picker_;
  QList<QPair<int, EmpenhoEscolhido>> received_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmProcuraTest)
#include "frmProcura_test.moc"
