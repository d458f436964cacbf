#include "foundation/Banco.h"

#include "foundation/Abertura.h"
#include "foundation/Caminhos.h"

#include <QFileInfo>

#include "foundation/Acessos.h"
#include "foundation/Erros.h"
#include "foundation/Ini.h"
#include "foundation/Passos.h"
#include "foundation/Splash.h"
#include "foundation/Verificacao.h"
#include "foundation/frmParametros.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/AtomicFile.h"
#include "platform/files/ProgramFolder.h"

namespace quartela {

std::unique_ptr<Connection> Conexao = std::make_unique<Connection>();
Recordset Tabela;
QString Sql_atual;
Caminhos caminhos;

namespace {

void le_caminhos() {
  const auto le = [](const char* chave) {
    return Le_config(QStringLiteral("Diretorio"), QLatin1String(chave));
  };
  caminhos.geral = le("caminhogeral");
  caminhos.number = le("number");
  caminhos.produtos = le("produtos");
  caminhos.servicos = le("servicos");
  caminhos.transporte = le("transporte");
}

// Where a file does stand at the path, the operator is told why it is not taken; where none does,
// the settings screen speaks for itself.
void pede_caminho(const RuntimeError& erro) {
  if (QFileInfo::exists(nativePath(caminhos.geral))) {
    Dialogs::exclamation(erro.description());
  }
  mostra_frmParametros();
}

QString texto_de_conexao() {
  return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + caminhos.geral + ';';
}

void fecha_tabela() {
  if (Tabela.state() == Recordset::Open) {
    Tabela.close();
  }
}

void reabre() {
  auto nova = std::make_unique<Connection>();
  nova->open(texto_de_conexao(), passos_do_banco());
  nova->setCursorLocation(Connection::Client);
  fecha_tabela();
  Conexao = std::move(nova);
}

}  // namespace

void Abre_conexao() {
  Conexao = std::make_unique<Connection>();
  if (Conexao->state() == Connection::Closed) {
    Conexao->open(texto_de_conexao(), passos_do_banco());
  }
  Conexao->setCursorLocation(Connection::Client);
}

void Abre_banco() {
  le_caminhos();
  clearLeftovers(QFileInfo(nativePath(caminhos.number)).absolutePath());
  try {
    Abre_conexao();
    for (const QString& aviso : Conexao->notices()) {
      Dialogs::exclamation(aviso);
    }
    mostra_Splash();
    Anota_acesso();
    Agenda_verificacao(nativePath(caminhos.geral));
  } catch (const RuntimeError& erro) {
    if (erro.code() == ErrorNumber::InvalidPath || erro.code() == ErrorNumber::DatabaseNotFound) {
      pede_caminho(erro);
    } else {
      Anota_acesso_falho(erro);
    }
  }
}

void Oferece_reabrir() {
  const QString pergunta =
      QStringLiteral(
          "Deseja abrir o arquivo que está agora em \"%1\"?\n\nO que foi digitado continua na "
          "tela; grave outra vez depois.")
          .arg(nativePath(caminhos.geral));
  if (!Dialogs::confirm(pergunta)) {
    return;
  }
  try {
    reabre();
  } catch (const RuntimeError& erro) {
    Erro_gravacao(erro);
  }
}

void Fecha_banco() {
  Encerra_verificacao();
  fecha_tabela();
  if (Conexao->state() != Connection::Closed) {
    Conexao->close();
  }
  Conexao = std::make_unique<Connection>();
}

}  // namespace quartela
