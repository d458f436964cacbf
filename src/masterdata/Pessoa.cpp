#include "masterdata/Pessoa.h"

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Leitura.h"
#include "platform/values/Convert.h"

namespace quartela {

void Carrega_pessoa(const QString& comando, const std::array<QString*, 4>& textos) {
  Sob_trava(QStringLiteral("CarregaList"), [&] {
    Sql_atual = comando;
    Abre_consulta(Sql_atual);
    if (Tabela.recordCount() > 0) {
      for (int coluna = 0; coluna < 4; ++coluna) {
        *textos[static_cast<std::size_t>(coluna)] = Convert::toText(Tabela.field(coluna));
      }
    }
  });
  Tabela.close();
}

}  // namespace quartela
