// A small database of this program's kind in a fresh folder, with plain SQL beside the program's
// own connections.
#pragma once

#include <sqlite3.h>

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"

namespace quartela::test {

inline constexpr const char* kSmallSchema = R"(
PRAGMA application_id = 0x51544C41;
CREATE TABLE Consultas (NOME TEXT NOT NULL PRIMARY KEY, TEXTO TEXT NOT NULL);
CREATE TABLE Orgao (
  IDORGAO INTEGER PRIMARY KEY AUTOINCREMENT,
  ORGAO TEXT NOT NULL CHECK (typeof(ORGAO) IN ('text', 'null')),
  ATIVO BOOLEAN NOT NULL DEFAULT 0 CHECK (ATIVO IN (0, 1)));
CREATE TABLE Requisicao (
  SEQ INTEGER PRIMARY KEY,
  DATA DATETIME CHECK (length(DATA) = 19),
  ORGAO SMALLINT REFERENCES Orgao (IDORGAO) ON DELETE RESTRICT,
  VALOR MONEY CHECK (VALOR >= 0),
  JUSTIFICATIVA TEXT,
  DISTANCIA DOUBLE);
CREATE TABLE PrestContas (
  SEQ INTEGER PRIMARY KEY AUTOINCREMENT,
  PROCESSO INTEGER REFERENCES Requisicao (SEQ) ON DELETE CASCADE,
  HISTORICO TEXT,
  DESPESAS MONEY);
CREATE TABLE Tarifa (
  ANO SMALLINT, UF TEXT, VALOR MONEY, PRIMARY KEY (ANO, UF));
CREATE TABLE Recado (TEXTO TEXT);
INSERT INTO Orgao (ORGAO, ATIVO) VALUES ('Saúde', 1), ('EDUCAÇÃO', 0), ('Obras', 1);
INSERT INTO Requisicao VALUES
  (114, '2014-01-31 00:00:00', 1, 12345600, 'Café d''água', 12.5),
  (214, '2014-02-28 13:45:10', 1, 0, NULL, NULL),
  (314, NULL, 3, NULL, '', 0);
INSERT INTO PrestContas (PROCESSO, HISTORICO, DESPESAS) VALUES
  (114, 'Posto São João', 500000), (114, 'PAPELARIA É', 1), (214, 'Hotel', 990000);
INSERT INTO Tarifa VALUES (2014, 'SP', 100), (2014, 'MG', 200), (2013, 'SP', 300);
INSERT INTO Consultas VALUES
  ('Sel_Req', 'SELECT Requisicao.SEQ, Requisicao.VALOR, Orgao.ORGAO FROM Requisicao INNER JOIN Orgao ON Requisicao.ORGAO = Orgao.IDORGAO');
)";

class PlainSql {
 public:
  explicit PlainSql(const QString& path) {
    if (sqlite3_open(path.toUtf8().constData(), &handle_) != SQLITE_OK) {
      qFatal("%s cannot be opened", qPrintable(path));
    }
    sqlite3_busy_timeout(handle_, 5000);
    run("PRAGMA synchronous = OFF");
  }
  ~PlainSql() { sqlite3_close(handle_); }
  PlainSql(const PlainSql&) = delete;
  PlainSql& operator=(const PlainSql&) = delete;

  void run(const QByteArray& sql) {
    char* message = nullptr;
    if (sqlite3_exec(handle_, sql.constData(), nullptr, nullptr, &message) != SQLITE_OK) {
      qFatal("%s: %s", sql.constData(), message);
    }
  }

  // The first cell of the first row as text; "" for null and for no row.
  QString ask(const QByteArray& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, sql.constData(), -1, &statement, nullptr) != SQLITE_OK) {
      qFatal("%s: %s", sql.constData(), sqlite3_errmsg(handle_));
    }
    QString answer;
    if (sqlite3_step(statement) == SQLITE_ROW) {
      answer = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    }
    sqlite3_finalize(statement);
    return answer;
  }

 private:
  sqlite3* handle_ = nullptr;
};

class SmallDatabase {
 public:
  SmallDatabase() { PlainSql(path()).run(kSmallSchema); }

  QString folder() const { return folder_.path(); }
  QString path() const { return folder_.filePath(QStringLiteral("Banco.mdb")); }
  void open(Connection& connection) const { connection.open(textFor(path())); }
  QString ask(const QByteArray& sql) const { return PlainSql(path()).ask(sql); }
  void run(const QByteArray& sql) const { PlainSql(path()).run(sql); }

  static QString textFor(const QString& path) {
    return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path +
           QStringLiteral(";Jet OLEDB:Database Password=;");
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace quartela::test
