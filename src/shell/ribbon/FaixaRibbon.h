// The ribbon: a row of tabs; under the active tab its categories, each a frame with a caption at
// its bottom; in each category large buttons with an icon and a caption of one or two lines.
//
// The host sets the image list and the theme, adds tabs, categories and buttons by key, and calls
// Refresh once; from then on it hears of what is pressed through the three signals. The height is
// fixed; what does not fit the width is cut off.
//
// Mouse: see RibbonHover.h. Leaving the control keeps its last look.
// Keyboard: enterKeyboard() puts the focus on the active tab. Left and right walk along the tabs or
// the buttons, down and up change between them, Home and End go to the ends, Tab goes through all;
// Enter or the space bar presses; Escape leaves. Leaving, and pressing a button, give the focus
// back to where it came from.
#pragma once

#include <QPointer>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>
#include <array>
#include <optional>

#include "shell/ribbon/ImageList.h"
#include "shell/ribbon/RibbonLayout.h"
#include "shell/ribbon/RibbonModel.h"
#include "shell/ribbon/RibbonPainter.h"
#include "shell/ribbon/RibbonTheme.h"

class QHelpEvent;

namespace quartela {

class FaixaRibbon : public QWidget {
  Q_OBJECT

 public:
  explicit FaixaRibbon(QWidget* parent = nullptr);

  // Rebuilds everything that is drawn from what was added. The first tab is drawn as the active
  // one, whichever is; the categories are those of the active tab. Lets pending events run.
  void Refresh();

  // The three of them append an entry. Error 9 beyond 31 tabs, 31 categories or 91 buttons, the
  // count already raised. A caption given as a variable is left without line breaks; by AddButton
  // only where no tool tip is given.
  void AddTab(const QString& key, QString& caption);
  void AddTab(const QString& key, const QString& caption);
  void AddCat(const QString& key, const QString& tab, QString& caption, bool hasLauncher);
  void AddCat(const QString& key, const QString& tab, const QString& caption, bool hasLauncher);
  // `image` counts from 1 in the image list; error 9 without list or picture, the entry already
  // stored. Without a tool tip the caption is the tool tip.
  void AddButton(const QString& key, const QString& category, QString& caption, std::int16_t image,
                 bool hasGlyph = false, const QString& toolTip = {});
  void AddButton(const QString& key, const QString& category, const QString& caption,
                 std::int16_t image, bool hasGlyph = false, const QString& toolTip = {});

  // 0 black, 1 blue, 2 silver; any other number is stored as 0. Set after Refresh, a theme takes
  // full effect with the next one.
  std::int16_t Theme() const { return theme_; }
  void setTheme(std::int16_t theme);

  // Whether icons stand in the middle of their buttons' height; takes effect with Refresh.
  bool ButtonCenter() const { return buttonCenter_; }
  void setButtonCenter(bool center);

  // The source of the buttons' pictures, not owned; needed while buttons are added.
  void setImageList(const ImageList* images) { images_ = images; }

  const ribbon::Skin& LoadSkin() const;
  // The theme's background for the host window, for the density of the screen that the ribbon is
  // on.
  QPixmap LoadBackground();
  QColor BackColor() const;
  QColor ForeColor() const;
  // Fixes the height, as every resizing does.
  void Resize();

  // The host's saved settings. Values that equal their defaults are not written; the two colours
  // are written, but never read, because the theme decides them.
  void ReadProperties(const QVariantMap& bag);
  void WriteProperties(QVariantMap& bag);
  // Names of the settings changed since the last writing.
  const QStringList& changedProperties() const { return changedProperties_; }

  // Gives the focus to the active tab; nothing without tabs.
  void enterKeyboard();
  // What the keyboard is on.
  std::optional<ribbon::Ref> focusItem() const { return focusItem_; }
  void setFocusItem(ribbon::Ref item);
  // Does what a click on the tab, corner or button does; nothing for an element that is gone.
  void press(ribbon::Ref item);

  const ribbon::RibbonModel& model() const { return model_; }
  const ribbon::ElementTable& elements() const { return elements_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // After the tab has become active and its categories stand.
  void TabClick(const QString& key, const QString& caption);
  void CatClick(const QString& key, const QString& caption);
  // The caption is the text as shown, with its line break.
  void ButtonClick(const QString& key, const QString& caption);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void applyTheme();
  void markChanged(const QString& property);
  void buildRow();
  void updateChanged();
  void stretchStrip();

  std::optional<ribbon::Ref> elementAt(const QPointF& position) const;
  void mouseDown(const QPointF& position, bool clicks);
  // Ends the press; returns the element that was pressed.
  std::optional<ribbon::Ref> letGo();
  void click(ribbon::Ref element);
  void clickTab(int index);
  void clickCategory(int index);
  void clickButton(int index);
  bool showToolTip(QHelpEvent* event);

  void moveFocus(std::optional<ribbon::Ref> item);
  void leaveKeyboard();
  void keepFocusValid();

  ribbon::RibbonModel model_;
  ribbon::ElementTable elements_;
  ribbon::FontMeasure measure_;
  ribbon::RibbonLayout layout_;
  ribbon::ThemePictures pictures_;
  std::array<ribbon::Skin, ribbon::kThemes> skins_;
  const ImageList* images_ = nullptr;
  std::int16_t theme_ = ribbon::kBlack;
  bool buttonCenter_ = false;
  ribbon::ColourValue inactiveTabColour_ = 0;
  ribbon::ColourValue activeTabColour_ = 0;
  ribbon::ColourValue backColour_ = 0;
  ribbon::ColourValue foreColour_ = 0;
  QStringList changedProperties_;

  std::optional<ribbon::Ref> pressed_;  // has the mouse until the button is let go
  bool pressClicks_ = false;            // false for the second press of a double click
  std::optional<ribbon::Ref> focusItem_;
  QPointer<QWidget> focusBefore_;
};

}  // namespace quartela
