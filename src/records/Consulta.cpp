#include "records/Consulta.h"

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Leitura.h"
#include "platform/controls/ScreenPointer.h"

namespace quartela {

void Carrega_registro(const QString& comando, const std::function<void()>& le_campos) {
  setScreenPointer(PointerShape::Hourglass);
  Sql_atual = comando;
  Tabela = Recordset();
  Abre_consulta(Sql_atual);
  if (Tabela.recordCount() > 0) {
    le_campos();
  }
  setScreenPointer(PointerShape::Normal);
  try {
    Tabela.close();
  } catch (const RuntimeError& erro) {
    Erro_interno(erro, QStringLiteral("Função Envia_dados"));
    Tabela.close();
  }
}

}  // namespace quartela
