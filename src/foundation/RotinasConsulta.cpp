#include <QLineEdit>

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Escritorio.h"
#include "foundation/Leitura.h"
#include "foundation/Rotinas.h"
#include "platform/controls/ComboBox.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"

namespace quartela {
namespace {

void monta_selecao(const QString& tabela, const QString& exibida, std::int32_t modo) {
  switch (modo) {
    case kTodos:
      Sql_atual = "SELECT * FROM " + tabela + " ORDER BY " + exibida + ';';
      break;
    case kAtivos:
      Sql_atual = "SELECT * FROM " + tabela + " WHERE ATIVO = Yes;";
      break;
    case kComando:
      Sql_atual = tabela;
      break;
    default:
      // The screens that give another mode have put their statement there.
      break;
  }
}

void monta_maior_planilha(std::int16_t modo, std::int32_t processo) {
  if (modo == 1) {
    Sql_atual =
        "SELECT Max(IdentificaTransp.PLANILHA) AS Id FROM IdentificaTransp "
        "WHERE IdentificaTransp.PROCESSO = " +
        QString::number(processo);
  } else if (modo == 2) {
    Sql_atual = QStringLiteral("SELECT Max(IdentificaTransp.ITEM) AS Id FROM IdentificaTransp;");
  }
}

// The first column of the first row; nothing is read when there is no row.
template <typename Leitor>
void le_primeira(const Leitor& leitor) {
  bool lida = false;
  Le_tabela(Sql_atual, [&lida, &leitor] {
    if (!lida) {
      leitor(Tabela.field(0));
      lida = true;
    }
  });
}

}  // namespace

QString Consulta_combo(const QString& tabela, const QString& texto, const QString& coluna) {
  QString achado = texto;
  Sob_trava(QStringLiteral("Função Consulta_combo"), [&] {
    Sql_atual = "SELECT TOP 1 " + coluna + " FROM " + tabela + " WHERE " + coluna + " Like '" +
                Texto_procurado(texto) + "%' ORDER BY " + coluna + "  Asc;";
    le_primeira([&achado](const Value& valor) { achado = Convert::toText(valor); });
  });
  return achado;
}

std::int16_t Consulta_numero(QLineEdit& caixa, const QString& sql) {
  std::int16_t numero = 0;
  caixa.clear();
  Sob_trava(QStringLiteral("Função Consulta_numero"), [&] {
    Sql_atual = sql;
    le_primeira([&numero](const Value& valor) { numero = Convert::toI16(valor); });
  });
  return numero;
}

void Carrega_Controles(ComboBox& combo, const QString& tabela, const QString& exibida,
                       const QString& chave, std::int32_t modo) {
  combo.clear();
  Sob_trava(QStringLiteral("Carrega_Controles"), [&] {
    monta_selecao(tabela, exibida, modo);
    Le_tabela(Sql_atual, [&] {
      const int item = combo.addItem(Convert::toText(Tabela.field(exibida)));
      combo.setItemData(item, Convert::toI32(Tabela.field(chave)));
    });
  });
}

void Carrega_Combo(ComboBox& combo, const QString& sql) {
  combo.clear();
  Sob_trava(QStringLiteral("Carrega_Combo"), [&] {
    Sql_atual = sql;
    Le_tabela(Sql_atual, [&combo] { combo.addItem(Convert::toText(Tabela.field(0))); });
  });
}

std::int32_t Proximo_planilha(std::int16_t modo, std::int32_t processo) {
  std::int32_t proximo = 0;
  try {
    monta_maior_planilha(modo, processo);
    le_primeira([&proximo](const Value& maior) {
      const double seguinte = Convert::toNumber(maior) + 1;
      proximo = Le_numero(Format(seguinte, u"00"));
    });
  } catch (const RuntimeError&) {
    return 0;
  }
  return proximo;
}

}  // namespace quartela
