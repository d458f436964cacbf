#include "records/Gravacao.h"

#include <array>
#include <vector>

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Leitura.h"
#include "foundation/Status.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"
#include "records/Mudancas.h"

namespace quartela {
namespace {

// The rows that the database deletes together with the one that they belong to.
struct Dependencia {
  const char* dona;
  const char* chave;
  const char* tabela;
  const char* coluna;
};
constexpr std::array kDependencias{
    Dependencia{"Requisicao", "SEQ", "Adiantamento", "PROCESSO"},
    Dependencia{"Adiantamento", "EMPENHO", "PrestContas", "PROCESSO"},
};

bool confirma(std::int16_t codigo, const Gravacao& gravacao) {
  if (codigo != kInclusao) {
    return Dialogs::confirm(QStringLiteral("Confirma alteração do registro?"));
  }
  return !gravacao.pergunta_inclusao ||
         Dialogs::confirm(QStringLiteral("Confirma inclusão do novo registro?"));
}

// A row that is being written: when an error leaves, it is given up with its lock before anybody is
// told, so that no other program waits for the operator to read.
class LinhaIniciada {
 public:
  explicit LinhaIniciada(Recordset& linhas) : linhas_(linhas) {}
  LinhaIniciada(const LinhaIniciada&) = delete;
  LinhaIniciada& operator=(const LinhaIniciada&) = delete;
  ~LinhaIniciada() { linhas_.cancelUpdate(); }

 private:
  Recordset& linhas_;
};

QMap<QString, Value> campos(const Recordset& linhas) {
  QMap<QString, Value> todos;
  for (int n = 0; n < linhas.fieldCount(); ++n) {
    todos.insert(linhas.fieldName(n), linhas.field(n));
  }
  return todos;
}

Value chave_de(const QString& tabela, const QMap<QString, Value>& linha) {
  for (const CatalogueColumn& coluna : Conexao->catalogue().table(tabela)->columns) {
    if (const auto celula = linha.constFind(coluna.name);
        coluna.primaryKey && celula != linha.constEnd()) {
      return *celula;
    }
  }
  return {};
}

Recordset& abre_para_gravar(bool inclusao, const Gravacao& gravacao) {
  if (gravacao.linhas != nullptr) {
    return *gravacao.linhas;
  }
  if (Tabela.state() == Recordset::Open) {
    Tabela.close();
  }
  Tabela.open(inclusao ? gravacao.tabela : gravacao.selecao, *Conexao, CursorType::Static,
              LockType::Pessimistic);
  return Tabela;
}

void escreve(bool inclusao, const Gravacao& gravacao, Recordset& linhas) {
  const LinhaIniciada linha(linhas);
  const bool observada = ha_quem_observe();
  Mudanca mudanca{.especie = inclusao ? Mudanca::Especie::Inclusao : Mudanca::Especie::Alteracao,
                  .tabela = gravacao.tabela,
                  .chave = {},
                  .antes = {},
                  .depois = {}};
  if (inclusao) {
    linhas.addNew();
  } else if (observada && !linhas.eof()) {
    mudanca.antes = campos(linhas);
  }
  gravacao.grava_campos();
  linhas.update();
  if (observada) {
    mudanca.depois = campos(linhas);
    mudanca.chave = chave_de(gravacao.tabela, mudanca.depois);
    conta_mudanca(mudanca);
  }
}

void le_numero_dado(std::int32_t& numero) {
  Recordset identidade;
  identidade.open(QStringLiteral("SELECT @@IDENTITY"), *Conexao);
  numero = Convert::toI32(identidade.field(0));
}

bool grava_ou_avisa(std::int16_t codigo, const Gravacao& gravacao) {
  try {
    Grava_linha(codigo, gravacao);
    return true;
  } catch (const RuntimeError& erro) {
    Erro_gravacao(erro);
    return false;
  }
}

void desfaz() {
  if (Conexao->inTransaction()) {
    Conexao->rollback();
  }
}

void le_que_vao(const QString& tabela, const QString& condicao, bool arrastada,
                std::vector<Mudanca>& vao) {
  Recordset linhas;
  linhas.open(QStringLiteral("SELECT * FROM ") + tabela + QStringLiteral(" WHERE ") + condicao,
              *Conexao);
  for (; !linhas.eof(); linhas.moveNext()) {
    const QMap<QString, Value> linha = campos(linhas);
    vao.push_back({.especie = Mudanca::Especie::Exclusao,
                   .tabela = tabela,
                   .chave = chave_de(tabela, linha),
                   .antes = linha,
                   .depois = {},
                   .arrastada = arrastada});
    for (const Dependencia& outra : kDependencias) {
      if (tabela == QLatin1String(outra.dona)) {
        const QString dona = Convert::toText(linha[QLatin1String(outra.chave)]);
        le_que_vao(QLatin1String(outra.tabela),
                   QLatin1String(outra.coluna) + QStringLiteral(" = ") + dona, true, vao);
      }
    }
  }
}

void apaga(const Exclusao& exclusao) {
  Conexao->beginTransaction();
  std::vector<Mudanca> vao;
  if (ha_quem_observe()) {
    le_que_vao(exclusao.tabela, exclusao.condicao, false, vao);
  }
  Conexao->execute(exclusao.apaga + exclusao.condicao);
  for (const Mudanca& mudanca : vao) {
    conta_mudanca(mudanca);
  }
  Conexao->commit();
}

void avisa_exclusao() {
  Dialogs::information(
      QStringLiteral("Se o registro não for excluido da listagem,\n"
                     "será porque tem algum outro cadastro\n"
                     "ligado a ele. Operação concluida !!!!!!"));
}

}  // namespace

void Em_transacao(const std::function<void()>& corpo) {
  if (Conexao->inTransaction()) {
    corpo();
    return;
  }
  Conexao->beginTransaction();
  try {
    corpo();
    Conexao->commit();
  } catch (...) {
    desfaz();
    throw;
  }
}

void Grava_linha(std::int16_t codigo, const Gravacao& gravacao) {
  const bool inclusao = codigo == kInclusao;
  Recordset& linhas = abre_para_gravar(inclusao, gravacao);
  Em_transacao([&] {
    escreve(inclusao, gravacao, linhas);
    if (inclusao && gravacao.numero != nullptr) {
      le_numero_dado(*gravacao.numero);
    }
  });
  if (gravacao.linhas == nullptr) {
    linhas.close();
  }
}

Desfecho Tenta_salvar(std::int16_t codigo, const Gravacao& gravacao) {
  if (!confirma(codigo, gravacao)) {
    return Desfecho::Declinado;
  }
  if (!grava_ou_avisa(codigo, gravacao)) {
    return Desfecho::Falhou;
  }
  Dialogs::information(codigo == kInclusao ? QStringLiteral("Registro Salvo!")
                                           : QStringLiteral("Registro Alterado!"));
  return Desfecho::Gravado;
}

bool Salva_registro(std::int16_t codigo, const Gravacao& gravacao) {
  return Tenta_salvar(codigo, gravacao) == Desfecho::Gravado;
}

bool Salva_calado(const Gravacao& gravacao) {
  return grava_ou_avisa(kInclusao, gravacao);
}

void Exclui_registro(const Exclusao& exclusao) {
  try {
    apaga(exclusao);
    Animacao_exclusao();
    if (exclusao.aviso == AvisoExclusao::TresLinhas) {
      avisa_exclusao();
    }
  } catch (const RuntimeError& erro) {
    if (exclusao.ordem == OrdemDesfaz::AntesDaCaixa) {
      desfaz();
    }
    Erro_gravacao(erro);
    desfaz();
  } catch (...) {
    desfaz();
    throw;
  }
}

}  // namespace quartela
