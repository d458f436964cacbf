#include "platform/controls/ListView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "platform/controls/ListModel.h"
#include "platform/controls/ListSource.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

constexpr int kRowMargin = 3;
// What a letter and the accents behind it may take in UTF-8.
constexpr std::size_t kLetterBytes = 9;

QString composed(const QString& text) {
  return text.normalized(QString::NormalizationForm_C);
}

// `beginning` is composed.
bool begins(const QString& text, const QString& beginning) {
  return composed(text).startsWith(beginning, Qt::CaseInsensitive);
}

// As it stands, whatever signs it has; the toolkit would break it into lines.
QString inOneLine(const QString& text) {
  return text.isEmpty()
             ? text
             : QStringLiteral("<p style=\"white-space:pre\">%1</p>").arg(text.toHtmlEscaped());
}

// One height for all rows, without asking any of them.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    const int content = std::max(option.fontMetrics.height(), option.decorationSize.height());
    return {hint.width(), content + 2 * kRowMargin};
  }

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (event->type() != QEvent::ToolTip) {
      return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const bool isCut = index.isValid() && sizeHint(option, index).width() > option.rect.width();
    const QString text = isCut ? index.data().toString() : QString();
    QToolTip::showText(event->globalPos(), inOneLine(text), view->viewport(), option.rect);
    return isCut;
  }
};

bool isMoveKey(int key) {
  constexpr int kKeys[] = {Qt::Key_Up,  Qt::Key_Down,   Qt::Key_Home,
                           Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown};
  return std::find(std::begin(kKeys), std::end(kKeys), key) != std::end(kKeys);
}

}  // namespace

int ColumnWidth::toPixels(int dpi) const {
  return perInch_ == 0 ? amount_ : (amount_ * dpi + perInch_ / 2) / perInch_;
}

ListView::ListView(QWidget* parent) : QTreeView(parent), model_(new ListModel(this)) {
  setModel(model_);
  setItemDelegate(new RowDelegate(this));
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setAlternatingRowColors(true);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  keepSelectionVisible();
  setUpHeader();
  connect(model_, &ListModel::checkToggled, this, &ListView::itemCheckToggled);
}

void ListView::setUpHeader() {
  header()->setSectionsClickable(true);
  header()->setSectionsMovable(false);
  header()->setStretchLastSection(false);
  header()->setHighlightSections(false);
  connect(header(), &QHeaderView::sectionClicked, this,
          [this](int section) { emit columnClicked(section + 1); });
  connect(header(), &QHeaderView::sectionResized, this,
          [this](int section, int, int width) { keepTypedWidth(section, width); });
}

// The selection stays plain to see while the focus is in a field.
void ListView::keepSelectionVisible() {
  QPalette colours = QApplication::palette(this);
  for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText}) {
    colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
  }
  setPalette(colours);
}

void ListView::changeEvent(QEvent* event) {
  QTreeView::changeEvent(event);
  if (event->type() == QEvent::StyleChange) {
    keepSelectionVisible();
  }
}

void ListView::addColumn(const QString& header, ColumnWidth width, Qt::Alignment alignment) {
  least_.append(width.toPixels(logicalDpiX()));
  byHand_.append(false);
  sharing_ = true;
  model_->addColumn(header, alignment);
  sharing_ = false;
  shareWidth();
}

void ListView::keepTypedWidth(int column, int width) {
  if (!sharing_ && column < byHand_.size()) {
    least_[column] = width;
    byHand_[column] = true;
  }
}

// The first column holds the row's key beside icon and tick: it is never cut short.
int ListView::leastWidth(int column) const {
  const int told = least_.at(column);
  return column > 0 || model_->rowCount() == 0 || byHand_.at(0)
             ? told
             : std::max(told, sizeHintForIndex(model_->index(0, 0)).width());
}

// Each column gets its part of what is left, by its least width; so they come out alike however the
// list became as wide as it is.
void ListView::shareWidth() {
  int spare = viewport()->width();
  int sharers = 0;
  for (int column = 0; column < columnCount(); ++column) {
    const int least = leastWidth(column);
    spare -= least;
    sharers += byHand_.at(column) ? 0 : least;
  }
  sharing_ = true;
  for (int column = 0; column < columnCount(); ++column) {
    const int least = leastWidth(column);
    int part = 0;
    if (!byHand_.at(column) && sharers > 0) {
      part = static_cast<int>(std::int64_t{std::max(spare, 0)} * least / sharers);
      spare -= part;
      sharers -= least;
    }
    setColumnWidth(column, least + part);
  }
  sharing_ = false;
}

void ListView::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  shareWidth();
}

void ListView::setColumnHeader(int column, const QString& header) {
  if (column < 0 || column >= columnCount()) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  model_->setHeader(column, header);
}

int ListView::columnCount() const {
  return model_->columnCount();
}

void ListView::clear() {
  model_->clear();
  toShow_ = -1;
}

int ListView::count() const {
  return model_->count();
}

int ListView::checked(int row) const {
  if (row < 0 || row >= count()) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  return row;
}

void ListView::setSource(std::unique_ptr<ListSource> source) {
  model_->setSource(std::move(source));
  toShow_ = -1;
  later();
}

int ListView::addItem(const QString& text) {
  return addRow(std::span<const QString>(&text, 1));
}

int ListView::addRow(std::span<const QString> cells) {
  const int row = model_->append(cells);
  later();
  return row;
}

int ListView::addRow(std::initializer_list<QString> cells) {
  return addRow(std::span<const QString>(cells.begin(), cells.size()));
}

void ListView::setText(int row, const QString& text) {
  setSubItem(row, 0, text);
}

void ListView::setSubItem(int row, int n, const QString& text) {
  if (n < 0) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  model_->setText(checked(row), n, text);
  later();
}

QString ListView::text(int row) const {
  return model_->text(checked(row), 0);
}

QString ListView::subItem(int row, int n) const {
  if (n < 0) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  return model_->text(checked(row), n);
}

void ListView::setTag(int row, const QString& tag) {
  model_->setTag(checked(row), tag);
}

QString ListView::tag(int row) const {
  return model_->tag(checked(row));
}

void ListView::removeItem(int row) {
  model_->removeRow(checked(row));
}

void ListView::setIconList(const QList<QIcon>& icons, QSize size) {
  setIconSize(size);
  model_->setIcons(icons);
}

void ListView::setIcon(int row, int icon) {
  model_->setIcon(checked(row), icon);
}

int ListView::icon(int row) const {
  return model_->icon(checked(row));
}

void ListView::setCheckBoxes(bool on) {
  model_->setCheckBoxes(on);
}

void ListView::setChecked(int row, bool isOn) {
  model_->setChecked(checked(row), isOn);
}

bool ListView::isChecked(int row) const {
  return model_->isChecked(checked(row));
}

int ListView::selectedRow() const {
  if (!currentIndex().isValid() || model_->hasWork()) {
    const_cast<ListView*>(this)->flush();
  }
  return currentIndex().row();
}

void ListView::selectRow(int row) {
  model_->publish();
  if (row == -1) {
    clearSelection();
    return;
  }
  setCurrentIndex(model_->index(checked(row), 0));
}

bool ListView::hasSelection() const {
  return selectionModel()->hasSelection();
}

void ListView::ensureVisible(int row) {
  toShow_ = checked(row);
  if (!model_->hasWork()) {
    showRow();
  }
}

// The last row asked for, once: scrolling to each of many new rows would lay all of them out anew
// each time.
void ListView::showRow() {
  const int row = std::exchange(toShow_, -1);
  if (row >= 0 && row < count()) {
    scrollTo(model_->index(row, 0));
  }
}

int ListView::findSubItem(const QString& beginning, int from) const {
  if (beginning.isEmpty()) {
    return -1;
  }
  const QString wanted = composed(beginning);
  const auto atMost = static_cast<std::size_t>(wanted.size() + 1) * kLetterBytes;
  for (int row = std::max(from, 0); row < count(); ++row) {
    for (int n = 1; n < model_->cells(); ++n) {
      if (begins(model_->head(row, n, atMost), wanted)) {
        return row;
      }
    }
  }
  return -1;
}

void ListView::setSortKey(int cell) {
  if (cell < 0) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  model_->setSortKey(cell);
  showSortIndicator();
}

void ListView::setSortOrder(Qt::SortOrder order) {
  model_->setSortOrder(order);
  showSortIndicator();
}

void ListView::setSorted(bool sorted) {
  model_->setSorted(sorted);
  showSortIndicator();
}

void ListView::showSortIndicator() {
  header()->setSortIndicatorShown(isSorted());
  header()->setSortIndicator(sortKey(), sortOrder());
  later();
}

int ListView::sortKey() const {
  return model_->sortKey();
}

Qt::SortOrder ListView::sortOrder() const {
  return model_->sortOrder();
}

bool ListView::isSorted() const {
  return model_->isSorted();
}

void ListView::later() {
  if (!flushPosted_ && model_->hasWork()) {
    flushPosted_ = true;
    QMetaObject::invokeMethod(this, &ListView::flush, Qt::QueuedConnection);
  }
}

void ListView::flush() {
  flushPosted_ = false;
  model_->publish();
  const QPersistentModelIndex shown(model_->index(toShow_, 0));
  model_->flush();
  keepCurrentRow();
  shareWidth();
  toShow_ = shown.row();
  showRow();
}

void ListView::keepCurrentRow() {
  if (!currentIndex().isValid() && count() > 0) {
    selectionModel()->setCurrentIndex(model_->index(0, 0), QItemSelectionModel::NoUpdate);
  }
}

void ListView::paintEvent(QPaintEvent* event) {
  if (model_->hasWork()) {
    flush();
  }
  QTreeView::paintEvent(event);
}

int ListView::rowAt(const QPoint& position) const {
  return indexAt(position).row();
}

void ListView::mousePressEvent(QMouseEvent* event) {
  const int row = rowAt(event->position().toPoint());
  QTreeView::mousePressEvent(event);
  if (row >= 0 && row < count()) {
    // A press on the tick alone would leave the row where it is.
    if (currentIndex().row() != row) {
      selectRow(row);
    }
    emit itemClicked(row);
  }
}

// Dragging would make another row current than the one that was told.
void ListView::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) {
    QTreeView::mouseMoveEvent(event);
  }
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  const int row = rowAt(event->position().toPoint());
  QTreeView::mouseDoubleClickEvent(event);
  if (row >= 0 && event->button() == Qt::LeftButton) {
    emit itemDoubleClicked(row);
    emit itemActivated(row);
  }
}

void ListView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() != QContextMenuEvent::Keyboard) {
    emit contextMenuRequested(rowAt(viewport()->mapFromGlobal(event->globalPos())),
                              event->globalPos());
    return;
  }
  const int row = selectedRow();
  if (row >= 0) {
    ensureVisible(row);
  }
  const QPoint below = visualRect(currentIndex()).bottomLeft();
  emit contextMenuRequested(row, viewport()->mapToGlobal(below));
}

void ListView::keyPressEvent(QKeyEvent* event) {
  if (model_->hasWork()) {
    flush();
  }
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (plain && (pressCommandKey(event->key()) || selectOnFirstMove(event))) {
    return;
  }
  const int before = currentIndex().row();
  QTreeView::keyPressEvent(event);
  const int after = currentIndex().row();
  if (after >= 0 && after != before) {
    emit itemClicked(after);
  }
}

bool ListView::pressCommandKey(int key) {
  const int row = currentIndex().row();
  const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
  const bool isTick = key == Qt::Key_Space && model_->checkBoxes();
  if (row < 0 || !(isEnter || isTick || key == Qt::Key_Delete)) {
    return false;
  }
  if (isEnter) {
    emit itemActivated(row);
  } else if (isTick) {
    model_->setData(model_->index(row, 0), isChecked(row) ? Qt::Unchecked : Qt::Checked,
                    Qt::CheckStateRole);
  } else {
    emit deleteRequested(row);
  }
  return true;
}

// The current row of a list just filled is not selected yet: the first arrow selects it instead of
// passing it by.
bool ListView::selectOnFirstMove(QKeyEvent* event) {
  if (hasSelection() || !currentIndex().isValid() || !isMoveKey(event->key()) ||
      event->key() == Qt::Key_End || event->key() == Qt::Key_PageDown) {
    return false;
  }
  goTo(currentIndex().row());
  return true;
}

void ListView::goTo(int row) {
  selectRow(row);
  emit itemClicked(row);
}

void ListView::keyboardSearch(const QString& text) {
  const bool goesOn =
      sinceTyped_.isValid() && sinceTyped_.elapsed() < QApplication::keyboardInputInterval();
  typed_ = composed(goesOn ? typed_ + text : text);
  sinceTyped_.start();
  // A new beginning looks behind the current row, so that one letter typed again and again goes on.
  const int start = std::max(currentIndex().row(), 0) + (goesOn || !hasSelection() ? 0 : 1);
  for (int step = 0; step < count(); ++step) {
    const int row = (start + step) % count();
    if (begins(this->text(row), typed_)) {
      goTo(row);
      return;
    }
  }
}

}  // namespace quartela
