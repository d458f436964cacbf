// The loading of one row, as the record classes do it.
#pragma once

#include <QString>
#include <functional>

namespace quartela {

// Loads one row: hourglass, a fresh Tabela on `comando`, `le_campos` when a row was found, pointer
// back, Tabela closed. It sets no trap: a failure on the way leaves at once, with the hourglass
// still on; one in the closing is told as an error of "Função Envia_dados" and the closing
// repeated.
void Carrega_registro(const QString& comando, const std::function<void()>& le_campos);

}  // namespace quartela
