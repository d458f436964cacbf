#include "platform/files/KeyFile.h"

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/values/RuntimeError.h"
#include "tests/platform/files/NoMoreFiles.h"
#include "tests/platform/files/OrdinaryUser.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

const QByteArray kMark = QByteArrayLiteral("\xEF\xBB\xBF");

QString get(const QByteArray& bytes, const char* section, const char* key) {
  return KeyFile(bytes).value(QString::fromUtf8(section), QString::fromUtf8(key));
}

}  // namespace

class KeyFileTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { folder_.reset(); }

  void reads_data();
  void reads();
  void cutsValuesAt255Characters();
  void setsOneLine_data();
  void setsOneLine();
  void readsBackWhatItSets_data();
  void readsBackWhatItSets();
  void refusesNamesThatNoFileCanHold_data();
  void refusesNamesThatNoFileCanHold();
  void keepsAnyBytes_data();
  void keepsAnyBytes();
  void readsFilesThatAreThere();
  void readsNothingWhereNoKeyFileIs();
  void tellsWhenNoFileCanBeOpened();
  void setsSeveralKeysAtOnce();
  void isForOwnerAndGroupAlone();
  void readsNoFileThatIsTooLarge();
  void waitsForNoPipe();
  void makesAFile();
  void leavesWhatItCannotRead_data();
  void leavesWhatItCannotRead();
  void leavesAFileThatItMayNotRead();
  void leavesAFileThatItMayNotWrite();
  void leavesNothingBeside();

 private:
  QString path(const char* name) const { return folder_->filePath(QString::fromUtf8(name)); }
  QString fileWith(const QByteArray& bytes) const {
    QFile file(path("test.ini"));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    return isWritten ? file.fileName() : QString();
  }

  std::unique_ptr<QTemporaryDir> folder_;
};

void KeyFileTest::init() {
  folder_ = std::make_unique<QTemporaryDir>();
  QVERIFY(folder_->isValid());
}

void KeyFileTest::reads_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::addColumn<QString>("value");
  const auto row = [](const char* name, const QByteArray& bytes, const char* value) {
    QTest::newRow(name) << bytes << QString::fromUtf8(value);
  };
  row("LF", "[Seção]\nnome=Maria\n", "Maria");
  row("CR LF", "[Seção]\r\nnome=Maria\r\n", "Maria");
  row("mixed ends", "[Outra]\r\nnome=x\n[Seção]\nnome=Maria\r\n", "Maria");
  row("no last end", "[Seção]\nnome=Maria", "Maria");
  row("mark", kMark + "[Seção]\r\nnome=Maria\r\n", "Maria");
  row("1252", "[Se\xE7\xE3o]\r\nnome=Jo\xE3o \x96 \x80\r\n", "João – €");
  row("UTF-8", "[Seção]\nnome=João – € 😀\n", "João – € 😀");
  row("mark, then no UTF-8", kMark + "[Seção]\nnome=\xE1\n", "\uFFFD");
  row("section in another case", "[SEÇÃO]\nnome=Maria\n", "Maria");
  row("section in another case, 1252", "[SE\xC7\xC3O]\nnome=Maria\n", "Maria");
  row("key in another case", "[seção]\nNOME=Maria\n", "Maria");
  row("blanks", "  [ Seção ]  \n\t nome \t =  Maria da Silva \t\n", "Maria da Silva");
  row("double quotes", "[Seção]\nnome=\"Maria\"\n", "Maria");
  row("single quotes", "[Seção]\nnome= 'Maria' \n", "Maria");
  row("blanks in quotes", "[Seção]\nnome=\"  Maria \"\n", "  Maria ");
  row("quotes in quotes", "[Seção]\nnome=\"\"Maria\"\"\n", "\"Maria\"");
  row("different quotes", "[Seção]\nnome=\"Maria'\n", "\"Maria'");
  row("one quote", "[Seção]\nnome=\"\n", "\"");
  row("empty quotes", "[Seção]\nnome=\"\"\n", "");
  row("quote inside", "[Seção]\nnome=Santa \"Bárbara\"\n", "Santa \"Bárbara\"");
  row("equals signs", "[Seção]\nnome=a=b=c\n", "a=b=c");
  row("comment signs inside", "[Seção]\nnome=C:\\a;b#c\n", "C:\\a;b#c");
  row("backslashes", "[Seção]\nnome=C:\\new\\table\n", "C:\\new\\table");
  row("empty value", "[Seção]\nnome=\n", "");
  row("comments", "; nome=a\n# x\n[Seção]\n;nome=b\n # nome=c\nnome=Maria\n", "Maria");
  row("comment with a section", "[Seção]\n;[Outra]\nnome=Maria\n", "Maria");
  row("first key counts", "[Seção]\nnome=Maria\nNome=Ana\n", "Maria");
  row("first section counts", "[Seção]\nnome=Maria\n[seção]\nnome=Ana\n", "Maria");
  row("key only in the second section", "[Seção]\nx=1\n[seção]\nnome=Ana\n", "");
  row("key of another section", "[Seção]\nx=1\n[Outra]\nnome=Ana\n", "");
  row("key in front of all sections", "nome=Ana\n[Seção]\n", "");
  row("no such section", "[Outra]\nnome=Ana\n", "");
  row("no equals sign", "[Seção]\nnome\nnome: x\n", "");
  row("longer key", "[Seção]\nnome2=Ana\n", "");
  row("no key", "[Seção]\n=Ana\n", "");
  row("empty", "", "");
  row("only a mark", kMark, "");
  row("only line ends", "\r\n\n\r\n", "");
  row("text behind the section", "[Seção] ; dados\nnome=Maria\n", "Maria");
  row("section cut", "[Seção\nnome=Maria\n", "Maria");
  row("cut in a section", "[Outra]\nnome=x\n[Seç", "");
  row("cut in a key", "[Seção]\nno", "");
  row("cut behind the equals sign", "[Seção]\nnome=", "");
  row("cut in a character", "[Se\xE7\xE3o]\nnome=Jo\xC3", "JoÃ");
  row("lone CR", "[Seção]\nnome=a\rb\n", "a\rb");
  row("garbage", "\x01\x02\xFF]]==[[\n[Se\xE7\xE3o]\nnome=Maria\n", "Maria");
  const QByteArray withNul("\0[x\n[Seção]\n\0nome=x\nnome=a\0b\n", 31);
  QTest::newRow("NUL") << withNul << QString(QStringLiteral("a") + QChar(0) + u'b');
}

void KeyFileTest::reads() {
  QFETCH(QByteArray, bytes);
  QTEST(get(bytes, "Seção", "nome"), "value");
  QTEST(get(bytes, "  seção ", " NOME "), "value");
}

void KeyFileTest::cutsValuesAt255Characters() {
  const auto read = [](const QString& value) {
    return get("[s]\nk=" + value.toUtf8() + "\n", "s", "k");
  };
  QCOMPARE(read(QString(255, u'ã')), QString(255, u'ã'));
  QCOMPARE(read(QString(256, u'ã')), QString(255, u'ã'));
  QCOMPARE(read(QString(100'000, u'x')), QString(255, u'x'));
  QCOMPARE(read(u'"' + QString(300, u'x') + u'"'), QString(255, u'x'));
  const QString pair = QStringLiteral("😀");
  QCOMPARE(read(QString(253, u'x') + pair + u'x'), QString(QString(253, u'x') + pair));
  QCOMPARE(read(QString(254, u'x') + pair), QString(254, u'x'));
}

void KeyFileTest::setsOneLine_data() {
  QTest::addColumn<QByteArray>("before");
  QTest::addColumn<QString>("value");
  QTest::addColumn<QByteArray>("after");
  const auto row = [](const char* name, const QByteArray& before, const char* value,
                      const QByteArray& after) {
    QTest::newRow(name) << before << QString::fromUtf8(value) << after;
  };
  row("new file", "", "Maria", "[Seção]\r\nnome=Maria\r\n");
  row("only a mark", kMark, "Maria", kMark + "[Seção]\r\nnome=Maria\r\n");
  row("LF", "[Seção]\nnome=x\ny=2\n", "Maria", "[Seção]\nnome=Maria\ny=2\n");
  row("CR LF", "[Seção]\r\nnome=x\r\ny=2\r\n", "Maria", "[Seção]\r\nnome=Maria\r\ny=2\r\n");
  row("mixed ends", "[Seção]\nnome=x\r\ny=2\n\r\n", "Maria", "[Seção]\nnome=Maria\r\ny=2\n\r\n");
  row("no last end", "[Seção]\nnome=x", "Maria", "[Seção]\nnome=Maria");
  row("mark", kMark + "[Seção]\nnome=x\n", "João", kMark + "[Seção]\nnome=João\n");
  row("blanks and case of the line", "[ SEÇÃO ]\n\t NOME \t= \tx  \n", "Maria",
      "[ SEÇÃO ]\n\t NOME \t= \tMaria\n");
  row("empty value", "[Seção]\nnome = x\n", "", "[Seção]\nnome = \n");
  row("the same value", "[Seção]\nnome=x\n", "x", "[Seção]\nnome=x\n");
  row("comments and blank lines", "; um\n\n# dois\n[Seção]\n\n;nome=a\nnome=x\n\n; fim", "Maria",
      "; um\n\n# dois\n[Seção]\n\n;nome=a\nnome=Maria\n\n; fim");
  row("lines that mean nothing", "lixo\n[Seção]\nlixo 2\nnome=x\n=\n]\n", "Maria",
      "lixo\n[Seção]\nlixo 2\nnome=Maria\n=\n]\n");
  row("first key", "[Seção]\nnome=x\nnome=y\n", "Maria", "[Seção]\nnome=Maria\nnome=y\n");
  row("first section", "[Seção]\nz=1\n[Seção]\nnome=y\n", "Maria",
      "[Seção]\nz=1\nnome=Maria\n[Seção]\nnome=y\n");
  row("not another section's", "[A]\nnome=x\n[Seção]\nz=1\n[B]\nnome=x\n", "Maria",
      "[A]\nnome=x\n[Seção]\nz=1\nnome=Maria\n[B]\nnome=x\n");
  row("new key behind the last", "[Seção]\r\na=1\r\nb=2\r\n\r\n; sobre B\r\n[B]\r\n", "Maria",
      "[Seção]\r\na=1\r\nb=2\r\nnome=Maria\r\n\r\n; sobre B\r\n[B]\r\n");
  row("new key in an empty section", "[Seção]\n\n[B]\n", "Maria", "[Seção]\nnome=Maria\n\n[B]\n");
  row("new key, no last end", "[Seção]\na=1", "Maria", "[Seção]\na=1\nnome=Maria");
  row("new key, no end at all", "[Seção]", "Maria", "[Seção]\r\nnome=Maria");
  row("new section", "[A]\nnome=x\n", "Maria", "[A]\nnome=x\n[Seção]\nnome=Maria\n");
  row("new section, CR LF", "[A]\r\nnome=x\r\n", "Maria",
      "[A]\r\nnome=x\r\n[Seção]\r\nnome=Maria\r\n");
  row("new section, no last end", "[A]\nnome=x", "Maria", "[A]\nnome=x\n[Seção]\nnome=Maria");
  row("cut between CR and LF", "[A]\r\nnome=x\r", "Maria",
      "[A]\r\nnome=x\r\n[Seção]\r\nnome=Maria");
  row("new section behind a cut one", "[A]\nnome=x\n[Seç", "Maria",
      "[A]\nnome=x\n[Seç\n[Seção]\nnome=Maria");
  row("line breaks", "[Seção]\nnome=x\ny=2\n", "a\nb\r\nc\rd\n\n[y]\nnome=z",
      "[Seção]\nnome=a b c d  [y] nome=z\ny=2\n");
  row("blanks at the ends", "[Seção]\nnome=x\n", " a ", "[Seção]\nnome=\" a \"\n");
  row("quotes", "[Seção]\nnome=x\n", "\"a\"", "[Seção]\nnome=\"\"a\"\"\n");
  row("path", "[Seção]\nnome=x\n", "C:\\dados\\Banco.mdb;#",
      "[Seção]\nnome=C:\\dados\\Banco.mdb;#\n");
  row("1252 stays", "[Se\xE7\xE3o]\r\nnome=Jos\xE9\r\n; \x80\r\n", "João – €",
      "[Se\xE7\xE3o]\r\nnome=Jo\xE3o \x96 \x80\r\n; \x80\r\n");
  row("1252, new section", "[\xC7]\r\n", "João", "[\xC7]\r\n[Se\xE7\xE3o]\r\nnome=Jo\xE3o\r\n");
  row("1252 lacks a character", "; \xE1\x80\r\n[Se\xE7\xE3o]\r\nnome=x\r\n", "Łódź",
      "; á€\r\n[Seção]\r\nnome=Łódź\r\n");
  row("1252 that would look like UTF-8", "[x]\ny=1\n; \xE1\n", "a",
      "[x]\ny=1\n; \xE1\n[Se\xE7\xE3o]\nnome=a\n");
  row("ASCII takes UTF-8", "[A]\n", "João", "[A]\n[Seção]\nnome=João\n");
}

void KeyFileTest::setsOneLine() {
  QFETCH(QByteArray, before);
  QFETCH(QString, value);
  KeyFile file(before);
  file.setValue(QStringLiteral("Seção"), QStringLiteral("nome"), value);
  QTEST(file.bytes(), "after");
}

void KeyFileTest::readsBackWhatItSets_data() {
  QTest::addColumn<QByteArray>("before");
  QTest::addColumn<QString>("value");
  QTest::addColumn<QString>("read");
  const auto row = [](const char* name, const QByteArray& before, const QString& value) {
    QTest::newRow(name) << before << value << value;
  };
  // The bytes of "Ã£" in Windows-1252 are those of "ã" in UTF-8.
  row("bytes that look like UTF-8", "[s]\nk=\xE1\n", QStringLiteral("Ã£"));
  row("blanks only", "[s]\nk=1\n", QStringLiteral("   "));
  row("no-break blanks", "[s]\nk=1\n", QStringLiteral("\u00A0x\u00A0"));
  row("one quote", "[s]\nk=1\n", QStringLiteral("\""));
  row("two quotes", "[s]\nk=1\n", QStringLiteral("''"));
  row("quotes that differ", "[s]\nk=1\n", QStringLiteral("\"a'"));
  row("quote and blank", "[s]\nk=1\n", QStringLiteral(" \"a\" "));
  row("comment", "[s]\nk=1\n", QStringLiteral(";#"));
  row("section", "[s]\nk=1\n", QStringLiteral("[t]"));
  row("mark", "[s]\nk=1\n", QStringLiteral("\uFEFFx"));
  row("NUL", "[s]\nk=1\n", QString(QChar(0)));
  row("empty", "[s]\nk=1\n", QString());
  QTest::newRow("too long") << QByteArray() << QString(300, u'a') << QString(255, u'a');
  QTest::newRow("line breaks") << QByteArray() << QStringLiteral("\na\r\nb\r")
                               << QStringLiteral(" a b ");
}

void KeyFileTest::readsBackWhatItSets() {
  QFETCH(QByteArray, before);
  QFETCH(QString, value);
  KeyFile file(before);
  file.setValue(QStringLiteral("s"), QStringLiteral("k"), value);
  QTEST(file.value(QStringLiteral("s"), QStringLiteral("k")), "read");
  QTEST(get(file.bytes(), "s", "k"), "read");
}

void KeyFileTest::refusesNamesThatNoFileCanHold_data() {
  QTest::addColumn<QString>("section");
  QTest::addColumn<QString>("key");
  const auto row = [](const char* name, const char* section, const char* key) {
    QTest::newRow(name) << QString::fromUtf8(section) << QString::fromUtf8(key);
  };
  row("no section", "", "k");
  row("blank section", " \t", "k");
  row("bracket", "a]b", "k");
  row("section with a line break", "a\nb", "k");
  row("section with a CR", "a\rb", "k");
  row("no key", "s", "");
  row("blank key", "s", "  ");
  row("equals sign", "s", "a=b");
  row("key with a line break", "s", "a\nb");
  row("comment", "s", ";k");
  row("other comment", "s", " #k");
  row("section as key", "s", "[k");
}

void KeyFileTest::refusesNamesThatNoFileCanHold() {
  QFETCH(QString, section);
  QFETCH(QString, key);
  KeyFile file("[s]\r\nk=1\r\n");
  QCOMPARE(test::errorOf([&] { file.setValue(section, key, QStringLiteral("x")); }), 5);
  QCOMPARE(file.bytes(), QByteArray("[s]\r\nk=1\r\n"));
  QCOMPARE(file.value(section, key), QString());
}

void KeyFileTest::keepsAnyBytes_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::newRow("empty") << QByteArray();
  QTest::newRow("mark") << kMark;
  QTest::newRow("part of a mark") << QByteArray("\xEF\xBB");
  QTest::newRow("two marks") << kMark + kMark;
  QTest::newRow("ends") << QByteArray("\r\n\n\r\r\n\r");
  QTest::newRow("NUL") << QByteArray("\0\n\0\r\n\0", 6);
  QTest::newRow("garbage") << QByteArray("\xFF\xFE[\x00\n\x00]", 7);
  QTest::newRow("long line") << QByteArray(1'000'000, '[');
}

void KeyFileTest::keepsAnyBytes() {
  QFETCH(QByteArray, bytes);
  QCOMPARE(KeyFile(bytes).bytes(), bytes);
}

void KeyFileTest::readsFilesThatAreThere() {
  const QString file = fileWith("[Diretorio]\r\ncaminho=Banco.mdb\r\n");
  QCOMPARE(readKey(file, QStringLiteral("diretorio"), QStringLiteral("CAMINHO")),
           QStringLiteral("Banco.mdb"));
}

// Only a file that is known not to exist has no keys.
void KeyFileTest::readsNothingWhereNoKeyFileIs() {
  const QString section = QStringLiteral("s");
  const QString key = QStringLiteral("k");
  const QString file = fileWith("[s]\nk=1\n");
  QCOMPARE(readKey(path("none.ini"), section, key), QString());
  QCOMPARE(readKey(path("none/none.ini"), section, key), QString());
  QCOMPARE(readKey(QString(), section, key), QString());
  QCOMPARE(test::errorOf([&] { readKey(file + QStringLiteral("/below.ini"), section, key); }), 76);
  QCOMPARE(test::errorOf([&] { readKey(folder_->path(), section, key); }), 75);
}

// No more files can be opened; the file is there all the same.
void KeyFileTest::tellsWhenNoFileCanBeOpened() {
  const QString s = QStringLiteral("s");
  const QString file = fileWith("[s]\nk=1\n");
  const QByteArray before = test::contentOf(file);
  int reading = 0;
  int writing = 0;
  {
    const test::NoMoreFiles none;
    reading = test::errorOf([&] { readKey(file, s, s); });
    writing = test::errorOf([&] { writeKey(file, s, s, s); });
  }
  QCOMPARE(reading, 75);
  QCOMPARE(writing, 75);
  QCOMPARE(test::contentOf(file), before);
}

void KeyFileTest::setsSeveralKeysAtOnce() {
  const QString file = fileWith("[Contador]\nano=2013\nnumber=327\n");
  const QString s = QStringLiteral("contador");
  writeKeys(file, {{s, QStringLiteral("ano"), QStringLiteral("2014")},
                   {s, QStringLiteral("number"), QStringLiteral("1")},
                   {QStringLiteral("Anterior"), QStringLiteral("ano"), QStringLiteral("2013")}});
  const QByteArray after("[Contador]\nano=2014\nnumber=1\n[Anterior]\nano=2013\n");
  QCOMPARE(test::contentOf(file), after);
  QCOMPARE(test::errorOf([&] {
             writeKeys(file, {{s, QStringLiteral("ano"), QStringLiteral("2015")},
                              {s, QString(), QString()}});
           }),
           5);
  QCOMPARE(test::contentOf(file), after);
}

void KeyFileTest::isForOwnerAndGroupAlone() {
  const QString file = path("new.ini");
  const QString s = QStringLiteral("s");
  const auto rights = [&] {
    struct stat status {};
    return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_mode & 0777 : 0;
  };
  writeKey(file, s, s, s);
  QCOMPARE(rights(), 0660U);
  QCOMPARE(::chmod(QFile::encodeName(file).constData(), 0640), 0);
  writeKey(file, s, s, QStringLiteral("2"));
  QCOMPARE(rights(), 0640U);
}

void KeyFileTest::readsNoFileThatIsTooLarge() {
  QByteArray bytes("[s]\nk=1\n");
  bytes.resize(KeyFile::kLargestFile, '\n');
  QCOMPARE(readKey(fileWith(bytes), QStringLiteral("s"), QStringLiteral("k")), QStringLiteral("1"));
  bytes += '\n';
  const QString large = fileWith(bytes);
  QCOMPARE(test::errorOf([&] { readKey(large, QStringLiteral("s"), QStringLiteral("k")); }), 75);
}

void KeyFileTest::waitsForNoPipe() {
  const QString pipe = path("pipe.ini");
  QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  QCOMPARE(test::errorOf([&] { readKey(pipe, QStringLiteral("s"), QStringLiteral("k")); }), 75);
  QCOMPARE(
      test::errorOf([&] { writeKey(pipe, QStringLiteral("s"), QStringLiteral("k"), QString()); }),
      75);
}

void KeyFileTest::makesAFile() {
  const QString file = path("new.ini");
  writeKey(file, QStringLiteral("s"), QStringLiteral("k"), QStringLiteral("é"));
  QCOMPARE(test::contentOf(file), QByteArray("[s]\r\nk=é\r\n"));
  writeKey(file, QStringLiteral("S"), QStringLiteral("K2"), QStringLiteral("2"));
  QCOMPARE(test::contentOf(file), QByteArray("[s]\r\nk=é\r\nK2=2\r\n"));
}

void KeyFileTest::leavesWhatItCannotRead_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<int>("error");
  QTest::newRow("folder missing") << QStringLiteral("none/new.ini") << 76;
  QTest::newRow("below a file") << QStringLiteral("test.ini/new.ini") << 76;
  QTest::newRow("a folder") << QStringLiteral("folder") << 75;
  QTest::newRow("too large") << QStringLiteral("test.ini") << 75;
}

void KeyFileTest::leavesWhatItCannotRead() {
  QFETCH(QString, name);
  const QByteArray large(KeyFile::kLargestFile + 1, 'x');
  const QString file = fileWith(large);
  QVERIFY(QDir(folder_->path()).mkdir(QStringLiteral("folder")));
  const QString s = QStringLiteral("s");
  QTEST(test::errorOf([&] { writeKey(folder_->filePath(name), s, s, s); }), "error");
  QVERIFY(test::contentOf(file) == large);
  QVERIFY(QFileInfo(path("folder")).isDir());
  QCOMPARE(test::errorOf([&] { writeKey(QString(), s, s, s); }), 76);
}

void KeyFileTest::leavesAFileThatItMayNotRead() {
  const test::OrdinaryUser user(folder_->path());
  if (!user.isOrdinary()) {
    QSKIP("The permissions of files bind nobody here.");
  }
  const QString s = QStringLiteral("s");
  const QString file = fileWith("[s]\ns=1\n");
  QVERIFY(QFile::setPermissions(file, QFile::WriteOwner));
  QCOMPARE(test::errorOf([&] { readKey(file, s, s); }), 70);
  QCOMPARE(test::errorOf([&] { writeKey(file, s, s, QStringLiteral("2")); }), 70);
  QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
  QCOMPARE(test::contentOf(file), QByteArray("[s]\ns=1\n"));
}

void KeyFileTest::leavesAFileThatItMayNotWrite() {
  const test::OrdinaryUser user(folder_->path());
  if (!user.isOrdinary()) {
    QSKIP("The permissions of files bind nobody here.");
  }
  const QString s = QStringLiteral("s");
  const QString file = fileWith("[s]\ns=1\n");
  QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
  QCOMPARE(test::errorOf([&] { writeKey(file, s, s, QStringLiteral("2")); }), 70);
  QCOMPARE(test::contentOf(file), QByteArray("[s]\ns=1\n"));
}

void KeyFileTest::leavesNothingBeside() {
  const QString s = QStringLiteral("s");
  const QString file = fileWith("[s]\ns=1\n");
  writeKey(file, s, s, QStringLiteral("2"));
  QCOMPARE(test::errorOf([&] { writeKey(file, QString(), s, s); }), 5);
  QCOMPARE(QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
           QStringList{QStringLiteral("test.ini")});
  QCOMPARE(test::contentOf(file), QByteArray("[s]\ns=2\n"));
}

QUARTELA_TEST_MAIN(KeyFileTest)
#include "KeyFile_test.moc"
