// Every window on the screens that offices have: it fits with its frame, and what closes it is in
// view. CTest runs this once for each screen.
#include <QAbstractButton>
#include <QFile>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>
#include <functional>

#include "foundation/Splash.h"
#include "foundation/Tamanho.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmConfigura.h"
#include "foundation/frmLogin.h"
#include "foundation/frmParametros.h"
#include "masterdata/frmDotacao.h"
#include "masterdata/frmExecutor.h"
#include "masterdata/frmLei.h"
#include "masterdata/frmOrgao.h"
#include "masterdata/frmTipoDespesa.h"
#include "masterdata/frmTipos.h"
#include "masterdata/frmTomador.h"
#include "platform/controls/ListView.h"
#include "platform/controls/OpenForms.h"
#include "platform/controls/StatusBar.h"
#include "platform/reporting/ReportPreview.h"
#include "records/Principal.h"
#include "reports/Saida.h"
#include "reports/arRequisicao.h"
#include "screens/frmAdiantamento.h"
#include "screens/frmAviso.h"
#include "screens/frmCadastro.h"
#include "screens/frmLocalizar.h"
#include "screens/frmProcura.h"
#include "screens/frmReqAvulso.h"
#include "screens/frmTab3.h"
#include "shell/frmOficce.h"
#include "tests/support/Folders.h"
#include "tests/support/office/Office.h"
#include "tests/support/office/OfficeMain.h"

using Opening = std::function<QWidget&()>;
Q_DECLARE_METATYPE(Opening)

namespace quartela {
namespace {

constexpr int kWidestProcess = 1050;
// A list that shows its header and some rows.
constexpr int kLeastList = 100;

template <typename Window>
Opening opening() {
  return []() -> QWidget& {
    UmaJanela<Window>::mostra();
    return *UmaJanela<Window>::aberta();
  };
}

// A title bar and the borders of a usual desktop.
constexpr QSize kFrame(8, 36);

QRect inWindow(const QWidget& part) {
  return {part.mapTo(part.window(), QPoint()), part.size()};
}

bool scrolls(const QWidget* part) {
  for (; part != nullptr; part = part->parentWidget()) {
    if (qobject_cast<const QScrollArea*>(part) != nullptr) {
      return true;
    }
  }
  return false;
}

QString placeOf(const QWidget& part) {
  const QRect rect = inWindow(part);
  return QStringLiteral("%1 %2,%3 %4x%5 in %6x%7")
      .arg(part.objectName())
      .arg(rect.x())
      .arg(rect.y())
      .arg(rect.width())
      .arg(rect.height())
      .arg(part.window()->width())
      .arg(part.window()->height());
}

// What is wrong with the window on its screen; empty for nothing.
QString misfits(const QWidget& window, const QStringList& always) {
  const QSize room = window.screen()->availableSize() - kFrame;
  const QSize least = window.minimumSize().expandedTo(window.minimumSizeHint());
  QString found;
  for (const QSize size : {window.size(), least}) {
    if (size.width() > room.width() || size.height() > room.height()) {
      found += QStringLiteral("%1x%2 in %3x%4; ")
                   .arg(size.width())
                   .arg(size.height())
                   .arg(room.width())
                   .arg(room.height());
    }
  }
  for (const QString& name : always) {
    const auto* const part = window.findChild<QWidget*>(name);
    if (part == nullptr || scrolls(part) || !window.rect().contains(inWindow(*part))) {
      found += part == nullptr ? name : placeOf(*part) + QStringLiteral("; ");
    }
  }
  return found;
}

}  // namespace

class SmallScreensTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>(test::Data::Demonstration);
    Tag_principal.clear();
  }
  void cleanup() {
    for (QWidget* form : OpenForms::all()) {
      form->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    office_.reset();
  }

  void theScreenIsTheOneAskedFor() {
    const QByteArray asked = qgetenv("QUARTELA_TEST_SCREEN");
    if (asked.isEmpty()) {
      QSKIP("CTest names the screen");
    }
    const QSize size = QGuiApplication::primaryScreen()->size();
    QCOMPARE(QStringLiteral("%1x%2").arg(size.width()).arg(size.height()), QString(asked));
  }

  void theLogin() {
    mostra_frmLogin();
    frmLogin* const login = UmaJanela<frmLogin>::aberta();
    QVERIFY(QTest::qWaitForWindowExposed(login));
    QTest::mouseClick(login->findChild<QAbstractButton*>("cmdUp"), Qt::LeftButton);
    QCOMPARE(misfits(*login, {"cmdOk", "cmdCancel", "cmdUp", "cmdParam"}), QString());
  }

  void theSplash() {
    const QString picture = QStringLiteral("progress.gif");
    QVERIFY(QFile::copy(test::inSource("resources/delivery/" + picture), office_->file(picture)));
    mostra_Splash();
    Splash* const splash = UmaJanela<Splash>::aberta();
    QCOMPARE(misfits(*splash, {}), QString());
    QVERIFY(splash->screen()->availableGeometry().contains(splash->geometry()));
  }

  void theMainWindow() {
    frmOficce window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(misfits(window, {"Ribbon", "sbStatusBar"}), QString());
    window.resize(window.minimumSize());
    QCOMPARE(misfits(window, {"sbStatusBar"}), QString());
  }

  void theProcessWindow() {
    ModoAlteracao = 0;
    UmaJanela<frmCadastro>::mostra();
    frmCadastro* const window = UmaJanela<frmCadastro>::aberta();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QCOMPARE(misfits(*window, {"cmdOk", "cmdAplicar", "cmdImprimir", "Command1_0", "cmdPrestacao"}),
             QString());
    // No wider than what stands in it asks for.
    QVERIFY2(window->width() <= kWidestProcess, qPrintable(placeOf(*window)));
    everyFieldCanBeReached(*window);
  }

  void theStandaloneRequisition() {
    UmaJanela<frmReqAvulso>::mostra();
    frmReqAvulso* const window = UmaJanela<frmReqAvulso>::aberta();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QCOMPARE(misfits(*window, {"cmdOk", "cmdAplicar", "cmdImprimir", "Command1_0"}), QString());
    everyFieldCanBeReached(*window);
  }

  void theAdvanceDialog() {
    AlteraEmpenho = 0;
    frmAdiantamento window({});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(misfits(window, {"Command1", "Command2"}), QString());
    // All of it is in view on each of these screens.
    const bool named = qEnvironmentVariableIsSet("QUARTELA_TEST_SCREEN");
    for (const QScrollBar* bar : window.findChildren<QScrollBar*>()) {
      QVERIFY2(!named || !bar->isVisible(), qPrintable(placeOf(*bar)));
    }
    everyFieldCanBeReached(window);
  }

  void theReferenceTables_data() {
    QTest::addColumn<Opening>("open");
    QTest::addColumn<QStringList>("consulting");
    QTest::addColumn<QByteArray>("include");
    QTest::addColumn<QStringList>("editing");
    const QStringList consulting{"cmdProcura", "Command1_3", "Command1_1", "Command3"};
    const QByteArray include("Command1_3");
    const QStringList editing{"Command2", "Command1_0", "Command3"};
    QTest::newRow("frmOrgao") << opening<frmOrgao>() << consulting << include << editing;
    QTest::newRow("frmTipoDespesa")
        << opening<frmTipoDespesa>() << consulting << include << editing;
    QTest::newRow("frmExecutor") << opening<frmExecutor>() << consulting << include << editing;
    QTest::newRow("frmTomador") << opening<frmTomador>() << consulting << include << editing;
    QTest::newRow("frmDotacao") << opening<frmDotacao>() << consulting << include << editing;
    QTest::newRow("frmTipos") << opening<frmTipos>()
                              << QStringList{"cmdProcura", "Command1_0", "Command1_1", "Command1_3",
                                             "Command2"}
                              << QByteArray("Command1_0")
                              << QStringList{"Command3", "Command1_2", "Command2"};
    const QStringList clauses{"Command1_3", "Command3", "Command1_1", "Command1_0", "Command2"};
    QTest::newRow("frmLei") << opening<frmLei>() << clauses << include << clauses;
  }
  void theReferenceTables() {
    QFETCH(const Opening, open);
    QFETCH(const QStringList, consulting);
    QFETCH(const QByteArray, include);
    QFETCH(const QStringList, editing);
    QWidget& window = open();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(misfits(window, consulting), QString());
    const auto* const list = window.findChild<QWidget*>(QStringLiteral("ListView1"));
    QVERIFY2(list->height() >= kLeastList, qPrintable(placeOf(*list)));
    QTest::mouseClick(window.findChild<QAbstractButton*>(QString(include)), Qt::LeftButton);
    QCOMPARE(misfits(window, editing), QString());
    const QWidget* const first = window.focusWidget();
    QTRY_COMPARE(first->visibleRegion().boundingRect(), first->rect());
    everyFieldCanBeReached(window);
    window.resize(400, 240);
    QCOMPARE(misfits(window, editing), QString());
    everyFieldCanBeReached(window);
  }

  void theSmallWindows_data() {
    QTest::addColumn<Opening>("open");
    QTest::addColumn<QStringList>("always");
    QTest::newRow("frmParametros")
        << opening<frmParametros>() << QStringList{"cmdGravar", "cmdCancelar"};
    QTest::newRow("frmConfigura") << opening<frmConfigura>() << QStringList{"Command1"};
    QTest::newRow("frmLocalizar") << opening<frmLocalizar>() << QStringList{"Command1"};
    QTest::newRow("frmTab3") << opening<frmTab3>()
                             << QStringList{"cmdVoltar", "cmdAvancar", "cmdConcluir", "Command1"};
    QTest::newRow("frmProcura") << opening<frmProcura>()
                                << QStringList{"txtprocura", "Command3", "Command1", "Command2"};
    QTest::newRow("frmAviso") << opening<frmAviso>() << QStringList{"Command1"};
  }
  void theSmallWindows() {
    QFETCH(const Opening, open);
    QFETCH(const QStringList, always);
    QWidget& window = open();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(misfits(window, always), QString());
    if (const auto* const list = window.findChild<ListView*>()) {
      QVERIFY2(list->height() >= kLeastList, qPrintable(placeOf(*list)));
    }
  }

  void thePreview() {
    Exibe(arRequisicao({}));
    auto* const window = qobject_cast<reporting::ReportPreview*>(OpenForms::all().value(0));
    QVERIFY(window != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QTRY_COMPARE(window->document()->pageCount(), 1);
    QCOMPARE(misfits(*window, {"button-print", "button-save", "pageNumber", "button-close"}),
             QString());
    QVERIFY(window->rect().contains(window->statusBar()->geometry()));
  }

  // At its opening size, with more rows than fit, wherever the screen has the room.
  void everyColumnOfThePickerIsInView() {
    constexpr int kMoreThanFit = 60;
    for (int n = 0; n < kMoreThanFit; ++n) {
      office_->run(
          qPrintable(QStringLiteral("INSERT INTO Adiantamento(EMPENHO, PROCESSO, RETIRADA) "
                                    "SELECT %1, SEQ, '2014-10-03 00:00:00' FROM "
                                    "Requisicao LIMIT 1")
                         .arg(100 * (n + 90000) + 14)));
    }
    QWidget& window = opening<frmProcura>()();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto* const list = window.findChild<ListView*>();
    QTRY_VERIFY(list->verticalScrollBar()->isVisible());
    constexpr int kRoomy = 1024;
    if (window.screen()->size().width() >= kRoomy) {
      QTRY_COMPARE(list->horizontalScrollBar()->maximum(), 0);
    } else {
      QCOMPARE(misfits(window, {"Command1", "Command2"}), QString());
    }
  }

  // Also where the window is made smaller than any screen.
  void aFieldOutOfSightScrollsIntoView() {
    UmaJanela<frmReqAvulso>::mostra();
    frmReqAvulso* const window = UmaJanela<frmReqAvulso>::aberta();
    window->resize(400, 200);
    QVERIFY(QTest::qWaitForWindowExposed(window));
    everyFieldCanBeReached(*window);
    QCOMPARE(misfits(*window, {"Command1_0"}), QString());
  }

 private:
  void everyFieldCanBeReached(QWidget& window) {
    QApplication::setActiveWindow(&window);
    int seen = 0;
    for (QWidget* field : window.findChildren<QWidget*>()) {
      if (field->isVisible() && field->isEnabled() && (field->focusPolicy() & Qt::TabFocus) != 0 &&
          scrolls(field)) {
        field->setFocus();
        QVERIFY2(!field->visibleRegion().isEmpty(), qPrintable(placeOf(*field)));
        ++seen;
      }
    }
    QVERIFY(seen > 0);
  }

  std::unique_ptr<test::Office> office_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::SmallScreensTest)
#include "SmallScreens_test.moc"
