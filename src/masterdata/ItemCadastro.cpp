#include "masterdata/ItemCadastro.h"

#include <QMenu>

#include "foundation/Evento.h"
#include "platform/controls/ListView.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"

namespace quartela {
namespace {

constexpr int kDigitosChave = 3;

}  // namespace

ItemCadastro::ItemCadastro(ListView& lista, const QString& texto_excluir,
                           std::function<void(std::int16_t)> exclui,
                           std::function<void()> recarrega)
    : QObject(&lista),
      lista_(lista),
      exclui_(std::move(exclui)),
      recarrega_(std::move(recarrega)),
      menu_(new QMenu(&lista)) {
  menu_->setObjectName(QStringLiteral("mnuopcoes"));
  QAction* const mnuexcluir = menu_->addAction(texto_excluir);
  mnuexcluir->setObjectName(QStringLiteral("mnuexcluir"));
  liga(mnuexcluir, &QAction::triggered, this, &ItemCadastro::exclui_item);
  liga(&lista, &ListView::itemClicked, this, &ItemCadastro::clica);
  liga(&lista, &ListView::contextMenuRequested, this, &ItemCadastro::mostra_menu);
  liga(&lista, &ListView::itemActivated, this, [this](int linha) {
    clica(linha);
    emit ativado();
  });
  liga(&lista, &ListView::deleteRequested, this, [this](int linha) {
    clica(linha);
    exclui_item();
  });
}

void ItemCadastro::relista(const std::function<void()>& preenche) {
  preenche();
  if (linha() >= 0) {
    lista_.selectRow(linha());
  } else {
    tag_.clear();
  }
}

int ItemCadastro::linha() const {
  int n = tag_.isEmpty() ? -1 : lista_.count() - 1;
  while (n >= 0 && lista_.text(n) != tag_) {
    --n;
  }
  return n;
}

bool ItemCadastro::tem_item() const {
  const bool tem = linha() >= 0;
  if (!tem) {
    Dialogs::stop(QStringLiteral("Informe um item !!!"));
  }
  return tem;
}

QString ItemCadastro::coluna(int n) const {
  return linha() < 0 ? QString() : lista_.subItem(linha(), n);
}

QString ItemCadastro::chave_na_coluna(int n) const {
  return coluna(n).left(kDigitosChave);
}

bool ItemCadastro::marcada() const {
  return linha() >= 0 && lista_.isChecked(linha());
}

void ItemCadastro::clica(int linha) {
  tag_ = lista_.text(linha);
}

void ItemCadastro::exclui_item() {
  if (!tem_item() || !Dialogs::confirm(tag_ + QStringLiteral(" - ") +
                                       QStringLiteral("Confirma exclusão deste item?"))) {
    return;
  }
  exclui_(Convert::toI16(tag_));
  relista(recarrega_);
}

// The menu key stands for a click on the current row, which then shows as selected.
void ItemCadastro::mostra_menu(int linha, const QPoint& posicao) {
  if (linha >= 0) {
    lista_.selectRow(linha);
    clica(linha);
  }
  menu_->popup(posicao);
}

}  // namespace quartela
