// The one writer: every row of the database is added, altered and deleted here, with the question,
// the word to the operator and the error box that go with it. Each write is one transaction, or
// part of the one that Em_transacao has begun, and is told to those who observe (records/Mudancas).
#pragma once

#include <QString>
#include <cstdint>
#include <functional>

namespace quartela {

class Recordset;

// The operation code of a save: 1 is an inclusion, every other value an alteration.
inline constexpr std::int16_t kInclusao = 1;
inline constexpr std::int16_t kAlteracao = 2;

// What a class gives to the saving.
struct Gravacao {
  QString tabela;                      // the table that the row belongs to
  QString selecao;                     // the select of the row to alter
  std::function<void()> grava_campos;  // copies the properties into the current row
  bool pergunta_inclusao = true;       // notes are entered in a row, without a question each
  std::int32_t* numero = nullptr;      // receives the number that the table gives a new row
  // The rows of a class that browses: open, on the row to alter; they stay open. Without them
  // Tabela is opened for the write and closed.
  Recordset* linhas = nullptr;
};

// What became of a save.
enum class Desfecho { Gravado, Declinado, Falhou };

// Asks, writes the row and tells the operator; a failure is told in the "Erro n°: " box.
Desfecho Tenta_salvar(std::int16_t codigo, const Gravacao& gravacao);

// The same; true only when the row has been written.
bool Salva_registro(std::int16_t codigo, const Gravacao& gravacao);

// Writes a new row with no question and no word; a failure is told.
bool Salva_calado(const Gravacao& gravacao);

// Writes the row with no question and no word. Raises what the write raises, with nothing written
// and no lock held.
void Grava_linha(std::int16_t codigo, const Gravacao& gravacao);

// Writes what belongs together: all that `corpo` writes is kept, or nothing. Within a transaction
// it is part of that. Raises what `corpo` and the commit raise.
void Em_transacao(const std::function<void()>& corpo);

// Whether a failed delete is rolled back before the operator is told of it, or after.
enum class OrdemDesfaz { AntesDaCaixa, DepoisDaCaixa };

// What the operator sees after a delete.
enum class AvisoExclusao { TresLinhas, Nenhum };

// What a class gives to the deleting: the statement is `apaga` and `condicao` in one.
struct Exclusao {
  QString tabela;
  QString apaga;     // "DELETE FROM Requisicao where "
  QString condicao;  // "SEQ = 114"
  OrdemDesfaz ordem = OrdemDesfaz::AntesDaCaixa;
  AvisoExclusao aviso = AvisoExclusao::TresLinhas;
};

// Deletes the rows of the condition, and what belongs to them, in a transaction, with the
// animation. Asks nothing.
void Exclui_registro(const Exclusao& exclusao);

}  // namespace quartela
