// The row of a list that the operator last clicked, and what can be done with it: the pop-up menu
// "Excluir item" and the questions before a command. Key and data that it gives are always of one
// row.
#pragma once

#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>

class QMenu;
class QPoint;

namespace quartela {

class ListView;

class ItemCadastro : public QObject {
  Q_OBJECT

 public:
  // `lista` is not owned. `exclui` deletes the row of a key, `recarrega` fills the list anew.
  ItemCadastro(ListView& lista, const QString& texto_excluir,
               std::function<void(std::int16_t chave)> exclui, std::function<void()> recarrega);

  // Fills the list by `preenche`. The row of the remembered key is current again afterwards; the
  // key of a row that is gone is forgotten.
  void relista(const std::function<void()>& preenche);

  // The key text of the row last clicked.
  const QString& Tag() const { return tag_; }
  // Whether a row was clicked and is still in the list; otherwise the operator is told.
  bool tem_item() const;

  // A sub-item of the row of Tag(); empty without one.
  QString coluna(int n) const;
  // The key in front of a name in a sub-item, "001 - Saúde"; of one of four digits the first three.
  QString chave_na_coluna(int n) const;
  // The check box of that row.
  bool marcada() const;

 signals:
  // Enter or a double click on a row, which counts as clicked then.
  void ativado();

 private:
  // The row of the remembered key, -1 for none.
  int linha() const;
  void clica(int linha);
  void exclui_item();
  void mostra_menu(int linha, const QPoint& posicao);

  ListView& lista_;
  std::function<void(std::int16_t)> exclui_;
  std::function<void()> recarrega_;
  QString tag_;
  QMenu* menu_;
};

}  // namespace quartela
