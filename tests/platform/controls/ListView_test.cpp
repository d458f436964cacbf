#include "platform/controls/ListView.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "platform/controls/ListSource.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

QStringList texts(const ListView& list, int n = 0) {
  QStringList all;
  for (int row = 0; row < list.count(); ++row) {
    all.append(list.subItem(row, n));
  }
  return all;
}

QPoint middleOf(const ListView& list, int row, int column = 0) {
  return list.visualRect(list.model()->index(row, column)).center();
}

}  // namespace

// Names by number, which counts what is asked of it.
class CountingSource : public ListSource {
 public:
  CountingSource(int count, int& asked) : count_(count), asked_(asked) {}
  int count() const override { return count_; }
  QString text(int row, int cell) const override {
    ++asked_;
    // 7 shares no factor with the counts used here: an order of its own for column 1.
    return cell == 0   ? QStringLiteral("%1").arg(row, 4, 10, QLatin1Char('0'))
           : cell == 1 ? QStringLiteral("name %1").arg(row * 7 % count_, 4, 10, QLatin1Char('0'))
                       : QString();
  }
  int icon(int row) const override { return row % 3; }

 private:
  int count_;
  int& asked_;
};

class ListViewTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();
  void widthsComeInTheMeasureGiven_data();
  void widthsComeInTheMeasureGiven();
  void rowsAreThereAtOnceAndShownLater();
  void wholeRowsAndSingleCellsAreTheSame();
  void rowsThatDoNotExistRaise9();
  void clearLeavesColumnsOnly();
  void clearWhileRowsWait();
  void refillingShowsTheNewRows();
  void removingARow();
  void firstRowIsCurrentAfterFilling();
  void selectingByProgramIsSilent();
  void fillingIsSilent();
  void clicksTellTheRow();
  void aPressThatIsDraggedStaysOnItsRow();
  void pressBesideTheRowsTellsNothing();
  void doubleClickAndEnterActivate();
  void deleteAsksForDeletion();
  void arrowsMoveAndTell();
  void firstArrowSelectsTheCurrentRow();
  void homeEndAndPages();
  void typingJumps();
  void typingMeetsAccentsBehindTheirLetters();
  void typingTheSameLetterGoesOn();
  void headerTellsTheColumnFromOne();
  void sortsByColumnAndTurnsRound();
  void selectionStaysOnItsRow();
  void rowsAddedToASortedListGoToTheirPlace();
  void changingASortedCellMovesTheRow();
  void checkBoxes();
  void checkBoxByMouseAndKey();
  void iconsByNumber();
  void firstColumnIsNeverCutShort();
  void columnsShareWhatIsLeft();
  void aColumnSetByHandKeepsItsWidth();
  void aTextCutShortShowsWholeInATip();
  void rowsOfASourceAreReadWhenTheyAreShown();
  void rowsOfASourceBehaveAsOthers();
  void rowsOfASourceCanBeChanged();
  void aListMayBeGivenAnotherSource();
  void contextMenuByMouseAndKey();
  void findsBeginningsOfSubItems_data();
  void findsBeginningsOfSubItems();
  void ensureVisibleScrolls();
  void rowsHaveOneHeight();
  void manyRows();

 private:
  void show();
  std::unique_ptr<ListView> list_;
};

void ListViewTest::init() {
  list_ = std::make_unique<ListView>();
  list_->addColumn("N°.", ColumnWidth::pixels(90));
  list_->addColumn("NOME", ColumnWidth::pixels(200));
  list_->addColumn("VALOR", ColumnWidth::pixels(100), Qt::AlignRight);
}

void ListViewTest::cleanup() {
  list_.reset();
}

void ListViewTest::show() {
  list_->resize(500, 240);
  list_->show();
  list_->activateWindow();
  list_->setFocus();
  QVERIFY(QTest::qWaitForWindowActive(list_.get()));
  QTRY_VERIFY(list_->hasFocus());
  list_->flush();
}

void ListViewTest::widthsComeInTheMeasureGiven_data() {
  QTest::addColumn<int>("measured");
  QTest::addColumn<int>("wanted");
  QTest::newRow("pixels") << ColumnWidth::pixels(90).toPixels(96) << 90;
  QTest::newRow("an inch in twips") << ColumnWidth::twips(1440).toPixels(96) << 96;
  QTest::newRow("an inch in millimetres")
      << ColumnWidth::hundredthsOfMillimetre(2540).toPixels(96) << 96;
  QTest::newRow("125%") << ColumnWidth::hundredthsOfMillimetre(2540).toPixels(120) << 120;
  QTest::newRow("rounded") << ColumnWidth::hundredthsOfMillimetre(1411).toPixels(96) << 53;
}

void ListViewTest::widthsComeInTheMeasureGiven() {
  QFETCH(int, measured);
  QFETCH(int, wanted);
  QCOMPARE(measured, wanted);
}

void ListViewTest::rowsAreThereAtOnceAndShownLater() {
  QSignalSpy inserted(list_->model(), &QAbstractItemModel::rowsInserted);
  QCOMPARE(list_->addItem("a"), 0);
  QCOMPARE(list_->addItem("b"), 1);
  list_->setSubItem(0, 1, "first");
  QCOMPARE(list_->count(), 2);
  QCOMPARE(list_->subItem(0, 1), "first");
  QCOMPARE(inserted.size(), 0);
  QTRY_COMPARE(inserted.size(), 1);
  QCOMPARE(list_->model()->rowCount(), 2);
  QCOMPARE(list_->model()->index(0, 1).data().toString(), "first");
}

void ListViewTest::wholeRowsAndSingleCellsAreTheSame() {
  const QStringList row{"1", "Ana", "2,00"};
  list_->addRow(std::span<const QString>(row.constData(), 3));
  list_->addRow({"1", "Ana", "2,00"});
  const int third = list_->addItem("1");
  list_->setSubItem(third, 1, "Ana");
  list_->setSubItem(third, 2, "2,00");
  list_->setText(third, "1");
  for (int n = 0; n < 3; ++n) {
    QCOMPARE(texts(*list_, n), (QStringList{row.at(n), row.at(n), row.at(n)}));
  }
  QCOMPARE(list_->addRow({}), 3);
  QCOMPARE(list_->text(3), QString());
}

void ListViewTest::rowsThatDoNotExistRaise9() {
  list_->addItem("a");
  const auto raises9 = [](const auto& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.number() == 9;
    }
    return false;
  };
  QVERIFY(raises9([this] { (void)list_->text(1); }));
  QVERIFY(raises9([this] { (void)list_->text(-1); }));
  QVERIFY(raises9([this] { (void)list_->subItem(0, -1); }));
  QVERIFY(raises9([this] { list_->setSubItem(5, 1, "x"); }));
  QVERIFY(raises9([this] { list_->selectRow(1); }));
  QVERIFY(raises9([this] { list_->removeItem(1); }));
  QVERIFY(raises9([this] { (void)list_->isChecked(1); }));
  QVERIFY(raises9([this] { list_->setColumnHeader(3, "x"); }));
  QVERIFY(!raises9([this] { (void)list_->subItem(0, 99); }));
}

void ListViewTest::clearLeavesColumnsOnly() {
  list_->addRow({"1", "Ana"});
  list_->flush();
  list_->clear();
  QCOMPARE(list_->count(), 0);
  QCOMPARE(list_->selectedRow(), -1);
  QCOMPARE(list_->columnCount(), 3);
  QCOMPARE(list_->model()->rowCount(), 0);
}

void ListViewTest::clearWhileRowsWait() {
  list_->addItem("a");
  list_->clear();
  list_->addItem("b");
  QTRY_COMPARE(list_->model()->rowCount(), 1);
  QCOMPARE(texts(*list_), QStringList{"b"});
}

void ListViewTest::refillingShowsTheNewRows() {
  show();
  for (const int rows : {30, 3, 50}) {
    list_->clear();
    for (int row = 0; row < rows; ++row) {
      list_->addItem(QString::number(row));
    }
    QTRY_COMPARE(list_->model()->rowCount(), rows);
    QCOMPARE(list_->selectedRow(), 0);
  }
}

void ListViewTest::removingARow() {
  for (const char* text : {"a", "b", "c"}) {
    list_->addItem(QLatin1String(text));
  }
  list_->selectRow(2);
  list_->removeItem(0);
  QCOMPARE(texts(*list_), (QStringList{"b", "c"}));
  QCOMPARE(list_->selectedRow(), 1);
}

void ListViewTest::firstRowIsCurrentAfterFilling() {
  QCOMPARE(list_->selectedRow(), -1);
  list_->addItem("a");
  list_->addItem("b");
  QCOMPARE(list_->selectedRow(), 0);
  QVERIFY(!list_->hasSelection());
}

void ListViewTest::selectingByProgramIsSilent() {
  QSignalSpy clicked(list_.get(), &ListView::itemClicked);
  list_->addItem("a");
  list_->addItem("b");
  list_->selectRow(1);
  QCOMPARE(list_->selectedRow(), 1);
  QVERIFY(list_->hasSelection());
  list_->selectRow(-1);
  QVERIFY(!list_->hasSelection());
  QCOMPARE(clicked.size(), 0);
}

void ListViewTest::fillingIsSilent() {
  QSignalSpy clicked(list_.get(), &ListView::itemClicked);
  QSignalSpy toggled(list_.get(), &ListView::itemCheckToggled);
  list_->setCheckBoxes(true);
  for (int row = 0; row < 10; ++row) {
    list_->addItem(QString::number(row));
    list_->setChecked(row, true);
  }
  list_->flush();
  QCOMPARE(clicked.size(), 0);
  QCOMPARE(toggled.size(), 0);
}

void ListViewTest::clicksTellTheRow() {
  list_->addItem("a");
  list_->addItem("b");
  show();
  QSignalSpy clicked(list_.get(), &ListView::itemClicked);
  QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, middleOf(*list_, 1, 2));
  QCOMPARE(clicked.size(), 1);
  QCOMPARE(clicked.takeFirst().at(0).toInt(), 1);
  QCOMPARE(list_->selectedRow(), 1);
  QTest::mouseClick(list_->viewport(), Qt::RightButton, {}, middleOf(*list_, 0));
  QCOMPARE(clicked.size(), 1);
  QCOMPARE(clicked.takeFirst().at(0).toInt(), 0);
  QCOMPARE(list_->selectedRow(), 0);
}

// The row last told is the one that shows as current.
void ListViewTest::aPressThatIsDraggedStaysOnItsRow() {
  for (const char* text : {"a", "b", "c", "d"}) {
    list_->addItem(QLatin1String(text));
  }
  show();
  QSignalSpy clicked(list_.get(), &ListView::itemClicked);
  QTest::mousePress(list_->viewport(), Qt::LeftButton, {}, middleOf(*list_, 0));
  const QPoint below = middleOf(*list_, 3);
  QMouseEvent move(QEvent::MouseMove, below, list_->viewport()->mapToGlobal(below), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(list_->viewport(), &move);
  QTest::mouseRelease(list_->viewport(), Qt::LeftButton, {}, below);
  QCOMPARE(clicked.size(), 1);
  QCOMPARE(clicked.first().at(0).toInt(), 0);
  QCOMPARE(list_->selectedRow(), 0);
}

void ListViewTest::pressBesideTheRowsTellsNothing() {
  list_->addItem("a");
  show();
  QSignalSpy clicked(list_.get(), &ListView::itemClicked);
  QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, {20, list_->viewport()->height() - 5});
  QCOMPARE(clicked.size(), 0);
}

void ListViewTest::doubleClickAndEnterActivate() {
  list_->addItem("a");
  list_->addItem("b");
  show();
  QSignalSpy activated(list_.get(), &ListView::itemActivated);
  QSignalSpy twice(list_.get(), &ListView::itemDoubleClicked);
  QTest::mouseDClick(list_->viewport(), Qt::LeftButton, {}, middleOf(*list_, 1));
  QCOMPARE(twice.size(), 1);
  QCOMPARE(activated.takeFirst().at(0).toInt(), 1);
  QTest::keyClick(list_.get(), Qt::Key_Return);
  QCOMPARE(activated.takeFirst().at(0).toInt(), list_->selectedRow());
  QTest::keyClick(list_.get(), Qt::Key_Enter, Qt::KeypadModifier);
  QCOMPARE(activated.size(), 1);
  QCOMPARE(twice.size(), 1);
}

void ListViewTest::deleteAsksForDeletion() {
  show();
  QSignalSpy asked(list_.get(), &ListView::deleteRequested);
  QTest::keyClick(list_.get(), Qt::Key_Delete);
  QCOMPARE(asked.size(), 0);
  list_->addItem("a");
  list_->addItem("b");
  list_->selectRow(1);
  QTest::keyClick(list_.get(), Qt::Key_Delete);
  QCOMPARE(asked.takeFirst().at(0).toInt(), 1);
  QCOMPARE(list_->count(), 2);
}

void ListViewTest::arrowsMoveAndTell() {
  for (const char* text : {"a", "b", "c"}) {
    list_->addItem(QLatin1String(text));
  }
  show();
  list_->selectRow(0);
  QSignalSpy clicked(list_.get(), &ListView::itemClicked);
  QTest::keyClick(list_.get(), Qt::Key_Down);
  QTest::keyClick(list_.get(), Qt::Key_Down);
  QTest::keyClick(list_.get(), Qt::Key_Down);
  QTest::keyClick(list_.get(), Qt::Key_Up);
  QList<int> rows;
  for (const auto& call : clicked) {
    rows.append(call.at(0).toInt());
  }
  QCOMPARE(rows, (QList<int>{1, 2, 1}));
}

void ListViewTest::firstArrowSelectsTheCurrentRow() {
  list_->addItem("a");
  list_->addItem("b");
  show();
  QSignalSpy clicked(list_.get(), &ListView::itemClicked);
  QTest::keyClick(list_.get(), Qt::Key_Down);
  QCOMPARE(list_->selectedRow(), 0);
  QVERIFY(list_->hasSelection());
  QCOMPARE(clicked.size(), 1);
  QTest::keyClick(list_.get(), Qt::Key_Down);
  QCOMPARE(list_->selectedRow(), 1);
}

void ListViewTest::homeEndAndPages() {
  for (int row = 0; row < 200; ++row) {
    list_->addItem(QString::number(row));
  }
  show();
  QTest::keyClick(list_.get(), Qt::Key_End);
  QCOMPARE(list_->selectedRow(), 199);
  QTest::keyClick(list_.get(), Qt::Key_PageUp);
  const int paged = list_->selectedRow();
  QVERIFY(paged > 150 && paged < 199);
  QTest::keyClick(list_.get(), Qt::Key_PageDown);
  QVERIFY(list_->selectedRow() > paged + 3);
  QTest::keyClick(list_.get(), Qt::Key_Home);
  QCOMPARE(list_->selectedRow(), 0);
}

void ListViewTest::typingJumps() {
  for (const char* text : {"Ana", "Bia", "Beto", "Caio"}) {
    list_->addRow({QLatin1String(text), "Zeca"});
  }
  show();
  list_->selectRow(0);
  QSignalSpy clicked(list_.get(), &ListView::itemClicked);
  QTest::keyClicks(list_.get(), "be");
  QCOMPARE(list_->selectedRow(), 2);
  QVERIFY(!clicked.isEmpty());
  QCOMPARE(clicked.last().at(0).toInt(), 2);
}

void ListViewTest::typingMeetsAccentsBehindTheirLetters() {
  list_->addItem("Bola");
  list_->addItem("E\u0301lio");
  list_->addItem("Íris");
  show();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Eacute, Qt::NoModifier, QStringLiteral("é"));
  QApplication::sendEvent(list_.get(), &press);
  QCOMPARE(list_->selectedRow(), 1);
}

void ListViewTest::typingTheSameLetterGoesOn() {
  for (const char* text : {"Ana", "Bia", "Beto"}) {
    list_->addItem(QLatin1String(text));
  }
  show();
  list_->selectRow(0);
  QApplication::setKeyboardInputInterval(0);
  QTest::keyClicks(list_.get(), "b");
  QCOMPARE(list_->selectedRow(), 1);
  QTest::keyClicks(list_.get(), "b");
  QCOMPARE(list_->selectedRow(), 2);
  QTest::keyClicks(list_.get(), "b");
  QCOMPARE(list_->selectedRow(), 1);
  QTest::keyClicks(list_.get(), "z");
  QCOMPARE(list_->selectedRow(), 1);
  QApplication::setKeyboardInputInterval(400);
}

void ListViewTest::headerTellsTheColumnFromOne() {
  show();
  QSignalSpy clicked(list_.get(), &ListView::columnClicked);
  QHeaderView* header = list_->header();
  for (int column = 0; column < 3; ++column) {
    const QPoint place(header->sectionViewportPosition(column) + 30, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(clicked.takeFirst().at(0).toInt(), column + 1);
  }
}

void ListViewTest::sortsByColumnAndTurnsRound() {
  list_->addRow({"1", "bia", "9"});
  list_->addRow({"2", "Ana", "10"});
  list_->addRow({"3", "Érica", "1"});
  list_->addRow({"4", "eva", "2"});
  list_->setSortKey(1);
  list_->flush();
  QCOMPARE(texts(*list_), (QStringList{"1", "2", "3", "4"}));
  list_->setSorted(true);
  list_->flush();
  QCOMPARE(texts(*list_, 1), (QStringList{"Ana", "bia", "Érica", "eva"}));
  list_->setSortOrder(Qt::DescendingOrder);
  list_->flush();
  QCOMPARE(texts(*list_, 1), (QStringList{"eva", "Érica", "bia", "Ana"}));
  list_->setSortKey(2);
  list_->flush();
  QCOMPARE(texts(*list_, 2), (QStringList{"9", "2", "10", "1"}));
  QVERIFY(list_->header()->isSortIndicatorShown());
  QCOMPARE(list_->header()->sortIndicatorSection(), 2);
}

void ListViewTest::selectionStaysOnItsRow() {
  for (const char* text : {"c", "a", "b"}) {
    list_->addItem(QLatin1String(text));
  }
  list_->selectRow(0);
  list_->setSorted(true);
  QCOMPARE(list_->selectedRow(), 2);
  QCOMPARE(list_->text(list_->selectedRow()), "c");
  QVERIFY(list_->hasSelection());
}

void ListViewTest::rowsAddedToASortedListGoToTheirPlace() {
  list_->setSorted(true);
  list_->addItem("b");
  list_->flush();
  const int row = list_->addItem("a");
  list_->setSubItem(row, 1, "of a");
  list_->addItem("c");
  QCOMPARE(list_->subItem(row, 1), "of a");
  QTRY_COMPARE(texts(*list_), (QStringList{"a", "b", "c"}));
  QCOMPARE(list_->subItem(0, 1), "of a");
}

void ListViewTest::changingASortedCellMovesTheRow() {
  list_->setSortKey(1);
  list_->setSorted(true);
  list_->addRow({"1", "a"});
  list_->addRow({"2", "b"});
  list_->flush();
  list_->setSubItem(0, 1, "z");
  QTRY_COMPARE(texts(*list_), (QStringList{"2", "1"}));
}

void ListViewTest::checkBoxes() {
  list_->addItem("a");
  list_->flush();
  const QModelIndex cell = list_->model()->index(0, 0);
  QVERIFY(!cell.data(Qt::CheckStateRole).isValid());
  list_->setCheckBoxes(true);
  QCOMPARE(cell.data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
  list_->setChecked(0, true);
  QVERIFY(list_->isChecked(0));
  QCOMPARE(cell.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
  QVERIFY(!list_->model()->index(0, 1).data(Qt::CheckStateRole).isValid());
}

void ListViewTest::checkBoxByMouseAndKey() {
  list_->setCheckBoxes(true);
  list_->addItem("a");
  list_->addItem("b");
  show();
  QSignalSpy toggled(list_.get(), &ListView::itemCheckToggled);
  const QRect cell = list_->visualRect(list_->model()->index(1, 0));
  QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, {cell.left() + 10, cell.center().y()});
  QCOMPARE(toggled.size(), 1);
  QCOMPARE(toggled.at(0).at(0).toInt(), 1);
  QCOMPARE(toggled.at(0).at(1).toBool(), true);
  QVERIFY(list_->isChecked(1));
  QCOMPARE(list_->selectedRow(), 1);
  QTest::keyClick(list_.get(), Qt::Key_Space);
  QCOMPARE(toggled.size(), 2);
  QVERIFY(!list_->isChecked(1));
  // A click on the text leaves the tick alone.
  QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, middleOf(*list_, 0, 1));
  QCOMPARE(toggled.size(), 2);
}

void ListViewTest::iconsByNumber() {
  QPixmap red(16, 16);
  red.fill(Qt::red);
  QPixmap blue(16, 16);
  blue.fill(Qt::blue);
  list_->setIconList({QIcon(red), QIcon(blue)}, {16, 16});
  list_->addItem("a");
  list_->setIcon(0, 2);
  list_->flush();
  const QModelIndex cell = list_->model()->index(0, 0);
  const auto shown = [&cell] { return cell.data(Qt::DecorationRole).value<QIcon>(); };
  QCOMPARE(shown().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::blue));
  list_->setIcon(0, 1);
  QCOMPARE(shown().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
  for (const int none : {0, 3}) {
    list_->setIcon(0, none);
    QVERIFY(!cell.data(Qt::DecorationRole).isValid());
  }
  QCOMPARE(list_->icon(0), 3);
}

void ListViewTest::firstColumnIsNeverCutShort() {
  ListView narrow;
  narrow.addColumn("N°.", ColumnWidth::pixels(20));
  QPixmap icon(32, 32);
  icon.fill(Qt::red);
  narrow.setIconList({QIcon(icon)}, {32, 32});
  narrow.setIcon(narrow.addItem("0001/14"), 1);
  narrow.flush();
  QVERIFY(narrow.columnWidth(0) >= 32 + narrow.fontMetrics().horizontalAdvance("0001/14"));
}

void ListViewTest::columnsShareWhatIsLeft() {
  ListView list;
  list.addColumn(QStringLiteral("A"), ColumnWidth::pixels(100));
  list.addColumn(QStringLiteral("B"), ColumnWidth::pixels(50));
  list.addColumn(QStringLiteral("C"), ColumnWidth::pixels(150));
  list.resize(900, 200);
  list.show();
  const auto total = [&list] { return list.header()->length(); };
  QCOMPARE(total(), list.viewport()->width());
  QVERIFY(std::abs(list.columnWidth(0) - 2 * list.columnWidth(1)) <= 2);
  QVERIFY(std::abs(list.columnWidth(2) - 3 * list.columnWidth(1)) <= 3);
  list.resize(1300, 200);
  QCOMPARE(total(), list.viewport()->width());
  list.resize(200, 200);
  QCOMPARE(list.columnWidth(0), 100);
  QCOMPARE(list.columnWidth(1), 50);
  QCOMPARE(list.columnWidth(2), 150);
  // A scroll bar takes its room from what is shared.
  list.resize(900, 200);
  for (int row = 0; row < 100; ++row) {
    list.addItem(QStringLiteral("x"));
  }
  list.flush();
  QTRY_VERIFY(list.verticalScrollBar()->isVisible());
  QTRY_COMPARE(total(), list.viewport()->width());
  QVERIFY(!list.horizontalScrollBar()->isVisible());
}

void ListViewTest::aColumnSetByHandKeepsItsWidth() {
  list_->resize(900, 200);
  show();
  const int border = list_->columnWidth(0) + list_->columnWidth(1);
  QWidget* const header = list_->header()->viewport();
  const auto drag = [header](QEvent::Type type, int x, Qt::MouseButtons held) {
    const QPointF place(x, 8);
    QMouseEvent event(type, place, header->mapToGlobal(place), Qt::LeftButton, held, {});
    QApplication::sendEvent(header, &event);
  };
  drag(QEvent::MouseButtonPress, border - 1, Qt::LeftButton);
  drag(QEvent::MouseMove, border + 60, Qt::LeftButton);
  drag(QEvent::MouseButtonRelease, border + 60, Qt::NoButton);
  const int byHand = list_->columnWidth(1);
  QVERIFY(byHand > border - list_->columnWidth(0) + 40);
  list_->resize(1200, 200);
  QCOMPARE(list_->columnWidth(1), byHand);
  QCOMPARE(list_->header()->length(), list_->viewport()->width());
  list_->resize(300, 200);
  QCOMPARE(list_->columnWidth(1), byHand);
}

void ListViewTest::aTextCutShortShowsWholeInATip() {
  ListView list;
  list.addColumn(QStringLiteral("N"), ColumnWidth::pixels(60));
  list.addColumn(QStringLiteral("NOME"), ColumnWidth::pixels(80));
  const QString name = QStringLiteral("MARIA <B> DA CONCEIÇÃO & FILHOS DO NASCIMENTO");
  list.addRow({QStringLiteral("1"), name});
  list.addRow({QStringLiteral("2"), QStringLiteral("ANA")});
  list.resize(140, 120);
  list.show();
  list.flush();
  const auto askAt = [&list](int row) {
    const QPoint place = middleOf(list, row, 1);
    QHelpEvent event(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
    QApplication::sendEvent(list.viewport(), &event);
  };
  askAt(0);
  QVERIFY(QToolTip::isVisible());
  QCOMPARE(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), name);
  askAt(1);
  QTRY_VERIFY(!QToolTip::isVisible());
  list.resize(900, 120);
  askAt(0);
  QVERIFY(!QToolTip::isVisible());
}

void ListViewTest::rowsOfASourceAreReadWhenTheyAreShown() {
  int asked = 0;
  list_->resize(400, 200);
  show();
  list_->setSource(std::make_unique<CountingSource>(10'000, asked));
  list_->flush();
  list_->repaint();
  QCOMPARE(list_->count(), 10'000);
  QVERIFY(asked > 0);
  QVERIFY2(asked < 500, qPrintable(QString::number(asked)));
  QVERIFY(list_->verticalScrollBar()->maximum() > 0);
}

void ListViewTest::rowsOfASourceBehaveAsOthers() {
  int asked = 0;
  show();
  list_->setIconList({QIcon(), QIcon()}, {16, 16});
  list_->setSource(std::make_unique<CountingSource>(10, asked));
  QCOMPARE(list_->count(), 10);
  QCOMPARE(list_->text(3), QString("0003"));
  QCOMPARE(list_->subItem(3, 1), QString("name 0001"));
  QCOMPARE(list_->subItem(3, 9), QString());
  QCOMPARE(list_->icon(2), 2);
  QCOMPARE(list_->tag(2), QString());
  QVERIFY(!list_->isChecked(2));
  QCOMPARE(list_->findSubItem("NAME 0001"), 3);
  QCOMPARE(list_->selectedRow(), 0);
  list_->selectRow(3);
  list_->setSortKey(1);
  list_->setSorted(true);
  list_->flush();
  QCOMPARE(texts(*list_, 1).first(), QString("name 0000"));
  QCOMPARE(texts(*list_, 1).last(), QString("name 0009"));
  QCOMPARE(list_->selectedRow(), 1);
  QCOMPARE(list_->text(1), QString("0003"));
  QCOMPARE(list_->icon(1), 0);
  list_->setSortOrder(Qt::DescendingOrder);
  list_->flush();
  QCOMPARE(texts(*list_, 1).first(), QString("name 0009"));
  QCOMPARE(list_->text(list_->selectedRow()), QString("0003"));
  QTest::keyClicks(list_.get(), "0005");
  QCOMPARE(list_->text(list_->selectedRow()), QString("0005"));
  list_->clear();
  QCOMPARE(list_->count(), 0);
}

void ListViewTest::rowsOfASourceCanBeChanged() {
  int asked = 0;
  show();
  list_->setSource(std::make_unique<CountingSource>(10, asked));
  list_->setSortKey(1);
  list_->setSorted(true);
  list_->flush();
  const QString third = list_->text(2);
  const int icon = list_->icon(2);
  list_->setTag(2, "tag");
  QCOMPARE(list_->tag(2), QString("tag"));
  QCOMPARE(list_->text(2), third);
  QCOMPARE(list_->icon(2), icon);
  list_->removeItem(0);
  QCOMPARE(list_->count(), 9);
  QCOMPARE(list_->tag(1), QString("tag"));
  list_->addRow({QString("new"), QString("name 0000b")});
  list_->flush();
  QCOMPARE(list_->text(0), QString("new"));
  list_->setChecked(0, true);
  QVERIFY(list_->isChecked(0));
}

void ListViewTest::aListMayBeGivenAnotherSource() {
  int asked = 0;
  show();
  list_->addRow({QString("own"), QString("row")});
  list_->setSource(std::make_unique<CountingSource>(10, asked));
  list_->flush();
  list_->selectRow(7);
  list_->setSource(std::make_unique<CountingSource>(3, asked));
  QVERIFY(!list_->hasSelection());
  list_->flush();
  QCOMPARE(texts(*list_), QStringList({"0000", "0001", "0002"}));
  QCOMPARE(list_->selectedRow(), 0);
}

void ListViewTest::contextMenuByMouseAndKey() {
  list_->addItem("a");
  list_->addItem("b");
  show();
  QSignalSpy asked(list_.get(), &ListView::contextMenuRequested);
  const QPoint place = middleOf(*list_, 1);
  QContextMenuEvent byMouse(QContextMenuEvent::Mouse, place, list_->viewport()->mapToGlobal(place));
  QApplication::sendEvent(list_->viewport(), &byMouse);
  QCOMPARE(asked.size(), 1);
  QCOMPARE(asked.at(0).at(0).toInt(), 1);
  QCOMPARE(asked.at(0).at(1).toPoint(), list_->viewport()->mapToGlobal(place));

  list_->selectRow(0);
  QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {0, 0}, list_->mapToGlobal(QPoint(0, 0)));
  QApplication::sendEvent(list_->viewport(), &byKey);
  QCOMPARE(asked.at(1).at(0).toInt(), 0);

  const QPoint beside(10, list_->viewport()->height() - 4);
  QContextMenuEvent outside(QContextMenuEvent::Mouse, beside,
                            list_->viewport()->mapToGlobal(beside));
  QApplication::sendEvent(list_->viewport(), &outside);
  QCOMPARE(asked.at(2).at(0).toInt(), -1);
}

void ListViewTest::findsBeginningsOfSubItems_data() {
  QTest::addColumn<QString>("beginning");
  QTest::addColumn<int>("from");
  QTest::addColumn<int>("row");
  QTest::newRow("beginning") << "Padaria" << 0 << 0;
  QTest::newRow("case") << "pADA" << 0 << 0;
  QTest::newRow("another column") << "7" << 0 << 1;
  QTest::newRow("accented") << "ÁG" << 0 << 2;
  QTest::newRow("not inside") << "Central" << 0 << -1;
  QTest::newRow("not the row's text") << "0002" << 0 << -1;
  QTest::newRow("empty") << "" << 0 << -1;
  QTest::newRow("from the next on") << "p" << 1 << 1;
  QTest::newRow("accent behind its letter") << QStringLiteral("a\u0301g") << 0 << 2;
  QTest::newRow("row with accents behind") << QStringLiteral("AÇÃO") << 0 << 3;
  QTest::newRow("bare letter of an accented one") << QStringLiteral("Aça") << 0 << -1;
}

void ListViewTest::findsBeginningsOfSubItems() {
  QFETCH(QString, beginning);
  QFETCH(int, from);
  QFETCH(int, row);
  list_->addRow({"0001", "Padaria Central", "12,00"});
  list_->addRow({"0002", "Posto Norte", "77,00"});
  list_->addRow({"0003", "Água Mineral", "3,00"});
  list_->addRow({"0004", "Ac\u0327a\u0303o Social", "1,00"});
  QCOMPARE(list_->findSubItem(beginning, from), row);
}

void ListViewTest::ensureVisibleScrolls() {
  for (int row = 0; row < 500; ++row) {
    list_->addItem(QString::number(row));
  }
  show();
  list_->ensureVisible(400);
  QVERIFY(list_->viewport()->rect().contains(middleOf(*list_, 400)));
  QVERIFY(list_->verticalScrollBar()->value() > 0);
}

void ListViewTest::rowsHaveOneHeight() {
  list_->setIconList({}, {32, 32});
  list_->addItem("a");
  list_->addItem("two\nlines\nof text");
  show();
  const int height = list_->visualRect(list_->model()->index(0, 0)).height();
  QCOMPARE(list_->visualRect(list_->model()->index(1, 0)).height(), height);
  QVERIFY(height >= 32 && height <= 44);
}

void ListViewTest::manyRows() {
  constexpr int kRows = 100'000;
  show();
  for (int row = 0; row < kRows; ++row) {
    list_->addRow({QString::number(kRows - row), "Secretaria de Educação", "1,00"});
  }
  QTRY_COMPARE(list_->model()->rowCount(), kRows);
  list_->setSorted(true);
  list_->flush();
  QCOMPARE(list_->text(0), "1");
  QCOMPARE(list_->text(1), "10");
  QCOMPARE(list_->text(kRows - 1), "99999");
  QCOMPARE(list_->subItem(kRows - 1, 1), "Secretaria de Educação");
}

QUARTELA_TEST_MAIN(ListViewTest)
#include "ListView_test.moc"
