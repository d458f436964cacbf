// A report as it stands on paper: pages of placed texts, lines, areas, pictures and bar codes. Made
// by a Report; painted alike on the screen, the printer and into a PDF by paintPage
// (PagePainter.h).
//
// Places are twips from the paper's top left corner. A document grows while its report is built;
// pages that are there never change, but for page totals, which appear when the document is
// complete.
#pragma once

#include <QList>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <cstdint>
#include <vector>

#include "platform/reporting/Face.h"
#include "platform/reporting/Layout.h"
#include "platform/reporting/Picture.h"
#include "platform/reporting/TextStore.h"

namespace quartela::reporting {

enum class ItemKind : std::uint8_t { Text, Line, Area, Picture, BarCode, Row };

inline bool hasText(ItemKind kind) {
  return kind == ItemKind::Text || kind == ItemKind::BarCode;
}

// What all the items of one element have in common.
struct ItemStyle {
  ItemKind kind = ItemKind::Text;
  QString element;  // empty: the section's own band
  QString section;
  const Face* face = nullptr;
  Alignment align = Alignment::Left;
  VerticalAlignment verticalAlign = VerticalAlignment::Top;
  Shows shows = Shows::Text;
  QString format;
  QColor color;
  QColor backColor;
  LineStyle lineStyle = LineStyle::Solid;
  int lineWeight = 0;
  int picture = -1;
  int row = -1;
};

// An item as the document keeps it: sixteen bytes.
struct StoredItem {
  std::int16_t left = 0;
  std::int16_t top = 0;
  std::int16_t width = 0;
  std::int16_t height = 0;
  std::uint16_t style = 0;
  std::uint32_t text = 0;  // its place in the store

  QRect rect() const { return {left, top, width, height}; }
  friend bool operator==(const StoredItem&, const StoredItem&) = default;
};

// The items of a table row with its rules, placed from the row's own place. Rows that look alike
// share one; only their texts, which stand together in the store, are their own.
using RowLook = std::vector<StoredItem>;

// An item spelt out, for whoever looks into a page.
struct PlacedItem {
  ItemKind kind = ItemKind::Text;
  QString element;
  QString section;
  QRect rect;
  QString text;       // as it reads, with the cut sign where it was cut
  QStringList lines;  // as it stands
  Alignment align = Alignment::Left;
  QFont font;
};

class Document;

// One page of a document, which must outlive it.
class Page {
 public:
  // 1 the first.
  int number() const { return index_ + 1; }
  QSize size() const;
  // In the order of painting.
  QList<PlacedItem> items() const;
  // The element's items on this page; a row's elements have one for each row.
  QList<PlacedItem> items(QStringView element) const;
  // The text of the element's first item; null when it has none here.
  QString text(QStringView element) const;

  // For the painter.
  const Document& document() const { return *document_; }
  std::vector<StoredItem> stored() const;
  QString fittedText(const StoredItem& item) const;

 private:
  friend class Document;
  Page(const Document& document, int index) : document_(&document), index_(index) {}
  PlacedItem placed(const StoredItem& item) const;

  const Document* document_;
  int index_;
};

class Document {
 public:
  Document(const QString& title, const QSize& paper);

  // Another one for each document of a run of the program.
  std::uint64_t serial() const { return serial_; }

  const QString& title() const { return title_; }
  const QSize& paper() const { return paper_; }
  int pageCount() const { return static_cast<int>(pages_.size()); }
  // Error 9 when there is no such page; 0 the first.
  Page page(int index) const;
  QList<Page> pages() const;
  // Every page is there, and page totals are known.
  bool isComplete() const { return complete_; }

  const ItemStyle& style(std::uint16_t style) const { return styles_[style]; }
  const Picture& picture(int picture) const { return pictures_[static_cast<std::size_t>(picture)]; }
  QString storedText(std::uint32_t text) const { return texts_.at(text); }
  // What the texts and the items take.
  std::size_t textBytes() const { return texts_.bytes(); }
  std::size_t itemBytes() const;

  // For the report that fills it.
  std::uint16_t addStyle(const ItemStyle& style);
  int addPicture(const QString& file);
  std::uint32_t addText(std::uint16_t style, const QString& text);
  // One item for a row, at the place that its look is counted from; `texts` are those of the look's
  // items that have one, in order. False, and nothing added, when there are too many looks or the
  // texts are too long to stand together.
  bool addRow(const RowLook& look, const std::vector<const QString*>& texts, StoredItem& row);
  void addPage(const std::vector<StoredItem>& items);
  void complete() { complete_ = true; }

 private:
  friend class Page;
  int rowLook(const RowLook& look);
  void addItems(const StoredItem& item, std::vector<StoredItem>& items) const;

  // The text that an item of a style had last; headings are the same on every page.
  struct LastText {
    QString text;
    std::uint32_t place = 0;
    bool known = false;
  };

  std::uint64_t serial_;
  QString title_;
  QSize paper_;
  bool complete_ = false;
  std::vector<ItemStyle> styles_;
  std::vector<LastText> lastTexts_;
  std::vector<Picture> pictures_;
  std::vector<RowLook> rowLooks_;
  std::vector<std::uint16_t> rowStyles_;  // of the looks
  int lastLook_ = -1;
  std::vector<std::vector<StoredItem>> pages_;
  TextStore texts_;
};

}  // namespace quartela::reporting
