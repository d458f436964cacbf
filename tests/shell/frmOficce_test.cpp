// The main window: what each ribbon button does, the list's events, the delete flow, the closing.
#include "shell/frmOficce.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "foundation/Banco.h"
#include "foundation/Ini.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmConfigura.h"
#include "platform/controls/ListView.h"
#include "platform/controls/OpenForms.h"
#include "platform/controls/StatusBar.h"
#include "records/Principal.h"
#include "records/cRequisicao.h"
#include "screens/frmAviso.h"
#include "screens/frmLocalizar.h"
#include "shell/ComandosRibbon.h"
#include "shell/Imagens.h"
#include "shell/ribbon/FaixaRibbon.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

Box confirmDeletion(const QString& number) {
  return boxes::question(QStringLiteral("Confirma exclusão do Cadastro: ") + number +
                         QStringLiteral(" e seus relacionamentos."));
}

}  // namespace

class frmOficceTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
    office_->run(
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE) VALUES "
        "(214, '2014-10-01 00:00:00', 1, 1, 90000, 1), (313, '2013-10-01 00:00:00', 1, 1, 5, 1);"
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO, ABERTURA, FECHAMENTO) VALUES "
        "(30013, 313, '2013-10-02 00:00:00', '2013-11-02 00:00:00')");
    FiltroStatus = 3;
    Tag_principal.clear();
    window_ = std::make_unique<frmOficce>();
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
  }
  void cleanup() {
    for (QWidget* form : OpenForms::all()) {
      form->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window_.reset();
    office_.reset();
  }

  void opensUnderFilterOneWhateverItWas() {
    QCOMPARE(FiltroStatus, std::int16_t{1});
    QCOMPARE(shown(), QStringList({"0002/14", "0001/14"}));
    QCOMPARE(window_->sbStatusBar().panelText(1),
             QStringLiteral("Total: 2 Registros Localizados...."));
    QCOMPARE(window_->windowTitle(), QStringLiteral("Quartela 2014"));
  }

  void theColumnsStandAsGiven() {
    const QStringList headers{"N°.",  "EMPENHO",  "DATA",     "SECRETARIA", "RESPONSAVEL", "VALOR",
                              "TIPO", "ABERTURA", "RETIRADA", "FECHAR EM",  "FECHAMENTO",  "DIAS"};
    const QList<int> widths{2293, 2117, 2646, 4410, 4410, 1940, 3528, 2646, 2646, 2646, 2646, 1411};
    QCOMPARE(list().columnCount(), int(headers.size()));
    for (int n = 0; n < headers.size(); ++n) {
      QCOMPARE(list().model()->headerData(n, Qt::Horizontal).toString(), headers.at(n));
      const int width =
          ColumnWidth::hundredthsOfMillimetre(widths.at(n)).toPixels(list().logicalDpiX());
      // The first column makes room for the row's icon beside its number.
      QVERIFY(n == 0 ? list().columnWidth(n) >= width : list().columnWidth(n) == width);
    }
  }

  void theRibbonHoldsTheWholeTable() {
    const auto& model = window_->Ribbon().model();
    QCOMPARE(std::size_t(model.tabCount()), kGuias.size());
    QCOMPARE(std::size_t(model.categoryCount()), kCategorias.size());
    QCOMPARE(std::size_t(model.buttonCount()), kBotoes.size());
    QCOMPARE(window_->Ribbon().Theme(), std::int16_t{1});
    QVERIFY(!window_->Ribbon().ButtonCenter());
    QCOMPARE(imagens_do_ribbon()->count(), 30);
    QCOMPARE(icones_das_linhas().size(), 3);
  }

  void filterButtons_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("filter");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("all") << "21" << 0 << QStringList{"0001/14", "0002/14", "0003/13"};
    QTest::newRow("begun and open") << "22" << 1 << QStringList{"0001/14", "0002/14"};
    QTest::newRow("open with empenho") << "19" << 2 << QStringList{"0001/14"};
    QTest::newRow("closed") << "20" << 3 << QStringList{};
    QTest::newRow("requisition only") << "18" << 4 << QStringList{"0002/14"};
  }
  void filterButtons() {
    QFETCH(QString, key);
    press(key);
    QTEST(int{FiltroStatus}, "filter");
    QStringList rows = shown();
    rows.sort();
    QTEST(rows, "rows");
  }

  void keysWithoutACommandDoNothing_data() {
    QTest::addColumn<QString>("key");
    for (const char* key : {"7", "8", "26", "00", "", "1A", "-1"}) {
      QTest::newRow(*key != 0 ? key : "empty") << QString::fromLatin1(key);
    }
  }
  void keysWithoutACommandDoNothing() {
    QFETCH(QString, key);
    const qsizetype open = OpenForms::all().size();
    test::ScriptedDialogs dialogs;
    press(key);
    QCOMPARE(OpenForms::all().size(), open);
    QCOMPARE(FiltroStatus, std::int16_t{1});
  }

  void printDocumentsIsNotThereYet() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::told(QStringLiteral("Não disponivel no momento")));
    press(QStringLiteral("23"));
  }

  void theFindButtonIsAToggle() {
    press(QStringLiteral("4"));
    QVERIFY(UmaJanela<frmLocalizar>::aberta() != nullptr);
    press(QStringLiteral("4"));
    QVERIFY(UmaJanela<frmLocalizar>::aberta() == nullptr);
    press(QStringLiteral("4"));
    QVERIFY(UmaJanela<frmLocalizar>::aberta() != nullptr);
  }

  void buttonsOpenAndCloseTheirWindows_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("0") << "0"
                       << "frmCadastro";
    QTest::newRow("1") << "1"
                       << "frmCadastro";
    QTest::newRow("4") << "4"
                       << "frmLocalizar";
    QTest::newRow("6") << "6"
                       << "frmReqAvulso";
    QTest::newRow("9") << "9"
                       << "frmExecutor";
    QTest::newRow("10") << "10"
                        << "frmTomador";
    QTest::newRow("11") << "11"
                        << "frmTipos";
    QTest::newRow("12") << "12"
                        << "frmTipoDespesa";
    QTest::newRow("13") << "13"
                        << "frmDotacao";
    QTest::newRow("25") << "25"
                        << "frmOrgao";
  }
  void buttonsOpenAndCloseTheirWindows() {
    QFETCH(QString, key);
    QFETCH(QString, name);
    completeTheProcesses();
    click(0);
    press(key);
    QWidget* form = OpenForms::find(name);
    QVERIFY(form != nullptr);
    QVERIFY(form->isVisible());
    QCOMPARE(form->parentWidget(), window_.get());
    press(key);
    QVERIFY(OpenForms::find(name) == nullptr);
    press(key);
    QVERIFY(OpenForms::find(name) != nullptr);
  }

  void theProcessScreenIsToldWhatToDo() {
    completeTheProcesses();
    click(0);
    press(QStringLiteral("1"));
    QCOMPARE(ModoAlteracao, std::int16_t{-1});
    press(QStringLiteral("0"));
    QCOMPARE(ModoAlteracao, std::int16_t{-1});
    press(QStringLiteral("0"));
    QCOMPARE(ModoAlteracao, std::int16_t{0});
  }

  void theSettingsAreModal() {
    press(QStringLiteral("15"));
    QVERIFY(UmaJanela<frmConfigura>::aberta() != nullptr);
    QCOMPARE(QApplication::activeModalWidget(), UmaJanela<frmConfigura>::aberta());
  }

  void theRibbonIsEnteredAndLeftByKeyboard() {
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_F10);
    QVERIFY(window_->Ribbon().hasFocus());
    QTest::keyClick(&window_->Ribbon(), Qt::Key_Escape);
    QVERIFY(list().hasFocus());
  }

  void theAlertButtonShowsTheAlert() {
    office_->run("UPDATE Adiantamento SET FECHAR_EM = '2014-11-21 00:00:00'");
    bool seen = false;
    QTimer::singleShot(0, this, [&seen] {
      seen = OpenForms::find(QStringLiteral("frmAviso")) != nullptr;
      OpenForms::find(QStringLiteral("frmAviso"))->close();
    });
    press(QStringLiteral("3"));
    QVERIFY(seen);
  }

  void theAlertComesUpOnceByItself() {
    office_->run("UPDATE Adiantamento SET FECHAR_EM = '2014-11-21 00:00:00'");
    int seen = 0;
    QTimer operatorAtWork;
    connect(&operatorAtWork, &QTimer::timeout, this, [&seen] {
      if (QWidget* alert = OpenForms::find(QStringLiteral("frmAviso"))) {
        ++seen;
        alert->close();
      }
    });
    operatorAtWork.start(50);
    QTRY_COMPARE(seen, 1);
    QTest::qWait(1500);
    QCOMPARE(seen, 1);
  }

  void clickingARowRemembersItsNumber() {
    click(0);
    QCOMPARE(Tag_principal, QStringLiteral("0002/14"));
    QCOMPARE(window_->txtkey(), QStringLiteral("0002/14"));
    QTest::keyClick(&list(), Qt::Key_Down);
    QCOMPARE(Tag_principal, QStringLiteral("0001/14"));
  }

  void theNumberOutlivesTheRefill() {
    click(0);
    press(QStringLiteral("20"));
    QCOMPARE(list().count(), 0);
    QCOMPARE(Tag_principal, QStringLiteral("0002/14"));
  }

  void aHeaderSortsAsTextAndTurnsRound() {
    press(QStringLiteral("22"));
    emit list().columnClicked(6);
    list().flush();
    const QStringList first{list().subItem(0, 5), list().subItem(1, 5)};
    emit list().columnClicked(6);
    list().flush();
    const QStringList second{list().subItem(0, 5), list().subItem(1, 5)};
    QCOMPARE(QStringList({first.at(1), first.at(0)}), second);
    QVERIFY(first.contains(QStringLiteral("1.000,00")) && first.contains(QStringLiteral("9,00")));
    const bool ascending = list().sortOrder() == Qt::AscendingOrder;
    QCOMPARE(second.first(), ascending ? QStringLiteral("1.000,00") : QStringLiteral("9,00"));
  }

  void deletingNeedsAChosenRow() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox({.text = QStringLiteral("Você deve selecionar um item!!"),
                       .title = QStringLiteral("Aviso"),
                       .icon = BoxIcon::Exclamation});
    press(QStringLiteral("2"));
  }

  void alteringNeedsAChosenRowAndSaysNothing() {
    test::ScriptedDialogs dialogs;
    press(QStringLiteral("1"));
    QVERIFY(OpenForms::find(QStringLiteral("frmCadastro")) == nullptr);
  }

  void declinedDeletionChangesNothing() {
    click(0);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(confirmDeletion(QStringLiteral("0002/14")), Button::No);
    press(QStringLiteral("2"));
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("3"));
  }

  void deletesTheChosenProcessAndKeepsItsNumber() {
    click(0);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(confirmDeletion(QStringLiteral("0002/14")), Button::Yes);
    dialogs.expectBox(boxes::deleted());
    press(QStringLiteral("2"));
    QCOMPARE(shown(), QStringList{"0001/14"});
    QCOMPARE(Tag_principal, QStringLiteral("0002/14"));
    dialogs.expectBox(confirmDeletion(QStringLiteral("0002/14")), Button::No);
    press(QStringLiteral("2"));
  }

  void leadingZerosGoFromTheNumber() {
    Tag_principal = QStringLiteral("0007/13");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(confirmDeletion(QStringLiteral("0007/13")), Button::No);
    press(QStringLiteral("2"));
    QCOMPARE(cRequisicao::compartilhada().Seq, 713);
  }

  void theDeleteKeyStartsTheSameFlow() {
    click(0);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(confirmDeletion(QStringLiteral("0002/14")), Button::No);
    QTest::keyClick(&list(), Qt::Key_Delete);
  }

  void resizingKeepsThePartsInTheirPlaces() {
    window_->resize(1100, 600);
    QCOMPARE(window_->Ribbon().geometry(), QRect(0, 0, 1100, 116));
    QCOMPARE(list().geometry(), QRect(0, 115, 1099, 600 - 24 - 116));
    QCOMPARE(window_->sbStatusBar().geometry(), QRect(0, 576, 1100, 24));
  }

  void aLockedDatabaseIsToldAndTheWindowWorksOn() {
    click(0);
    Connection other;
    other.open(QStringLiteral("Data Source=") + office_->database());
    other.beginTransaction();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(confirmDeletion(QStringLiteral("0002/14")), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::RowLocked, test::kAnything));
    press(QStringLiteral("2"));
    other.rollback();
    press(QStringLiteral("21"));
    QCOMPARE(list().count(), 3);
  }

  void aDatabaseThatIsGoneIsToldForEachCommand() {
    Conexao->close();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        boxes::internalError(ErrorNumber::ObjectClosed, QStringLiteral("Função Lista_Movimento")));
    press(QStringLiteral("21"));
    Abre_conexao();
    press(QStringLiteral("21"));
    QCOMPARE(list().count(), 3);
  }

  void aProgramThatIsMissingIsTold() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox({.text = QStringLiteral(
                           "O aplicativo não foi localizado !!! Verifique sua localização ..."),
                       .icon = BoxIcon::Exclamation});
    frmOficce::LoadEXE(office_->file(QStringLiteral("sumido.exe")));
  }

  void closingClosesEveryWindowAndTheDatabase() {
    press(QStringLiteral("4"));
    window_->close();
    QVERIFY(UmaJanela<frmLocalizar>::aberta() == nullptr);
    QCOMPARE(Conexao->state(), Connection::Closed);
    Lista_principal(0);
  }

  void theMenuHoldsTheCommandsOfTheRow() {
    click(0);
    QStringList words;
    QTimer::singleShot(0, this, [&words] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      QVERIFY(menu != nullptr);
      for (const QAction* action : menu->actions()) {
        words << action->text();
      }
      menu->close();
    });
    emit list().contextMenuRequested(0, window_->mapToGlobal(QPoint(50, 200)));
    QCOMPARE(words.mid(0, 2), QStringList({"&Alterar requisição", "&Excluir requisição"}));
    QVERIFY(words.contains(QStringLiteral("&Incisos")));
  }

 private:
  // What the process screen needs of a process to show it: a type of its secretariat, an
  // allocation.
  void completeTheProcesses() const {
    office_->run(
        "UPDATE Tipos SET IDORGAO = 2;"
        "INSERT INTO Dotacao(IDTIPO, IDORGAO, DOTACAO, ANO) VALUES (1, 2, 128, 2014);"
        "UPDATE Requisicao SET FICHA = '128', JUSTIFICATIVA = 'Despesas';");
  }
  ListView& list() const { return window_->ListView1(); }
  void press(const QString& key) const { emit window_->Ribbon().ButtonClick(key, QString()); }
  void click(int row) const {
    list().flush();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                      list().visualRect(list().model()->index(row, 0)).center());
  }
  QStringList shown() const {
    QStringList rows;
    for (int row = 0; row < list().count(); ++row) {
      rows << list().text(row);
    }
    return rows;
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmOficce> window_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmOficceTest)
#include "frmOficce_test.moc"
