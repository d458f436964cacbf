// The common routines of the screens: keystroke filters, required fields, clearing, sorting, the
// two pages of a screen, the loaders of the combo boxes and the lookups behind them.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>

class QLineEdit;
class QWidget;

namespace quartela {

class ComboBox;
class ListView;
class TwoPageTab;

// --- Typing
// -----------------------------------------------------------------------------------------

// A keystroke filter sees the code of a character that is about to be typed into `caixa` (8 is the
// backspace). It may change the code; 0 swallows the key.
using Filtro_tecla = std::function<void(QLineEdit& caixa, int& tecla)>;

// Lets `filtro` see what is typed into `caixa` for as long as the box lives, and likewise each
// character that is composed (an accent with its letter), pasted or dropped. Keys that type nothing
// (arrows, Enter, Tab, shortcuts) pass by it. Of a pasted text the `sinais` are passed over; one
// with another character that the filter swallows, or too long for the box, is not pasted at all,
// and that is said beside the box.
void Filtra_teclas(QLineEdit& caixa, Filtro_tecla filtro, const QString& sinais = {});

// Boxes for a date (Mascara_data), a time (Mascara_hora) and a number without signs.
void Filtra_data(QLineEdit& caixa);
void Filtra_hora(QLineEdit& caixa);
void Filtra_digitos(QLineEdit& caixa);

// Digits of a date: sets the slashes behind day and month. Swallows everything but digits and
// backspace. A selection gives way to the digit first.
void Mascara_data(QLineEdit& caixa, int& tecla);

// Digits of a time: sets the colon behind the hours. A backspace at that place sets it too, and
// then takes it away. A selection gives way first.
void Mascara_hora(QLineEdit& caixa, int& tecla);

// Puts the slashes of a date back in their places while it is edited. The caret steps over one.
void Formata_data(QLineEdit& caixa);

// --- Screens
// ----------------------------------------------------------------------------------------

// Sorts by the column whose header was clicked, counted from 1, and turns the order round.
void Ordena_lista(ListView& lista, int coluna);

// From the page to consult to the page to edit, and back.
void Troca_aba(TwoPageTab& abas);

// Whether a text box, combo box or masked box with the property `Tag` "1" is empty. The last one
// found has the focus then. A masked box that shows its template is not empty.
bool Campos_vazios(QWidget& tela);

// Empties texts, combo boxes, masked boxes and lists, takes ticks and options away and sets date
// pickers to today.
void Limpa_tela(QWidget& tela);

// Closes the first open window of that name. False when none has it.
bool FormAberto(const QString& nome);

// --- Lookups
// ---------------------------------------------------------------------------------------- A
// failure of these is told by Erro_interno, except where said.

// The first value of `coluna` that begins with `texto`, or `texto` as it stands.
QString Consulta_combo(const QString& tabela, const QString& texto, const QString& coluna);

// Empties `caixa`; the first column of the first row of `sql`, 0 without one.
std::int16_t Consulta_numero(QLineEdit& caixa, const QString& sql);

// What Carrega_Controles takes its rows from. Any other number runs what Sql_atual holds.
inline constexpr std::int32_t kTodos = 0;    // the whole table, in the order of the display column
inline constexpr std::int32_t kAtivos = 1;   // the rows of the table that are ATIVO
inline constexpr std::int32_t kComando = 2;  // `tabela` is a whole statement

// Fills `combo` anew with the texts of `exibida`, each with the key in `chave`.
void Carrega_Controles(ComboBox& combo, const QString& tabela, const QString& exibida,
                       const QString& chave, std::int32_t modo);

// Fills `combo` anew with the first column of a statement or of a stored query.
void Carrega_Combo(ComboBox& combo, const QString& sql);

// The next number of a transport sheet: in the process (mode 1) or of all (mode 2). 0 when there is
// none before it, and on any failure; nothing is told.
std::int32_t Proximo_planilha(std::int16_t modo, std::int32_t processo);

}  // namespace quartela
