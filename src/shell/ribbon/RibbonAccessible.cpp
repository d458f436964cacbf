#include "shell/ribbon/RibbonAccessible.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleWidget>
#include <QPointer>
#include <algorithm>
#include <vector>

#include "shell/ribbon/FaixaRibbon.h"
#include "shell/ribbon/RibbonHover.h"
#include "shell/ribbon/RibbonKeys.h"

namespace quartela::ribbon {
namespace {

// One tab, button or corner. It names its element and looks everything up when asked, so that it
// stays right over a rebuilding.
class ItemAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  ItemAccessible(FaixaRibbon* owner, Ref item) : owner_(owner), item_(item) {}

  Ref item() const { return item_; }

  bool isValid() const override {
    return !owner_.isNull() && elements().has(item_) && elements().at(item_).visible;
  }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(owner_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override {
    return item_.kind == Element::TabMouse ? QAccessible::PageTab : QAccessible::PushButton;
  }
  QAccessible::State state() const override;

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  const ElementTable& elements() const { return owner_->elements(); }
  QString name() const;
  QString description() const;

  QPointer<FaixaRibbon> owner_;
  Ref item_;
};

QString ItemAccessible::name() const {
  switch (item_.kind) {
    case Element::TabMouse:
      return elements().at(Element::Tab_caption, item_.index).text;
    case Element::ButMouse:
      return withoutLineBreaks(elements().at(Element::Button_Caption, item_.index).text);
    default:
      return elements().at(Element::Cat_Caption, item_.index).text + QStringLiteral("...");
  }
}

// A button tells its category.
QString ItemAccessible::description() const {
  if (item_.kind != Element::ButMouse) {
    return {};
  }
  return elements().at(Element::Cat_Caption, categoryOfButton(elements(), item_.index)).text;
}

QString ItemAccessible::text(QAccessible::Text kind) const {
  if (!isValid()) {
    return {};
  }
  switch (kind) {
    case QAccessible::Name:
      return name();
    case QAccessible::Description:
      return description();
    case QAccessible::Help:
      return elements().at(item_).toolTip;
    default:
      return {};
  }
}

QRect ItemAccessible::rect() const {
  if (!isValid()) {
    return {};
  }
  const QRect place = pixelRect(elements().at(item_).rect());
  return {owner_->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State ItemAccessible::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  state.focusable = true;
  state.focused = owner_->hasFocus() && owner_->focusItem() == item_;
  state.invisible = !owner_->isVisible();
  if (item_.kind == Element::TabMouse) {
    state.selectable = true;
    state.selected = elements().visible(Element::Tab_center, item_.index);
  }
  if (item_.kind == Element::ButMouse) {
    state.hotTracked = elements().visible(Element::Button_center, item_.index);
    state.pressed = elements().visible(Element::Button_center_over, item_.index);
  }
  return state;
}

void ItemAccessible::doAction(const QString& name) {
  if (!isValid()) {
    return;
  }
  if (name == pressAction()) {
    owner_->press(item_);
  } else if (name == setFocusAction()) {
    owner_->setFocusItem(item_);
  }
}

class RibbonAccessible : public QAccessibleWidget {
 public:
  explicit RibbonAccessible(FaixaRibbon* owner)
      : QAccessibleWidget(owner, QAccessible::ToolBar), owner_(owner) {}
  RibbonAccessible(const RibbonAccessible&) = delete;
  RibbonAccessible& operator=(const RibbonAccessible&) = delete;
  ~RibbonAccessible() override {
    for (const Known& known : known_) {
      QAccessible::deleteAccessibleInterface(known.id);
    }
  }

  int childCount() const override { return static_cast<int>(items().size()); }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

 private:
  struct Known {
    Ref item;
    QAccessible::Id id;
  };
  std::vector<Ref> items() const { return pressableItems(owner_->elements()); }
  QAccessibleInterface* interfaceOf(Ref item) const;

  FaixaRibbon* owner_;
  mutable std::vector<Known> known_;
};

QAccessibleInterface* RibbonAccessible::interfaceOf(Ref item) const {
  const auto found = std::ranges::find(known_, item, &Known::item);
  if (found != known_.end()) {
    return QAccessible::accessibleInterface(found->id);
  }
  auto* made =
      new ItemAccessible(owner_, item);  // owned by the toolkit's cache until deleted by id
  known_.push_back({item, QAccessible::registerAccessibleInterface(made)});
  return made;
}

QAccessibleInterface* RibbonAccessible::child(int index) const {
  const std::vector<Ref> all = items();
  if (index < 0 || index >= static_cast<int>(all.size())) {
    return nullptr;
  }
  return interfaceOf(all[static_cast<std::size_t>(index)]);
}

int RibbonAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* item = dynamic_cast<const ItemAccessible*>(child);
  if (item == nullptr) {
    return -1;
  }
  const std::vector<Ref> all = items();
  const auto found = std::ranges::find(all, item->item());
  return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

QAccessibleInterface* RibbonAccessible::childAt(int x, int y) const {
  for (const Ref item : items()) {
    QAccessibleInterface* const candidate = interfaceOf(item);
    if (candidate->rect().contains(x, y)) {
      return candidate;
    }
  }
  return nullptr;
}

QAccessibleInterface* RibbonAccessible::focusChild() const {
  const std::optional<Ref> item = owner_->focusItem();
  return item && owner_->hasFocus() ? interfaceOf(*item) : nullptr;
}

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  auto* ribbon = qobject_cast<FaixaRibbon*>(object);
  return ribbon == nullptr ? nullptr : new RibbonAccessible(ribbon);
}

}  // namespace

void installRibbonAccessibility() {
  static const bool installed = [] {
    QAccessible::installFactory(makeInterface);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace quartela::ribbon
