#include "platform/controls/RowStore.h"

#include <algorithm>
#include <utility>

namespace quartela {
namespace {

constexpr std::size_t kWasteWorthCompacting = std::size_t{1} << 20;

}  // namespace

int RowStore::append() {
  refs_.resize(refs_.size() + cells_, TextPool::kEmpty);
  info_.emplace_back();
  return count() - 1;
}

int RowStore::append(std::span<const QString> cells) {
  reserveCells(static_cast<int>(cells.size()));
  const int row = append();
  std::transform(cells.begin(), cells.end(), refs_.end() - this->cells(),
                 [this](const QString& text) { return pool_.add(text); });
  return row;
}

void RowStore::setText(int row, int cell, QStringView text) {
  reserveCells(cell + 1);
  put(at(row, cell), text);
  compactWhenWasteful();
}

void RowStore::setTag(int row, QStringView tag) {
  put(info(row).tag, tag);
  compactWhenWasteful();
}

QString RowStore::text(int row, int cell) const {
  const std::string_view utf8 = bytes(row, cell);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string_view RowStore::bytes(int row, int cell) const {
  const auto place = static_cast<std::size_t>(cell);
  if (place >= cells_) {
    return {};
  }
  return pool_.bytes(refs_[static_cast<std::size_t>(row) * cells_ + place]);
}

QString RowStore::tag(int row) const {
  return pool_.text(info(row).tag);
}

void RowStore::remove(int row) {
  for (int cell = 0; cell < cells(); ++cell) {
    giveUp(at(row, cell));
  }
  giveUp(info(row).tag);
  const auto first = refs_.begin() + static_cast<std::ptrdiff_t>(row) * cells();
  refs_.erase(first, first + cells());
  info_.erase(info_.begin() + row);
  compactWhenWasteful();
}

void RowStore::clear() {
  refs_.clear();
  info_.clear();
  pool_.clear();
  wasted_ = 0;
}

void RowStore::reorder(const std::vector<std::uint32_t>& order) {
  std::vector<TextPool::Ref> refs;
  std::vector<Info> info;
  refs.reserve(refs_.size());
  info.reserve(info_.size());
  for (const std::uint32_t row : order) {
    const auto first = refs_.begin() + static_cast<std::ptrdiff_t>(row * cells_);
    refs.insert(refs.end(), first, first + cells());
    info.push_back(info_[row]);
  }
  refs_ = std::move(refs);
  info_ = std::move(info);
}

void RowStore::reserveCells(int cells) {
  const auto wanted = static_cast<std::size_t>(cells);
  if (wanted <= cells_) {
    return;
  }
  std::vector<TextPool::Ref> refs(info_.size() * wanted, TextPool::kEmpty);
  for (std::size_t row = 0; row < info_.size(); ++row) {
    std::copy_n(&refs_[row * cells_], cells_, &refs[row * wanted]);
  }
  refs_ = std::move(refs);
  cells_ = wanted;
}

TextPool::Ref& RowStore::at(int row, int cell) {
  return refs_[static_cast<std::size_t>(row) * cells_ + static_cast<std::size_t>(cell)];
}

void RowStore::put(TextPool::Ref& place, QStringView text) {
  giveUp(place);
  place = pool_.add(text);
}

void RowStore::giveUp(TextPool::Ref ref) {
  wasted_ += pool_.bytes(ref).size();
}

// Texts of changed and removed cells stay in the pool until they outweigh the others.
void RowStore::compactWhenWasteful() {
  if (wasted_ < kWasteWorthCompacting || wasted_ < pool_.used() / 2) {
    return;
  }
  TextPool fresh;
  for (TextPool::Ref& ref : refs_) {
    ref = fresh.add(pool_.bytes(ref));
  }
  for (Info& info : info_) {
    info.tag = fresh.add(pool_.bytes(info.tag));
  }
  pool_ = std::move(fresh);
  wasted_ = 0;
}

}  // namespace quartela
