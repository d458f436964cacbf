#include "records/Gravacao.h"

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Leitura.h"
#include "foundation/Status.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"

namespace quartela {
namespace {

const QString kAviso = QStringLiteral("Aviso");

bool confirma(std::int16_t codigo, const Gravacao& gravacao) {
  if (codigo != kInclusao) {
    return Dialogs::confirm(QStringLiteral("Confirma alteração do registro?"), kAviso);
  }
  return !gravacao.pergunta_inclusao ||
         Dialogs::confirm(QStringLiteral("Confirma inclusão do novo registro?"), kAviso);
}

void grava_linha(std::int16_t codigo, const Gravacao& gravacao) {
  if (Tabela.state() == Recordset::Open) {
    Tabela.close();
  }
  const bool inclusao = codigo == kInclusao;
  Tabela.open(inclusao ? gravacao.tabela : gravacao.selecao, *Conexao, CursorType::Static,
              LockType::Pessimistic);
  const LinhaIniciada linha;
  if (inclusao) {
    Tabela.addNew();
  }
  gravacao.grava_campos();
  Tabela.update();
  Tabela.close();
  if (inclusao && gravacao.numero != nullptr) {
    Le_tabela(QStringLiteral("SELECT @@IDENTITY"),
              [&] { *gravacao.numero = Convert::toI32(Tabela.field(0)); });
  }
}

bool grava_ou_avisa(std::int16_t codigo, const Gravacao& gravacao) {
  try {
    grava_linha(codigo, gravacao);
    return true;
  } catch (const RuntimeError& erro) {
    Erro_gravacao(erro);
    return false;
  }
}

void executa_em_transacao(const QString& comando) {
  Conexao->beginTransaction();
  Conexao->execute(comando);
  Conexao->commit();
}

void desfaz() {
  if (Conexao->inTransaction()) {
    Conexao->rollback();
  }
}

void avisa_exclusao() {
  Dialogs::information(QStringLiteral("Se o registro não for excluido da listagem,\n"
                                      "será porque tem algum outro cadastro\n"
                                      "ligado a ele. Operação concluida !!!!!!"),
                       kAviso);
}

}  // namespace

LinhaIniciada::~LinhaIniciada() {
  Tabela.cancelUpdate();
}

Desfecho Tenta_salvar(std::int16_t codigo, const Gravacao& gravacao) {
  if (!confirma(codigo, gravacao)) {
    return Desfecho::Declinado;
  }
  if (!grava_ou_avisa(codigo, gravacao)) {
    return Desfecho::Falhou;
  }
  Dialogs::information(codigo == kInclusao ? QStringLiteral("Registro Salvo!")
                                           : QStringLiteral("Registro Alterado!"),
                       kAviso);
  return Desfecho::Gravado;
}

bool Salva_registro(std::int16_t codigo, const Gravacao& gravacao) {
  return Tenta_salvar(codigo, gravacao) == Desfecho::Gravado;
}

bool Salva_calado(const Gravacao& gravacao) {
  return grava_ou_avisa(kInclusao, gravacao);
}

void Exclui_registro(const QString& comando, OrdemDesfaz ordem, AvisoExclusao aviso) {
  try {
    executa_em_transacao(comando);
    Animacao_exclusao();
    if (aviso == AvisoExclusao::TresLinhas) {
      avisa_exclusao();
    }
  } catch (const RuntimeError& erro) {
    if (ordem == OrdemDesfaz::AntesDaCaixa) {
      desfaz();
    }
    Erro_gravacao(erro);
    desfaz();
  }
}

}  // namespace quartela
