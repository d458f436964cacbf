#include "tests/support/office/Office.h"

#include <sqlite3.h>

#include <QFile>
#include <QTest>

#include "database/Builder.h"
#include "demonstration/DataMaker.h"
#include "foundation/Abertura.h"
#include "foundation/Caminhos.h"
#include "foundation/Ini.h"
#include "platform/files/ProgramFolder.h"
#include "tests/support/office/KnownStatements.h"

namespace quartela::test {
namespace {

constexpr int kProcesses = 60;

// Making a database takes longer than copying one: each kind is made once a run.
const QString& masterCopy(Data data) {
  static QTemporaryDir folder;
  static QString paths[2];
  QString& path = paths[static_cast<int>(data)];
  if (path.isEmpty()) {
    path = folder.filePath(data == Data::Empty ? QStringLiteral("e.mdb") : QStringLiteral("d.mdb"));
    if (data == Data::Empty) {
      database::createEmptyDatabase(path);
    } else {
      demonstration::makeDatabase(
          path, {.today = DateTime::of(2014, 11, 21), .processes = kProcesses, .notes = {}});
    }
  }
  return path;
}

void write(const QString& path, const QByteArray& content) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
    qFatal("%s cannot be written", qPrintable(path));
  }
}

class Database {
 public:
  explicit Database(const QString& path) {
    if (sqlite3_open_v2(path.toUtf8().constData(), &handle_, SQLITE_OPEN_READWRITE, nullptr) !=
        SQLITE_OK) {
      qFatal("%s cannot be opened", qPrintable(path));
    }
    sqlite3_busy_timeout(handle_, 5000);
    run("PRAGMA foreign_keys = ON");
  }
  ~Database() { sqlite3_close(handle_); }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  void run(const char* sql) {
    char* message = nullptr;
    if (sqlite3_exec(handle_, sql, nullptr, nullptr, &message) != SQLITE_OK) {
      qFatal("%s: %s", sql, message);
    }
  }

  QString ask(const char* sql) {
    QString answer;
    const auto take = [](void* target, int, char** cells, char**) {
      *static_cast<QString*>(target) = QString::fromUtf8(cells[0]);
      return 1;
    };
    sqlite3_exec(handle_, sql, take, &answer, nullptr);
    return answer;
  }

 private:
  sqlite3* handle_ = nullptr;
};

}  // namespace

Office::Office(Data data) : statements_(requireKnown) {
  setProgramFolder(folder_.path());
  write(config(),
        "[Diretorio]\ncaminho=Banco.mdb\ncaminho2=Outro.mdb\ncaminhogeral=Banco.mdb\n"
        "number=Number.Ini\n[Requisicao]\nvalor=1\nvalor2=1\n");
  write(counter(), "[Contador]\nano=2014\nnumber=327\n");
  write(file(QStringLiteral("Set.dat")), "[Number]\nvalor1=financas\nvalor2=Segunda\nvalor3=3\n");
  if (!QFile::copy(masterCopy(data), database())) {
    qFatal("the database cannot be copied");
  }
  caminhos.geral = QStringLiteral("Banco.mdb");
  caminhos.number = counter();
  Abre_conexao();
}

Office::~Office() {
  Fecha_banco();
  setProgramFolder({});
}

QString Office::ask(const char* sql) const {
  return Database(database()).ask(sql);
}

void Office::run(const char* sql) const {
  Database(database()).run(sql);
}

}  // namespace quartela::test
