#include "platform/reporting/Document.h"

#include <algorithm>
#include <limits>

#include "platform/reporting/TextFit.h"
#include "platform/values/Format.h"
#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

QStringList linesOf(const QString& fitted) {
  QString text = fitted;
  text.replace(kSoftBreak, kLineEnd).replace(kWordBreak, kLineEnd);
  return text.isEmpty() ? QStringList() : text.split(kLineEnd);
}

// A report has one look for its rows, and a few more for those with smaller types; what has another
// in each row gains nothing by it.
constexpr std::size_t kMostLooks = 64;

bool named(const ItemStyle& style, QStringView element) {
  return element.compare(style.element, Qt::CaseInsensitive) == 0;
}

}  // namespace

QSize Page::size() const {
  return document_->paper_;
}

std::vector<StoredItem> Page::stored() const {
  std::vector<StoredItem> items;
  for (const StoredItem& item : document_->pages_[static_cast<std::size_t>(index_)]) {
    document_->addItems(item, items);
  }
  return items;
}

// Page numbers and totals are not stored: a total is known only when every page is there.
QString Page::fittedText(const StoredItem& item) const {
  const ItemStyle& style = document_->style(item.style);
  if (style.shows != Shows::PageNumber && style.shows != Shows::PageTotal) {
    return document_->storedText(item.text);
  }
  if (style.shows == Shows::PageTotal && !document_->isComplete()) {
    return {};
  }
  const int count = style.shows == Shows::PageNumber ? number() : document_->pageCount();
  const QString text =
      style.format.isEmpty() ? QString::number(count) : Format(Value(count), style.format);
  return fitText(*style.face, text, {.width = item.width, .height = item.height}).text;
}

PlacedItem Page::placed(const StoredItem& item) const {
  const ItemStyle& style = document_->style(item.style);
  PlacedItem placed;
  placed.kind = style.kind;
  placed.element = style.element;
  placed.section = style.section;
  placed.rect = item.rect();
  placed.align = style.align;
  if (hasText(style.kind)) {
    const QString fitted = fittedText(item);
    placed.text = readable(fitted);
    placed.lines = linesOf(fitted);
  }
  if (style.face != nullptr) {
    placed.font = style.face->font();
  }
  return placed;
}

QList<PlacedItem> Page::items() const {
  QList<PlacedItem> items;
  for (const StoredItem& item : stored()) {
    items << placed(item);
  }
  return items;
}

QList<PlacedItem> Page::items(QStringView element) const {
  QList<PlacedItem> items;
  for (const StoredItem& item : stored()) {
    if (named(document_->style(item.style), element)) {
      items << placed(item);
    }
  }
  return items;
}

QString Page::text(QStringView element) const {
  for (const StoredItem& item : stored()) {
    if (named(document_->style(item.style), element)) {
      return placed(item).text;
    }
  }
  return {};
}

Document::Document(const QString& title, const QSize& paper) : title_(title), paper_(paper) {
  static std::uint64_t documents = 0;
  serial_ = ++documents;
}

Page Document::page(int index) const {
  if (index < 0 || index >= pageCount()) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  return {*this, index};
}

QList<Page> Document::pages() const {
  QList<Page> pages;
  for (int index = 0; index < pageCount(); ++index) {
    pages << Page(*this, index);
  }
  return pages;
}

std::size_t Document::itemBytes() const {
  std::size_t bytes = pages_.capacity() * sizeof(pages_.front());
  for (const std::vector<StoredItem>& items : pages_) {
    bytes += items.capacity() * sizeof(StoredItem);
  }
  return bytes;
}

std::uint16_t Document::addStyle(const ItemStyle& style) {
  if (styles_.size() >= std::numeric_limits<std::uint16_t>::max()) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  styles_.push_back(style);
  lastTexts_.emplace_back();
  return static_cast<std::uint16_t>(styles_.size() - 1);
}

int Document::addPicture(const QString& file) {
  pictures_.push_back(Picture::load(file));
  return static_cast<int>(pictures_.size() - 1);
}

std::uint32_t Document::addText(std::uint16_t style, const QString& text) {
  LastText& last = lastTexts_[style];
  if (!last.known || last.text != text) {
    last = {text, texts_.add(text), true};
  }
  return last.place;
}

int Document::rowLook(const RowLook& look) {
  if (lastLook_ >= 0 && rowLooks_[static_cast<std::size_t>(lastLook_)] == look) {
    return lastLook_;
  }
  const auto known = std::find(rowLooks_.begin(), rowLooks_.end(), look);
  if (known != rowLooks_.end()) {
    return static_cast<int>(known - rowLooks_.begin());
  }
  if (rowLooks_.size() >= kMostLooks) {
    return -1;
  }
  ItemStyle style;
  style.kind = ItemKind::Row;
  style.row = static_cast<int>(rowLooks_.size());
  rowLooks_.push_back(look);
  rowStyles_.push_back(addStyle(style));
  return style.row;
}

bool Document::addRow(const RowLook& look, const std::vector<const QString*>& texts,
                      StoredItem& row) {
  std::vector<TextStore::RowText> stored;
  std::vector<std::uint16_t> styles;
  std::size_t bytes = 0;
  for (const StoredItem& item : look) {
    if (hasText(styles_[item.style].kind)) {
      const QString& text = *texts[stored.size()];
      const LastText& last = lastTexts_[item.style];
      const bool same = last.known && last.text == text;
      stored.push_back({text.toUtf8(), same ? last.place : TextStore::kNone});
      bytes += static_cast<std::size_t>(stored.back().bytes.size());
      styles.push_back(item.style);
    }
  }
  if (bytes > TextStore::kLongestRow) {
    return false;
  }
  const int found = rowLook(look);
  if (found < 0) {
    return false;
  }
  lastLook_ = found;
  row.style = rowStyles_[static_cast<std::size_t>(found)];
  const std::vector<std::uint32_t> places = texts_.addRow(stored);
  row.text = places.empty() ? 0 : places.front();
  for (std::size_t at = 0; at < places.size(); ++at) {
    if (stored[at].same == TextStore::kNone) {
      lastTexts_[styles[at]] = {*texts[at], places[at], true};
    }
  }
  return true;
}

void Document::addItems(const StoredItem& item, std::vector<StoredItem>& items) const {
  const ItemStyle& itemStyle = style(item.style);
  if (itemStyle.kind != ItemKind::Row) {
    items.push_back(item);
    return;
  }
  std::uint32_t text = item.text;
  for (StoredItem part : rowLooks_[static_cast<std::size_t>(itemStyle.row)]) {
    part.left = static_cast<std::int16_t>(part.left + item.left);
    part.top = static_cast<std::int16_t>(part.top + item.top);
    if (hasText(style(part.style).kind)) {
      part.text = text;
      text = texts_.next(text);
    }
    items.push_back(part);
  }
}

void Document::addPage(const std::vector<StoredItem>& items) {
  pages_.emplace_back(items.begin(), items.end());
}

}  // namespace quartela::reporting
