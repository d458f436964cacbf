// Key-and-section files: "[section]" lines, "key=value" lines below them, and around these whatever
// an operator's text editor leaves there. Setting a key touches the one line that holds it.
//
// Reading: sections and keys match without regard to letter case (accented letters too); of several
// with the same name the first counts. Blanks around names and values do not count, and one pair of
// quotes (" or ') around a whole value is taken off. Lines that begin with ";" or "#" are comments;
// what follows a value on its line belongs to it. A section's name ends at the first "]" or at the
// end of its line. A value is cut at 255 characters.
//
// Writing: order, comments, line ends, a missing last line end and the mark in front of a UTF-8
// file stay as they are. A new key goes behind the last key of its section, a new section to the
// end. New lines end as the line before them; an empty file gets CR LF, which every system's
// editors read. Line breaks in a value become blanks. A value that would lose blanks or quotes at
// its ends is put into quotes.
//
// Encoding: UTF-8 with or without its mark; a file that is no UTF-8 is Windows-1252 and stays so,
// unless a value has a character that Windows-1252 lacks, or would make the file look like UTF-8:
// then the whole file becomes UTF-8. New files are UTF-8 without a mark.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

#include "platform/files/TextEncoding.h"

namespace quartela {

class KeyFile {
 public:
  static constexpr qsizetype kLongestValue = 255;
  // A larger file is no key file.
  static constexpr qint64 kLargestFile = qint64{4} << 20;

  // Any bytes are a key file, an empty array one without keys.
  explicit KeyFile(const QByteArray& bytes = {});

  // The empty text when there is no such section or key.
  QString value(const QString& section, const QString& key) const;

  // Error 5 for a name that a file cannot hold: an empty one, one with a line break, a section with
  // "]", a key with "=" or with "[", ";" or "#" in front.
  void setValue(const QString& section, const QString& key, const QString& value);

  QByteArray bytes() const;

 private:
  struct Line {
    QByteArray text;
    QByteArray end;
  };

  QString textAt(std::size_t line) const { return decodeText(lines_[line].text, encoding_); }
  // The position of the section's own line; lines_.size() when there is none.
  std::size_t findSection(const QString& section) const;
  // The position behind the last line of the section that begins at `section`.
  std::size_t endOfSection(std::size_t section) const;
  std::optional<std::size_t> findKey(std::size_t section, const QString& key) const;
  void insertKey(std::size_t section, const QByteArray& line);
  void insert(std::size_t position, const QByteArray& text);
  // Ends the last line of the file where nothing does yet.
  void endLine(std::size_t line);
  // The text in the file's encoding, which changes when it has to.
  QByteArray encoded(const QString& text);
  void becomeUtf8();

  bool hasMark_ = false;
  TextEncoding encoding_ = TextEncoding::Utf8;
  std::vector<Line> lines_;
};

// The value of one key of the file at `path`; the empty text when there is no such file. Error 75
// or 70 for one that is there and cannot be read, is no ordinary file or is larger than
// kLargestFile: what cannot be read is not empty.
QString readKey(const QString& path, const QString& section, const QString& key);

// The whole file as readKey() reads it; nothing when there is none.
std::optional<KeyFile> readKeyFile(const QString& path);

struct KeyValue {
  QString section;
  QString key;
  QString value;
};

// Sets keys of the file at `path`, making the file where there is none (for its owner and group
// alone); all of them or none. Errors as of replaceFile, KeyFile::setValue and readKey; the file is
// then as it was.
void writeKeys(const QString& path, const std::vector<KeyValue>& keys);
void writeKey(const QString& path, const QString& section, const QString& key,
              const QString& value);

}  // namespace quartela
