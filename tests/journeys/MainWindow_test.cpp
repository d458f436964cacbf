// A morning at the main window, through real controls and keys: login, splash, alert, the five
// filters, finding by name and by number, sorting, deleting a process, the end.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Ini.h"
#include "foundation/Splash.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmLogin.h"
#include "platform/controls/ListView.h"
#include "platform/controls/OpenForms.h"
#include "platform/controls/StatusBar.h"
#include "records/Principal.h"
#include "screens/frmLocalizar.h"
#include "shell/frmOficce.h"
#include "tests/journeys/Ribbon.h"
#include "tests/support/Folders.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/Office.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

}  // namespace

class MainWindowJourney : public QObject {
  Q_OBJECT

 private slots:
  void aMorning() {
    test::Office office(test::Data::Demonstration);
    QVERIFY(QFile::copy(quartela::test::inSource(QStringLiteral("resources/delivery/progress.gif")),
                        office.file(QStringLiteral("progress.gif"))));
    QVERIFY(QFile::copy(quartela::test::inSource(QStringLiteral("resources/delivery/FILEDELR.avi")),
                        office.file(QStringLiteral("FILEDELR.avi"))));
    Fecha_banco();
    Splash::registra_principal([] { UmaJanela<frmOficce>::mostra(); });

    logIn();
    QTRY_VERIFY_WITH_TIMEOUT(main() != nullptr, 10'000);
    dismissAlert();
    walkFilters(office);
    findByNumber(QStringLiteral("0201/14"));
    findByName(office);
    sortByAmount();
    deleteFirst(office);

    main()->close();
    QCOMPARE(Conexao->state(), Connection::Closed);
    Splash::registra_principal({});
  }

 private:
  static frmOficce* main() { return UmaJanela<frmOficce>::aberta(); }
  static ListView& list() { return main()->ListView1(); }

  static void logIn() {
    mostra_frmLogin();
    frmLogin* login = UmaJanela<frmLogin>::aberta();
    auto* password = login->findChild<QLineEdit*>(QStringLiteral("txtPassword"));
    QTest::keyClicks(password, QStringLiteral("financas"));
    QTest::keyClick(password, Qt::Key_Return);
    QVERIFY(UmaJanela<frmLogin>::aberta() == nullptr);
  }

  // The town has advances that are overdue, so that the alert waits for its button.
  static void dismissAlert() {
    bool seen = false;
    QTimer operatorAtWork;
    connect(&operatorAtWork, &QTimer::timeout, &operatorAtWork, [&seen] {
      if (QWidget* alert = OpenForms::find(QStringLiteral("frmAviso"))) {
        QVERIFY(alert->findChild<ListView*>(QStringLiteral("lvList"))->count() > 0);
        seen = true;
        QTest::mouseClick(alert->findChild<QPushButton*>(QStringLiteral("Command1")),
                          Qt::LeftButton);
      }
    });
    operatorAtWork.start(100);
    QTRY_VERIFY_WITH_TIMEOUT(seen, 10'000);
  }

  static void press(const QString& key) { test::pressRibbon(*main(), key); }

  static void walkFilters(const test::Office& office) {
    const struct {
      const char* key;
      const char* count;
    } filters[] = {
        {"21", "SELECT count(*) FROM Requisicao"},
        {"19", "SELECT count(*) FROM Adiantamento WHERE FECHAMENTO IS NULL"},
        {"20",
         "SELECT count(*) FROM Requisicao JOIN Adiantamento ON PROCESSO = SEQ "
         "WHERE FECHAMENTO IS NOT NULL AND substr(DATA, 1, 4) = '2014'"},
        {"18",
         "SELECT count(*) FROM Requisicao LEFT JOIN Adiantamento ON PROCESSO = SEQ "
         "WHERE ABERTURA IS NULL AND substr(DATA, 1, 4) = '2014'"},
        {"22",
         "SELECT count(*) FROM Requisicao LEFT JOIN Adiantamento ON PROCESSO = SEQ "
         "WHERE FECHAMENTO IS NULL AND substr(DATA, 1, 4) = '2014'"},
    };
    for (const auto& filter : filters) {
      press(QString::fromLatin1(filter.key));
      const QString count = office.ask(filter.count);
      QVERIFY(count.toInt() > 0);
      QCOMPARE(QString::number(list().count()), count);
      QCOMPARE(main()->sbStatusBar().panelText(1),
               QStringLiteral("Total: %1 Registros Localizados....").arg(count));
    }
  }

  static void find(int what, const QString& text) {
    press(QStringLiteral("4"));
    frmLocalizar* dialog = UmaJanela<frmLocalizar>::aberta();
    QVERIFY(dialog != nullptr);
    dialog->findChild<QComboBox*>(QStringLiteral("Combo1"))->setCurrentIndex(what);
    auto* box = dialog->findChild<QLineEdit*>(QStringLiteral("Text1"));
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
    QVERIFY(UmaJanela<frmLocalizar>::aberta() == nullptr);
  }

  static void findByNumber(const QString& number) {
    find(1, number);
    QCOMPARE(list().count(), 1);
    QCOMPARE(list().text(0), number);
  }

  static void findByName(const test::Office& office) {
    press(QStringLiteral("21"));
    find(0, QStringLiteral("ma"));
    QCOMPARE(QString::number(list().count()),
             office.ask("SELECT count(*) FROM Requisicao JOIN Tomador ON ID = TOMADOR "
                        "WHERE NOME1 LIKE '%ma%'"));
  }

  static void sortByAmount() {
    press(QStringLiteral("21"));
    emit list().columnClicked(6);
    list().flush();
    const bool ascending = list().sortOrder() == Qt::AscendingOrder;
    for (int row = 1; row < list().count(); ++row) {
      const int order = QString::compare(list().subItem(row - 1, 5), list().subItem(row, 5));
      QVERIFY(ascending ? order <= 0 : order >= 0);
    }
  }

  static void deleteFirst(const test::Office& office) {
    const QString before = office.ask("SELECT count(*) FROM Requisicao");
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                      list().visualRect(list().model()->index(0, 0)).center());
    const QString number = Tag_principal;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::question(QStringLiteral("Confirma exclusão do Cadastro: ") + number +
                                      QStringLiteral(" e seus relacionamentos.")),
                      Button::Yes);
    dialogs.expectBox(boxes::deleted());
    QTest::keyClick(&list(), Qt::Key_Delete);
    QCOMPARE(office.ask("SELECT count(*) FROM Requisicao").toInt(), before.toInt() - 1);
    for (int row = 0; row < list().count(); ++row) {
      QVERIFY(list().text(row) != number);
    }
  }
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::MainWindowJourney)
#include "MainWindow_test.moc"
