// The file is taken away under the program: nothing is acknowledged into a file that no path leads
// to.
#include <QDir>

#include "platform/database/engines/sqlite/Session.h"
#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

namespace {

// A folder within the test's own, so that it can be renamed.
struct Place {
  explicit Place(const SmallDatabase& database)
      : folder(database.folder() + QStringLiteral("/escritorio")),
        path(folder + QStringLiteral("/Banco.mdb")),
        elsewhere(database.folder() + QStringLiteral("/outro.mdb")) {
    QVERIFY(QDir().mkdir(folder));
    QVERIFY(QFile::copy(database.path(), path));
  }
  QString folder;
  QString path;
  QString elsewhere;
};

// Gives the path at which the open file can be found afterwards; empty when there is none.
using Takes = QString (*)(const Place&);

QString moves(const Place& place) {
  return QFile::rename(place.path, place.elsewhere) ? place.elsewhere : QStringLiteral("?");
}
QString deletes(const Place& place) {
  return QFile::remove(place.path) ? QString() : QStringLiteral("?");
}
QString replaces(const Place& place) {
  moves(place);
  return QFile::copy(place.elsewhere, place.path) ? place.elsewhere : QStringLiteral("?");
}
QString linksElsewhere(const Place& place) {
  moves(place);
  const QString other = place.folder + QStringLiteral("/backup.mdb");
  QFile::copy(place.elsewhere, other);
  return QFile::link(other, place.path) ? place.elsewhere : QStringLiteral("?");
}
QString renamesTheFolder(const Place& place) {
  const QString other = place.folder + QStringLiteral("-2014");
  return QDir().rename(place.folder, other) ? other + QStringLiteral("/Banco.mdb")
                                            : QStringLiteral("?");
}

constexpr const char* kCount = "SELECT count(*) FROM PrestContas";
constexpr const char* kRows = "3";

}  // namespace

class Moved : public QObject {
  Q_OBJECT

 private slots:
  void nothingIsWritten_data();
  void nothingIsWritten();
  void betweenBeginAndUpdate_data();
  void betweenBeginAndUpdate();
  void inATransaction();
  void worksAgainOncePutBack();
};

void Moved::nothingIsWritten_data() {
  QTest::addColumn<Takes>("takes");
  QTest::newRow("moved") << &moves;
  QTest::newRow("deleted") << &deletes;
  QTest::newRow("replaced") << &replaces;
  QTest::newRow("replaced by a link") << &linksElsewhere;
  QTest::newRow("folder renamed") << &renamesTheFolder;
}

void Moved::nothingIsWritten() {
  QFETCH(Takes, takes);
  SmallDatabase database;
  const Place place(database);
  Connection connection;
  connection.open(SmallDatabase::textFor(place.path));
  const QString left = takes(place);
  Recordset rows;
  rows.open(QStringLiteral("PrestContas"), connection, CursorType::Static, LockType::Pessimistic);
  QCOMPARE(errorOf([&] { rows.addNew(); }), 3043);
  QVERIFY(wordsOf([&] { rows.addNew(); }).contains(place.path));
  QCOMPARE(errorOf([&] { connection.beginTransaction(); }), 3043);
  QCOMPARE(errorOf([&] { connection.execute(QStringLiteral("DELETE FROM PrestContas")); }), 3043);
  if (!left.isEmpty()) {
    QCOMPARE(PlainSql(left).ask(kCount), QLatin1String(kRows));
  }
  if (QFile::exists(place.path)) {
    QCOMPARE(PlainSql(place.path).ask(kCount), QLatin1String(kRows));
  }
}

void Moved::betweenBeginAndUpdate_data() {
  nothingIsWritten_data();
}

void Moved::betweenBeginAndUpdate() {
  QFETCH(Takes, takes);
  SmallDatabase database;
  const Place place(database);
  Connection connection;
  connection.open(SmallDatabase::textFor(place.path));
  Recordset rows;
  rows.open(QStringLiteral("PrestContas"), connection, CursorType::Static, LockType::Pessimistic);
  rows.addNew();
  rows.setField(u"HISTORICO", QStringLiteral("novo"));
  const QString left = takes(place);
  QCOMPARE(errorOf([&] { rows.update(); }), 3043);
  // What was typed is still there.
  QCOMPARE(rows.field(u"HISTORICO"), Value(QStringLiteral("novo")));
  rows.cancelUpdate();
  if (!left.isEmpty()) {
    QCOMPARE(PlainSql(left).ask(kCount), QLatin1String(kRows));
    QCOMPARE(PlainSql(left).ask("PRAGMA integrity_check"), QStringLiteral("ok"));
  }
}

void Moved::inATransaction() {
  SmallDatabase database;
  const Place place(database);
  Connection connection;
  connection.open(SmallDatabase::textFor(place.path));
  connection.beginTransaction();
  QCOMPARE(connection.execute(QStringLiteral("DELETE FROM Tarifa")), 3);
  const QString left = moves(place);
  QCOMPARE(errorOf([&] { connection.commit(); }), 3043);
  QVERIFY(connection.inTransaction());
  connection.rollback();
  QCOMPARE(PlainSql(left).ask("SELECT count(*) FROM Tarifa"), QStringLiteral("3"));
}

void Moved::worksAgainOncePutBack() {
  SmallDatabase database;
  const Place place(database);
  Connection connection;
  connection.open(SmallDatabase::textFor(place.path));
  moves(place);
  QCOMPARE(errorOf([&] { connection.beginTransaction(); }), 3043);
  QVERIFY(QFile::rename(place.elsewhere, place.path));
  QCOMPARE(connection.execute(QStringLiteral("DELETE FROM PrestContas")), 3);
  QCOMPARE(PlainSql(place.path).ask(kCount), QStringLiteral("0"));
}

Q_DECLARE_METATYPE(Takes)

QUARTELA_TEST_MAIN(Moved)
#include "Moved_test.moc"
