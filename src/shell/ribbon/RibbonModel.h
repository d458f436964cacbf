// What a ribbon offers: tabs, their categories, their buttons, each in the order of adding.
//
// The tables have a fixed capacity. Nothing is removed and no key is looked up: a later entry with
// the same key is one more entry. An entry beyond the capacity is error 9, raised after the count
// was raised.
#pragma once

#include <QString>
#include <array>
#include <cstdint>

#include "shell/ribbon/ImageList.h"

namespace quartela::ribbon {

struct Tab {
  QString key;
  QString caption;
};

struct Category {
  QString key;
  QString tab;  // key of its tab
  QString caption;
  bool hasLauncher = false;
};

struct Button {
  QString key;
  QString category;  // key of its category
  QString caption;   // as given, line breaks included
  QString toolTip;   // one line
  ListPicture picture;
  bool hasGlyph = false;
};

// Each line break of `text` (carriage return and line feed, or one of them) as one blank.
QString withoutLineBreaks(QString text);

class RibbonModel {
 public:
  static constexpr std::size_t kTabCapacity = 31;
  static constexpr std::size_t kCategoryCapacity = 31;
  static constexpr std::size_t kButtonCapacity = 91;

  // `caption` is left without line breaks. The first tab with a key becomes the active one.
  void addTab(const QString& key, QString& caption);
  void addCategory(const QString& key, const QString& tab, QString& caption, bool hasLauncher);
  // The picture is taken from `images` now. Error 9 without a list or with a number it lacks; the
  // entry then stands already, without picture and glyph. Where `toolTip` is empty, `caption` is
  // left without line breaks and becomes the tool tip; the stored caption keeps them.
  void addButton(const QString& key, const QString& category, QString& caption, std::int16_t image,
                 bool hasGlyph, const QString& toolTip, const ImageList* images);

  std::int16_t tabCount() const { return tabCount_; }
  std::int16_t categoryCount() const { return categoryCount_; }
  std::int16_t buttonCount() const { return buttonCount_; }

  // Entries from 0. Error 9 beyond the capacity.
  const Tab& tab(int index) const;
  const Category& category(int index) const;
  const Button& button(int index) const;
  // Whether the tables have room for such an entry.
  static bool holdsTab(int index) { return index < static_cast<int>(kTabCapacity); }
  static bool holdsCategory(int index) { return index < static_cast<int>(kCategoryCapacity); }
  static bool holdsButton(int index) { return index < static_cast<int>(kButtonCapacity); }

  const QString& activeTab() const { return activeTab_; }
  void setActiveTab(const QString& key) { activeTab_ = key; }

 private:
  std::array<Tab, kTabCapacity> tabs_;
  std::array<Category, kCategoryCapacity> categories_;
  std::array<Button, kButtonCapacity> buttons_;
  std::int16_t tabCount_ = 0;
  std::int16_t categoryCount_ = 0;
  std::int16_t buttonCount_ = 0;
  QString activeTab_;
};

}  // namespace quartela::ribbon
