#include "platform/files/KeyFile.h"

#include "platform/files/AtomicFile.h"

namespace quartela {
namespace {

const QByteArray kMark = QByteArrayLiteral("\xEF\xBB\xBF");
const QByteArray kNewLineEnd = QByteArrayLiteral("\r\n");

bool isSame(QStringView one, QStringView other) {
  return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool isSectionLine(QStringView line) {
  return line.trimmed().startsWith(u'[');
}

QStringView sectionName(QStringView line) {
  const QStringView rest = line.trimmed().sliced(1);
  const qsizetype end = rest.indexOf(u']');
  return (end < 0 ? rest : rest.first(end)).trimmed();
}

// The position of the "=" of a line that holds a key, else -1.
qsizetype equalsSign(QStringView line) {
  const QStringView text = line.trimmed();
  const bool isOther = text.startsWith(u';') || text.startsWith(u'#') || text.startsWith(u'[');
  return isOther ? -1 : line.indexOf(u'=');
}

bool isQuoted(QStringView value) {
  return value.size() >= 2 && value.front() == value.back() &&
         (value.front() == u'"' || value.front() == u'\'');
}

// Half of a character outside of the basic plane is no character.
QStringView cut(QStringView value) {
  if (value.size() <= KeyFile::kLongestValue) {
    return value;
  }
  const QStringView kept = value.first(KeyFile::kLongestValue);
  return kept.back().isHighSurrogate() ? kept.chopped(1) : kept;
}

QString asWritten(const QString& value) {
  QString line = value;
  line.replace(QLatin1String("\r\n"), QLatin1String(" "));
  line.replace(u'\r', u' ');
  line.replace(u'\n', u' ');
  const bool losesEnds = line.trimmed().size() != line.size() || isQuoted(line);
  return losesEnds ? u'"' + line + u'"' : line;
}

QString checkedName(const QString& name, QStringView nowhere, QStringView notInFront) {
  QString trimmed = name.trimmed();
  bool isGood = !trimmed.isEmpty() && !notInFront.contains(trimmed.front());
  for (const QChar character : trimmed) {
    isGood = isGood && !nowhere.contains(character);
  }
  if (!isGood) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, name);
  }
  return trimmed;
}

}  // namespace

KeyFile::KeyFile(const QByteArray& bytes) : hasMark_(bytes.startsWith(kMark)) {
  qsizetype start = hasMark_ ? kMark.size() : 0;
  encoding_ = hasMark_ ? TextEncoding::Utf8 : detectEncoding(bytes);
  while (start < bytes.size()) {
    const qsizetype feed = bytes.indexOf('\n', start);
    const qsizetype next = feed < 0 ? bytes.size() : feed + 1;
    qsizetype end = feed < 0 ? next : feed;
    if (feed > start && bytes[feed - 1] == '\r') {
      --end;
    }
    lines_.push_back({bytes.mid(start, end - start), bytes.mid(end, next - end)});
    start = next;
  }
}

QByteArray KeyFile::bytes() const {
  QByteArray bytes = hasMark_ ? kMark : QByteArray();
  for (const Line& line : lines_) {
    bytes += line.text;
    bytes += line.end;
  }
  return bytes;
}

std::size_t KeyFile::findSection(const QString& section) const {
  const QStringView wanted = QStringView(section).trimmed();
  for (std::size_t i = 0; i < lines_.size() && !wanted.isEmpty(); ++i) {
    const QString text = textAt(i);
    if (isSectionLine(text) && isSame(sectionName(text), wanted)) {
      return i;
    }
  }
  return lines_.size();
}

std::size_t KeyFile::endOfSection(std::size_t section) const {
  std::size_t end = section + 1;
  while (end < lines_.size() && !isSectionLine(textAt(end))) {
    ++end;
  }
  return end;
}

std::optional<std::size_t> KeyFile::findKey(std::size_t section, const QString& key) const {
  const QStringView wanted = QStringView(key).trimmed();
  const std::size_t end = section < lines_.size() ? endOfSection(section) : 0;
  for (std::size_t i = section + 1; i < end; ++i) {
    const QString text = textAt(i);
    const qsizetype equals = equalsSign(text);
    if (equals >= 0 && isSame(QStringView(text).first(equals).trimmed(), wanted)) {
      return i;
    }
  }
  return std::nullopt;
}

QString KeyFile::value(const QString& section, const QString& key) const {
  const auto line = findKey(findSection(section), key);
  if (!line) {
    return {};
  }
  const QString text = textAt(*line);
  QStringView value = QStringView(text).sliced(equalsSign(text) + 1).trimmed();
  if (isQuoted(value)) {
    value = value.sliced(1).chopped(1);
  }
  return cut(value).toString();
}

void KeyFile::setValue(const QString& section, const QString& key, const QString& value) {
  const QString sectionText = checkedName(section, u"]\r\n", u"");
  const QString keyText = checkedName(key, u"=\r\n", u"[;#");
  const QString valueText = asWritten(value);
  // All at once, so that the encoding is settled before the first line is made.
  encoded(sectionText + keyText + valueText);
  std::size_t at = findSection(sectionText);
  if (at == lines_.size()) {
    insert(at, encoded(u'[' + sectionText + u']'));
  }
  if (const auto line = findKey(at, keyText)) {
    QByteArray& text = lines_[*line].text;
    qsizetype kept = text.indexOf('=') + 1;
    while (kept < text.size() && (text[kept] == ' ' || text[kept] == '\t')) {
      ++kept;
    }
    text = text.first(kept) + encoded(valueText);
  } else {
    insertKey(at, encoded(keyText + u'=' + valueText));
  }
  if (encoding_ == TextEncoding::Windows1252 && detectEncoding(bytes()) == TextEncoding::Utf8) {
    becomeUtf8();
  }
}

void KeyFile::insertKey(std::size_t section, const QByteArray& line) {
  std::size_t last = section;
  const std::size_t end = endOfSection(section);
  for (std::size_t i = section + 1; i < end; ++i) {
    if (equalsSign(textAt(i)) >= 0) {
      last = i;
    }
  }
  insert(last + 1, line);
}

void KeyFile::insert(std::size_t position, const QByteArray& text) {
  Line line{text, kNewLineEnd};
  if (position > 0) {
    Line& before = lines_[position - 1];
    line.end = before.end;
    if (before.end.isEmpty()) {
      endLine(position - 1);
    }
  }
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(position), line);
}

void KeyFile::endLine(std::size_t line) {
  Line& last = lines_[line];
  if (last.text.endsWith('\r')) {
    // The file was cut between CR and LF.
    last.text.chop(1);
    last.end = kNewLineEnd;
  } else {
    last.end = line > 0 ? lines_[line - 1].end : kNewLineEnd;
  }
}

QByteArray KeyFile::encoded(const QString& text) {
  if (const auto bytes = encodeText(text, encoding_)) {
    return *bytes;
  }
  becomeUtf8();
  return text.toUtf8();
}

void KeyFile::becomeUtf8() {
  for (Line& line : lines_) {
    line.text = decodeText(line.text, encoding_).toUtf8();
  }
  encoding_ = TextEncoding::Utf8;
}

QString readKey(const QString& path, const QString& section, const QString& key) {
  const auto file = readKeyFile(path);
  return file ? file->value(section, key) : QString();
}

std::optional<KeyFile> readKeyFile(const QString& path) {
  const auto bytes = readWhole(path, KeyFile::kLargestFile);
  return bytes ? std::optional<KeyFile>(*bytes) : std::nullopt;
}

void writeKeys(const QString& path, const std::vector<KeyValue>& keys) {
  KeyFile file = readKeyFile(path).value_or(KeyFile());
  for (const KeyValue& key : keys) {
    file.setValue(key.section, key.key, key.value);
  }
  replaceFile(path, file.bytes(), NewFile::Office);
}

void writeKey(const QString& path, const QString& section, const QString& key,
              const QString& value) {
  writeKeys(path, {{section, key, value}});
}

}  // namespace quartela
