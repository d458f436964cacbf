// The screen of a reference table: a page to consult (search, list) and a page to edit, with the
// commands "Incluir", "Alterar", "Gravar", "Cancel" and "Sair", the pop-up "Excluir item", and the
// questions and words that go with them. It is written once; a screen composes it and states its
// own fields, columns and steps.
//
// "Sair" and "Cancel" give up what was typed; before anything else does, the operator is asked.
//
// The window's own form holds the frame of its fields; TelaCadastro puts that frame on the page to
// edit and builds the rest around it.
#pragma once

#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

#include "foundation/Fechamento.h"

class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QWidget;

namespace quartela {

class ItemCadastro;
class ListView;
class TwoPageTab;

// What the page to edit is for, shared by all these screens: 1 inclusion, 2 alteration.
extern std::int16_t Operacao;

// What the first column of a new row shows until the database has given its key.
inline const QString kNumeracaoAutomatica = QStringLiteral("Aut.Num.");

struct ColunaCadastro {
  QString titulo;
  int largura = 0;  // twips
};

// A screen's object name and words for a command.
struct BotaoCadastro {
  QString nome;
  QString texto;
};

struct AparenciaCadastro {
  QString pesquisar_por;
  std::vector<ColunaCadastro> colunas;
  bool marcas = false;  // a check box in each row
  BotaoCadastro incluir{QStringLiteral("Command1_3"), QStringLiteral("&Incluir")};
  BotaoCadastro alterar{QStringLiteral("Command1_1"), QStringLiteral("&Alterar")};
  BotaoCadastro cancelar{QStringLiteral("Command1_0"), QStringLiteral("&Cancel")};
  BotaoCadastro gravar{QStringLiteral("Command2"), QStringLiteral("&Gravar")};
  BotaoCadastro sair{QStringLiteral("Command3"), QStringLiteral("&Sair")};
  QString excluir = QStringLiteral("Excluir item");
  QString obrigatorios = QStringLiteral("Todos os campos obrigatórios devem ser preenchidos!!");
};

// What a screen does at each step.
struct PassosCadastro {
  // Lists all rows (mode 0) or those searched for (mode 1).
  std::function<void(ListView&, std::int16_t modo)> lista;
  // Gives the search text to the record class.
  std::function<void(const QString& texto)> procura;
  // What an inclusion needs once the screen is cleared, the focus last.
  std::function<void()> inclui;
  // Loads the fields of the list's current row, the focus last.
  std::function<void()> altera;
  // Copies the fields to the record class, the key's given, and saves.
  std::function<bool(std::int16_t chave)> salva;
  // Deletes the row of that key.
  std::function<void(std::int16_t chave)> exclui;
};

class TelaCadastro : public QObject {
  Q_OBJECT

 public:
  // `janela` bears `campos` in a vertical layout; `ordem` is the field of the key. None is owned.
  TelaCadastro(QWidget& janela, QWidget& campos, QLineEdit& ordem,
               const AparenciaCadastro& aparencia, PassosCadastro passos);

  // Lists all rows on the page to consult. To be called when the screen's own parts stand.
  void carrega();

  // The row last clicked.
  const ItemCadastro& item() const { return *item_; }

  // The two ways to the page to edit, for a screen with a command of its own.
  void comeca_inclusao(const std::function<void()>& preenche);
  void comeca_alteracao();

  // Puts a command of the screen's own beside "Alterar".
  QPushButton& acrescenta_botao(const BotaoCadastro& botao);

  // True when the fields were complete and the row was written; the page to consult is then back.
  bool Salvar();

 private:
  QWidget* monta_consulta(const AparenciaCadastro& aparencia);
  QWidget* monta_lista(QWidget* pagina, const AparenciaCadastro& aparencia);
  QWidget* monta_cadastro(QWidget& campos, const AparenciaCadastro& aparencia);
  QWidget* monta_rodape(const AparenciaCadastro& aparencia);
  void liga_comandos();
  void relista(std::int16_t modo);
  void pesquisa();
  void grava();
  void cancela();
  void escapa();
  bool tem_digitacao() const;
  void vai_editar();

  QWidget& janela_;
  QWidget& campos_;
  QLineEdit& ordem_;
  PassosCadastro passos_;
  QString obrigatorios_;
  QString carregado_;  // what the page to edit held when it was opened
  TwoPageTab* abas_ = nullptr;
  QHBoxLayout* comandos_ = nullptr;
  ListView* lista_ = nullptr;
  ItemCadastro* item_ = nullptr;
  QLineEdit* pesquisa_ = nullptr;
  QPushButton* procura_ = nullptr;
  QPushButton* incluir_ = nullptr;
  QPushButton* alterar_ = nullptr;
  QPushButton* gravar_ = nullptr;
  QPushButton* cancelar_ = nullptr;
  QPushButton* sair_ = nullptr;
  Fechamento fechamento_;
};

}  // namespace quartela
