// The saving and the deleting of one row, as every record class does them: the question, the write
// through the shared recordset, the word to the operator, the error box.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>

namespace quartela {

// The operation code of a save: 1 is an inclusion, every other value an alteration.
inline constexpr std::int16_t kInclusao = 1;
inline constexpr std::int16_t kAlteracao = 2;

// A row of Tabela that is being written: when an error leaves, it is given up with its lock before
// anybody is told, so that no other program waits for the operator to read.
class LinhaIniciada {
 public:
  LinhaIniciada() = default;
  LinhaIniciada(const LinhaIniciada&) = delete;
  LinhaIniciada& operator=(const LinhaIniciada&) = delete;
  ~LinhaIniciada();
};

// What a class gives to the saving.
struct Gravacao {
  QString tabela;                      // the table to add to
  QString selecao;                     // the select of the row to alter
  std::function<void()> grava_campos;  // copies the properties into Tabela's current row
  bool pergunta_inclusao = true;       // notes are entered in a row, without a question each
  std::int32_t* numero = nullptr;      // receives the number that the table gives a new row
};

// What became of a save.
enum class Desfecho { Gravado, Declinado, Falhou };

// Asks, writes the row and tells the operator; a failure is told in the "Erro n°: " box.
Desfecho Tenta_salvar(std::int16_t codigo, const Gravacao& gravacao);

// The same; true only when the row has been written.
bool Salva_registro(std::int16_t codigo, const Gravacao& gravacao);

// Writes a new row with no question and no word; a failure is told.
bool Salva_calado(const Gravacao& gravacao);

// Whether a failed delete is rolled back before the operator is told of it, or after.
enum class OrdemDesfaz { AntesDaCaixa, DepoisDaCaixa };

// What the operator sees after a delete.
enum class AvisoExclusao { TresLinhas, Nenhum };

// Runs one DELETE in a transaction of its own, with the animation. Asks nothing.
void Exclui_registro(const QString& comando, OrdemDesfaz ordem = OrdemDesfaz::AntesDaCaixa,
                     AvisoExclusao aviso = AvisoExclusao::TresLinhas);

}  // namespace quartela
