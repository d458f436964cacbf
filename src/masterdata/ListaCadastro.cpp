#include "masterdata/ListaCadastro.h"

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Leitura.h"
#include "platform/controls/ListView.h"
#include "platform/controls/ScreenPointer.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"

namespace quartela {
namespace {

void adiciona_linha(ListView& lista, const LinhaCadastro& linha) {
  const int indice =
      lista.addRow(std::span(linha.celulas.constData(), std::size_t(linha.celulas.size())));
  if (linha.marcada) {
    lista.setChecked(indice, true);
  }
}

}  // namespace

void Preenche_lista(ListView& lista, const QString& comando, const LeLinha& le_linha) {
  setScreenPointer(PointerShape::Hourglass);
  Sql_atual = comando;
  lista.clear();
  Abre_consulta(Sql_atual);
  if (Tabela.recordCount() > 0) {
    Cede_vez();
  }
  for (; !Tabela.eof(); Tabela.moveNext()) {
    adiciona_linha(lista, le_linha());
  }
  setScreenPointer(PointerShape::Normal);
  Tabela.close();
}

void Preenche_lista_sob_trava(ListView& lista, const QString& comando, const LeLinha& le_linha) {
  Sob_trava(QStringLiteral("Função Lista_Adiantamento"),
            [&] { Preenche_lista(lista, comando, le_linha); });
}

QString Celula(int coluna) {
  return Convert::toText(Tabela.field(coluna));
}

QString Celula(int coluna, QStringView formato) {
  return Format(Tabela.field(coluna), formato);
}

}  // namespace quartela
