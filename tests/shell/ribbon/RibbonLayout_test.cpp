// The places of all elements, against a second reckoning of the rules with the real fonts.
#include "shell/ribbon/RibbonLayout.h"

#include <QFontMetrics>
#include <QMap>

#include "platform/values/RuntimeError.h"
#include "tests/shell/ribbon/SampleRibbon.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::ribbon;
using enum quartela::ribbon::Element;

namespace {

// Every character 100 twips wide, every line 200 high.
class PlainMeasure : public TextMeasure {
 public:
  QSizeF size(const QString& text, TextStyle) const override {
    double width = 0;
    const QStringList lines = text.split("\r\n");
    for (const QString& line : lines) {
      width = std::max(width, 100.0 * static_cast<double>(line.size()));
    }
    return {width, 200.0 * static_cast<double>(lines.size())};
  }
};

// A model with a layout of its own, without any window.
struct Bench {
  RibbonModel model;
  PlainMeasure measure;
  ElementTable elements;
  RibbonLayout layout{model, measure, elements};
  ImageList images = test::squares(1);

  Bench() { layout.prepare(); }
  void tab(const QString& key, QString caption) { model.addTab(key, caption); }
  void category(const QString& key, const QString& tab, QString caption, bool launcher = false) {
    model.addCategory(key, tab, caption, launcher);
  }
  void button(const QString& key, const QString& category, QString caption, bool glyph = false) {
    model.addButton(key, category, caption, 1, glyph, {}, &images);
  }
  void build(bool center = false) {
    layout.buildTabs(1, 2);
    layout.buildCategories(center);
    layout.stackButtons();
  }
  const Piece& at(Element kind, int i) const { return elements.at(kind, i); }
};

using Places = QMap<QPair<int, int>, QRectF>;

// Reckons in the words of the rules: what stands where, from the left, for the main window's table.
class Reckoning {
 public:
  Reckoning(std::size_t activeTab, bool center, test::Extras extras)
      : center_(center), extras_(extras) {
    tabs();
    categories(test::kTabs[activeTab].key);
  }
  const Places& places() const { return places_; }

 private:
  static QSizeF text(const QString& text, double points) {
    QFont font("Verdana");
    font.setPointSizeF(points);
    const QFontMetrics metrics(font);
    int width = 0;
    int lines = 0;
    for (const QString& line : text.split("\r\n")) {
      width = std::max(width, metrics.horizontalAdvance(line));
      ++lines;
    }
    return {15.0 * width, 15.0 * lines * metrics.lineSpacing()};
  }

  void put(Element kind, int i, double x, double y, double width, double height) {
    places_.insert({static_cast<int>(kind), i}, {x, y, width, height});
  }

  void tabs() {
    double x = 90;
    for (int i = 0; i < 4; ++i) {
      const QSizeF size = text(test::utf8(test::kTabs[static_cast<std::size_t>(i)].caption), 9.75);
      for (const auto& [left, center, right] : {kTabLook, kTabOverLook}) {
        put(left, i, x, 0, 150, 360);
        put(center, i, x + 150, 0, size.width(), 360);
        put(right, i, x + 150 + size.width(), 0, 150, 360);
      }
      put(Tab_caption, i, x + 150, 60, size.width(), size.height());
      put(TabMouse, i, x, 0, size.width() + 300, 360);
      x += size.width() + 300;
    }
  }

  void categories(const QString& tab) {
    double x = 120;
    int i = 0;
    for (std::size_t n = 0; n < test::kCategories.size(); ++n) {
      if (tab == test::kCategories[n].tab) {
        x = category(i++, n, x);
      }
    }
  }

  // Returns where the next one begins.
  double category(int i, std::size_t n, double x) {
    const bool launcher = extras_.launchers && n % 2 == 0;
    const QSizeF caption = text(test::utf8(test::kCategories[n].caption), 9.75);
    const double filled = buttons(test::kCategories[n].key, x + 60);
    const double needed = caption.width() + (launcher ? 225 : 0);
    const double inner = std::max(filled, needed);
    put(Cat_Left_off, i, x, 360, 60, 1335);
    put(Cat_Center_off, i, x + 60, 360, inner, 1335);
    put(Cat_Right_off, i, x + 60 + inner, 360, 75, 1335);
    put(Cat_Left_on, i, x, 360, 60, 1335);
    put(Cat_Center_on, i, x + 60, 360, inner, 1335);
    put(Cat_Right_on, i, x + 60 + inner, 360, 75, 1335);
    put(CatMouse, i, x, 360, inner + 135, 1350);
    const double indent = needed < filled ? (filled - caption.width()) / 2 : 0;
    put(Cat_Caption, i, x + 60 + indent, 1400, caption.width(), caption.height());
    for (const Element kind : {Cat_Dlg, Cat_Dlg_on, Cat_Dlg_over}) {
      put(kind, i, x + 60 + inner - 210, 1425, 225, 210);
    }
    return x + inner + 135;
  }

  // Returns the width of all.
  double buttons(const QString& category, double from) {
    double x = from;
    for (std::size_t n = 0; n < test::kButtons.size(); ++n) {
      if (category == test::kButtons[n].category) {
        x = button(n, x) + 30;
      }
    }
    return x - 30 - from;
  }

  double button(std::size_t n, double x) {
    const int i = ++lastButton_;
    const bool glyph = extras_.glyphs && n % 2 == 0;
    const QSizeF caption = text(test::utf8(test::kButtons[n].caption), 6.75);
    const double inner = std::max(caption.width(), 360.0);
    for (const auto& [left, center, right] : {kButtonLook, kButtonOverLook}) {
      put(left, i, x, 420, 45, 990);
      put(center, i, x + 45, 420, inner, 990);
      put(right, i, x + 45 + inner, 420, 45, 990);
    }
    put(ButMouse, i, x, 420, inner + 90, 990);
    double top = 510;
    if (center_) {
      const double spare = 990 - 360 - caption.height();
      top = 420 + (glyph ? spare - caption.height() / 2 : spare) / 2;
    }
    put(Button_Icon, i, x + 45 + (inner - 360) / 2, top, 360, 360);
    const double captionLeft = x + 45 + (inner - caption.width()) / 2;
    put(Button_Caption, i, captionLeft, top + 360, caption.width(), caption.height());
    const double below = top + 360 + caption.height() + (caption.height() - 60) / 2;
    for (const Element kind : {Glip_off, Glip_on}) {
      put(kind, i, captionLeft + (caption.width() - 75) / 2, below, 75, 60);
    }
    return x + inner + 90;
  }

  bool center_;
  test::Extras extras_;
  int lastButton_ = 0;
  Places places_;
};

}  // namespace

class RibbonLayoutTest : public QObject {
  Q_OBJECT
 private slots:
  void mainWindowsTable_data();
  void mainWindowsTable();
  void mainWindowsRibbonFitsASmallScreen();
  void background();
  void emptyModel();
  void firstTabLooksActiveWhicheverIs();
  void rebuildingTabsAgain();
  void categoriesThatNeverShow();
  void buttonsThatNeverShow();
  void orderOfAdding();
  void sameCategoryKeyTwice();
  void narrowCategoryKeepsItsButtonsLeft();
  void launcherWidensTheCaption();
  void categoryWithoutButtons();
  void captionIsCentredOverWiderButtons();
  void narrowCaptionIsCentredUnderItsIcon();
  void iconIsNinetyTwipsBelowTheTop_data();
  void iconIsNinetyTwipsBelowTheTop();
  void iconInTheMiddle();
  void iconWithoutPictureKeepsItsPlace();
  void glyphsAndLaunchersShowWhereTold();
  void neighboursInOtherCategoriesDoNotTouch();
  void numberingRunsOnOverCategories();
  void tagsAndToolTips();
  void tooManyTabsAreDrawnAsCopies();
  void rowBeyondSixteenBitsHasNoButtons();
  void stackingOfTabs();
  void stackingOfCategories();
  void stackingOfButtons();

 private:
  static QList<Element> orderOf(const ElementTable& elements, std::span<const Element> kinds,
                                int index);
};

void RibbonLayoutTest::mainWindowsTable_data() {
  QTest::addColumn<int>("tab");
  QTest::addColumn<bool>("center");
  QTest::addColumn<bool>("extras");
  for (int tab = 0; tab < 4; ++tab) {
    for (const bool center : {false, true}) {
      for (const bool extras : {false, true}) {
        QTest::addRow("tab %d%s%s", tab, center ? ", centred" : "", extras ? ", extras" : "")
            << tab << center << extras;
      }
    }
  }
}

void RibbonLayoutTest::mainWindowsTable() {
  QFETCH(int, tab);
  QFETCH(bool, center);
  QFETCH(bool, extras);
  const test::Extras wanted{extras, extras};
  FaixaRibbon ribbon;
  ribbon.setButtonCenter(center);
  test::fill(ribbon, wanted);
  ribbon.Refresh();
  ribbon.press({TabMouse, tab});

  const Places expected = Reckoning(static_cast<std::size_t>(tab), center, wanted).places();
  int seen = 0;
  for (const Ref ref : ribbon.elements().stacking()) {
    const bool button = std::ranges::find(kButtonKinds, ref.kind) != kButtonKinds.end();
    if (ref.kind <= BarraRight || (button && ref.index == 0)) {
      continue;
    }
    const QPair<int, int> key(static_cast<int>(ref.kind), ref.index);
    QVERIFY2(expected.contains(key), qPrintable(QString("%1(%2)").arg(key.first).arg(key.second)));
    const QRectF place = ribbon.elements().at(ref).rect();
    QVERIFY2(place == expected.value(key), qPrintable(QString("%1(%2): %3 %4 %5 %6")
                                                          .arg(key.first)
                                                          .arg(key.second)
                                                          .arg(place.x())
                                                          .arg(place.y())
                                                          .arg(place.width())
                                                          .arg(place.height())));
    ++seen;
  }
  QCOMPARE(seen, expected.size());
}

void RibbonLayoutTest::mainWindowsRibbonFitsASmallScreen() {
  FaixaRibbon ribbon;
  test::fill(ribbon, {true, true});
  ribbon.Refresh();
  for (int tab = 0; tab < 4; ++tab) {
    ribbon.press({TabMouse, tab});
    const int last = ribbon.elements().count(CatMouse) - 1;
    QVERIFY(ribbon.elements().at(CatMouse, last).right() / 15 < 1366 / 1.25);
  }
}

void RibbonLayoutTest::background() {
  const Bench bench;
  for (const Element kind : {Barra2, BarraLeft, BarraRight}) {
    QCOMPARE(bench.at(kind, 0).top, -390.0);
    QVERIFY(bench.at(kind, 0).visible);
  }
  QCOMPARE(bench.at(Barra2, 0).rect(), QRectF(0, -390, 30720, 2130));
  QCOMPARE(controlHeight(bench.elements), 1740.0);
}

void RibbonLayoutTest::emptyModel() {
  Bench bench;
  bench.build();
  QCOMPARE(bench.model.activeTab(), QString());
  for (const Ref ref : bench.elements.stacking()) {
    QCOMPARE(bench.elements.at(ref).visible, ref.kind <= BarraRight);
    QCOMPARE(ref.index, 0);
  }
}

void RibbonLayoutTest::firstTabLooksActiveWhicheverIs() {
  Bench bench;
  bench.tab("1", "um");
  bench.tab("2", "dois");
  bench.category("2A", "2", "da segunda");
  bench.model.setActiveTab("2");
  bench.build();
  for (const Element kind : kTabLook) {
    QVERIFY(bench.at(kind, 0).visible);
    QVERIFY(!bench.at(kind, 1).visible);
  }
  QCOMPARE(bench.at(Tab_caption, 0).colour, 2U);
  QCOMPARE(bench.at(Tab_caption, 1).colour, 1U);
  for (const Element kind : {Tab_caption, TabMouse}) {
    QVERIFY(bench.at(kind, 0).visible);
    QVERIFY(bench.at(kind, 1).visible);
  }
  for (const Element kind : kTabOverLook) {
    QVERIFY(!bench.at(kind, 1).visible);
  }
  QCOMPARE(bench.at(Cat_Caption, 0).text, QString("da segunda"));
  QVERIFY(bench.at(CatMouse, 0).visible);
}

void RibbonLayoutTest::rebuildingTabsAgain() {
  Bench bench;
  bench.tab("1", "um");
  bench.tab("2", "dois");
  bench.build();
  bench.tab("3", "três");
  bench.build();
  QCOMPARE(bench.elements.count(TabMouse), 3);
  QCOMPARE(bench.at(Tab_left, 2).left, bench.at(Tab_right, 1).right());
  QCOMPARE(bench.at(Tab_left, 0).left, 90.0);
}

void RibbonLayoutTest::categoriesThatNeverShow() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "", "sem guia");
  bench.category("B", "9", "guia desconhecida");
  bench.category("C", "1", "certa");
  bench.build();
  QCOMPARE(bench.elements.count(CatMouse), 1);
  QCOMPARE(bench.at(Cat_Caption, 0).tag, QString("C"));
  bench.model.setActiveTab("");
  bench.build();
  QVERIFY(!bench.at(CatMouse, 0).visible);
  QVERIFY(!bench.at(Cat_Center_off, 0).visible);
}

void RibbonLayoutTest::buttonsThatNeverShow() {
  Bench bench;
  bench.tab("1", "um");
  bench.tab("2", "dois");
  bench.category("A", "1", "a");
  bench.category("B", "2", "b");
  bench.button("de b", "B", "x");
  bench.button("de a", "A", "x");
  bench.button("de ninguém", "Z", "x");
  bench.build();
  QCOMPARE(bench.elements.count(ButMouse), 2);
  QCOMPARE(bench.at(ButMouse, 1).tag, QString("de a"));
  QVERIFY(!bench.at(ButMouse, 0).visible);
}

void RibbonLayoutTest::orderOfAdding() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("Z", "1", "z");
  bench.category("A", "1", "a");
  bench.button("9", "A", "x");
  bench.button("1", "Z", "x");
  bench.button("8", "Z", "x");
  bench.build();
  QCOMPARE(bench.at(Cat_Caption, 0).tag, QString("Z"));
  QCOMPARE(bench.at(Cat_Caption, 1).tag, QString("A"));
  QCOMPARE(bench.at(ButMouse, 1).tag, QString("1"));
  QCOMPARE(bench.at(ButMouse, 2).tag, QString("8"));
  QCOMPARE(bench.at(ButMouse, 3).tag, QString("9"));
}

void RibbonLayoutTest::sameCategoryKeyTwice() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "a");
  bench.category("A", "1", "outra");
  bench.button("x", "A", "x");
  bench.build();
  QCOMPARE(bench.elements.count(CatMouse), 2);
  QCOMPARE(bench.elements.count(ButMouse), 3);
  QCOMPARE(bench.at(Button_center, 1).tag, QString("0"));
  QCOMPARE(bench.at(Button_center, 2).tag, QString("1"));
}

void RibbonLayoutTest::narrowCategoryKeepsItsButtonsLeft() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "uma legenda larga");
  bench.button("x", "A", "x");
  bench.build();
  QCOMPARE(bench.at(ButMouse, 1).left, 180.0);
  QCOMPARE(bench.at(Cat_Caption, 0).left, 180.0);
  QCOMPARE(bench.at(Cat_Center_off, 0).width, 1700.0);
}

void RibbonLayoutTest::launcherWidensTheCaption() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "larga", true);
  bench.category("B", "1", "larga", false);
  bench.button("x", "A", "123456");  // 690 wide: more than the caption, less than with the corner
  bench.button("y", "B", "123456");
  bench.build();
  QCOMPARE(bench.at(Cat_Center_off, 0).width, 725.0);
  QCOMPARE(bench.at(Cat_Caption, 0).left, bench.at(Cat_Center_off, 0).left);
  QCOMPARE(bench.at(Cat_Center_off, 1).width, 690.0);
  QCOMPARE(bench.at(Cat_Caption, 1).left, bench.at(Cat_Center_off, 1).left + 95);
}

void RibbonLayoutTest::categoryWithoutButtons() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "");
  bench.category("B", "1", "b");
  bench.build();
  QCOMPARE(bench.at(Cat_Center_off, 0).width, 0.0);
  QCOMPARE(bench.at(Cat_Left_off, 1).left, 120.0 + 60 + 0 + 75);
  QCOMPARE(bench.elements.count(ButMouse), 1);
}

void RibbonLayoutTest::captionIsCentredOverWiderButtons() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "abc");
  bench.button("x", "A", "1234567");
  bench.build();
  QCOMPARE(bench.at(Cat_Center_off, 0).width, 790.0);
  QCOMPARE(bench.at(Cat_Caption, 0).left, 180.0 + 245);
}

void RibbonLayoutTest::narrowCaptionIsCentredUnderItsIcon() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "abc");
  bench.button("x", "A", "1");
  bench.build();
  QCOMPARE(bench.at(Button_Icon, 1).left, 225.0);
  QCOMPARE(bench.at(Button_Caption, 1).left, 225.0 + 130);
  QCOMPARE(bench.at(ButMouse, 1).width, 450.0);
}

void RibbonLayoutTest::iconIsNinetyTwipsBelowTheTop_data() {
  QTest::addColumn<QString>("caption");
  QTest::newRow("one line") << "um";
  QTest::newRow("two lines") << "um\r\ndois";
  QTest::newRow("four lines") << "um\r\ndois\r\ntrês\r\nquatro";
  QTest::newRow("empty") << "";
}

void RibbonLayoutTest::iconIsNinetyTwipsBelowTheTop() {
  QFETCH(QString, caption);
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "abc");
  bench.button("x", "A", caption, true);
  bench.build();
  QCOMPARE(bench.at(Button_Icon, 1).top, bench.at(Button_center, 1).top + 90);
  QCOMPARE(bench.at(ButMouse, 1).top, 420.0);
}

void RibbonLayoutTest::iconInTheMiddle() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "abc");
  bench.button("x", "A", "um\r\ndois");
  bench.button("y", "A", "um\r\ndois", true);
  bench.build(true);
  QCOMPARE(bench.at(Button_Icon, 1).top, 420 + (990.0 - 760) / 2);
  QCOMPARE(bench.at(Button_Icon, 2).top, 420 + (990.0 - 760 - 200) / 2);
  QCOMPARE(bench.at(Glip_off, 2).top, bench.at(Button_Caption, 2).bottom() + 170);
}

void RibbonLayoutTest::iconWithoutPictureKeepsItsPlace() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "abc");
  QString caption = "x";
  QVERIFY_EXCEPTION_THROWN(bench.model.addButton("x", "A", caption, 5, false, {}, &bench.images),
                           RuntimeError);
  bench.build();
  QCOMPARE(bench.at(Button_Icon, 1).rect().size(), QSizeF(615, 495));
  QVERIFY(bench.at(ButMouse, 1).visible);
}

void RibbonLayoutTest::glyphsAndLaunchersShowWhereTold() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "a", true);
  bench.category("B", "1", "b", false);
  bench.button("x", "A", "x", true);
  bench.button("y", "A", "y", false);
  bench.build();
  QVERIFY(bench.at(Cat_Dlg, 0).visible);
  QVERIFY(!bench.at(Cat_Dlg, 1).visible);
  QVERIFY(bench.at(Glip_off, 1).visible);
  QVERIFY(!bench.at(Glip_off, 2).visible);
  for (int i = 0; i < 2; ++i) {
    QVERIFY(!bench.at(Cat_Dlg_on, i).visible);
    QVERIFY(!bench.at(Cat_Dlg_over, i).visible);
    QVERIFY(!bench.at(Cat_Center_on, i).visible);
    QVERIFY(!bench.at(Glip_on, i + 1).visible);
    QVERIFY(!bench.at(Button_center, i + 1).visible);
    QVERIFY(!bench.at(Button_center_over, i + 1).visible);
  }
}

void RibbonLayoutTest::neighboursInOtherCategoriesDoNotTouch() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "a");
  bench.category("B", "1", "b");
  bench.button("x", "A", "largo bastante");
  bench.button("y", "B", "largo bastante");
  bench.build();
  QCOMPARE(bench.at(ButMouse, 2).left - bench.at(ButMouse, 1).right(), 75.0 + 60);
}

void RibbonLayoutTest::numberingRunsOnOverCategories() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "a");
  bench.category("B", "1", "b");
  bench.button("1", "A", "x");
  bench.button("2", "A", "x");
  bench.button("3", "B", "x");
  bench.build();
  QCOMPARE(bench.elements.count(ButMouse), 4);
  QCOMPARE(bench.at(ButMouse, 2).left, bench.at(ButMouse, 1).right() + 30);
  QCOMPARE(bench.at(ButMouse, 3).left, bench.at(Cat_Center_off, 1).left);
}

void RibbonLayoutTest::tagsAndToolTips() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", "a");
  bench.category("B", "1", "b");
  bench.button("22", "B", "Iniciados\r\ne Abertos");
  bench.build();
  QCOMPARE(bench.at(ButMouse, 1).tag, QString("22"));
  QCOMPARE(bench.at(ButMouse, 1).toolTip, QString("Iniciados e Abertos"));
  QCOMPARE(bench.at(Button_center, 1).tag, QString("1"));
  QCOMPARE(bench.at(Cat_Caption, 1).tag, QString("B"));
  QCOMPARE(bench.at(Button_Caption, 1).text, QString("Iniciados\r\ne Abertos"));
}

void RibbonLayoutTest::tooManyTabsAreDrawnAsCopies() {
  Bench bench;
  for (int n = 1; n <= 31; ++n) {
    bench.tab(QString::number(n), QString("guia %1").arg(n));
  }
  QVERIFY_EXCEPTION_THROWN(bench.tab("32", "a mais"), RuntimeError);
  bench.build();
  QCOMPARE(bench.elements.count(TabMouse), 32);
  QCOMPARE(bench.at(Tab_caption, 30).text, QString("guia 31"));
  QCOMPARE(bench.at(Tab_caption, 31).text, QString("guia 1"));
  QVERIFY(bench.at(TabMouse, 31).visible);
}

void RibbonLayoutTest::rowBeyondSixteenBitsHasNoButtons() {
  Bench bench;
  bench.tab("1", "um");
  bench.category("A", "1", QString(323, 'a'));  // the next frame's centre begins at 32615
  bench.category("B", "1", "bbbb");             // and the one behind it at 33150
  bench.category("C", "1", "c");
  for (const char* category : {"A", "B", "C"}) {
    bench.button("x", category, "x");
  }
  bench.build();
  QCOMPARE(bench.elements.count(CatMouse), 3);
  QCOMPARE(bench.elements.count(ButMouse), 3);
  QVERIFY(bench.at(Cat_Center_off, 1).left <= 32767);
  QVERIFY(bench.at(Cat_Center_off, 2).left > 32767);
  // It is as wide as the buttons reckoned last.
  QCOMPARE(bench.at(Cat_Center_off, 2).width, 450.0);
}

QList<Element> RibbonLayoutTest::orderOf(const ElementTable& elements,
                                         std::span<const Element> kinds, int index) {
  QList<Element> order;
  for (const Ref ref : elements.stacking()) {
    if (ref.index == index && std::ranges::find(kinds, ref.kind) != kinds.end()) {
      order.append(ref.kind);
    }
  }
  return order;
}

void RibbonLayoutTest::stackingOfTabs() {
  FaixaRibbon ribbon;
  test::fill(ribbon);
  ribbon.Refresh();
  const QList<Element> expected{Tab_center,    Tab_left,       Tab_right,   Tab_center_over,
                                Tab_left_over, Tab_right_over, Tab_caption, TabMouse};
  for (int i = 0; i < 4; ++i) {
    QCOMPARE(orderOf(ribbon.elements(), kTabKinds, i), expected);
  }
  for (int n = 0; n < 3; ++n) {
    QVERIFY(ribbon.elements().stacking()[static_cast<std::size_t>(n)].kind <= BarraRight);
  }
}

void RibbonLayoutTest::stackingOfCategories() {
  FaixaRibbon ribbon;
  test::fill(ribbon, {true, true});
  ribbon.Refresh();
  const QList<Element> expected{Cat_Center_off, Cat_Left_off, Cat_Right_off, Cat_Center_on,
                                Cat_Left_on,    Cat_Right_on, Cat_Caption,   CatMouse,
                                Cat_Dlg,        Cat_Dlg_on,   Cat_Dlg_over};
  for (int i = 0; i < 3; ++i) {
    QCOMPARE(orderOf(ribbon.elements(), kCategoryKinds, i), expected);
  }
}

void RibbonLayoutTest::stackingOfButtons() {
  FaixaRibbon ribbon;
  test::fill(ribbon, {true, true});
  ribbon.Refresh();
  const QList<Element> expected{Button_left,      Button_right,      Button_center,
                                Button_left_over, Button_right_over, Button_center_over,
                                Button_Icon,      Button_Caption,    Glip_off,
                                Glip_on,          ButMouse};
  const ElementTable& elements = ribbon.elements();
  std::int64_t highestFrame = 0;
  for (const Element kind : kCategoryKinds) {
    for (int i = 0; i < elements.count(kind); ++i) {
      highestFrame = std::max(highestFrame, elements.at(kind, i).stacking);
    }
  }
  for (int i = 1; i < elements.count(ButMouse); ++i) {
    QCOMPARE(orderOf(elements, kButtonKinds, i), expected);
    QVERIFY(elements.at(Button_left, i).stacking > highestFrame);
  }
}

QUARTELA_TEST_MAIN(RibbonLayoutTest)
#include "RibbonLayout_test.moc"
