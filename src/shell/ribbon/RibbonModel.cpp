#include "shell/ribbon/RibbonModel.h"

#include <limits>

#include "platform/values/RuntimeError.h"

namespace quartela::ribbon {
namespace {

template <typename Table>
auto& entry(Table& table, int index) {
  if (index < 0 || index >= static_cast<int>(table.size())) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  return table[static_cast<std::size_t>(index)];
}

// Raises the count first, so that it tells of an entry that found no room too.
template <typename Table>
auto& appended(Table& table, std::int16_t& count) {
  if (count == std::numeric_limits<std::int16_t>::max()) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  ++count;
  return entry(table, count - 1);
}

ListPicture pictureFrom(const ImageList* images, std::int16_t number) {
  if (images == nullptr) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("sem lista de imagens"));
  }
  return images->picture(number);
}

}  // namespace

QString withoutLineBreaks(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String(" "));
  text.replace(QLatin1Char('\n'), QLatin1Char(' '));
  text.replace(QLatin1Char('\r'), QLatin1Char(' '));
  return text;
}

void RibbonModel::addTab(const QString& key, QString& caption) {
  Tab& tab = appended(tabs_, tabCount_);
  tab.key = key;
  caption = withoutLineBreaks(caption);
  tab.caption = caption;
  if (activeTab_.isEmpty()) {
    activeTab_ = key;
  }
}

void RibbonModel::addCategory(const QString& key, const QString& tab, QString& caption,
                              bool hasLauncher) {
  Category& category = appended(categories_, categoryCount_);
  category.key = key;
  category.tab = tab;
  caption = withoutLineBreaks(caption);
  category.caption = caption;
  category.hasLauncher = hasLauncher;
}

void RibbonModel::addButton(const QString& key, const QString& category, QString& caption,
                            std::int16_t image, bool hasGlyph, const QString& toolTip,
                            const ImageList* images) {
  Button& button = appended(buttons_, buttonCount_);
  button.key = key;
  button.category = category;
  button.caption = caption;
  if (toolTip.isEmpty()) {
    caption = withoutLineBreaks(caption);
    button.toolTip = caption;
  } else {
    button.toolTip = withoutLineBreaks(toolTip);
  }
  button.picture = pictureFrom(images, image);
  button.hasGlyph = hasGlyph;
}

const Tab& RibbonModel::tab(int index) const {
  return entry(tabs_, index);
}

const Category& RibbonModel::category(int index) const {
  return entry(categories_, index);
}

const Button& RibbonModel::button(int index) const {
  return entry(buttons_, index);
}

}  // namespace quartela::ribbon
