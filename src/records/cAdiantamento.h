// An advance: the empenho of a process, with its dates and the money returned. Holds one row of
// "Adiantamento" in memory; saves, deletes, lists, adds up, closes and reopens it.
//
// One instance serves the whole program and outlives the screens.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "platform/values/Value.h"

namespace quartela {

class ListView;

class cAdiantamento {
 public:
  // The columns of its list, from the left.
  enum Coluna {
    kEmpenho,
    kAbertura,
    kRetirada,
    kFecharEm,
    kFechamento,
    kDevolucao,
    kDataDevolucao,
    kOP,
    kAnulado,
    kColunas
  };

  static cAdiantamento& compartilhada();
  // Gives a list the columns that Lista_Adiantamento fills.
  static void prepara_lista(ListView& lista);

  // Filled by Dados_Planilha only.
  Money Valor() const { return valor_; }
  const QString& Executor() const { return executor_; }
  const QString& Tomador() const { return tomador_; }
  const QString& Cargo() const { return cargo_; }
  const QString& Orgao() const { return orgao_; }

  std::int32_t OP = 0;
  std::int16_t Nulo = 0;  // used as a bool: annulled
  // The process number; for Soma_despesas the caller puts the empenho number here.
  std::int32_t processo = 0;
  std::int32_t Empenho = 0;
  // Nullable: a date, a text or null, written to the column as it stands.
  Value Abertura;
  Value Retirada;
  Value Fechar;
  Value Fechamento;
  Money Devolucao;
  Value Datadev;
  // Columns that the next save leaves as they stand in the row, whatever the properties hold.
  QStringList Intocadas;

  // Deletes the row of Empenho with its notes.
  void Del_ad();

  // Saves the row of Empenho; `codigo` 1 adds it, any other value alters it. The caller cannot tell
  // a refusal from a success.
  void Save_ad(std::int16_t codigo);

  // Fills the list with the empenhos of `processo`.
  void Lista_Adiantamento(ListView& lista);

  // The notes of the empenho in `processo`, rounded to cents; 0 without notes or on a failure.
  Money Soma_despesas();

  // Writes Fechamento, Devolucao and Datadev (an empty text becomes null) to the row of Empenho;
  // with null, 0 and null it reopens. True when the row was written.
  bool Encerra_adiantamento();

  // Reads the summary of `processo`; without an empenho the properties keep their values. Raises
  // what the reading raises.
  void Dados_Planilha();

 private:
  void Grava_campos() const;
  void Grava_encerramento() const;
  void Le_planilha();

  Money valor_;
  QString executor_;
  QString tomador_;
  QString cargo_;
  QString orgao_;
};

}  // namespace quartela
