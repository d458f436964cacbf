// The lists of processes across requisitions, advances, persons and types: the main window's list
// under its filters, and the picker's.
#pragma once

#include <QString>
#include <cstdint>

#include "platform/values/Value.h"

namespace quartela {

class ListView;
class StatusBar;

class cTodos {
 public:
  // The columns of both lists, from the left.
  enum ColunaMovimento {
    kNumero,
    kEmpenho,
    kData,
    kSecretaria,
    kResponsavel,
    kValor,
    kTipo,
    kAbertura,
    kRetirada,
    kFecharEm,
    kFechamento,
    kDias,
    kColunasMovimento
  };
  enum ColunaProcura {
    kProcuraEmpenho,
    kProcuraNome,
    kProcuraTipo,
    kProcuraValor,
    kProcuraRetirada,
    kProcuraFecharEm,
    kProcuraAbertura,
    kProcuraFuncao,
    kProcuraProcesso,
    kColunasProcura
  };

  static cTodos& compartilhada();

  // Give a list the columns that the fillers below fill.
  static void prepara_movimento(ListView& lista);
  static void prepara_procura(ListView& lista);

  // Only Seq, Nome and Tipo take part in a query.
  std::int32_t Seq = 0;  // process number
  QString Nome;
  Money Valor;
  QString Finalidade;
  Value Abertura;
  Value Retirada;
  Value Fechar;
  Value Fechamento;
  QString Tipo;

  // Fills the list of processes and tells their count in panel 1 of the status bar. Codes 0 to 4
  // are the values of the main window's filter; 5 by Nome, 6 by Seq, 7 to 9 by Nome among those of
  // filters 1 to 3 (9 in any year). Failures, those of an unknown code too, go to Erro_interno.
  void Lista_Movimento(ListView& lista, std::int16_t codigo, StatusBar& barra);

  // Fills the picker's list of empenhos: 1 all open, 2 open by Nome, 3 open by Tipo, 4 closed.
  void Lista_Procura(ListView& lista, std::int16_t codigo);

  // Fills the list of the alert: the advances that are not closed and whose deadline has passed or
  // is less than six days away. Gives their count, -1 after a failure, which goes to Erro_interno.
  int Lista_Aviso(ListView& lista);

 private:
  QString comando_movimento(std::int16_t codigo) const;
  QString comando_procura(std::int16_t codigo) const;
};

}  // namespace quartela
