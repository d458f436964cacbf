// The main window: what each ribbon button does, the list's events, the delete flow, the closing.
#include "shell/frmOficce.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "foundation/Abertura.h"
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
#include "shell/Comandos.h"
#include "shell/Imagens.h"
#include "shell/ribbon/FaixaRibbon.h"
#include "tests/shell/ribbon/ToldRibbon.h"
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
      QVERIFY(n == 0 ? list().leastWidth(n) >= width : list().leastWidth(n) == width);
    }
  }

  void theRibbonHoldsTheWholeTable() {
    const auto& model = window_->Ribbon().model();
    const auto images = imagens_do_ribbon();
    QCOMPARE(images->count(), 30);
    QCOMPARE(std::size_t(model.tabCount()), test::kTabs.size());
    for (std::size_t n = 0; n < test::kTabs.size(); ++n) {
      QCOMPARE(model.tab(int(n)).key, QString(test::kTabs[n].key));
      QCOMPARE(model.tab(int(n)).caption, QString(test::kTabs[n].caption));
    }
    QCOMPARE(std::size_t(model.categoryCount()), test::kCategories.size());
    for (std::size_t n = 0; n < test::kCategories.size(); ++n) {
      const auto& category = model.category(int(n));
      QCOMPARE(category.key, QString(test::kCategories[n].key));
      QCOMPARE(category.tab, QString(test::kCategories[n].tab));
      QCOMPARE(category.caption, QString(test::kCategories[n].caption));
      QVERIFY(!category.hasLauncher);
    }
    QCOMPARE(std::size_t(model.buttonCount()), test::kButtons.size());
    for (std::size_t n = 0; n < test::kButtons.size(); ++n) {
      const auto& button = model.button(int(n));
      const test::ToldButton& told = test::kButtons[n];
      QCOMPARE(button.key, QString(told.key));
      QCOMPARE(button.category, QString(told.category));
      QCOMPARE(button.caption, QString(told.caption));
      QCOMPARE(button.toolTip, QString(told.caption).replace("\r\n", " "));
      QVERIFY(!button.hasGlyph);
      QCOMPARE(button.picture.icon.pixmap(24).toImage(),
               images->picture(told.image).icon.pixmap(24).toImage());
    }
    QCOMPARE(window_->Ribbon().Theme(), std::int16_t{1});
    QVERIFY(!window_->Ribbon().ButtonCenter());
    QCOMPARE(icones_das_linhas().size(), 3);
  }

  // Those named here wait for their windows; every other key does something.
  void everyKeyHasAnAction() {
    const QStringList waiting{"5", "24", "14", "16", "17"};
    QSet<QString> keys;
    for (const Comando& c : comandos()) {
      const bool acts = c.acao != nullptr || c.filtro.has_value();
      QVERIFY2(acts != waiting.contains(c.chave), c.chave);
      QVERIFY2(c.categoria != nullptr || c.menu != nullptr || c.atalho != nullptr, c.chave);
      QVERIFY2(!keys.contains(c.chave), c.chave);
      keys << c.chave;
    }
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
    auto* const key = window_->findChild<QLineEdit*>("txtkey");
    QVERIFY(key != nullptr && !key->isVisible());
    QCOMPARE(key->text(), QStringLiteral("0002/14"));
    QTest::keyClick(&list(), Qt::Key_Down);
    QCOMPARE(Tag_principal, QStringLiteral("0001/14"));
    QCOMPARE(key->text(), QStringLiteral("0001/14"));
  }

  void theNumberOutlivesTheRefill() {
    click(0);
    press(QStringLiteral("20"));
    QCOMPARE(list().count(), 0);
    QCOMPARE(Tag_principal, QStringLiteral("0002/14"));
  }

  // A list just filled shows no row as chosen, and 0002/14, still remembered, may not be in it.
  void afterARefillEnterAndDeleteActOnNoRow() {
    completeTheProcesses();
    click(0);
    press(QStringLiteral("19"));
    QCOMPARE(shown(), QStringList{"0001/14"});
    test::ScriptedDialogs dialogs;
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);
    QTest::keyClick(&list(), Qt::Key_Delete);
    QVERIFY(OpenForms::find(QStringLiteral("frmCadastro")) == nullptr);
    QCOMPARE(Tag_principal, QStringLiteral("0002/14"));
  }

  void afterARefillTheKeysActOnTheRowThatShowsAsChosen() {
    completeTheProcesses();
    click(0);
    press(QStringLiteral("19"));
    list().selectRow(0);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(confirmDeletion(QStringLiteral("0001/14")), Button::No);
    QTest::keyClick(&list(), Qt::Key_Delete);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QTest::keyClick(&list(), Qt::Key_Return);
    const QWidget* form = OpenForms::find(QStringLiteral("frmCadastro"));
    QVERIFY(form != nullptr);
    QCOMPARE(form->findChild<QLineEdit*>("mskprocesso")->text(), QStringLiteral("0001/14"));
  }

  void theWindowSaysWhichFilterIsInForce() {
    QCOMPARE(filterShown(), QStringLiteral("Exibindo: Iniciados e Abertos"));
    press(QStringLiteral("21"));
    QCOMPARE(filterShown(), QStringLiteral("Exibindo: Todos os Processos"));
    press(QStringLiteral("19"));
    QCOMPARE(filterShown(), QStringLiteral("Exibindo: Abertos (c/Empenho)"));
    press(QStringLiteral("20"));
    QCOMPARE(filterShown(), QStringLiteral("Exibindo: Encerrados (Arquivo)"));
    press(QStringLiteral("18"));
    QCOMPARE(filterShown(), QStringLiteral("Exibindo: Iniciados (só Requisição)"));
    press(QStringLiteral("21"));
    localize(0, QStringLiteral("ana"));
    QCOMPARE(filterShown(), QStringLiteral("Exibindo: nome com “ana”"));
    localize(1, QStringLiteral("0001/14"));
    QCOMPARE(filterShown(), QStringLiteral("Exibindo: processo 0001/14"));
    window_->Atualiza_grid();
    QCOMPARE(filterShown(), QStringLiteral("Exibindo: Todos os Processos"));
    const auto* const label = window_->findChild<QLabel*>("lblFiltro");
    QVERIFY(label->isVisible() && label->parentWidget()->rect().contains(label->geometry()));
    window_->resize(640, 400);
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
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
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::RowLocked));
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
                       .title = {},
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
    QCOMPARE(menuAt(0), QStringList({"&Alterar requisição\tEnter", "&Excluir requisição\tDel", "",
                                     "&Incisos\tCtrl+I"}));
  }

  void besideTheRowsTheMenuOffersNothingOnOne() {
    click(0);
    QCOMPARE(menuAt(-1), QStringList{"&Incisos\tCtrl+I"});
    press(QStringLiteral("19"));
    QCOMPARE(menuAt(0), QStringList{"&Incisos\tCtrl+I"});
  }

  void aCommandOfTheMenuActsOnItsRow() {
    click(1);
    list().selectRow(0);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(confirmDeletion(QStringLiteral("0002/14")), Button::No);
    menuAt(0, 1);
  }

  void theClausesHaveAShortcut() {
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_I, Qt::ControlModifier);
    QVERIFY(OpenForms::find(QStringLiteral("frmLei")) != nullptr);
  }

  // What goes wrong in the alert is not told, and the timer stops all the same.
  void theAlertsTickIgnoresErrors() {
    class Refusing : public test::ScriptedDialogs {
     public:
      int asked = 0;
      Button box(const Box&) override {
        ++asked;
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
      }
    };
    Conexao->close();
    Refusing dialogs;
    QTRY_VERIFY(dialogs.asked > 0);
    QVERIFY(OpenForms::find(QStringLiteral("frmAviso")) == nullptr);
    QCOMPARE(dialogs.asked, 1);
    Abre_conexao();
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
  QString filterShown() const { return window_->findChild<QLabel*>("lblFiltro")->text(); }
  void localize(int what, const QString& words) const {
    press(QStringLiteral("4"));
    QWidget* form = OpenForms::find(QStringLiteral("frmLocalizar"));
    form->findChild<QComboBox*>("Combo1")->setCurrentIndex(what);
    QTest::keyClicks(form->findChild<QLineEdit*>("Text1"), words);
    QTest::keyClick(form->findChild<QLineEdit*>("Text1"), Qt::Key_Return);
  }
  // The lines of the menu that comes at a row, after choosing one of them.
  QStringList menuAt(int row, int choose = -1) const {
    QStringList words;
    QTimer::singleShot(0, window_.get(), [&words, choose] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      for (const QAction* action : menu->actions()) {
        words << action->text();
      }
      if (choose >= 0) {
        menu->setActiveAction(menu->actions().at(choose));
        QTest::keyClick(menu, Qt::Key_Return);
      } else {
        menu->close();
      }
    });
    emit list().contextMenuRequested(row, window_->mapToGlobal(QPoint(50, 200)));
    return words;
  }
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
