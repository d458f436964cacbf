#include "platform/database/engines/sqlite/Journal.h"

#include <fcntl.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <array>
#include <bit>
#include <cerrno>
#include <optional>

#include "platform/database/engines/sqlite/FileCheck.h"
#include "platform/files/OpenFile.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

constexpr std::array<unsigned char, 8> kMagic{0xd9, 0xd5, 0x05, 0xf9, 0x20, 0xa1, 0x63, 0xd7};
constexpr int kJournalHead = 28;
constexpr int kRecordsOffset = 8;
constexpr int kSectorOffset = 20;
constexpr int kPageOffset = 24;
constexpr std::uint32_t kRestOfFile = 0xffffffff;

struct JournalHead {
  std::uint32_t records;
  std::uint32_t sector;
  std::uint32_t page;
};

bool isSize(std::uint32_t size, std::uint32_t least) {
  return size >= least && size <= 65536 && std::has_single_bit(size);
}

using HeadBytes = std::array<unsigned char, kJournalHead>;

// Nothing where the engine would not see the head of a journal either.
std::optional<JournalHead> headIn(const HeadBytes& bytes, ssize_t count) {
  if (count != kJournalHead || !std::equal(kMagic.begin(), kMagic.end(), bytes.begin())) {
    return std::nullopt;
  }
  const JournalHead head{qFromBigEndian<quint32>(bytes.data() + kRecordsOffset),
                         qFromBigEndian<quint32>(bytes.data() + kSectorOffset),
                         qFromBigEndian<quint32>(bytes.data() + kPageOffset)};
  return isSize(head.sector, 32) && isSize(head.page, 512) ? std::optional(head) : std::nullopt;
}

std::optional<std::uint32_t> readNumber(int file, off_t at) {
  std::array<unsigned char, 4> bytes{};
  if (::pread(file, bytes.data(), bytes.size(), at) != static_cast<ssize_t>(bytes.size())) {
    return std::nullopt;
  }
  return qFromBigEndian<quint32>(bytes.data());
}

// The change counter of the first page as it was before the save.
std::optional<std::uint32_t> counterBefore(int file, const JournalHead& head) {
  const off_t record = off_t{head.page} + 8;
  off_t at = head.sector;
  for (std::uint32_t i = 0; i < head.records || head.records == kRestOfFile; ++i, at += record) {
    const auto page = readNumber(file, at);
    if (!page) {
      return std::nullopt;
    }
    if (*page == 1) {
      return readNumber(file, at + 4 + kCounterOffset);
    }
  }
  return std::nullopt;
}

}  // namespace

JournalKind judgeJournal(const char* path, std::uint32_t changeCounter) {
  const OpenFile file(path, O_RDONLY);
  if (!file.isOpen()) {
    return errno == ENOENT ? JournalKind::Absent : JournalKind::Unreadable;
  }
  HeadBytes bytes{};
  const ssize_t count = ::pread(file.descriptor(), bytes.data(), bytes.size(), 0);
  if (count < 0) {
    return JournalKind::Unreadable;
  }
  const auto head = headIn(bytes, count);
  if (!head || head->records == 0) {
    return JournalKind::Idle;
  }
  const auto before = counterBefore(file.descriptor(), *head);
  if (!before) {
    return JournalKind::Unknown;
  }
  return *before == changeCounter || *before + 1 == changeCounter ? JournalKind::Belongs
                                                                  : JournalKind::Foreign;
}

QString journalOf(const QString& path) {
  return path + QLatin1String("-journal");
}

QString logOf(const QString& path) {
  return path + QLatin1String("-wal");
}

QString setAside(const QString& path) {
  const QString plain = path + QStringLiteral(".nao-aplicado");
  QString name = plain;
  for (int i = 2; QFileInfo::exists(name); ++i) {
    name = plain + QLatin1Char('-') + QString::number(i);
  }
  if (!QFile::rename(path, name)) {
    throw RuntimeError(ErrorNumber::PathFileAccess, path);
  }
  return name;
}

}  // namespace quartela::sqlite
