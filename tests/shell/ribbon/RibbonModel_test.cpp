#include "shell/ribbon/RibbonModel.h"

#include <QPixmap>
#include <functional>

#include "platform/values/RuntimeError.h"
#include "tests/shell/ribbon/SampleRibbon.h"
#include "tests/support/Errors.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using quartela::ribbon::RibbonModel;

class RibbonModelTest : public QObject {
  Q_OBJECT
 private slots:
  void lineBreaksBecomeBlanks_data();
  void lineBreaksBecomeBlanks();
  void firstTabWithAKeyIsActive();
  void tabsAndCategoriesHaveCaptionsOfOneLine();
  void buttonKeepsItsLines();
  void captionIsTheToolTip();
  void givenToolTipLeavesTheCaptionVariableAlone();
  void sameKeyIsOneMoreEntry();
  void pictureIsTakenWhenAdding();
  void tooManyTabs();
  void tooManyCategories();
  void tooManyButtons();
  void buttonWithoutPictureIsStoredAlready_data();
  void buttonWithoutPictureIsStoredAlready();
  void imageListNumbersFromOne();

 private:
  static void addTab(RibbonModel& model, const QString& key, QString caption = "t") {
    model.addTab(key, caption);
  }
};

void RibbonModelTest::lineBreaksBecomeBlanks_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QString>("expected");
  QTest::newRow("none") << "Incluir"
                        << "Incluir";
  QTest::newRow("pair") << "Incluir\r\nRequisição"
                        << "Incluir Requisição";
  QTest::newRow("two pairs") << "a\r\n\r\nb"
                             << "a  b";
  QTest::newRow("feed") << "a\nb"
                        << "a b";
  QTest::newRow("return") << "a\rb"
                          << "a b";
  QTest::newRow("at the end") << "a\r\n"
                              << "a ";
}

void RibbonModelTest::lineBreaksBecomeBlanks() {
  QFETCH(QString, text);
  QFETCH(QString, expected);
  QCOMPARE(ribbon::withoutLineBreaks(text), expected);
}

void RibbonModelTest::firstTabWithAKeyIsActive() {
  RibbonModel model;
  QCOMPARE(model.activeTab(), QString());
  addTab(model, "");
  QCOMPARE(model.activeTab(), QString());
  addTab(model, "7");
  addTab(model, "1");
  QCOMPARE(model.activeTab(), QString("7"));
  QCOMPARE(model.tabCount(), 3);
}

void RibbonModelTest::tabsAndCategoriesHaveCaptionsOfOneLine() {
  RibbonModel model;
  QString tab = "Iní\r\ncio";
  QString category = "Exibir\r\nProcessos";
  model.addTab("1", tab);
  model.addCategory("1A", "1", category, true);
  QCOMPARE(model.tab(0).caption, QString("Iní cio"));
  QCOMPARE(tab, QString("Iní cio"));
  QCOMPARE(model.category(0).caption, QString("Exibir Processos"));
  QCOMPARE(category, QString("Exibir Processos"));
  QCOMPARE(model.category(0).key, QString("1A"));
  QCOMPARE(model.category(0).tab, QString("1"));
  QVERIFY(model.category(0).hasLauncher);
}

void RibbonModelTest::buttonKeepsItsLines() {
  RibbonModel model;
  const ImageList images = test::squares(3);
  QString caption = "Incluir\r\nRequisição";
  model.addButton("0", "1A", caption, 3, true, {}, &images);
  const ribbon::Button& button = model.button(0);
  QCOMPARE(button.key, QString("0"));
  QCOMPARE(button.category, QString("1A"));
  QCOMPARE(button.caption, QString("Incluir\r\nRequisição"));
  QVERIFY(button.hasGlyph);
  QCOMPARE(button.picture.size, QSize(24, 24));
}

void RibbonModelTest::captionIsTheToolTip() {
  RibbonModel model;
  const ImageList images = test::squares(1);
  QString caption = "Incluir\r\nRequisição";
  model.addButton("0", "1A", caption, 1, false, {}, &images);
  QCOMPARE(model.button(0).toolTip, QString("Incluir Requisição"));
  QCOMPARE(caption, QString("Incluir Requisição"));
}

void RibbonModelTest::givenToolTipLeavesTheCaptionVariableAlone() {
  RibbonModel model;
  const ImageList images = test::squares(1);
  QString caption = "a\r\nb";
  model.addButton("0", "1A", caption, 1, false, "um\r\ndois", &images);
  QCOMPARE(model.button(0).toolTip, QString("um dois"));
  QCOMPARE(caption, QString("a\r\nb"));
}

void RibbonModelTest::sameKeyIsOneMoreEntry() {
  RibbonModel model;
  addTab(model, "1", "a");
  addTab(model, "1", "b");
  QCOMPARE(model.tabCount(), 2);
  QCOMPARE(model.tab(0).caption, QString("a"));
  QCOMPARE(model.tab(1).caption, QString("b"));
}

void RibbonModelTest::pictureIsTakenWhenAdding() {
  RibbonModel model;
  QString caption = "a";
  {
    const ImageList images = test::squares(2);
    model.addButton("0", "1A", caption, 2, false, {}, &images);
  }
  const QPixmap drawn = model.button(0).picture.icon.pixmap(QSize(24, 24), 1);
  QCOMPARE(drawn.toImage().pixel(3, 3), QColor::fromHsv(12, 200, 200).rgb());
}

void RibbonModelTest::tooManyTabs() {
  RibbonModel model;
  for (int n = 1; n <= 31; ++n) {
    addTab(model, QString::number(n));
  }
  QCOMPARE(test::errorOf([&] { addTab(model, "32"); }), 9);
  QCOMPARE(model.tabCount(), 32);
  QCOMPARE(test::errorOf([&] { addTab(model, "33"); }), 9);
  QCOMPARE(model.tabCount(), 33);
  QCOMPARE(model.tab(30).key, QString("31"));
  QCOMPARE(test::errorOf([&] { model.tab(31); }), 9);
}

void RibbonModelTest::tooManyCategories() {
  RibbonModel model;
  const auto add = [&model](int n) {
    QString caption = "c";
    model.addCategory(QString::number(n), QString::number(n % 4), caption, false);
  };
  for (int n = 1; n <= 31; ++n) {
    add(n);
  }
  QCOMPARE(test::errorOf([&] { add(32); }), 9);
  QCOMPARE(model.categoryCount(), 32);
  QCOMPARE(model.category(30).key, QString("31"));
}

void RibbonModelTest::tooManyButtons() {
  RibbonModel model;
  const ImageList images = test::squares(1);
  QString caption = "b";
  for (int n = 1; n <= 91; ++n) {
    model.addButton(QString::number(n), "1A", caption, 1, false, {}, &images);
  }
  QCOMPARE(test::errorOf([&] { model.addButton("92", "1A", caption, 1, false, {}, &images); }), 9);
  QCOMPARE(model.buttonCount(), 92);
  QCOMPARE(model.button(90).key, QString("91"));
}

void RibbonModelTest::buttonWithoutPictureIsStoredAlready_data() {
  QTest::addColumn<bool>("withList");
  QTest::addColumn<int>("image");
  QTest::newRow("no list") << false << 1;
  QTest::newRow("zero") << true << 0;
  QTest::newRow("negative") << true << -1;
  QTest::newRow("behind the last") << true << 4;
}

void RibbonModelTest::buttonWithoutPictureIsStoredAlready() {
  QFETCH(bool, withList);
  QFETCH(int, image);
  RibbonModel model;
  const ImageList images = test::squares(3);
  QString caption = "Incluir\r\nRequisição";
  const auto add = [&] {
    model.addButton("0", "1A", caption, static_cast<std::int16_t>(image), true, {},
                    withList ? &images : nullptr);
  };
  QCOMPARE(test::errorOf(add), 9);
  QCOMPARE(model.buttonCount(), 1);
  QCOMPARE(model.button(0).key, QString("0"));
  QCOMPARE(model.button(0).category, QString("1A"));
  QCOMPARE(model.button(0).caption, QString("Incluir\r\nRequisição"));
  QCOMPARE(model.button(0).toolTip, QString("Incluir Requisição"));
  QVERIFY(model.button(0).picture.icon.isNull());
  QVERIFY(!model.button(0).hasGlyph);
}

void RibbonModelTest::imageListNumbersFromOne() {
  const ImageList images = test::squares(2);
  QCOMPARE(images.count(), 2);
  QCOMPARE(images.imageSize(), QSize(24, 24));
  const QImage first = images.picture(1).icon.pixmap(QSize(24, 24), 1).toImage();
  QCOMPARE(first.pixel(0, 0), QColor::fromHsv(0, 200, 200).rgb());
  QCOMPARE(test::errorOf([&] { images.picture(0); }), 9);
  QCOMPARE(test::errorOf([&] { images.picture(3); }), 9);
}

QUARTELA_TEST_MAIN(RibbonModelTest)
#include "RibbonModel_test.moc"
