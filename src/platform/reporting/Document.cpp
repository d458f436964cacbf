#include "platform/reporting/Document.h"

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

bool named(const ItemStyle& style, QStringView element) {
  return element.compare(style.element, Qt::CaseInsensitive) == 0;
}

}  // namespace

QSize Page::size() const {
  return document_->paper_;
}

std::span<const StoredItem> Page::stored() const {
  return document_->pages_[static_cast<std::size_t>(index_)];
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
  if (style.kind == ItemKind::Text || style.kind == ItemKind::BarCode) {
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

void Document::addPage(const std::vector<StoredItem>& items) {
  pages_.emplace_back(items.begin(), items.end());
}

}  // namespace quartela::reporting
