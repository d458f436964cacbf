#include "records/Colunas.h"

#include <memory>
#include <utility>

#include "foundation/Banco.h"
#include "platform/controls/ListSource.h"
#include "platform/database/Recordset.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"

namespace quartela {
namespace {

QString celula(const Value& valor, const ColunaLista& coluna) {
  if (coluna.zero_vazio && valor == Value(0)) {
    return {};
  }
  return coluna.formato == nullptr ? Convert::toText(valor) : Format(valor, coluna.formato);
}

class LinhasDaTabela : public ListSource {
 public:
  LinhasDaTabela(Recordset linhas, std::span<const ColunaLista> colunas, IconeDaLinha icone)
      : linhas_(std::move(linhas)), colunas_(colunas), icone_(icone) {}

  int count() const override { return linhas_.recordCount(); }

  QString text(int row, int cell) const override {
    if (cell >= static_cast<int>(colunas_.size())) {
      return {};
    }
    const ColunaLista& coluna = colunas_[static_cast<std::size_t>(cell)];
    return celula(linhas_.cell(row, coluna.campo), coluna);
  }

  int icon(int row) const override { return icone_ == nullptr ? 0 : icone_(linhas_, row); }

 private:
  Recordset linhas_;
  std::span<const ColunaLista> colunas_;
  IconeDaLinha icone_;
};

}  // namespace

void prepara_colunas(ListView& lista, std::span<const ColunaLista> colunas) {
  for (const ColunaLista& coluna : colunas) {
    lista.addColumn(QString::fromUtf8(coluna.titulo), coluna.largura, coluna.lado);
  }
}

void entrega_linhas(ListView& lista, std::span<const ColunaLista> colunas, IconeDaLinha icone) {
  lista.setSource(
      std::make_unique<LinhasDaTabela>(std::exchange(Tabela, Recordset()), colunas, icone));
}

}  // namespace quartela
