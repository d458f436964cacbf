#include "platform/reporting/ReportPreview.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <utility>

// A static library's pictures are taken up only when asked for, and that outside of every
// namespace.
static void bringIcons() {
  Q_INIT_RESOURCE(reporting);
}

namespace quartela::reporting {
namespace {

// Long enough to get on, short enough that keys and clicks are answered at once.
constexpr int kSlice = 20;
constexpr int kLongestWait = 1000;
constexpr int kWholeProgress = 1000;
constexpr QSize kUsualSize{1000, 720};
// What a window manager may put round the window.
constexpr QSize kFrame{24, 56};
constexpr QSize kIcon{20, 20};
constexpr int kPercents[] = {50, 75, 100, 125, 150, 200, 300, 400};
constexpr int kWidthEntry = 0;
constexpr int kPageEntry = 1;

QIcon icon(const char* name) {
  return QIcon(QStringLiteral(":/quartela/reporting/icons/%1.svg").arg(QLatin1String(name)));
}

QString withKey(const QString& text, const QList<QKeySequence>& keys) {
  return keys.isEmpty()
             ? text
             : QStringLiteral("%1 (%2)").arg(text, keys.front().toString(QKeySequence::NativeText));
}

QList<QKeySequence> keys(std::initializer_list<QKeyCombination> combinations) {
  QList<QKeySequence> keys;
  for (const QKeyCombination combination : combinations) {
    keys << QKeySequence(combination);
  }
  return keys;
}

}  // namespace

ReportPreview::ReportPreview(std::shared_ptr<Report> report, PreviewCommands commands,
                             QWidget* parent)
    : QMainWindow(parent),
      report_(std::move(report)),
      commands_(std::move(commands)),
      view_(new PageView(this)) {
  if (report_->state() != Report::State::Building && report_->state() != Report::State::Complete) {
    report_->start();
  }
  bringIcons();
  setWindowTitle(report_->title());
  setCentralWidget(view_);
  setContextMenuPolicy(Qt::NoContextMenu);
  makeToolBar();
  makeStatusBar();
  connect(view_, &PageView::zoomChanged, this, &ReportPreview::showZoom);
  connect(view_, &PageView::turned, this, &ReportPreview::turn);
  connect(&timer_, &QTimer::timeout, this, &ReportPreview::buildSlice);
  timer_.setSingleShot(true);
  timer_.start(kLongestWait);
  resize(kUsualSize.boundedTo(screen()->availableSize() - kFrame));
  view_->setFocus();
  showZoom();
  showState();
}

ReportPreview::~ReportPreview() = default;

ReportPreview* ReportPreview::open(std::shared_ptr<Report> report, PreviewCommands commands,
                                   QWidget* parent) {
  auto* const preview = new ReportPreview(std::move(report), std::move(commands), parent);
  preview->setAttribute(Qt::WA_DeleteOnClose);
  preview->show();
  return preview;
}

QAction* ReportPreview::addCommand(QToolBar& bar, const char* iconName, const QString& text,
                                   const QList<QKeySequence>& shortcuts,
                                   void (ReportPreview::*handler)()) {
  auto* const action = new QAction(icon(iconName), text, this);
  action->setObjectName(QLatin1String(iconName));
  action->setShortcuts(shortcuts);
  action->setToolTip(withKey(text, shortcuts));
  connect(action, &QAction::triggered, this, handler);
  bar.addAction(action);
  QWidget* const button = bar.widgetForAction(action);
  button->setObjectName(QStringLiteral("button-") + QLatin1String(iconName));
  button->setAccessibleName(text);
  return action;
}

void ReportPreview::addKeys(const QList<QKeySequence>& shortcuts,
                            void (ReportPreview::*handler)()) {
  for (const QKeySequence& shortcut : shortcuts) {
    connect(new QShortcut(shortcut, this), &QShortcut::activated, this, handler);
  }
}

// A tool bar that is too narrow hides its last buttons; the one that closes the window stands
// beside it and is always in view.
void ReportPreview::makeToolBar() {
  auto* const strip = new QWidget(this);
  auto* const row = new QHBoxLayout(strip);
  row->setContentsMargins(0, 0, 4, 0);
  row->setSpacing(0);
  auto* const bar = new QToolBar(QStringLiteral("Visualização"), strip);
  bar->setObjectName(QStringLiteral("commands"));
  bar->setMovable(false);
  bar->setIconSize(kIcon);
  bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
  row->addWidget(bar, 1);
  row->addWidget(closeButton(strip));
  addOutput(*bar);
  addPages(*bar);
  bar->addSeparator();
  addZoom(*bar);
  setMenuWidget(strip);
  addKeys(keys({QKeyCombination(Qt::Key_Escape)}), &ReportPreview::escape);
}

QToolButton* ReportPreview::closeButton(QWidget* parent) {
  auto* const button = new QToolButton(parent);
  button->setObjectName(QStringLiteral("button-close"));
  button->setText(QStringLiteral("Fechar"));
  button->setAccessibleName(button->text());
  button->setToolTip(button->text());
  button->setIcon(icon("close"));
  button->setIconSize(kIcon);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setAutoRaise(true);
  connect(button, &QToolButton::clicked, this, &QWidget::close);
  return button;
}

void ReportPreview::addOutput(QToolBar& bar) {
  print_ = addCommand(bar, "print", QStringLiteral("Imprimir"), keys({Qt::CTRL | Qt::Key_P}),
                      &ReportPreview::print);
  save_ = addCommand(bar, "save", QStringLiteral("Salvar como PDF"), keys({Qt::CTRL | Qt::Key_S}),
                     &ReportPreview::save);
  for (QAction* const action : {print_, save_}) {
    qobject_cast<QToolButton*>(bar.widgetForAction(action))
        ->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  }
  print_->setVisible(bool(commands_.print));
  save_->setVisible(bool(commands_.save));
  if (commands_.print || commands_.save) {
    bar.addSeparator();
  }
}

void ReportPreview::addPages(QToolBar& bar) {
  first_ = addCommand(bar, "first", QStringLiteral("Primeira página"),
                      keys({Qt::CTRL | Qt::Key_Home}), &ReportPreview::firstPage);
  previous_ = addCommand(bar, "previous", QStringLiteral("Página anterior"),
                         keys({Qt::CTRL | Qt::Key_PageUp}), &ReportPreview::previousPage);
  auto* const label = new QLabel(QStringLiteral("Página "), &bar);
  label->setContentsMargins(6, 0, 0, 0);
  bar.addWidget(label);
  number_ = new QLineEdit(&bar);
  number_->setObjectName(QStringLiteral("pageNumber"));
  number_->setAccessibleName(QStringLiteral("Número da página"));
  number_->setToolTip(QStringLiteral("Número da página (Ctrl+G)"));
  number_->setAlignment(Qt::AlignRight);
  number_->setMaxLength(6);
  number_->setFixedWidth(number_->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 16);
  connect(number_, &QLineEdit::returnPressed, this, &ReportPreview::takePage);
  number_->installEventFilter(this);
  bar.addWidget(number_);
  count_ = new QLabel(&bar);
  count_->setObjectName(QStringLiteral("pageCount"));
  count_->setContentsMargins(4, 0, 6, 0);
  bar.addWidget(count_);
  next_ = addCommand(bar, "next", QStringLiteral("Próxima página"),
                     keys({Qt::CTRL | Qt::Key_PageDown}), &ReportPreview::nextPage);
  last_ = addCommand(bar, "last", QStringLiteral("Última página"), keys({Qt::CTRL | Qt::Key_End}),
                     &ReportPreview::lastPage);
  addKeys(keys({QKeyCombination(Qt::Key_PageUp)}), &ReportPreview::pageUp);
  addKeys(keys({QKeyCombination(Qt::Key_PageDown)}), &ReportPreview::pageDown);
  addKeys(keys({Qt::CTRL | Qt::Key_G}), &ReportPreview::editPage);
}

void ReportPreview::addZoom(QToolBar& bar) {
  addCommand(bar, "zoom-out", QStringLiteral("Diminuir"), keys({Qt::CTRL | Qt::Key_Minus}),
             &ReportPreview::zoomOut);
  zoom_ = new QComboBox(&bar);
  zoom_->setObjectName(QStringLiteral("zoom"));
  zoom_->setAccessibleName(QStringLiteral("Tamanho na tela"));
  zoom_->setEditable(true);
  zoom_->setInsertPolicy(QComboBox::NoInsert);
  zoom_->setFocusPolicy(Qt::StrongFocus);
  zoom_->addItem(QStringLiteral("Largura da página"));
  zoom_->addItem(QStringLiteral("Página inteira"));
  for (const int percent : kPercents) {
    zoom_->addItem(QStringLiteral("%1%").arg(percent), percent);
  }
  zoom_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  zoom_->installEventFilter(this);
  // Completing would make "300%" of a typed 30.
  zoom_->setCompleter(nullptr);
  zoom_->lineEdit()->installEventFilter(this);
  connect(zoom_, &QComboBox::activated, this, &ReportPreview::pickZoom);
  connect(zoom_->lineEdit(), &QLineEdit::returnPressed, this, &ReportPreview::enterZoom);
  connect(zoom_->lineEdit(), &QLineEdit::editingFinished, this, &ReportPreview::takeZoom);
  bar.addWidget(zoom_);
  addCommand(bar, "zoom-in", QStringLiteral("Aumentar"),
             keys({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}), &ReportPreview::zoomIn);
  addKeys(keys({Qt::CTRL | Qt::Key_0}), &ReportPreview::zoomFull);
  addKeys(keys({Qt::CTRL | Qt::Key_1}), &ReportPreview::zoomWidth);
  addKeys(keys({Qt::CTRL | Qt::Key_2}), &ReportPreview::zoomPage);
}

void ReportPreview::makeStatusBar() {
  building_ = new QWidget(this);
  progress_ = new QProgressBar(building_);
  progress_->setRange(0, kWholeProgress);
  progress_->setAccessibleName(QStringLiteral("Andamento"));
  progress_->setFixedWidth(260);
  cancel_ = new QPushButton(QStringLiteral("Cancelar"), building_);
  cancel_->setObjectName(QStringLiteral("cancel"));
  connect(cancel_, &QPushButton::clicked, this, &ReportPreview::cancelBuilding);
  auto* const row = new QHBoxLayout(building_);
  row->setContentsMargins(6, 3, 6, 3);
  row->addWidget(new QLabel(QStringLiteral("Preparando o relatório…"), building_));
  row->addWidget(progress_);
  row->addWidget(cancel_);
  message_ = new QLabel(this);
  message_->setObjectName(QStringLiteral("message"));
  message_->setContentsMargins(6, 3, 6, 3);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(building_);
  statusBar()->addWidget(message_, 1);
}

void ReportPreview::goToPage(int page) {
  const std::shared_ptr<const Document> shown = document();
  const int last = shown->pageCount();
  const int before = view_->page();
  view_->showPage(shown, std::clamp(page, std::min(1, last), last) - 1);
  if (view_->page() != before) {
    view_->scrollToTop();
  }
  showState();
}

void ReportPreview::firstPage() {
  goToPage(1);
}

void ReportPreview::previousPage() {
  goToPage(page() - 1);
}

void ReportPreview::nextPage() {
  goToPage(page() + 1);
}

void ReportPreview::lastPage() {
  goToPage(document()->pageCount());
}

void ReportPreview::pageUp() {
  if (!view_->scrollBy(-1)) {
    turn(-1);
  }
}

void ReportPreview::pageDown() {
  if (!view_->scrollBy(1)) {
    turn(1);
  }
}

// Reading on backwards begins at the page's foot.
void ReportPreview::turn(int direction) {
  const int before = page();
  goToPage(before + direction);
  if (direction < 0 && page() != before) {
    view_->scrollToBottom();
  }
}

void ReportPreview::editPage() {
  number_->setFocus(Qt::ShortcutFocusReason);
  number_->selectAll();
}

// What is no page of the report leaves the page as it is.
void ReportPreview::takePage() {
  bool isNumber = false;
  const int wanted = number_->text().toInt(&isNumber);
  view_->setFocus();
  if (isNumber && wanted >= 1) {
    goToPage(wanted);
  }
  showState();
}

void ReportPreview::zoomIn() {
  const int now = view_->percent();
  const auto* const next = std::upper_bound(std::begin(kPercents), std::end(kPercents), now);
  view_->setZoom(PageView::Zoom::Percent,
                 next == std::end(kPercents) ? PageView::kMostPercent : *next);
}

void ReportPreview::zoomOut() {
  const int now = view_->percent();
  const auto* const next = std::lower_bound(std::begin(kPercents), std::end(kPercents), now);
  view_->setZoom(PageView::Zoom::Percent, next == std::begin(kPercents) ? now / 2 : *(next - 1));
}

void ReportPreview::zoomFull() {
  view_->setZoom(PageView::Zoom::Percent, 100);
}

void ReportPreview::zoomWidth() {
  view_->setZoom(PageView::Zoom::Width);
}

void ReportPreview::zoomPage() {
  view_->setZoom(PageView::Zoom::WholePage);
}

void ReportPreview::pickZoom(int index) {
  if (index == kWidthEntry) {
    zoomWidth();
  } else if (index == kPageEntry) {
    zoomPage();
  } else {
    view_->setZoom(PageView::Zoom::Percent, zoom_->itemData(index).toInt());
  }
  view_->setFocus();
}

// What was typed; what is no number leaves the zoom as it is.
void ReportPreview::takeZoom() {
  if (!zoom_->lineEdit()->isModified()) {
    return;
  }
  QString text = zoom_->currentText();
  bool isNumber = false;
  const int percent = text.remove(QLatin1Char('%')).trimmed().toInt(&isNumber);
  if (isNumber) {
    view_->setZoom(PageView::Zoom::Percent, percent);
  }
  showZoom();
}

void ReportPreview::enterZoom() {
  takeZoom();
  view_->setFocus();
}

void ReportPreview::showZoom() {
  switch (view_->zoom()) {
    case PageView::Zoom::Width:
      zoom_->setCurrentIndex(kWidthEntry);
      break;
    case PageView::Zoom::WholePage:
      zoom_->setCurrentIndex(kPageEntry);
      break;
    case PageView::Zoom::Percent:
      zoom_->setCurrentIndex(zoom_->findData(view_->percent()));
      zoom_->setEditText(QStringLiteral("%1%").arg(view_->percent()));
      break;
  }
}

void ReportPreview::print() {
  commands_.print(*this);
}

void ReportPreview::save() {
  commands_.save(*this);
}

void ReportPreview::cancelBuilding() {
  report_->cancel();
  timer_.stop();
  showState();
  view_->setFocus();
}

void ReportPreview::escape() {
  if (report_->state() == Report::State::Building) {
    cancelBuilding();
  } else {
    close();
  }
}

void ReportPreview::closeEvent(QCloseEvent* event) {
  report_->cancel();
  timer_.stop();
  QMainWindow::closeEvent(event);
}

void ReportPreview::leaveField() {
  number_->setModified(false);
  zoom_->lineEdit()->setModified(false);
  view_->setFocus();
  showZoom();
  showProgress();
}

// A routine's box belongs to this window and leaves it in front, once this has the keyboard. On a
// desktop that does not give it, the document is prepared all the same.
void ReportPreview::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && timer_.isActive()) {
    timer_.start(0);
  }
}

// The wheel changes no value, a page number that was begun is forgotten on leaving, and Escape in a
// field leaves that field and not the window.
bool ReportPreview::eventFilter(QObject* watched, QEvent* event) {
  if (watched == zoom_ && event->type() == QEvent::Wheel && !zoom_->hasFocus()) {
    return true;
  }
  if (watched == number_ && event->type() == QEvent::FocusOut) {
    number_->setModified(false);
    showProgress();
  }
  const bool field = watched == number_ || watched == zoom_ || watched == zoom_->lineEdit();
  const bool key = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
  if (field && key && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    event->accept();
    if (event->type() == QEvent::KeyPress) {
      leaveField();
    }
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

// A routine may show a box, and the window may be closed and gone behind it.
void ReportPreview::buildSlice() {
  const QPointer<ReportPreview> self(this);
  const std::shared_ptr<Report> report = report_;
  const bool first = document()->pageCount() == 0;
  bool more = false;
  try {
    more = first ? report->buildPage() : report->buildFor(kSlice);
  } catch (const RuntimeError& error) {
    if (!self) {
      throw;
    }
    buildFailed(error);
    return;
  }
  if (!self) {
    return;
  }
  if (more) {
    timer_.start(0);
  }
  showProgressOfBuilding();
}

// The first page is shown as soon as it is there; the page total appears with the last.
void ReportPreview::showProgressOfBuilding() {
  if (page() == 0 || report_->state() != Report::State::Building) {
    goToPage(std::max(1, page()));
  } else {
    showState();
  }
}

void ReportPreview::buildFailed(const RuntimeError& error) {
  showProgressOfBuilding();
  if (!commands_.failed) {
    throw error;
  }
  commands_.failed(error);
}

void ReportPreview::showState() {
  const int pages = document()->pageCount();
  const bool complete = report_->state() == Report::State::Complete;
  print_->setEnabled(complete && pages > 0);
  save_->setEnabled(complete && pages > 0);
  first_->setEnabled(page() > 1);
  previous_->setEnabled(page() > 1);
  next_->setEnabled(page() < pages);
  last_->setEnabled(page() < pages);
  number_->setEnabled(pages > 0);
  view_->setEmptyText(complete ? QStringLiteral("Não há dados para mostrar.") : QString());
  showProgress();
}

void ReportPreview::showProgress() {
  const Report::State state = report_->state();
  const int pages = document()->pageCount();
  if (!number_->isModified() || !number_->hasFocus()) {
    number_->setText(QString::number(page()));
  }
  count_->setText(QStringLiteral("de %1").arg(pages));
  progress_->setValue(report_->progress());
  const bool incomplete = state == Report::State::Cancelled || state == Report::State::Failed;
  building_->setVisible(state == Report::State::Building);
  message_->setVisible(incomplete);
  statusBar()->setVisible(incomplete || state == Report::State::Building);
  message_->setText(
      state == Report::State::Cancelled
          ? QStringLiteral("Relatório interrompido: não está completo e não pode ser impresso.")
          : QStringLiteral("O relatório não pôde ser preparado até o fim."));
}

}  // namespace quartela::reporting
