// Throws damaged key files at the reader and writer: whatever the bytes are, a key that was set
// reads back, and no other line changes.
#include <random>

#include "platform/files/KeyFile.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

constexpr int kSeeds = 8;
constexpr int kInputsPerSeed = 25'000;

const QByteArray kMark = QByteArrayLiteral("\xEF\xBB\xBF");
const QStringList kSections{"Diretorio", "diretorio", "Seção", "SEÇÃO", "Número", "s"};
const QStringList kKeys{"caminho", "CAMINHO2", "nome", "Ação", "AÇÃO", "k"};

const QList<QByteArray> kFiles{
    "[Diretorio]\r\ncaminho=Banco.mdb\r\ncaminho2=Demonstracao.mdb\r\nnumber=Number.Ini\r\n"
    "\r\n[Se\xE7\xE3o]\r\nnome=Jos\xE9 da Concei\xE7\xE3o\r\n; fim\r\n",
    "\xEF\xBB\xBF[Seção]\nnome=José\nação = \"x y\"\n\n# Número\n[Número]\nk=1\n",
    "; só comentários\n\n[s]\nk='1'\n[S]\nk=2\n[Diretorio]\ncaminho=C:\\a;b=c\n",
    "[Número]\r\nk=5\nk=6\r\n[seção]\nAÇÃO=😀\n lixo\n=\n[]\nx=1\n[", ""};

const QList<QByteArray> kPieces{
    "[",          "]",    "=", "\n",      "\r",           "\r\n",    ";",
    "#",          "\"",   "'", " ",       "\t",           "\xE1",    "\xC3",
    "ã",          "Ł",    "😀", "[Seção]", "[s]\n",        "\nk=1\n", "\xA0",
    "\x85",       "\xFF", "x", "nome",    "\xEF\xBB\xBF", "\u2028",  "caminho=",
    "[Diretorio", "; "};

const QStringList kCharacters{"a",  "Z", "5",  " ",  "=", ";", "#",      "[",      "]",
                              "\"", "'", "\n", "\r", "ã", "Ã", "£",      "€",      "Ł",
                              "漢", "😀", "\\", "\t", "©", "â", "\u00A0", "\u0081", "\u2028"};

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  qsizetype below(qsizetype limit) {
    return static_cast<qsizetype>(engine_() % static_cast<std::uint64_t>(limit));
  }
  template <typename List>
  const auto& oneOf(const List& list) {
    return list[below(list.size())];
  }

 private:
  std::mt19937_64 engine_;
};

void mutate(QByteArray& bytes, Random& random) {
  const qsizetype at = random.below(bytes.size() + 1);
  const qsizetype length = random.below(std::min<qsizetype>(bytes.size() - at, 20) + 1);
  switch (random.below(7)) {
    case 0:
      bytes.insert(at, random.oneOf(kPieces));
      break;
    case 1:
      bytes.remove(at, length);
      break;
    case 2:
      bytes.truncate(at);
      break;
    case 3:
      bytes.insert(random.below(bytes.size() + 1), bytes.mid(at, length));
      break;
    case 4:
      bytes.insert(at, static_cast<char>(random.below(256)));
      break;
    case 5:
      bytes.replace(at, length, random.oneOf(kPieces));
      break;
    default:
      bytes.append(random.oneOf(kFiles).mid(random.below(20)));
      break;
  }
}

QByteArray damagedFile(Random& random) {
  QByteArray bytes = random.oneOf(kFiles);
  for (qsizetype turn = random.below(8); turn > 0; --turn) {
    mutate(bytes, random);
  }
  return bytes.left(1000);
}

QString anyValue(Random& random) {
  QString value;
  const qsizetype length = random.below(50) == 0 ? 250 + random.below(20) : random.below(12);
  while (value.size() < length) {
    value += random.oneOf(kCharacters);
  }
  return value;
}

// What is to be read after `value` was set.
QString asRead(QString value) {
  value.replace(QLatin1String("\r\n"), QLatin1String(" "));
  value.replace(u'\r', u' ').replace(u'\n', u' ');
  value.truncate(KeyFile::kLongestValue);
  if (value.size() == KeyFile::kLongestValue && value.back().isHighSurrogate()) {
    value.chop(1);
  }
  return value;
}

QList<QByteArray> linesOf(const QByteArray& bytes) {
  QList<QByteArray> lines;
  qsizetype start = bytes.startsWith(kMark) ? kMark.size() : 0;
  while (start < bytes.size()) {
    const qsizetype feed = bytes.indexOf('\n', start);
    const qsizetype next = feed < 0 ? bytes.size() : feed + 1;
    lines.append(bytes.mid(start, next - start));
    start = next;
  }
  return lines;
}

// A new line at the end of a file gives its end to the one that had none.
QByteArray withoutEnd(QByteArray line) {
  if (line.endsWith('\n')) {
    line.chop(line.endsWith("\r\n") ? 2 : 1);
  }
  return line;
}

bool isSameLine(const QByteArray& before, const QByteArray& after) {
  const bool hadEnd = before.endsWith('\n');
  return before == after || (!hadEnd && (before == withoutEnd(after) || before + '\n' == after));
}

// Whether `after` is `before` with one line changed, or with one or two new ones in one place.
bool onlyOneLineIsSet(const QList<QByteArray>& before, const QList<QByteArray>& after) {
  const qsizetype more = after.size() - before.size();
  if (more < 0 || more > 2) {
    return false;
  }
  qsizetype same = 0;
  while (same < before.size() && isSameLine(before[same], after[same])) {
    ++same;
  }
  for (qsizetype i = same + (more == 0 ? 1 : 0); i < before.size(); ++i) {
    if (before[i] != after[i + more]) {
      return false;
    }
  }
  return true;
}

// The bytes that the unchanged lines have after a file had to leave Windows-1252.
QByteArray inEncodingOf(const QByteArray& before, const QByteArray& after) {
  const bool hadMark = before.startsWith(kMark);
  const bool leaves = !hadMark && detectEncoding(before) == TextEncoding::Windows1252 &&
                      detectEncoding(after) == TextEncoding::Utf8;
  return leaves ? decodeText(before, TextEncoding::Windows1252).toUtf8() : before;
}

}  // namespace

class KeyFileFuzzTest : public QObject {
  Q_OBJECT

 private slots:
  void survivesDamagedFiles_data();
  void survivesDamagedFiles();

 private:
  // Empty when all holds, else what does not.
  static QString check(const QByteArray& before, Random& random);
};

void KeyFileFuzzTest::survivesDamagedFiles_data() {
  QTest::addColumn<unsigned>("seed");
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    QTest::addRow("seed %u", seed) << seed;
  }
}

void KeyFileFuzzTest::survivesDamagedFiles() {
  QFETCH(unsigned, seed);
  Random random(seed);
  for (int input = 0; input < kInputsPerSeed; ++input) {
    const QByteArray before = damagedFile(random);
    const QString complaint = check(before, random);
    if (!complaint.isEmpty()) {
      QFAIL(qPrintable(complaint + QLatin1String(": ") +
                       QString::fromLatin1(before.toPercentEncoding())));
    }
  }
}

QString KeyFileFuzzTest::check(const QByteArray& before, Random& random) {
  const QString section = random.oneOf(kSections);
  const QString key = random.oneOf(kKeys);
  const QString otherKey = random.oneOf(kKeys);
  const QString otherSection = random.oneOf(kSections);
  const bool isOther = section.compare(otherSection, Qt::CaseInsensitive) != 0 ||
                       key.compare(otherKey, Qt::CaseInsensitive) != 0;
  const QString value = anyValue(random);

  KeyFile file(before);
  if (file.bytes() != before) {
    return QStringLiteral("reading changes the file");
  }
  const QString other = file.value(otherSection, otherKey);
  file.setValue(section, key, value);
  const QByteArray after = file.bytes();
  const KeyFile again(after);
  if (file.value(section, key) != asRead(value) || again.value(section, key) != asRead(value)) {
    return QStringLiteral("[%1] %2 does not read back as %3").arg(section, key, value);
  }
  if (isOther && again.value(otherSection, otherKey) != other) {
    return QStringLiteral("[%1] %2 changes [%3] %4").arg(section, key, otherSection, otherKey);
  }
  if (!onlyOneLineIsSet(linesOf(inEncodingOf(before, after)), linesOf(after))) {
    return QStringLiteral("[%1] %2 = %3 changes other lines").arg(section, key, value);
  }
  file.setValue(section, key, value);
  return file.bytes() == after ? QString() : QStringLiteral("setting twice is not setting once");
}

QUARTELA_TEST_MAIN(KeyFileFuzzTest)
#include "KeyFileFuzz_test.moc"
