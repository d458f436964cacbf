// The opening of the database at the login and its closing: which paths lead to the settings
// screen, what is told, and that no file is ever changed by it.
#include "foundation/Banco.h"
#include "foundation/Abertura.h"
#include "foundation/Caminhos.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include "foundation/Ini.h"
#include "foundation/Splash.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmParametros.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/Files.h"
#include "tests/support/FirstDelivery.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Office.h"

namespace quartela {

class BancoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    Fecha_banco();
  }
  void cleanup() {
    if (auto* settings = UmaJanela<frmParametros>::aberta()) {
      settings->close();
    }
    if (auto* splash = UmaJanela<Splash>::aberta()) {
      splash->close();
    }
    office_.reset();
  }

  void aGoodPathOpensAndShowsTheSplash() {
    test::ScriptedDialogs dialogs;
    // The picture of the splash does not stand in this folder.
    dialogs.expectBox({.text = QStringLiteral("Houve um erro interno:") + test::kAnything +
                               QStringLiteral("Função Load"),
                       .icon = BoxIcon::Exclamation});
    Abre_banco();
    QCOMPARE(Conexao->state(), Connection::Open);
    QCOMPARE(Conexao->cursorLocation(), Connection::Client);
    QVERIFY(UmaJanela<Splash>::aberta() != nullptr);
    QVERIFY(UmaJanela<frmParametros>::aberta() == nullptr);
    QCOMPARE(caminhos.geral, QStringLiteral("Banco.mdb"));
    QCOMPARE(caminhos.number, QStringLiteral("Number.Ini"));
    QCOMPARE(caminhos.produtos, QString());
  }

  void everyPathIsKept() {
    for (const char* key : {"produtos", "servicos", "transporte"}) {
      Grava_ini(QStringLiteral("Diretorio"), QLatin1String(key),
                QStringLiteral("de ") + QLatin1String(key), office_->config());
    }
    point(QStringLiteral("sumido.mdb"));
    Abre_banco();
    QCOMPARE(caminhos.produtos, QStringLiteral("de produtos"));
    QCOMPARE(caminhos.servicos, QStringLiteral("de servicos"));
    QCOMPARE(caminhos.transporte, QStringLiteral("de transporte"));
  }

  void aPathWithoutAFileShowsTheSettings_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QString();
    QTest::newRow("no such file") << QStringLiteral("sumido.mdb");
    QTest::newRow("no such folder") << QStringLiteral("sumida/Banco.mdb");
  }
  void aPathWithoutAFileShowsTheSettings() {
    QFETCH(QString, path);
    point(path);
    test::ScriptedDialogs dialogs;
    Abre_banco();
    QVERIFY(UmaJanela<frmParametros>::aberta() != nullptr);
    QVERIFY(UmaJanela<Splash>::aberta() == nullptr);
    QCOMPARE(Conexao->state(), Connection::Closed);
  }

  void aFileThatIsNoDatabaseIsToldUnchangedAndShowsTheSettings_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("word");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("vazi");
    QTest::newRow("text") << QByteArray("isto não é um banco de dados\n").repeated(100)
                          << QStringLiteral("não é");
    QTest::newRow("an Access file")
        << QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(4096, 'x')
        << QStringLiteral("Access");
    QTest::newRow("a newer Access file")
        << QByteArray("\0\1\0\0Standard ACE DB\0", 20) + QByteArray(4096, 'x')
        << QStringLiteral("Access");
    QTest::newRow("cut short") << QByteArray("SQLite format 3\0", 16) << QStringLiteral("");
  }
  void aFileThatIsNoDatabaseIsToldUnchangedAndShowsTheSettings() {
    QFETCH(QByteArray, content);
    QFETCH(QString, word);
    const QString path = office_->file(QStringLiteral("outro.mdb"));
    write(path, content);
    point(QStringLiteral("outro.mdb"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        {.text = test::kAnything + word + test::kAnything, .icon = BoxIcon::Exclamation});
    Abre_banco();
    QVERIFY(UmaJanela<frmParametros>::aberta() != nullptr);
    QCOMPARE(test::contentOf(path), content);
    QCOMPARE(QDir(office_->file(QString())).entryList({QStringLiteral("outro*")}),
             QStringList{"outro.mdb"});
  }

  void aFolderInTheFilesPlaceIsTold() {
    QVERIFY(QDir(office_->file(QString())).mkdir(QStringLiteral("pasta.mdb")));
    point(QStringLiteral("pasta.mdb"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox({.text = test::kAnything + QStringLiteral("pasta") + test::kAnything,
                       .icon = BoxIcon::Exclamation});
    Abre_banco();
    QVERIFY(UmaJanela<frmParametros>::aberta() != nullptr);
  }

  void aFileOfANewerProgramIsToldUnchangedAndShowsTheSettings() {
    office_->run("PRAGMA user_version = 99");
    const QByteArray before = test::contentOf(office_->file(QStringLiteral("Banco.mdb")));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox({.text = test::kAnything + QStringLiteral("é da versão 99") + test::kAnything,
                       .icon = BoxIcon::Exclamation});
    Abre_banco();
    QVERIFY(UmaJanela<frmParametros>::aberta() != nullptr);
    QCOMPARE(test::contentOf(office_->file(QStringLiteral("Banco.mdb"))), before);
  }

  // As the first delivery left it: the program goes on with the file and keeps a copy of what it
  // was.
  void aFileOfAnOlderProgramIsBroughtForward() {
    const QString banco = office_->file(QStringLiteral("Banco.mdb"));
    QVERIFY(QFile::remove(banco));
    test::makeFirstDelivery(banco);
    Abre_conexao();
    Fecha_banco();
    QCOMPARE(
        office_->ask("SELECT TEXTO LIKE '%ORDER BY Requisicao.SEQ%' FROM Consultas WHERE NOME = "
                     "'Sel_Req_left'"),
        QStringLiteral("1"));
    QVERIFY(QFile::exists(office_->file(QStringLiteral("Banco.mdb.versao-1"))));
  }

  void closingLeavesOneFileAndAClosedConnection() {
    Abre_conexao();
    Tabela.open(QStringLiteral("Orgao"), *Conexao);
    Fecha_banco();
    QCOMPARE(Tabela.state(), Recordset::Closed);
    QCOMPARE(Conexao->state(), Connection::Closed);
    QCOMPARE(QDir(office_->file(QString())).entryList({QStringLiteral("Banco*")}),
             QStringList{"Banco.mdb"});
    Fecha_banco();
  }

  void aClosedDatabaseRaisesInsteadOfCrashing() {
    QVERIFY_EXCEPTION_THROWN(Tabela.open(QStringLiteral("Orgao"), *Conexao), RuntimeError);
    QVERIFY_EXCEPTION_THROWN(Conexao->beginTransaction(), RuntimeError);
  }

 private:
  void point(const QString& path) const {
    Grava_ini(QStringLiteral("Diretorio"), QStringLiteral("caminhogeral"), path, office_->config());
  }
  static void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
  }

  std::unique_ptr<test::Office> office_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::BancoTest)
#include "Banco_test.moc"
