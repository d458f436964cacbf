// The ribbon as its host and its operator see it: settings, mouse, events, what is repainted.
#include "shell/ribbon/FaixaRibbon.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QTimer>
#include <QToolTip>

#include "platform/values/RuntimeError.h"
#include "tests/shell/ribbon/SampleRibbon.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;
using ribbon::Ref;
using enum ribbon::Element;

namespace {

// Gathers what a widget is asked to paint.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) : widget_(widget) {
    QCoreApplication::processEvents();
    widget.installEventFilter(this);
  }
  // Paints what is due and tells how many times.
  int paint() {
    events_ = 0;
    region_ = {};
    QCoreApplication::processEvents();
    return events_;
  }
  const QRegion& region() const { return region_; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == &widget_ && event->type() == QEvent::Paint) {
      ++events_;
      region_ += static_cast<QPaintEvent*>(event)->region();
    }
    return false;
  }

 private:
  QWidget& widget_;
  int events_ = 0;
  QRegion region_;
};

}  // namespace

class FaixaRibbonTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();

  void newControl();
  void themeOutOfRangeIsBlack_data();
  void themeOutOfRangeIsBlack();
  void coloursFollowTheTheme();
  void skinFollowsTheTheme();
  void backgroundFollowsTheTheme();
  void themeAfterRefreshTouchesFirstElementsOnly();
  void buttonCenterWaitsForRefresh();
  void captionVariablesAreRewritten();
  void buttonWithoutImageList();
  void defaultsAreNotWritten();
  void settingsAreWritten();
  void coloursAreNotReadBack();
  void settingsAreRead();
  void changedSettingsAreKnown();
  void heightIsFixed();
  void stripReachesTheEdge();

  void tabClick();
  void tabWithoutCategories();
  void tabClickComesAfterTheRebuilding();
  void clickOnATabTooMany();
  void refreshDrawsTheFirstTabAsActive();
  void pendingEventsRunDuringRefresh();
  void ribbonMayBeDeletedDuringRefresh();
  void buttonClick();
  void buttonClickNeedsBothEnds();
  void doubleClickIsOneClick();
  void otherMouseButtonsDoNothing();
  void launcherClick();
  void captionCarriesItsLineBreak();

  void hoverTab();
  void activeTabNeverLights();
  void hoverCategory();
  void hoverLauncher();
  void hoverButton();
  void hoverButtonWithGlyph();
  void pressedLook();
  void pressedButtonKeepsTheMouse();
  void lostReleaseIsNoticed();
  void backgroundPutsAllOut();
  void leavingTheControlKeepsTheLook();
  void tabClickPutsTheHoverOut();

  void moveWithinAnElementRepaintsNothing_data();
  void moveWithinAnElementRepaintsNothing();
  void moveRepaintsWhatChanged();
  void moveToTheNeighbourLeavesTheCategory();
  void toolTips();
  void paintsOnEveryDensity_data();
  void paintsOnEveryDensity();

 private:
  bool lit(const ribbon::Look& look, int index) const;
  QList<int> allLit(const ribbon::Look& look) const;
  QRegion placeOf(const ribbon::Look& look, int index) const;

  std::unique_ptr<FaixaRibbon> ribbon_;
};

void FaixaRibbonTest::init() {
  ribbon_ = std::make_unique<FaixaRibbon>();
  ribbon_->resize(1366, 116);
}

void FaixaRibbonTest::cleanup() {
  ribbon_.reset();
}

bool FaixaRibbonTest::lit(const ribbon::Look& look, int index) const {
  const auto visible = [&](ribbon::Element kind) {
    return ribbon_->elements().visible(kind, index);
  };
  const bool any = std::ranges::any_of(look, visible);
  if (any != std::ranges::all_of(look, visible)) {
    QTest::qFail("pieces of one look differ", __FILE__, __LINE__);
  }
  return any;
}

QList<int> FaixaRibbonTest::allLit(const ribbon::Look& look) const {
  QList<int> found;
  for (int i = 0; i < ribbon_->elements().count(look[0]); ++i) {
    if (lit(look, i)) {
      found.append(i);
    }
  }
  return found;
}

QRegion FaixaRibbonTest::placeOf(const ribbon::Look& look, int index) const {
  QRegion region;
  for (const ribbon::Element kind : look) {
    region += ribbon::pixelRect(ribbon_->elements().at(kind, index).rect());
  }
  return region;
}

void FaixaRibbonTest::newControl() {
  QCOMPARE(ribbon_->Theme(), 0);
  QVERIFY(!ribbon_->ButtonCenter());
  QCOMPARE(ribbon_->model().activeTab(), QString());
  QCOMPARE(ribbon_->height(), 116);
  ribbon_->Refresh();
  QVERIFY(!ribbon_->elements().visible(TabMouse, 0));
  QVERIFY(!ribbon_->elements().visible(CatMouse, 0));
}

void FaixaRibbonTest::themeOutOfRangeIsBlack_data() {
  QTest::addColumn<int>("theme");
  QTest::addColumn<int>("stored");
  for (const int theme : {0, 1, 2}) {
    QTest::addRow("%d", theme) << theme << theme;
  }
  for (const int theme : {-1, 3, 7, 32767, -32768}) {
    QTest::addRow("%d", theme) << theme << 0;
  }
}

void FaixaRibbonTest::themeOutOfRangeIsBlack() {
  QFETCH(int, theme);
  QFETCH(int, stored);
  ribbon_->setTheme(1);
  ribbon_->setTheme(static_cast<std::int16_t>(theme));
  QCOMPARE(int{ribbon_->Theme()}, stored);
}

void FaixaRibbonTest::coloursFollowTheTheme() {
  QCOMPARE(ribbon_->BackColor(), QColor(0x46, 0x46, 0x46));
  QCOMPARE(ribbon_->ForeColor(), QColor(Qt::white));
  ribbon_->setTheme(1);
  QCOMPARE(ribbon_->BackColor(), QColor(0x8E, 0xB0, 0xDA));
  QCOMPARE(ribbon_->ForeColor(), QColor(0x15, 0x42, 0x8B));
  ribbon_->setTheme(2);
  QCOMPARE(ribbon_->BackColor(), QColor(0xD0, 0xD4, 0xDD));
  QCOMPARE(ribbon_->ForeColor(), QColor(0x5C, 0x62, 0x6A));
}

void FaixaRibbonTest::skinFollowsTheTheme() {
  QCOMPARE(ribbon_->LoadSkin().name, QString("Skin1"));
  ribbon_->setTheme(1);
  QCOMPARE(ribbon_->LoadSkin().name, QString("Skin2"));
  ribbon_->setTheme(2);
  QCOMPARE(ribbon_->LoadSkin().name, QString("Skin3"));
  QCOMPARE(ribbon_->LoadSkin().palette.color(QPalette::WindowText), ribbon_->ForeColor());
  ribbon_->setTheme(9);
  QCOMPARE(ribbon_->LoadSkin().name, QString("Skin1"));
}

void FaixaRibbonTest::backgroundFollowsTheTheme() {
  const QImage black = ribbon_->LoadBackground().toImage();
  QCOMPARE(black.size(), QSize(499, 157));
  ribbon_->setTheme(1);
  QCOMPARE(ribbon_->LoadBackground().size(), QSize(499, 157));
  QVERIFY(ribbon_->LoadBackground().toImage() != black);
  ribbon_->setTheme(2);
  QCOMPARE(ribbon_->LoadBackground().size(), QSize(1, 1));
}

void FaixaRibbonTest::themeAfterRefreshTouchesFirstElementsOnly() {
  fill(*ribbon_);
  ribbon_->Refresh();
  ribbon_->setTheme(2);
  const ribbon::ElementTable& elements = ribbon_->elements();
  QCOMPARE(elements.at(Cat_Center_off, 0).theme, 2);
  QCOMPARE(elements.at(Cat_Center_off, 1).theme, 0);
  QCOMPARE(elements.at(Tab_center, 0).theme, 2);
  QCOMPARE(elements.at(Tab_center, 1).theme, 0);
  QCOMPARE(elements.at(Barra2, 0).theme, 2);
  QCOMPARE(elements.at(Cat_Caption, 0).colour, 0x6A625CU);
  QCOMPARE(elements.at(Cat_Caption, 1).colour, 0xFFFFFFU);
  QCOMPARE(elements.at(Tab_caption, 1).colour, 0xFFFFFFU);
  QCOMPARE(elements.at(Button_Caption, 1).colour, ribbon::kSystemWindowText);
  ribbon_->Refresh();
  QCOMPARE(elements.at(Cat_Center_off, 1).theme, 2);
  QCOMPARE(elements.at(Tab_center, 1).theme, 2);
  QCOMPARE(elements.at(Cat_Caption, 1).colour, 0x6A625CU);
  QCOMPARE(elements.at(Tab_caption, 1).colour, 0x6A625CU);
  QCOMPARE(elements.at(Button_Caption, 1).colour, 0x6A625CU);
}

void FaixaRibbonTest::buttonCenterWaitsForRefresh() {
  fill(*ribbon_);
  ribbon_->Refresh();
  const ribbon::ElementTable& elements = ribbon_->elements();
  QCOMPARE(elements.at(Button_Icon, 1).top, 510.0);
  ribbon_->setButtonCenter(true);
  QVERIFY(ribbon_->ButtonCenter());
  QCOMPARE(elements.at(Button_Icon, 1).top, 510.0);
  ribbon_->Refresh();
  QVERIFY(elements.at(Button_Icon, 1).top > 510.0);
}

void FaixaRibbonTest::captionVariablesAreRewritten() {
  const ImageList images = squares(1);
  ribbon_->setImageList(&images);
  QString tab = "a\r\nb";
  QString category = "c\r\nd";
  QString button = "e\r\nf";
  QString told = "g\r\nh";
  ribbon_->AddTab("1", tab);
  ribbon_->AddCat("A", "1", category, false);
  ribbon_->AddButton("x", "A", button, 1);
  ribbon_->AddButton("y", "A", told, 1, false, "dica");
  QCOMPARE(tab, QString("a b"));
  QCOMPARE(category, QString("c d"));
  QCOMPARE(button, QString("e f"));
  QCOMPARE(told, QString("g\r\nh"));
  QCOMPARE(ribbon_->model().button(0).caption, QString("e\r\nf"));
  QCOMPARE(ribbon_->model().button(1).toolTip, QString("dica"));
  const QString constant = "i\r\nj";
  ribbon_->AddTab("2", constant);
  QCOMPARE(ribbon_->model().tab(1).caption, QString("i j"));
}

void FaixaRibbonTest::buttonWithoutImageList() {
  QVERIFY_EXCEPTION_THROWN(ribbon_->AddButton("x", "A", QString("um"), 1), RuntimeError);
  QCOMPARE(ribbon_->model().buttonCount(), 1);
  QCOMPARE(ribbon_->model().button(0).key, QString("x"));
}

void FaixaRibbonTest::defaultsAreNotWritten() {
  QVariantMap bag{{"Theme", 2}, {"ForeColor", 1}};
  ribbon_->WriteProperties(bag);
  QCOMPARE(bag, QVariantMap());
}

void FaixaRibbonTest::settingsAreWritten() {
  ribbon_->setTheme(1);
  ribbon_->setButtonCenter(true);
  QVariantMap bag;
  ribbon_->WriteProperties(bag);
  const QVariantMap expected{
      {"Theme", 1}, {"ButtonCenter", true}, {"BackColor", 0xDAB08EU}, {"ForeColor", 0x8B4215U}};
  QCOMPARE(bag, expected);
}

void FaixaRibbonTest::coloursAreNotReadBack() {
  ribbon_->ReadProperties({{"Theme", 2}, {"BackColor", 0x112233U}, {"ForeColor", 0x445566U}});
  QCOMPARE(ribbon_->BackColor(), QColor(0xD0, 0xD4, 0xDD));
  QCOMPARE(ribbon_->ForeColor(), QColor(0x5C, 0x62, 0x6A));
}

void FaixaRibbonTest::settingsAreRead() {
  ribbon_->ReadProperties({{"Theme", 2}, {"ButtonCenter", true}});
  QCOMPARE(ribbon_->Theme(), 2);
  QVERIFY(ribbon_->ButtonCenter());
  ribbon_->ReadProperties({});
  QCOMPARE(ribbon_->Theme(), 0);
  QVERIFY(!ribbon_->ButtonCenter());
}

void FaixaRibbonTest::changedSettingsAreKnown() {
  QCOMPARE(ribbon_->changedProperties(), QStringList());
  ribbon_->setTheme(1);
  ribbon_->setTheme(2);
  QCOMPARE(ribbon_->changedProperties(), QStringList{"Theme"});
  ribbon_->setButtonCenter(true);
  const QStringList both{"Theme", "ButtonCenter"};
  QCOMPARE(ribbon_->changedProperties(), both);
  QVariantMap bag;
  ribbon_->WriteProperties(bag);
  QCOMPARE(ribbon_->changedProperties(), QStringList());
}

void FaixaRibbonTest::heightIsFixed() {
  ribbon_->show();
  ribbon_->resize(900, 300);
  QCOMPARE(ribbon_->size(), QSize(900, 116));
  ribbon_->setGeometry(0, 0, 800, 10);
  QCOMPARE(ribbon_->size(), QSize(800, 116));
  ribbon_->setFixedHeight(50);
  QCOMPARE(ribbon_->height(), 116);
  ribbon_->setMaximumHeight(QWIDGETSIZE_MAX);
  ribbon_->Resize();
  ribbon_->resize(900, 300);
  QCOMPARE(ribbon_->height(), 116);
}

void FaixaRibbonTest::stripReachesTheEdge() {
  ribbon_->show();
  QCOMPARE(ribbon_->elements().at(Barra2, 0).width, 30720.0);
  ribbon_->resize(3840, 116);
  QCOMPARE(ribbon_->elements().at(Barra2, 0).width, 57600.0);
  ribbon_->resize(1366, 116);
  QCOMPARE(ribbon_->elements().at(Barra2, 0).width, 30720.0);
}

void FaixaRibbonTest::tabClick() {
  fill(*ribbon_);
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::TabClick);
  clickOn(*ribbon_, TabMouse, 2);
  QCOMPARE(clicks.size(), 1);
  QCOMPARE(clicks[0], QVariantList({"3", "Referências"}));
  QCOMPARE(allLit(ribbon::kTabLook), QList<int>{2});
  const ribbon::ElementTable& elements = ribbon_->elements();
  QCOMPARE(elements.at(Tab_caption, 2).colour, 0x000000U);
  QCOMPARE(elements.at(Tab_caption, 0).colour, 0xFFFFFFU);
  QCOMPARE(ribbon_->model().activeTab(), QString("3"));
  QCOMPARE(elements.count(CatMouse), 2);
  QCOMPARE(elements.at(Cat_Caption, 0).text, QString("Essenciais"));
  QCOMPARE(elements.count(ButMouse), 7);
  clickOn(*ribbon_, TabMouse, 2);
  QCOMPARE(clicks.size(), 2);
}

void FaixaRibbonTest::tabWithoutCategories() {
  fill(*ribbon_);
  ribbon_->AddTab("5", QString("Vazia"));
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::TabClick);
  clickOn(*ribbon_, TabMouse, 4);
  QCOMPARE(clicks.size(), 1);
  QCOMPARE(clicks[0], QVariantList({"5", "Vazia"}));
  for (const Ref ref : ribbon_->elements().stacking()) {
    const bool row = ref.kind >= Cat_Left_off;
    QVERIFY(!row || !ribbon_->elements().at(ref).visible);
  }
}

void FaixaRibbonTest::tabClickComesAfterTheRebuilding() {
  fill(*ribbon_);
  ribbon_->Refresh();
  QString key;
  QString caption;
  connect(ribbon_.get(), &FaixaRibbon::TabClick, this, [&] {
    key = ribbon_->model().activeTab();
    caption = ribbon_->elements().at(Cat_Caption, 0).text;
  });
  clickOn(*ribbon_, TabMouse, 1);
  QCOMPARE(key, QString("2"));
  QCOMPARE(caption, QString("Planilhas"));
}

void FaixaRibbonTest::clickOnATabTooMany() {
  for (int n = 1; n <= 31; ++n) {
    ribbon_->AddTab(QString::number(n), QString("g"));
  }
  QVERIFY_EXCEPTION_THROWN(ribbon_->AddTab("32", QString("g")), RuntimeError);
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::TabClick);
  QVERIFY_EXCEPTION_THROWN(ribbon_->press({TabMouse, 31}), RuntimeError);
  QCOMPARE(clicks.size(), 0);
  QCOMPARE(ribbon_->model().activeTab(), QString("1"));
}

void FaixaRibbonTest::refreshDrawsTheFirstTabAsActive() {
  fill(*ribbon_);
  ribbon_->Refresh();
  clickOn(*ribbon_, TabMouse, 3);
  ribbon_->Refresh();
  QCOMPARE(allLit(ribbon::kTabLook), QList<int>{0});
  QCOMPARE(ribbon_->model().activeTab(), QString("4"));
  QCOMPARE(ribbon_->elements().at(Cat_Caption, 0).text, QString("Sistema"));
}

void FaixaRibbonTest::pendingEventsRunDuringRefresh() {
  fill(*ribbon_);
  bool ran = false;
  QTimer::singleShot(0, this, [&ran] { ran = true; });
  ribbon_->Refresh();
  QVERIFY(ran);
}

void FaixaRibbonTest::ribbonMayBeDeletedDuringRefresh() {
  fill(*ribbon_);
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::TabClick);
  QTimer::singleShot(0, this, [this] { ribbon_.reset(); });
  FaixaRibbon* const ribbon = ribbon_.get();
  ribbon->press({TabMouse, 1});
  QVERIFY(ribbon_ == nullptr);
  QCOMPARE(clicks.size(), 0);
}

void FaixaRibbonTest::buttonClick() {
  fill(*ribbon_);
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::ButtonClick);
  QStringList keys;
  for (int i = 1; i < ribbon_->elements().count(ButMouse); ++i) {
    clickOn(*ribbon_, ButMouse, i);
    QCOMPARE(clicks.size(), i);
    keys.append(clicks.last()[0].toString());
  }
  const QStringList expected{"0", "1", "2", "6", "3", "4", "18", "19", "20", "21", "22"};
  QCOMPARE(keys, expected);
}

void FaixaRibbonTest::captionCarriesItsLineBreak() {
  fill(*ribbon_);
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::ButtonClick);
  clickOn(*ribbon_, ButMouse, 3);
  QCOMPARE(clicks.first(), QVariantList({"2", "Exluir\r\nRequisição"}));
}

void FaixaRibbonTest::buttonClickNeedsBothEnds() {
  fill(*ribbon_);
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::ButtonClick);
  pressAt(*ribbon_, ButMouse, 1);
  releaseAt(*ribbon_, ButMouse, 2);
  pressAt(*ribbon_, CatMouse, 0);
  releaseAt(*ribbon_, ButMouse, 2);
  pressAt(*ribbon_, ButMouse, 2);
  sendMouse(*ribbon_, QEvent::MouseButtonRelease, {-40, 400}, Qt::LeftButton);
  QCOMPARE(clicks.size(), 0);
  QCOMPARE(allLit(ribbon::kButtonOverLook), QList<int>());
  clickOn(*ribbon_, ButMouse, 2);
  QCOMPARE(clicks.size(), 1);
}

void FaixaRibbonTest::doubleClickIsOneClick() {
  fill(*ribbon_);
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::ButtonClick);
  clickOn(*ribbon_, ButMouse, 1);
  sendMouse(*ribbon_, QEvent::MouseButtonDblClick, middle(*ribbon_, ButMouse, 1), Qt::LeftButton);
  QCOMPARE(allLit(ribbon::kButtonOverLook), QList<int>{1});
  releaseAt(*ribbon_, ButMouse, 1);
  QCOMPARE(clicks.size(), 1);
  clickOn(*ribbon_, ButMouse, 1);
  QCOMPARE(clicks.size(), 2);
}

void FaixaRibbonTest::otherMouseButtonsDoNothing() {
  fill(*ribbon_);
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::ButtonClick);
  const QPointF place = middle(*ribbon_, ButMouse, 1);
  sendMouse(*ribbon_, QEvent::MouseButtonPress, place, Qt::RightButton);
  QCOMPARE(allLit(ribbon::kButtonOverLook), QList<int>());
  sendMouse(*ribbon_, QEvent::MouseButtonRelease, place, Qt::RightButton);
  QCOMPARE(clicks.size(), 0);
}

void FaixaRibbonTest::launcherClick() {
  fill(*ribbon_, {.launchers = true});
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::CatClick);
  clickOn(*ribbon_, Cat_Dlg, 2);  // the mouse has not been seen over it: nothing to press yet
  QCOMPARE(clicks.size(), 0);
  moveTo(*ribbon_, Cat_Dlg, 2);
  moveTo(*ribbon_, Cat_Dlg, 2);
  clickOn(*ribbon_, Cat_Dlg, 2);
  QCOMPARE(clicks.size(), 1);
  QCOMPARE(clicks[0], QVariantList({"1C", "Exibir Processos"}));
}

void FaixaRibbonTest::hoverTab() {
  fill(*ribbon_);
  ribbon_->Refresh();
  moveTo(*ribbon_, CatMouse, 1);
  moveTo(*ribbon_, TabMouse, 2);
  QCOMPARE(allLit(ribbon::kTabOverLook), QList<int>{2});
  QCOMPARE(allLit(ribbon::kCategoryOnLook), QList<int>());
  moveTo(*ribbon_, TabMouse, 3);
  QCOMPARE(allLit(ribbon::kTabOverLook), QList<int>{3});
}

void FaixaRibbonTest::activeTabNeverLights() {
  fill(*ribbon_);
  ribbon_->Refresh();
  moveTo(*ribbon_, TabMouse, 1);
  moveTo(*ribbon_, TabMouse, 0);
  QCOMPARE(allLit(ribbon::kTabOverLook), QList<int>());
}

void FaixaRibbonTest::hoverCategory() {
  fill(*ribbon_);
  ribbon_->Refresh();
  const QPointF caption = middle(*ribbon_, Cat_Caption, 1);
  sendMouse(*ribbon_, QEvent::MouseMove, caption);
  QCOMPARE(allLit(ribbon::kCategoryOnLook), QList<int>{1});
  QVERIFY(!ribbon_->elements().visible(Cat_Dlg_on, 1));
  moveTo(*ribbon_, Cat_Caption, 0);
  QCOMPARE(allLit(ribbon::kCategoryOnLook), QList<int>{0});
}

void FaixaRibbonTest::hoverLauncher() {
  fill(*ribbon_, {.launchers = true});
  ribbon_->Refresh();
  const ribbon::ElementTable& elements = ribbon_->elements();
  moveTo(*ribbon_, Cat_Dlg, 0);
  QCOMPARE(allLit(ribbon::kCategoryOnLook), QList<int>{0});
  QVERIFY(elements.visible(Cat_Dlg_on, 0));
  QVERIFY(!elements.visible(Cat_Dlg_over, 0));
  moveTo(*ribbon_, Cat_Dlg, 0);
  QVERIFY(elements.visible(Cat_Dlg_over, 0));
  moveTo(*ribbon_, Cat_Caption, 0);
  QVERIFY(elements.visible(Cat_Dlg_on, 0));
  QVERIFY(!elements.visible(Cat_Dlg_over, 0));
  moveTo(*ribbon_, Cat_Caption, 2);
  QVERIFY(!elements.visible(Cat_Dlg_on, 0));
  QVERIFY(elements.visible(Cat_Dlg_on, 2));
  QVERIFY(elements.visible(Cat_Dlg, 0));
}

void FaixaRibbonTest::hoverButton() {
  fill(*ribbon_);
  ribbon_->Refresh();
  moveTo(*ribbon_, ButMouse, 6);
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>{6});
  QCOMPARE(allLit(ribbon::kCategoryOnLook), QList<int>{1});
  moveTo(*ribbon_, ButMouse, 8);
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>{8});
  QCOMPARE(allLit(ribbon::kCategoryOnLook), QList<int>{2});
  moveTo(*ribbon_, Cat_Caption, 2);
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>());
  QCOMPARE(allLit(ribbon::kCategoryOnLook), QList<int>{2});
}

void FaixaRibbonTest::hoverButtonWithGlyph() {
  fill(*ribbon_, {.glyphs = true});
  ribbon_->Refresh();
  const ribbon::ElementTable& elements = ribbon_->elements();
  moveTo(*ribbon_, ButMouse, 1);
  QVERIFY(elements.visible(Glip_on, 1));
  QVERIFY(elements.visible(Glip_off, 1));
  moveTo(*ribbon_, ButMouse, 2);
  QVERIFY(!elements.visible(Glip_on, 1));
  QVERIFY(!elements.visible(Glip_on, 2));
}

void FaixaRibbonTest::pressedLook() {
  fill(*ribbon_);
  ribbon_->Refresh();
  moveTo(*ribbon_, ButMouse, 2);
  pressAt(*ribbon_, ButMouse, 2);
  QCOMPARE(allLit(ribbon::kButtonOverLook), QList<int>{2});
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>{2});
  releaseAt(*ribbon_, ButMouse, 2);
  QCOMPARE(allLit(ribbon::kButtonOverLook), QList<int>());
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>{2});
}

void FaixaRibbonTest::pressedButtonKeepsTheMouse() {
  fill(*ribbon_);
  ribbon_->Refresh();
  moveTo(*ribbon_, ButMouse, 2);
  pressAt(*ribbon_, ButMouse, 2);
  sendMouse(*ribbon_, QEvent::MouseMove, middle(*ribbon_, ButMouse, 3), Qt::LeftButton);
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>{2});
  QCOMPARE(allLit(ribbon::kButtonOverLook), QList<int>{2});
  releaseAt(*ribbon_, ButMouse, 3);
  moveTo(*ribbon_, ButMouse, 3);
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>{3});
}

void FaixaRibbonTest::lostReleaseIsNoticed() {
  fill(*ribbon_);
  ribbon_->Refresh();
  QSignalSpy clicks(ribbon_.get(), &FaixaRibbon::ButtonClick);
  moveTo(*ribbon_, ButMouse, 2);
  pressAt(*ribbon_, ButMouse, 2);
  moveTo(*ribbon_, ButMouse, 3);  // no button is down any more
  QCOMPARE(allLit(ribbon::kButtonOverLook), QList<int>());
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>{3});
  releaseAt(*ribbon_, ButMouse, 3);
  QCOMPARE(clicks.size(), 0);
}

void FaixaRibbonTest::backgroundPutsAllOut() {
  fill(*ribbon_);
  ribbon_->Refresh();
  moveTo(*ribbon_, ButMouse, 6);
  sendMouse(*ribbon_, QEvent::MouseMove, {1300, 60});
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>());
  QCOMPARE(allLit(ribbon::kCategoryOnLook), QList<int>());
  moveTo(*ribbon_, TabMouse, 1);
  sendMouse(*ribbon_, QEvent::MouseMove, {2, 60});  // on the left end of the strip
  QCOMPARE(allLit(ribbon::kTabOverLook), QList<int>());
}

void FaixaRibbonTest::leavingTheControlKeepsTheLook() {
  fill(*ribbon_);
  ribbon_->show();
  ribbon_->Refresh();
  moveTo(*ribbon_, ButMouse, 6);
  PaintWatch watch(*ribbon_);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(ribbon_.get(), &leave);
  QCOMPARE(watch.paint(), 0);
  QCOMPARE(allLit(ribbon::kButtonLook), QList<int>{6});
  QCOMPARE(allLit(ribbon::kCategoryOnLook), QList<int>{1});
}

void FaixaRibbonTest::tabClickPutsTheHoverOut() {
  fill(*ribbon_);
  ribbon_->Refresh();
  moveTo(*ribbon_, TabMouse, 2);
  clickOn(*ribbon_, TabMouse, 2);
  QCOMPARE(allLit(ribbon::kTabOverLook), QList<int>());
}

void FaixaRibbonTest::moveWithinAnElementRepaintsNothing_data() {
  QTest::addColumn<int>("kind");
  QTest::addColumn<int>("index");
  QTest::newRow("button") << static_cast<int>(ButMouse) << 3;
  QTest::newRow("tab") << static_cast<int>(TabMouse) << 2;
  QTest::newRow("active tab") << static_cast<int>(TabMouse) << 0;
  QTest::newRow("category") << static_cast<int>(Cat_Caption) << 1;
  QTest::newRow("corner") << static_cast<int>(Cat_Dlg) << 2;
}

void FaixaRibbonTest::moveWithinAnElementRepaintsNothing() {
  QFETCH(int, kind);
  QFETCH(int, index);
  fill(*ribbon_, {true, true});
  ribbon_->show();
  ribbon_->Refresh();
  const QPointF place = middle(*ribbon_, static_cast<ribbon::Element>(kind), index);
  sendMouse(*ribbon_, QEvent::MouseMove, place);
  sendMouse(*ribbon_, QEvent::MouseMove, place);
  PaintWatch watch(*ribbon_);
  for (int n = 0; n < 20; ++n) {
    sendMouse(*ribbon_, QEvent::MouseMove, place + QPointF(n % 5 - 2, n % 3 - 1));
  }
  QCOMPARE(watch.paint(), 0);
}

void FaixaRibbonTest::moveRepaintsWhatChanged() {
  fill(*ribbon_);
  ribbon_->show();
  ribbon_->Refresh();
  PaintWatch watch(*ribbon_);
  moveTo(*ribbon_, TabMouse, 1);
  QCOMPARE(watch.paint(), 1);
  QCOMPARE(watch.region(), placeOf(ribbon::kTabOverLook, 1));
  moveTo(*ribbon_, ButMouse, 6);
  QCOMPARE(watch.paint(), 1);
  QCOMPARE(watch.region(), placeOf(ribbon::kTabOverLook, 1) + placeOf(ribbon::kCategoryOnLook, 1) +
                               placeOf(ribbon::kButtonLook, 6));
}

void FaixaRibbonTest::moveToTheNeighbourLeavesTheCategory() {
  fill(*ribbon_);
  ribbon_->show();
  ribbon_->Refresh();
  moveTo(*ribbon_, ButMouse, 2);
  PaintWatch watch(*ribbon_);
  moveTo(*ribbon_, ButMouse, 3);
  QCOMPARE(watch.paint(), 1);
  QCOMPARE(watch.region(), placeOf(ribbon::kButtonLook, 2) + placeOf(ribbon::kButtonLook, 3));
  pressAt(*ribbon_, ButMouse, 3);
  QCOMPARE(watch.paint(), 1);
  QCOMPARE(watch.region(), placeOf(ribbon::kButtonOverLook, 3));
}

void FaixaRibbonTest::toolTips() {
  fill(*ribbon_);
  ribbon_->show();
  ribbon_->Refresh();
  const QPoint place = middle(*ribbon_, ButMouse, 3).toPoint();
  QHelpEvent ask(QEvent::ToolTip, place, ribbon_->mapToGlobal(place));
  QApplication::sendEvent(ribbon_.get(), &ask);
  QTRY_COMPARE(QToolTip::text(), QString("Exluir Requisição"));
  const QPoint tab = middle(*ribbon_, TabMouse, 1).toPoint();
  QHelpEvent again(QEvent::ToolTip, tab, ribbon_->mapToGlobal(tab));
  QApplication::sendEvent(ribbon_.get(), &again);
  QTRY_VERIFY(!QToolTip::isVisible() || QToolTip::text().isEmpty());
}

void FaixaRibbonTest::paintsOnEveryDensity_data() {
  QTest::addColumn<double>("ratio");
  for (const double ratio : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 3.0, 3.5}) {
    QTest::addRow("%g", ratio) << ratio;
  }
}

// On each density the hairline above the tabs' foot is there, in full colour and in one place.
void FaixaRibbonTest::paintsOnEveryDensity() {
  QFETCH(double, ratio);
  ribbon_->setTheme(1);
  fill(*ribbon_);
  ribbon_->Refresh();
  QImage image((QSizeF(1366, 116) * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::magenta);
  ribbon_->render(&image);
  int hairlines = 0;
  int unpainted = 0;
  const int x = static_cast<int>(1200 * ratio);
  for (int y = 0; y < image.height(); ++y) {
    hairlines += image.pixelColor(x, y) == QColor("#8aaede") ? 1 : 0;
    unpainted += image.pixelColor(x, y) == QColor(Qt::magenta) ? 1 : 0;
  }
  QCOMPARE(unpainted, 0);
  if (ratio <= 3 && ratio * 4 == std::floor(ratio * 4)) {
    QCOMPARE(hairlines, static_cast<int>(ratio));
  }
}

QUARTELA_TEST_MAIN(FaixaRibbonTest)
#include "FaixaRibbon_test.moc"
