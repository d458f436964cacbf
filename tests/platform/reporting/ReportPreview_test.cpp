#include "platform/reporting/ReportPreview.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include "platform/reporting/PagePainter.h"
#include "platform/reporting/PageView.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::reporting;
using quartela::test::errorOf;
using quartela::test::layoutOf;
using quartela::test::SampleRows;

namespace {

const QByteArray kList = R"({"kind": "Detail", "height": 500, "elements": [
    {"kind": "Field", "name": "Nome", "left": 0, "top": 0, "width": 3000, "height": 250,
     "column": "RAZAO"}]},
  {"kind": "PageFooter", "height": 300, "elements": [
    {"kind": "Field", "name": "Total", "left": 900, "top": 0, "width": 900, "height": 250,
     "shows": "pageTotal"}]})";

// A preview of so many rows, 29 on a page. When it is not waited for, each row takes so long that
// the building is seen.
struct Shown {
  explicit Shown(int rowCount, bool wait = true, PreviewCommands commands = {})
      : rows(rowCount), report(std::make_shared<Report>(layoutOf(kList))) {
    report->setSource(rows.connection(), SampleRows::all());
    if (!wait) {
      report->onFormat(u"Detail", [this](SectionInstance&) {
        if (slow) {
          QTest::qSleep(1);
        }
      });
    }
    window = std::make_unique<ReportPreview>(report, std::move(commands));
    window->show();
    window->activateWindow();
    if (wait) {
      complete = QTest::qWaitForWindowActive(window.get()) &&
                 QTest::qWaitFor([this] { return report->state() == Report::State::Complete; });
    }
  }

  template <typename Widget>
  Widget* find(const char* name) const {
    return window->findChild<Widget*>(QLatin1String(name));
  }
  void click(const char* button) const {
    QTest::mouseClick(find<QToolButton>(button), Qt::LeftButton);
  }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QTest::keyClick(window.get(), key, modifiers);
  }
  // Turns the wheel over the page.
  void wheel(QPoint angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QWidget* const area = view()->viewport();
    const QPointF middle = area->rect().center();
    QWheelEvent event(middle, area->mapToGlobal(middle), {}, angle, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(area, &event);
  }
  PageView* view() const { return window->findChild<PageView*>(); }
  QLineEdit* number() const { return find<QLineEdit>("pageNumber"); }
  QString count() const { return find<QLabel>("pageCount")->text(); }

  SampleRows rows;
  std::shared_ptr<Report> report;
  std::unique_ptr<ReportPreview> window;
  bool complete = false;
  bool slow = true;
};

}  // namespace

class ReportPreviewTest : public QObject {
  Q_OBJECT

 private slots:
  void showsTheFirstPage();
  void buttonsTurnPages();
  void keysTurnPages();
  void pageKeysScrollBeforeTheyTurn();
  void wheelTurnsAtThePagesEnd();
  void pageNumberIsTyped();
  void wrongPageNumberChangesNothing();
  void zoomsByKeys();
  void zoomsByTheBox();
  void fittedZoomFollowsTheWindow();
  void aTypedZoomIsWhatWasTyped_data();
  void aTypedZoomIsWhatWasTyped();
  void leavingTheZoomTakesIt();
  void escapeLeavesTheField_data();
  void escapeLeavesTheField();
  void fineWheelZoomsAsMuchAsANotch_data();
  void fineWheelZoomsAsMuchAsANotch();
  void sidewaysWheelZoomsAndTurnsNothing();
  void theDeskIsOneColour();
  void closingIsAlwaysInView_data();
  void closingIsAlwaysInView();
  void wheelChangesNoBoxWithoutFocus();
  void printsAndSavesThroughItsOwner();
  void withoutCommandsThereAreNoButtons();
  void firstPageIsShownWhileBuilding();
  void buildingIsCancelled_data();
  void buildingIsCancelled();
  void escapeCloses();
  void closingEndsTheBuilding();
  void mayBeClosedFromARoutine();
  void errorsGoToTheOwner();
  void startErrorsLeaveTheConstructor();
  void saysThatThereIsNothing();
  void showsWhatIsPrinted();
};

void ReportPreviewTest::showsTheFirstPage() {
  const Shown shown(100);
  QVERIFY(shown.complete);
  QCOMPARE(shown.window->windowTitle(), QStringLiteral("Amostra"));
  QCOMPARE(shown.window->page(), 1);
  QCOMPARE(shown.number()->text(), QStringLiteral("1"));
  QTRY_COMPARE(shown.count(), QStringLiteral("de 4"));
  QTRY_VERIFY(!shown.find<QPushButton>("cancel")->isVisible());
}

void ReportPreviewTest::buttonsTurnPages() {
  const Shown shown(100);
  QVERIFY(shown.complete);
  QTRY_VERIFY(shown.find<QToolButton>("button-next")->isEnabled());
  QVERIFY(!shown.find<QToolButton>("button-first")->isEnabled());
  QVERIFY(!shown.find<QToolButton>("button-previous")->isEnabled());
  shown.click("button-next");
  QCOMPARE(shown.window->page(), 2);
  QCOMPARE(shown.number()->text(), QStringLiteral("2"));
  shown.click("button-last");
  QCOMPARE(shown.window->page(), 4);
  QVERIFY(!shown.find<QToolButton>("button-next")->isEnabled());
  QVERIFY(!shown.find<QToolButton>("button-last")->isEnabled());
  shown.click("button-previous");
  QCOMPARE(shown.window->page(), 3);
  shown.click("button-first");
  QCOMPARE(shown.window->page(), 1);
}

void ReportPreviewTest::keysTurnPages() {
  const Shown shown(100);
  QVERIFY(shown.complete);
  QTRY_COMPARE(shown.count(), QStringLiteral("de 4"));
  shown.key(Qt::Key_PageDown, Qt::ControlModifier);
  QCOMPARE(shown.window->page(), 2);
  shown.key(Qt::Key_End, Qt::ControlModifier);
  QCOMPARE(shown.window->page(), 4);
  shown.key(Qt::Key_PageUp, Qt::ControlModifier);
  QCOMPARE(shown.window->page(), 3);
  shown.key(Qt::Key_Home, Qt::ControlModifier);
  QCOMPARE(shown.window->page(), 1);
}

void ReportPreviewTest::pageKeysScrollBeforeTheyTurn() {
  const Shown shown(100);
  QVERIFY(shown.complete);
  QTRY_COMPARE(shown.count(), QStringLiteral("de 4"));
  const QScrollBar* const bar = shown.view()->verticalScrollBar();
  QVERIFY(bar->maximum() > 0);
  shown.key(Qt::Key_PageDown);
  QCOMPARE(shown.window->page(), 1);
  QVERIFY(bar->value() > 0);
  for (int press = 0; press < 20 && shown.window->page() == 1; ++press) {
    shown.key(Qt::Key_PageDown);
  }
  QCOMPARE(shown.window->page(), 2);
  QCOMPARE(bar->value(), 0);
  shown.key(Qt::Key_PageUp);
  QCOMPARE(shown.window->page(), 1);
  QCOMPARE(bar->value(), bar->maximum());
  // A page that is seen whole is turned at once.
  shown.key(Qt::Key_2, Qt::ControlModifier);
  shown.key(Qt::Key_PageDown);
  QCOMPARE(shown.window->page(), 2);
  shown.key(Qt::Key_PageUp);
  QCOMPARE(shown.window->page(), 1);
}

void ReportPreviewTest::wheelTurnsAtThePagesEnd() {
  const Shown shown(100);
  QVERIFY(shown.complete);
  QTRY_COMPARE(shown.count(), QStringLiteral("de 4"));
  shown.key(Qt::Key_2, Qt::ControlModifier);
  const auto turn = [&](int angle) { shown.wheel({0, angle}); };
  turn(-120);
  QCOMPARE(shown.window->page(), 2);
  turn(-60);
  QCOMPARE(shown.window->page(), 2);
  turn(-60);
  QCOMPARE(shown.window->page(), 3);
  turn(120);
  QCOMPARE(shown.window->page(), 2);
}

void ReportPreviewTest::pageNumberIsTyped() {
  const Shown shown(100);
  QVERIFY(shown.complete);
  QTRY_COMPARE(shown.count(), QStringLiteral("de 4"));
  shown.key(Qt::Key_G, Qt::ControlModifier);
  QTRY_VERIFY(shown.number()->hasFocus());
  QTest::keyClicks(shown.number(), QStringLiteral("3"));
  QTest::keyClick(shown.number(), Qt::Key_Return);
  QCOMPARE(shown.window->page(), 3);
  QVERIFY(!shown.number()->hasFocus());
}

void ReportPreviewTest::wrongPageNumberChangesNothing() {
  const Shown shown(100);
  QVERIFY(shown.complete);
  QTRY_COMPARE(shown.count(), QStringLiteral("de 4"));
  for (const char* typed : {"0", "x", ""}) {
    shown.key(Qt::Key_G, Qt::ControlModifier);
    QTRY_VERIFY(shown.number()->hasFocus());
    QTest::keyClick(shown.number(), Qt::Key_Delete);
    QTest::keyClicks(shown.number(), QLatin1String(typed));
    QTest::keyClick(shown.number(), Qt::Key_Return);
    QCOMPARE(shown.window->page(), 1);
    QCOMPARE(shown.number()->text(), QStringLiteral("1"));
  }
  shown.key(Qt::Key_G, Qt::ControlModifier);
  QTest::keyClicks(shown.number(), QStringLiteral("99"));
  QTest::keyClick(shown.number(), Qt::Key_Return);
  QCOMPARE(shown.window->page(), 4);
}

void ReportPreviewTest::zoomsByKeys() {
  const Shown shown(1);
  QVERIFY(shown.complete);
  shown.key(Qt::Key_0, Qt::ControlModifier);
  QCOMPARE(shown.view()->percent(), 100);
  shown.key(Qt::Key_Plus, Qt::ControlModifier);
  QCOMPARE(shown.view()->percent(), 125);
  QCOMPARE(shown.find<QComboBox>("zoom")->currentText(), QStringLiteral("125%"));
  shown.key(Qt::Key_Minus, Qt::ControlModifier);
  shown.key(Qt::Key_Minus, Qt::ControlModifier);
  QCOMPARE(shown.view()->percent(), 75);
  for (int press = 0; press < 12; ++press) {
    shown.key(Qt::Key_Plus, Qt::ControlModifier);
  }
  QCOMPARE(shown.view()->percent(), PageView::kMostPercent);
  for (int press = 0; press < 20; ++press) {
    shown.key(Qt::Key_Minus, Qt::ControlModifier);
  }
  QCOMPARE(shown.view()->percent(), PageView::kLeastPercent);
  shown.key(Qt::Key_1, Qt::ControlModifier);
  QCOMPARE(shown.view()->zoom(), PageView::Zoom::Width);
  QCOMPARE(shown.find<QComboBox>("zoom")->currentText(), QStringLiteral("Largura da página"));
  shown.key(Qt::Key_2, Qt::ControlModifier);
  QCOMPARE(shown.view()->zoom(), PageView::Zoom::WholePage);
  QCOMPARE(shown.find<QComboBox>("zoom")->currentText(), QStringLiteral("Página inteira"));
}

void ReportPreviewTest::zoomsByTheBox() {
  const Shown shown(1);
  QVERIFY(shown.complete);
  auto* const box = shown.find<QComboBox>("zoom");
  const auto type = [&](const char* text) {
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), QLatin1String(text));
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
  };
  type("90%");
  QCOMPARE(shown.view()->percent(), 90);
  type("110");
  QCOMPARE(shown.view()->percent(), 110);
  QCOMPARE(box->currentText(), QStringLiteral("110%"));
  type("grande");
  QCOMPARE(shown.view()->percent(), 110);
  QCOMPARE(box->currentText(), QStringLiteral("110%"));
  type("200%");
  QCOMPARE(shown.view()->percent(), 200);
}

void ReportPreviewTest::aTypedZoomIsWhatWasTyped_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<int>("percent");
  QTest::newRow("the beginning of an entry") << "30" << 30;
  QTest::newRow("another") << "12" << 12;
  QTest::newRow("of another with its sign") << "20%" << 20;
  QTest::newRow("an entry") << "150%" << 150;
  QTest::newRow("an entry without its sign") << "150" << 150;
  QTest::newRow("with a blank") << "85 %" << 85;
  QTest::newRow("too small") << "1" << 10;
  QTest::newRow("too large") << "4000" << 400;
}

void ReportPreviewTest::aTypedZoomIsWhatWasTyped() {
  QFETCH(QString, typed);
  QFETCH(int, percent);
  const Shown shown(1);
  QVERIFY(shown.complete);
  auto* const box = shown.find<QComboBox>("zoom");
  box->setFocus();
  box->lineEdit()->selectAll();
  QTest::keyClicks(box, typed);
  QTest::keyClick(box, Qt::Key_Return);
  QCOMPARE(shown.view()->percent(), percent);
  QCOMPARE(box->currentText(), QStringLiteral("%1%").arg(percent));
  QTRY_VERIFY(shown.view()->hasFocus());
}

void ReportPreviewTest::leavingTheZoomTakesIt() {
  const Shown shown(1);
  QVERIFY(shown.complete);
  auto* const box = shown.find<QComboBox>("zoom");
  box->setFocus();
  box->lineEdit()->selectAll();
  QTest::keyClicks(box, QStringLiteral("40"));
  QTest::keyClick(box, Qt::Key_Tab);
  QTRY_VERIFY(!box->hasFocus());
  QCOMPARE(shown.view()->percent(), 40);
  QCOMPARE(box->currentText(), QStringLiteral("40%"));
}

void ReportPreviewTest::escapeLeavesTheField_data() {
  QTest::addColumn<QByteArray>("field");
  QTest::newRow("page") << QByteArray("pageNumber");
  QTest::newRow("zoom") << QByteArray("zoom");
}

void ReportPreviewTest::escapeLeavesTheField() {
  QFETCH(QByteArray, field);
  const Shown shown(100);
  QVERIFY(shown.complete);
  QTRY_COMPARE(shown.count(), QStringLiteral("de 4"));
  shown.key(Qt::Key_0, Qt::ControlModifier);
  auto* const widget = shown.find<QWidget>(field.constData());
  widget->setFocus();
  QTRY_COMPARE(QApplication::focusWidget(), widget);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("3"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  QVERIFY(shown.window->isVisible());
  QTRY_VERIFY(shown.view()->hasFocus());
  QCOMPARE(shown.window->page(), 1);
  QCOMPARE(shown.number()->text(), QStringLiteral("1"));
  QCOMPARE(shown.view()->percent(), 100);
  QCOMPARE(shown.find<QComboBox>("zoom")->currentText(), QStringLiteral("100%"));
  // The next one is for the window.
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  QVERIFY(!shown.window->isVisible());
}

void ReportPreviewTest::fineWheelZoomsAsMuchAsANotch_data() {
  QTest::addColumn<int>("turn");
  for (const int turn : {120, 60, 40, 15, 8, 1}) {
    QTest::addRow("%d", turn) << turn;
  }
}

void ReportPreviewTest::fineWheelZoomsAsMuchAsANotch() {
  QFETCH(int, turn);
  const Shown shown(1);
  QVERIFY(shown.complete);
  shown.key(Qt::Key_0, Qt::ControlModifier);
  const auto turnNotch = [&](int direction) {
    for (int turned = 0; turned < 120; turned += turn) {
      shown.wheel({0, turn * direction}, Qt::ControlModifier);
    }
  };
  turnNotch(1);
  QCOMPARE(shown.view()->percent(), 110);
  turnNotch(1);
  QCOMPARE(shown.view()->percent(), 120);
  turnNotch(-1);
  turnNotch(-1);
  turnNotch(-1);
  QCOMPARE(shown.view()->percent(), 90);
}

void ReportPreviewTest::sidewaysWheelZoomsAndTurnsNothing() {
  const Shown shown(100);
  QVERIFY(shown.complete);
  QTRY_COMPARE(shown.count(), QStringLiteral("de 4"));
  shown.key(Qt::Key_0, Qt::ControlModifier);
  for (const QPoint angle : {QPoint(120, 0), QPoint(-120, 0), QPoint(120, 40), QPoint(-120, -40)}) {
    shown.wheel(angle, Qt::ControlModifier);
    QCOMPARE(shown.view()->percent(), 100);
  }
  shown.key(Qt::Key_2, Qt::ControlModifier);
  for (int turn = 0; turn < 4; ++turn) {
    shown.wheel({-120, -40});
  }
  QCOMPARE(shown.window->page(), 1);
}

// Whatever style the program wears: beside the sheet, behind it and where there is no sheet.
void ReportPreviewTest::theDeskIsOneColour() {
  const Shown shown(1);
  QVERIFY(shown.complete);
  shown.window->setStyleSheet(QStringLiteral("QWidget { background: #ffff00; }"));
  QTest::keyClicks(shown.window.get(), QStringLiteral("2"), Qt::ControlModifier);
  const QImage seen = shown.view()->grab().toImage();
  const QRgb desk = seen.pixel(2, 2);
  QVERIFY(desk != QColor(Qt::yellow).rgb());
  const QWidget* const sheet = shown.view()->widget();
  QVERIFY(sheet->x() > 20);
  for (int x = 0; x < sheet->x() + PageView::kBorder - 2; ++x) {
    QCOMPARE(seen.pixel(x, seen.height() / 2), desk);
    QCOMPARE(seen.pixel(seen.width() - 1 - x / 2, 3), desk);
  }
}

// Windows at least as wide as a third of a small screen.
void ReportPreviewTest::closingIsAlwaysInView_data() {
  QTest::addColumn<QSize>("size");
  QTest::newRow("usual") << QSize(1000, 700);
  QTest::newRow("1366x768 at 150%") << QSize(900, 480);
  QTest::newRow("1024x768 at 150%") << QSize(670, 480);
  QTest::newRow("narrow") << QSize(340, 300);
}

void ReportPreviewTest::closingIsAlwaysInView() {
  QFETCH(QSize, size);
  PreviewCommands commands;
  commands.print = [](ReportPreview&) {};
  commands.save = [](ReportPreview&) {};
  const Shown shown(1, true, commands);
  QVERIFY(shown.complete);
  shown.window->resize(size);
  QTRY_COMPARE(shown.window->size(), size);
  const auto* const close = shown.find<QToolButton>("button-close");
  QVERIFY(close->isVisible());
  const QRect place(close->mapTo(shown.window.get(), QPoint()), close->size());
  QVERIFY(shown.window->rect().contains(place));
  QCOMPARE(close->visibleRegion(), QRegion(close->rect()));
  QCOMPARE(close->text(), QStringLiteral("Fechar"));
  QVERIFY(close->width() >= close->sizeHint().width());
  shown.click("button-close");
  QVERIFY(!shown.window->isVisible());
}

void ReportPreviewTest::fittedZoomFollowsTheWindow() {
  const Shown shown(1);
  QVERIFY(shown.complete);
  shown.key(Qt::Key_1, Qt::ControlModifier);
  const int before = shown.view()->percent();
  shown.window->resize(shown.window->width() - 300, shown.window->height());
  QTRY_VERIFY(shown.view()->percent() < before);
  const QWidget* const sheet = shown.view()->widget();
  QVERIFY(sheet->width() <= shown.view()->viewport()->width());
  shown.key(Qt::Key_2, Qt::ControlModifier);
  QVERIFY(sheet->height() <= shown.view()->viewport()->height());
}

void ReportPreviewTest::wheelChangesNoBoxWithoutFocus() {
  const Shown shown(1);
  QVERIFY(shown.complete);
  auto* const box = shown.find<QComboBox>("zoom");
  const QString before = box->currentText();
  QWheelEvent event(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(box, &event);
  QCOMPARE(box->currentText(), before);
}

void ReportPreviewTest::printsAndSavesThroughItsOwner() {
  QList<const Document*> printed;
  QList<const Document*> saved;
  PreviewCommands commands;
  commands.print = [&](ReportPreview& preview) { printed << preview.document().get(); };
  commands.save = [&](ReportPreview& preview) { saved << preview.document().get(); };
  const Shown shown(100, true, commands);
  QVERIFY(shown.complete);
  QTRY_VERIFY(shown.find<QToolButton>("button-print")->isEnabled());
  const Document* const document = shown.report->document().get();
  shown.click("button-print");
  shown.key(Qt::Key_P, Qt::ControlModifier);
  QCOMPARE(printed, QList<const Document*>({document, document}));
  shown.click("button-save");
  shown.key(Qt::Key_S, Qt::ControlModifier);
  QCOMPARE(saved, QList<const Document*>({document, document}));
}

void ReportPreviewTest::withoutCommandsThereAreNoButtons() {
  const Shown shown(1);
  QVERIFY(shown.complete);
  QVERIFY(!shown.find<QToolButton>("button-print")->isVisible());
  QVERIFY(!shown.find<QToolButton>("button-save")->isVisible());
  shown.key(Qt::Key_P, Qt::ControlModifier);
  shown.key(Qt::Key_S, Qt::ControlModifier);
}

void ReportPreviewTest::firstPageIsShownWhileBuilding() {
  PreviewCommands commands;
  int printed = 0;
  commands.print = [&](ReportPreview&) { ++printed; };
  Shown shown(2'000, false, commands);
  QTRY_COMPARE(shown.window->page(), 1);
  QCOMPARE(shown.report->state(), Report::State::Building);
  QVERIFY(shown.find<QPushButton>("cancel")->isVisible());
  QVERIFY(!shown.find<QToolButton>("button-print")->isEnabled());
  QTest::keyClick(shown.window.get(), Qt::Key_P, Qt::ControlModifier);
  QCOMPARE(printed, 0);
  // Pages that are there can be looked at meanwhile.
  QTRY_VERIFY(shown.report->document()->pageCount() > 1);
  shown.click("button-next");
  QCOMPARE(shown.window->page(), 2);
  shown.slow = false;
  QTRY_COMPARE_WITH_TIMEOUT(shown.report->state(), Report::State::Complete, 60'000);
  QTRY_VERIFY(shown.find<QToolButton>("button-print")->isEnabled());
  QCOMPARE(shown.window->page(), 2);
}

void ReportPreviewTest::buildingIsCancelled_data() {
  QTest::addColumn<bool>("byKey");
  QTest::newRow("button") << false;
  QTest::newRow("Esc") << true;
}

void ReportPreviewTest::buildingIsCancelled() {
  QFETCH(bool, byKey);
  PreviewCommands commands;
  commands.print = [](ReportPreview&) {};
  const Shown shown(2'000, false, commands);
  QTRY_COMPARE(shown.window->page(), 1);
  QCOMPARE(shown.report->state(), Report::State::Building);
  if (byKey) {
    QTest::keyClick(shown.window.get(), Qt::Key_Escape);
  } else {
    QTest::mouseClick(shown.find<QPushButton>("cancel"), Qt::LeftButton);
  }
  QCOMPARE(shown.report->state(), Report::State::Cancelled);
  QVERIFY(shown.window->isVisible());
  QVERIFY(!shown.find<QPushButton>("cancel")->isVisible());
  QVERIFY(shown.find<QLabel>("message")->text().contains(QStringLiteral("interrompido")));
  QVERIFY(shown.find<QLabel>("message")->isVisible());
  const int pages = shown.report->document()->pageCount();
  QCoreApplication::processEvents();
  QCOMPARE(shown.report->document()->pageCount(), pages);
  QVERIFY(!shown.find<QToolButton>("button-print")->isEnabled());
}

void ReportPreviewTest::escapeCloses() {
  const Shown shown(1);
  QVERIFY(shown.complete);
  shown.key(Qt::Key_Escape);
  QVERIFY(!shown.window->isVisible());
  shown.window->show();
  shown.click("button-close");
  QVERIFY(!shown.window->isVisible());
}

void ReportPreviewTest::closingEndsTheBuilding() {
  const Shown shown(2'000, false);
  QTRY_COMPARE(shown.window->page(), 1);
  shown.window->close();
  QCOMPARE(shown.report->state(), Report::State::Cancelled);
}

// As when a routine shows a box, behind which the operator closes the window.
void ReportPreviewTest::mayBeClosedFromARoutine() {
  SampleRows rows(100);
  const auto report = std::make_shared<Report>(layoutOf(kList));
  report->setSource(rows.connection(), SampleRows::all());
  QPointer<ReportPreview> preview = ReportPreview::open(report, {});
  report->onFormat(u"PageFooter", [&](SectionInstance&) {
    delete preview;
    QVERIFY(preview.isNull());
    report->cancel();
  });
  QTRY_VERIFY(preview.isNull());
  QTRY_COMPARE(report->state(), Report::State::Cancelled);
}

void ReportPreviewTest::errorsGoToTheOwner() {
  SampleRows rows(100);
  const auto report = std::make_shared<Report>(layoutOf(kList));
  report->setSource(rows.connection(), SampleRows::all());
  report->onFormat(u"Detail", [](SectionInstance& section) {
    if (section.row() == 50) {
      throw RuntimeError(ErrorNumber::TypeMismatch);
    }
  });
  QList<int> numbers;
  PreviewCommands commands;
  commands.print = [](ReportPreview&) {};
  commands.failed = [&](const RuntimeError& error) { numbers << error.number(); };
  ReportPreview preview(report, commands);
  preview.show();
  QTRY_COMPARE(numbers, QList<int>({13}));
  QCOMPARE(preview.page(), 1);
  QVERIFY(!preview.findChild<QToolButton*>(QStringLiteral("button-print"))->isEnabled());
  QVERIFY(preview.findChild<QLabel*>(QStringLiteral("message"))->isVisible());
}

void ReportPreviewTest::startErrorsLeaveTheConstructor() {
  SampleRows rows(1);
  const auto report = std::make_shared<Report>(layoutOf(kList));
  report->setSource(rows.connection(), QStringLiteral("SELECT * FROM Falta"));
  QCOMPARE(errorOf([&] { const ReportPreview preview(report, {}); }), 3078);
}

void ReportPreviewTest::saysThatThereIsNothing() {
  SampleRows rows(0);
  const auto report = std::make_shared<Report>(layoutOf(kList, R"("emptyData": "nothing",)"));
  report->setSource(rows.connection(), SampleRows::all());
  PreviewCommands commands;
  commands.print = [](ReportPreview&) {};
  ReportPreview preview(report, commands);
  preview.show();
  QTRY_COMPARE(report->state(), Report::State::Complete);
  QCOMPARE(preview.page(), 0);
  QWidget* const sheet = preview.findChild<PageView*>()->widget();
  const QString words = QStringLiteral("Não há dados para mostrar.");
  QCOMPARE(sheet->accessibleName(), words);
  const QImage seen = sheet->grab().toImage().convertToFormat(QImage::Format_RGB32);
  QImage told(seen.size(), QImage::Format_RGB32);
  told.fill(seen.pixel(0, 0));
  QVERIFY(seen != told);
  QPainter painter(&told);
  painter.setFont(sheet->font());
  painter.setPen(Qt::white);
  painter.drawText(told.rect(), Qt::AlignCenter, words);
  painter.end();
  QCOMPARE(seen, told);
  QVERIFY(!preview.findChild<QToolButton*>(QStringLiteral("button-print"))->isEnabled());
  QTest::keyClick(&preview, Qt::Key_End, Qt::ControlModifier);
  QCOMPARE(preview.page(), 0);
}

// The window's dots are those that the page's painter gives.
void ReportPreviewTest::showsWhatIsPrinted() {
  const Shown shown(40);
  QVERIFY(shown.complete);
  shown.key(Qt::Key_0, Qt::ControlModifier);
  const QImage seen =
      shown.view()->widget()->grab().toImage().convertToFormat(QImage::Format_RGB32);
  const double unit = double(shown.view()->logicalDpiX()) / kTwipsPerInch;
  const QSize paper = (QSizeF(shown.report->document()->paper()) * unit).toSize();
  QImage painted(paper, QImage::Format_RGB32);
  painted.fill(Qt::white);
  QPainter painter(&painted);
  painter.scale(unit, unit);
  paintPage(painter, shown.report->document()->page(0));
  painter.end();
  const QRect inner(60, 60, paper.width() - 120, paper.height() - 120);
  QCOMPARE(seen.copy(inner.translated(PageView::kBorder, PageView::kBorder)), painted.copy(inner));
}

QUARTELA_TEST_MAIN(ReportPreviewTest)
#include "ReportPreview_test.moc"
