#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <functional>

#include "platform/database/engines/sqlite/Session.h"
#include "tests/platform/database/AnotherUser.h"
#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/SqliteSession.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

namespace {

void write(const QString& path, const QByteArray& content) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write(content), content.size());
}

QByteArray databaseBytes(const char* sql) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("x"));
  PlainSql(path).run(sql);
  return contentOf(path);
}

QByteArray accessHead(const char* mark) {
  return QByteArray("\0\1\0\0", 4) + mark + QByteArray(4096, '\0');
}

}  // namespace

class Opening : public QObject {
  Q_OBJECT

 private slots:
  void refusedFiles_data();
  void refusedFiles();
  void refusedPaths_data();
  void refusedPaths();
  void unreadableFile();
  void truncatedDatabase();
  void withoutStoredQueries();
  void connectionText_data();
  void connectionText();
  void openTwiceAndCloseTwice();
  void everythingElseNeedsAnOpenConnection();
  void settings();
  void leavesOneFile();
  void oddNames();
  void catalogue();
  void protectedFileIsRead();
};

void Opening::refusedFiles_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<QString>("words");

  QTest::newRow("empty") << QByteArray() << QStringLiteral("está vazio");
  QTest::newRow("Jet") << accessHead("Standard Jet DB") << QStringLiteral("Access");
  QTest::newRow("ACE") << accessHead("Standard ACE DB") << QStringLiteral("Access");
  QTest::newRow("text") << QByteArray("Prefeitura\n") << QStringLiteral("não é um banco de dados");
  QTest::newRow("long text") << QByteArray(5000, 'x') << QStringLiteral("não é um banco de dados");
  QTest::newRow("only the mark") << QByteArray("SQLite format 3\0", 16)
                                 << QStringLiteral("não é um banco de dados");
  QTest::newRow("another program's")
      << databaseBytes("CREATE TABLE T (A)") << QStringLiteral("de outro programa");
  QTest::newRow("head of ours, then rubbish")
      << databaseBytes(kSmallSchema).left(100) + QByteArray(8092, '\x55')
      << QStringLiteral("danificado");
}

void Opening::refusedFiles() {
  QFETCH(QByteArray, content);
  QFETCH(QString, words);
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("Banco.mdb"));
  write(path, content);
  Connection connection;

  const auto opening = [&] { connection.open(SmallDatabase::textFor(path)); };
  QCOMPARE(errorOf(opening), 3044);
  const QString said = wordsOf(opening);
  QVERIFY2(said.contains(words), qPrintable(said));
  QVERIFY2(said.contains(path), qPrintable(said));
  QCOMPARE(connection.state(), Connection::Closed);
  QCOMPARE(contentOf(path), content);
  QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("Banco.mdb")});
}

void Opening::refusedPaths_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<int>("number");
  QTest::addColumn<QString>("words");

  QTest::newRow("missing file") << "Nada.mdb" << 3024 << QStringLiteral("não foi encontrado");
  QTest::newRow("missing folder") << "pasta/Banco.mdb" << 3044
                                  << QStringLiteral("pasta do banco de dados não existe");
  QTest::newRow("a file as folder")
      << "Banco.mdb/x.mdb" << 3044 << QStringLiteral("pasta do banco de dados não existe");
  QTest::newRow("a folder") << "." << 3044 << QStringLiteral("é uma pasta");
  QTest::newRow("a pipe") << "cano" << 3044 << QStringLiteral("não é um arquivo comum");
  QTest::newRow("too long") << QString(300, QLatin1Char('n')) << 3044
                            << QStringLiteral("não é válido");
  QTest::newRow("with a null") << QStringLiteral("a") + QChar(0) + QStringLiteral("b") << 3044
                               << QStringLiteral("não é válido");
}

void Opening::refusedPaths() {
  QFETCH(QString, name);
  QFETCH(int, number);
  QFETCH(QString, words);
  SmallDatabase database;
  const QDir folder(database.folder());
  QCOMPARE(::mkfifo(folder.filePath(QStringLiteral("cano")).toUtf8().constData(), 0600), 0);
  const QStringList before = folder.entryList(QDir::AllEntries | QDir::System);
  Connection connection;

  const auto opening = [&] {
    connection.open(SmallDatabase::textFor(database.folder() + QLatin1Char('/') + name));
  };
  QCOMPARE(errorOf(opening), number);
  const QString said = wordsOf(opening);
  QVERIFY2(said.contains(words), qPrintable(said));
  QCOMPARE(connection.state(), Connection::Closed);
  QCOMPARE(folder.entryList(QDir::AllEntries | QDir::System), before);
}

void Opening::unreadableFile() {
  SmallDatabase database;
  const QByteArray before = contentOf(database.path());
  QCOMPARE(::chmod(database.folder().toUtf8().constData(), 0755), 0);
  QCOMPARE(::chmod(database.path().toUtf8().constData(), 0), 0);
  Connection connection;
  {
    AnotherUser user;
    if (!AnotherUser::bound()) {
      QSKIP("this user is not bound by file permissions");
    }
    const QString said = wordsOf([&] { database.open(connection); });
    QVERIFY2(said.contains(QStringLiteral("não pode ser lido")), qPrintable(said));
    QCOMPARE(errorOf([&] { database.open(connection); }), 3044);
  }
  QCOMPARE(::chmod(database.path().toUtf8().constData(), 0600), 0);
  QCOMPARE(contentOf(database.path()), before);
}

// The head is whole; what stands behind it is missing.
void Opening::truncatedDatabase() {
  SmallDatabase database;
  const QByteArray half = contentOf(database.path()).left(1500);
  write(database.path(), half);
  Connection connection;
  QCOMPARE(errorOf([&] { database.open(connection); }), 3044);
  QCOMPARE(contentOf(database.path()), half);
}

void Opening::withoutStoredQueries() {
  SmallDatabase database;
  database.run("DROP TABLE Consultas");
  const QByteArray before = contentOf(database.path());
  Connection connection;
  const QString said = wordsOf([&] { database.open(connection); });
  QVERIFY2(said.contains(QStringLiteral("incompleto")), qPrintable(said));
  QCOMPARE(contentOf(database.path()), before);
  QCOMPARE(QDir(database.folder()).entryList(QDir::Files).size(), 1);
}

void Opening::connectionText_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("number");

  QTest::newRow("usual") << "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=%1;" << 0;
  QTest::newRow("with a password setting")
      << "Provider=X;Data Source=%1;Jet OLEDB:Database Password=;" << 0;
  QTest::newRow("letter case and blanks") << " data SOURCE = %1 ; Provider=X" << 0;
  QTest::newRow("no path") << "Provider=X;Data Source=;" << 3044;
  QTest::newRow("no setting") << "Provider=X;" << 3044;
  QTest::newRow("nothing") << "" << 3044;
}

void Opening::connectionText() {
  QFETCH(QString, text);
  QFETCH(int, number);
  SmallDatabase database;
  Connection connection;
  QCOMPARE(errorOf([&] { connection.open(text.replace(QLatin1String("%1"), database.path())); }),
           number);
  QCOMPARE(connection.state(), number == 0 ? Connection::Open : Connection::Closed);
}

void Opening::openTwiceAndCloseTwice() {
  SmallDatabase database;
  Connection connection;
  QCOMPARE(connection.state(), Connection::Closed);
  connection.close();
  database.open(connection);
  QCOMPARE(connection.state(), Connection::Open);
  QCOMPARE(errorOf([&] { database.open(connection); }), 3705);
  QCOMPARE(connection.state(), Connection::Open);
  connection.close();
  connection.close();
  QCOMPARE(connection.state(), Connection::Closed);
  database.open(connection);
  QCOMPARE(connection.execute(QStringLiteral("DELETE FROM PrestContas WHERE SEQ = 1")), 1);
}

void Opening::everythingElseNeedsAnOpenConnection() {
  Connection connection;
  Recordset recordset;
  QCOMPARE(errorOf([&] { connection.execute(QStringLiteral("DELETE FROM Orgao")); }), 3704);
  QCOMPARE(errorOf([&] { connection.beginTransaction(); }), 3704);
  QCOMPARE(errorOf([&] { connection.commit(); }), 3704);
  QCOMPARE(errorOf([&] { connection.rollback(); }), 3704);
  QCOMPARE(errorOf([&] { connection.catalogue(); }), 3704);
  QCOMPARE(errorOf([&] { connection.engine(); }), 3704);
  QCOMPARE(errorOf([&] { recordset.open(QStringLiteral("Orgao"), connection); }), 3704);
  QVERIFY(!connection.inTransaction());
  QCOMPARE(connection.cursorLocation(), Connection::Server);
  connection.setCursorLocation(Connection::Client);
  QCOMPARE(connection.cursorLocation(), Connection::Client);
}

void Opening::settings() {
  SmallDatabase database;
  Connection connection;
  database.open(connection);
  const auto setting = [&](const char* pragma) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(test::sqliteSession(connection).handle(), pragma, -1, &statement, nullptr);
    sqlite3_step(statement);
    const QString answer =
        QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    sqlite3_finalize(statement);
    return answer;
  };
  QCOMPARE(setting("PRAGMA journal_mode"), QStringLiteral("delete"));
  QCOMPARE(setting("PRAGMA synchronous"), QStringLiteral("3"));
  QCOMPARE(setting("PRAGMA cache_spill"), QStringLiteral("0"));
  QCOMPARE(setting("PRAGMA foreign_keys"), QStringLiteral("1"));
}

void Opening::leavesOneFile() {
  SmallDatabase database;
  Connection connection;
  database.open(connection);
  Recordset recordset;
  recordset.open(QStringLiteral("PrestContas"), connection, CursorType::Static,
                 LockType::Pessimistic);
  recordset.addNew();
  recordset.setField(u"HISTORICO", QStringLiteral("x"));
  recordset.update();
  connection.beginTransaction();
  connection.execute(QStringLiteral("DELETE FROM PrestContas"));
  connection.close();
  QCOMPARE(QDir(database.folder()).entryList(QDir::Files),
           QStringList{QStringLiteral("Banco.mdb")});
  QCOMPARE(database.ask("SELECT count(*) FROM PrestContas"), QStringLiteral("4"));
}

void Opening::oddNames() {
  SmallDatabase database;
  const QString path = database.folder() + QStringLiteral("/Ação 100% #1 ?x'y.mdb");
  QVERIFY(QFile::copy(database.path(), path));
  Connection connection;
  connection.open(SmallDatabase::textFor(path));
  QCOMPARE(connection.execute(QStringLiteral("DELETE FROM PrestContas")), 3);
  connection.close();
  QCOMPARE(PlainSql(path).ask("SELECT count(*) FROM PrestContas"), QStringLiteral("0"));
}

void Opening::catalogue() {
  SmallDatabase database;
  Connection connection;
  database.open(connection);
  const Catalogue& catalogue = connection.catalogue();
  QVERIFY(catalogue.table(u"Consultas") == nullptr);
  QVERIFY(catalogue.table(u"sqlite_sequence") == nullptr);
  QVERIFY(catalogue.storedQuery(u"sel_req") != nullptr);
  const CatalogueTable* const table = catalogue.table(u"REQUISICAO");
  QVERIFY(table != nullptr);
  QCOMPARE(table->name, QStringLiteral("Requisicao"));
  QCOMPARE(table->columns.size(), std::size_t{6});
  const ValueType types[] = {ValueType::I32,   ValueType::DateTime, ValueType::I16,
                             ValueType::Money, ValueType::Text,     ValueType::Number};
  for (std::size_t i = 0; i < 6; ++i) {
    QCOMPARE(table->columns[i].type, types[i]);
    QCOMPARE(table->columns[i].primaryKey, i == 0);
    QCOMPARE(table->columns[i].required, i == 0);
    QVERIFY(!table->columns[i].generated);
  }
  const CatalogueTable* const orgao = catalogue.table(u"Orgao");
  QVERIFY(orgao->columns[0].generated);
  QVERIFY(orgao->columns[1].required);
  QCOMPARE(orgao->columns[2].type, ValueType::Bool);
}

void Opening::protectedFileIsRead() {
  SmallDatabase database;
  {
    Connection connection;
    database.open(connection);
  }
  const QByteArray before = contentOf(database.path());
  QCOMPARE(::chmod(database.folder().toUtf8().constData(), 0755), 0);
  QCOMPARE(::chmod(database.path().toUtf8().constData(), 0444), 0);
  {
    AnotherUser user;
    if (!AnotherUser::bound()) {
      QSKIP("this user is not bound by file permissions");
    }
    Connection connection;
    database.open(connection);
    Recordset recordset;
    recordset.open(QStringLiteral("SELECT * FROM Orgao"), connection, CursorType::Static,
                   LockType::Pessimistic);
    QCOMPARE(recordset.recordCount(), 3);
    QCOMPARE(errorOf([&] { connection.execute(QStringLiteral("DELETE FROM PrestContas")); }), 3051);
    QCOMPARE(errorOf([&] { connection.beginTransaction(); }), 3051);
    QCOMPARE(errorOf([&] { recordset.setField(u"ORGAO", QStringLiteral("x")); }), 3051);
    QVERIFY(!connection.inTransaction());
  }
  QCOMPARE(contentOf(database.path()), before);
  QCOMPARE(QDir(database.folder()).entryList(QDir::Files).size(), 1);
}

QUARTELA_TEST_MAIN(Opening)
#include "Opening_test.moc"
