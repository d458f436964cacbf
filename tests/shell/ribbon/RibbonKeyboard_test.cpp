// The ribbon without a mouse: the walk by keyboard, and what assistive programs are told.
#include <QAccessible>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "shell/ribbon/FaixaRibbon.h"
#include "shell/ribbon/RibbonKeys.h"
#include "tests/shell/ribbon/SampleRibbon.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;
using ribbon::Ref;
using enum ribbon::Element;

Q_DECLARE_METATYPE(quartela::ribbon::Ref)

class RibbonKeyboardTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();
  void entersOnTheActiveTab();
  void withoutTabsNothingIsEntered();
  void mouseDoesNotTakeTheFocus();
  void walk_data();
  void walk();
  void tabKeyGoesThroughAll();
  void enterOpensATab();
  void enterPressesAButton();
  void enterPressesACorner();
  void escapeGivesTheFocusBack();
  void otherControlEndsTheWalk();
  void geometryAndLooksStayAsTheyAre();
  void focusIsSeen();
  void rebuildingMovesTheFocusToTheTab();

  void childrenInReadingOrder();
  void namesAndRoles();
  void placesOfChildren();
  void statesOfChildren();
  void pressingByAction();
  void childrenOutliveARebuilding();

 private:
  void keys(const QList<Qt::Key>& keys) {
    for (const Qt::Key key : keys) {
      QTest::keyClick(ribbon_, key);
    }
  }
  QAccessibleInterface* interface() const { return QAccessible::queryAccessibleInterface(ribbon_); }

  std::unique_ptr<QWidget> window_;
  FaixaRibbon* ribbon_ = nullptr;
  QLineEdit* field_ = nullptr;
};

void RibbonKeyboardTest::init() {
  window_ = std::make_unique<QWidget>();
  window_->resize(1366, 300);
  ribbon_ = new FaixaRibbon;
  field_ = new QLineEdit;
  auto* layout = new QVBoxLayout(window_.get());
  layout->addWidget(ribbon_);
  layout->addWidget(field_);
  fill(*ribbon_, {.launchers = true});
  ribbon_->Refresh();
  window_->show();
  window_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  field_->setFocus();
}

void RibbonKeyboardTest::cleanup() {
  window_.reset();
}

void RibbonKeyboardTest::entersOnTheActiveTab() {
  ribbon_->press({TabMouse, 2});
  QVERIFY(field_->hasFocus());
  ribbon_->enterKeyboard();
  QVERIFY(ribbon_->hasFocus());
  QVERIFY(ribbon_->focusItem() == Ref(TabMouse, 2));
}

void RibbonKeyboardTest::withoutTabsNothingIsEntered() {
  FaixaRibbon empty(window_.get());
  empty.Refresh();
  empty.show();
  empty.enterKeyboard();
  QVERIFY(!empty.focusItem());
  QVERIFY(field_->hasFocus());
}

void RibbonKeyboardTest::mouseDoesNotTakeTheFocus() {
  QTest::mouseClick(ribbon_, Qt::LeftButton, {}, middle(*ribbon_, ButMouse, 1).toPoint());
  QVERIFY(field_->hasFocus());
  QVERIFY(!ribbon_->focusItem());
}

void RibbonKeyboardTest::walk_data() {
  QTest::addColumn<QList<Qt::Key>>("pressed");
  QTest::addColumn<Ref>("expected");
  using Keys = QList<Qt::Key>;
  const Keys none;
  QTest::newRow("start") << none << Ref{TabMouse, 0};
  QTest::newRow("right") << Keys{Qt::Key_Right} << Ref{TabMouse, 1};
  QTest::newRow("left goes round") << Keys{Qt::Key_Left} << Ref{TabMouse, 3};
  QTest::newRow("right goes round") << Keys(4, Qt::Key_Right) << Ref{TabMouse, 0};
  QTest::newRow("last tab") << Keys{Qt::Key_End} << Ref{TabMouse, 3};
  QTest::newRow("first tab") << Keys{Qt::Key_End, Qt::Key_Home} << Ref{TabMouse, 0};
  QTest::newRow("up from a tab") << Keys{Qt::Key_Up} << Ref{TabMouse, 0};
  QTest::newRow("into the row") << Keys{Qt::Key_Down} << Ref{ButMouse, 1};
  QTest::newRow("no further down") << Keys{Qt::Key_Down, Qt::Key_Down} << Ref{ButMouse, 1};
  QTest::newRow("along the row") << Keys{Qt::Key_Down, Qt::Key_Right} << Ref{ButMouse, 2};
  QTest::newRow("corner behind the buttons")
      << (Keys{Qt::Key_Down} + Keys(4, Qt::Key_Right)) << Ref{Cat_Dlg, 0};
  QTest::newRow("next category") << (Keys{Qt::Key_Down} + Keys(5, Qt::Key_Right))
                                 << Ref{ButMouse, 5};
  QTest::newRow("end of the row") << Keys{Qt::Key_Down, Qt::Key_Left} << Ref{Cat_Dlg, 2};
  QTest::newRow("End in the row") << Keys{Qt::Key_Down, Qt::Key_End} << Ref{Cat_Dlg, 2};
  QTest::newRow("Home in the row")
      << Keys{Qt::Key_Down, Qt::Key_End, Qt::Key_Home} << Ref{ButMouse, 1};
  QTest::newRow("back up") << Keys{Qt::Key_Down, Qt::Key_Right, Qt::Key_Up} << Ref{TabMouse, 0};
  QTest::newRow("down from a tab that is not active")
      << Keys{Qt::Key_Right, Qt::Key_Down} << Ref{ButMouse, 1};
}

void RibbonKeyboardTest::walk() {
  QFETCH(QList<Qt::Key>, pressed);
  QFETCH(Ref, expected);
  QSignalSpy tabs(ribbon_, &FaixaRibbon::TabClick);
  QSignalSpy buttons(ribbon_, &FaixaRibbon::ButtonClick);
  ribbon_->enterKeyboard();
  keys(pressed);
  QVERIFY(ribbon_->focusItem() == expected);
  QCOMPARE(tabs.size() + buttons.size(), 0);
}

void RibbonKeyboardTest::tabKeyGoesThroughAll() {
  ribbon_->enterKeyboard();
  const std::vector<Ref> items = ribbon::pressableItems(ribbon_->elements());
  QCOMPARE(items.size(), 4U + 11U + 2U);
  for (const Ref item : items) {
    QVERIFY(ribbon_->focusItem() == item);
    keys({Qt::Key_Tab});
  }
  QVERIFY(ribbon_->focusItem() == items.front());
  QTest::keyClick(ribbon_, Qt::Key_Backtab);
  QVERIFY(ribbon_->focusItem() == items.back());
  QVERIFY(ribbon_->hasFocus());
}

void RibbonKeyboardTest::enterOpensATab() {
  QSignalSpy clicks(ribbon_, &FaixaRibbon::TabClick);
  ribbon_->enterKeyboard();
  keys({Qt::Key_Right, Qt::Key_Return});
  QCOMPARE(clicks.size(), 1);
  QCOMPARE(clicks[0], QVariantList({"2", "Documentos"}));
  QVERIFY(ribbon_->focusItem() == Ref(TabMouse, 1));
  keys({Qt::Key_Right, Qt::Key_Space});
  QCOMPARE(clicks.size(), 2);
  keys({Qt::Key_Down});
  QVERIFY(ribbon_->focusItem() == Ref(ButMouse, 1));
}

void RibbonKeyboardTest::enterPressesAButton() {
  QSignalSpy clicks(ribbon_, &FaixaRibbon::ButtonClick);
  bool given = false;
  connect(ribbon_, &FaixaRibbon::ButtonClick, this, [&] { given = field_->hasFocus(); });
  ribbon_->enterKeyboard();
  keys({Qt::Key_Down, Qt::Key_Right, Qt::Key_Enter});
  QCOMPARE(clicks.size(), 1);
  QCOMPARE(clicks[0], QVariantList({"1", "Alterar\r\nRequisição"}));
  QVERIFY(given);
  QVERIFY(!ribbon_->focusItem());
}

void RibbonKeyboardTest::enterPressesACorner() {
  QSignalSpy clicks(ribbon_, &FaixaRibbon::CatClick);
  ribbon_->enterKeyboard();
  keys({Qt::Key_Down, Qt::Key_End, Qt::Key_Return});
  QCOMPARE(clicks.size(), 1);
  QCOMPARE(clicks[0], QVariantList({"1C", "Exibir Processos"}));
}

void RibbonKeyboardTest::escapeGivesTheFocusBack() {
  ribbon_->enterKeyboard();
  keys({Qt::Key_Down, Qt::Key_Right, Qt::Key_Escape});
  QVERIFY(field_->hasFocus());
  QVERIFY(!ribbon_->focusItem());
}

void RibbonKeyboardTest::otherControlEndsTheWalk() {
  ribbon_->enterKeyboard();
  field_->setFocus(Qt::MouseFocusReason);
  QVERIFY(!ribbon_->focusItem());
}

void RibbonKeyboardTest::geometryAndLooksStayAsTheyAre() {
  const auto all = [this] {
    QList<QPair<QRectF, bool>> found;
    for (const Ref ref : ribbon_->elements().stacking()) {
      found.append({ribbon_->elements().at(ref).rect(), ribbon_->elements().at(ref).visible});
    }
    return found;
  };
  const auto before = all();
  ribbon_->enterKeyboard();
  keys({Qt::Key_Right, Qt::Key_Down, Qt::Key_Right});
  QCOMPARE(all(), before);
}

void RibbonKeyboardTest::focusIsSeen() {
  const QImage before = ribbon_->grab().toImage();
  ribbon_->enterKeyboard();
  keys({Qt::Key_Down});
  const QRect place = ribbon::pixelRect(ribbon_->elements().at(ButMouse, 1).rect());
  const QImage after = ribbon_->grab().toImage();
  QVERIFY(after.copy(place) != before.copy(place));
  keys({Qt::Key_Escape});
  QCOMPARE(ribbon_->grab().toImage(), before);
}

void RibbonKeyboardTest::rebuildingMovesTheFocusToTheTab() {
  ribbon_->enterKeyboard();
  ribbon_->setFocusItem({ButMouse, 11});
  ribbon_->press({TabMouse, 1});  // three buttons only
  QVERIFY(ribbon_->focusItem() == Ref(TabMouse, 1));
}

void RibbonKeyboardTest::childrenInReadingOrder() {
  QAccessibleInterface* const bar = interface();
  QCOMPARE(bar->role(), QAccessible::ToolBar);
  QCOMPARE(bar->text(QAccessible::Name), QString("Faixa de comandos"));
  QCOMPARE(bar->childCount(), 17);
  QCOMPARE(bar->child(17), nullptr);
  QCOMPARE(bar->child(-1), nullptr);
  for (int n = 0; n < bar->childCount(); ++n) {
    QCOMPARE(bar->indexOfChild(bar->child(n)), n);
    QCOMPARE(bar->child(n)->parent(), bar);
  }
}

void RibbonKeyboardTest::namesAndRoles() {
  QAccessibleInterface* const bar = interface();
  QCOMPARE(bar->child(0)->role(), QAccessible::PageTab);
  QCOMPARE(bar->child(0)->text(QAccessible::Name), QString("Início"));
  QCOMPARE(bar->child(3)->text(QAccessible::Name), QString("Ferramentas"));
  QCOMPARE(bar->child(4)->role(), QAccessible::PushButton);
  QCOMPARE(bar->child(4)->text(QAccessible::Name), QString("Incluir Requisição"));
  QCOMPARE(bar->child(4)->text(QAccessible::Description), QString("Requisição"));
  QCOMPARE(bar->child(6)->text(QAccessible::Help), QString("Exluir Requisição"));
  QCOMPARE(bar->child(8)->role(), QAccessible::PushButton);
  QCOMPARE(bar->child(8)->text(QAccessible::Name), QString("Requisição..."));
  QCOMPARE(bar->child(9)->text(QAccessible::Description), QString("Pesquisar"));
}

void RibbonKeyboardTest::placesOfChildren() {
  QAccessibleInterface* const bar = interface();
  const QPoint button = ribbon_->mapToGlobal(middle(*ribbon_, ButMouse, 2).toPoint());
  QVERIFY(bar->child(5)->rect().contains(button));
  QCOMPARE(bar->childAt(button.x(), button.y()), bar->child(5));
  const QPoint nowhere = ribbon_->mapToGlobal(QPoint(1300, 60));
  QCOMPARE(bar->childAt(nowhere.x(), nowhere.y()), nullptr);
}

void RibbonKeyboardTest::statesOfChildren() {
  QAccessibleInterface* const bar = interface();
  QVERIFY(bar->child(0)->state().selected);
  QVERIFY(!bar->child(1)->state().selected);
  QVERIFY(bar->child(4)->state().focusable);
  QVERIFY(!bar->child(4)->state().focused);
  ribbon_->setFocusItem({ButMouse, 1});
  QVERIFY(bar->child(4)->state().focused);
  QCOMPARE(bar->focusChild(), bar->child(4));
}

void RibbonKeyboardTest::pressingByAction() {
  QSignalSpy clicks(ribbon_, &FaixaRibbon::ButtonClick);
  QAccessibleActionInterface* const action = interface()->child(4)->actionInterface();
  QVERIFY(action != nullptr);
  QVERIFY(action->actionNames().contains(QAccessibleActionInterface::pressAction()));
  action->doAction(QAccessibleActionInterface::pressAction());
  QCOMPARE(clicks.size(), 1);
  QCOMPARE(clicks[0][0].toString(), QString("0"));
  action->doAction(QAccessibleActionInterface::setFocusAction());
  QVERIFY(ribbon_->focusItem() == Ref(ButMouse, 1));
}

void RibbonKeyboardTest::childrenOutliveARebuilding() {
  QAccessibleInterface* const first = interface()->child(4);
  QAccessibleInterface* const last = interface()->child(15);
  QCOMPARE(last->text(QAccessible::Name), QString("Iniciados e Abertos"));
  ribbon_->press({TabMouse, 3});
  QCOMPARE(first->text(QAccessible::Name), QString("Backup de Dados"));
  QVERIFY(!last->isValid());
  QVERIFY(last->state().invalid);
  QCOMPARE(last->text(QAccessible::Name), QString());
  last->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

QUARTELA_TEST_MAIN(RibbonKeyboardTest)
#include "RibbonKeyboard_test.moc"
