#include "shell/ribbon/FaixaRibbon.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>

#include "shell/ribbon/RibbonAccessible.h"

namespace quartela {
namespace {

using ribbon::Element;

// The settings' names, and the values that need not be written.
const QString kTheme = QStringLiteral("Theme");
const QString kButtonCenter = QStringLiteral("ButtonCenter");
const QString kBackColor = QStringLiteral("BackColor");
const QString kForeColor = QStringLiteral("ForeColor");
constexpr int kDefaultTheme = ribbon::kBlack;
constexpr bool kDefaultButtonCenter = false;
constexpr ribbon::ColourValue kDefaultBackColor = 0x464646;
constexpr ribbon::ColourValue kDefaultForeColor = 0xFFFFFF;

template <typename T>
void writeProperty(QVariantMap& bag, const QString& name, T value, T usual) {
  if (value == usual) {
    bag.remove(name);
  } else {
    bag.insert(name, QVariant::fromValue(value));
  }
}

}  // namespace

FaixaRibbon::FaixaRibbon(QWidget* parent)
    : QWidget(parent),
      layout_(model_, measure_, elements_),
      skins_{ribbon::makeSkin(ribbon::kBlack), ribbon::makeSkin(ribbon::kBlue),
             ribbon::makeSkin(ribbon::kSilver)} {
  ribbon::installRibbonAccessibility();
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(QStringLiteral("Faixa de comandos"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  layout_.prepare();
  applyTheme();
  Resize();
}

void FaixaRibbon::Refresh() {
  Resize();
  layout_.buildTabs(inactiveTabColour_, activeTabColour_);
  buildRow();
}

void FaixaRibbon::buildRow() {
  pressed_.reset();
  layout_.buildCategories(buttonCenter_);
  keepFocusValid();
  const QPointer<FaixaRibbon> self(this);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  if (self.isNull()) {
    return;
  }
  layout_.stackButtons();
  elements_.takeChanged();
  update();
  QAccessibleEvent reordered(this, QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&reordered);
}

void FaixaRibbon::AddTab(const QString& key, QString& caption) {
  model_.addTab(key, caption);
}

void FaixaRibbon::AddTab(const QString& key, const QString& caption) {
  QString own = caption;
  model_.addTab(key, own);
}

void FaixaRibbon::AddCat(const QString& key, const QString& tab, QString& caption,
                         bool hasLauncher) {
  model_.addCategory(key, tab, caption, hasLauncher);
}

void FaixaRibbon::AddCat(const QString& key, const QString& tab, const QString& caption,
                         bool hasLauncher) {
  QString own = caption;
  model_.addCategory(key, tab, own, hasLauncher);
}

void FaixaRibbon::AddButton(const QString& key, const QString& category, QString& caption,
                            std::int16_t image, bool hasGlyph, const QString& toolTip) {
  model_.addButton(key, category, caption, image, hasGlyph, toolTip, images_);
}

void FaixaRibbon::AddButton(const QString& key, const QString& category, const QString& caption,
                            std::int16_t image, bool hasGlyph, const QString& toolTip) {
  QString own = caption;
  model_.addButton(key, category, own, image, hasGlyph, toolTip, images_);
}

void FaixaRibbon::setTheme(std::int16_t theme) {
  theme_ = theme < 0 || theme >= ribbon::kThemes ? ribbon::kBlack : theme;
  applyTheme();
  markChanged(kTheme);
}

void FaixaRibbon::setButtonCenter(bool center) {
  buttonCenter_ = center;
  markChanged(kButtonCenter);
}

void FaixaRibbon::markChanged(const QString& property) {
  if (!changedProperties_.contains(property)) {
    changedProperties_.append(property);
  }
}

// Only the first element of each kind takes the theme at once; the others are its copies, made at
// the next building.
void FaixaRibbon::applyTheme() {
  const ribbon::ThemeColours& colours = ribbon::themeColours(theme_);
  elements_.setColour(Element::Cat_Caption, 0, colours.categoryCaption);
  elements_.setColour(Element::Button_Caption, 0, colours.buttonCaption);
  backColour_ = colours.back;
  foreColour_ = colours.fore;
  inactiveTabColour_ = colours.inactiveTab;
  activeTabColour_ = colours.activeTab;
  for (const ribbon::NumberedPiece& numbered : ribbon::numberedPieces()) {
    const ribbon::DensePicture& picture = pictures_.picture(theme_, numbered.number, 1);
    elements_.setPicture(numbered.kind, theme_, numbered.number, picture.pixmap.size());
  }
  elements_.takeChanged();
  update();
}

const ribbon::Skin& FaixaRibbon::LoadSkin() const {
  return skins_.at(static_cast<std::size_t>(theme_));
}

QPixmap FaixaRibbon::LoadBackground() {
  const ribbon::DensePicture& picture =
      pictures_.picture(theme_, ribbon::kBackgroundPicture, devicePixelRatioF());
  QPixmap background = picture.pixmap;
  if (background.size() != QSize(1, 1)) {
    background.setDevicePixelRatio(picture.scale);
  }
  return background;
}

QColor FaixaRibbon::BackColor() const {
  return ribbon::toColor(backColour_, palette());
}

QColor FaixaRibbon::ForeColor() const {
  return ribbon::toColor(foreColour_, palette());
}

void FaixaRibbon::ReadProperties(const QVariantMap& bag) {
  setTheme(static_cast<std::int16_t>(bag.value(kTheme, kDefaultTheme).toInt()));
  setButtonCenter(bag.value(kButtonCenter, kDefaultButtonCenter).toBool());
  changedProperties_.clear();
}

void FaixaRibbon::WriteProperties(QVariantMap& bag) {
  writeProperty<int>(bag, kTheme, theme_, kDefaultTheme);
  writeProperty(bag, kButtonCenter, buttonCenter_, kDefaultButtonCenter);
  writeProperty(bag, kBackColor, backColour_, kDefaultBackColor);
  writeProperty(bag, kForeColor, foreColour_, kDefaultForeColor);
  changedProperties_.clear();
}

void FaixaRibbon::Resize() {
  setFixedHeight(qRound(ribbon::controlHeight(elements_) / ribbon::kTwipsPerPixel));
}

QSize FaixaRibbon::sizeHint() const {
  return {640, minimumHeight()};
}

QSize FaixaRibbon::minimumSizeHint() const {
  return {0, minimumHeight()};
}

void FaixaRibbon::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Resize();
  stretchStrip();
}

// The strip is wider than usual screens are; on wider ones it goes on to the window's edge.
void FaixaRibbon::stretchStrip() {
  elements_.at(Element::Barra2, 0).width =
      std::max<double>(ribbon::kStripWidth, width() * ribbon::kTwipsPerPixel);
}

void FaixaRibbon::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), BackColor());
  ribbon::RibbonPainter pieces(painter, pictures_, palette());
  pieces.paint(elements_, event->region());
  if (focusItem_ && hasFocus()) {
    pieces.paintFocus(elements_.at(*focusItem_));
  }
}

void FaixaRibbon::updateChanged() {
  const QRegion changed = elements_.takeChanged();
  if (!changed.isEmpty()) {
    update(changed);
  }
}

}  // namespace quartela
