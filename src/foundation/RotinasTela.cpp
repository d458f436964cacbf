#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTextEdit>
#include <QVariant>
#include <QWidget>
#include <optional>

#include "foundation/Rotinas.h"
#include "platform/controls/DatePicker.h"
#include "platform/controls/ListView.h"
#include "platform/controls/MaskedBox.h"
#include "platform/controls/OpenForms.h"
#include "platform/controls/TwoPageTab.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

// One control of a screen as the routines see it. `texto` is nothing for a control that is no text
// box, combo box or masked box.
struct Controle {
  QWidget* janela = nullptr;
  std::function<std::optional<QString>()> texto;
  std::function<void()> limpa;
};

std::optional<QString> sem_texto() {
  return std::nullopt;
}

// An option of a group can only be taken away while the group does not insist on one.
void desmarca(QAbstractButton* botao) {
  QButtonGroup* const grupo = botao->group();
  const bool grupo_exclusivo = grupo && grupo->exclusive();
  const bool exclusivo = botao->autoExclusive();
  if (grupo_exclusivo) {
    grupo->setExclusive(false);
  }
  botao->setAutoExclusive(false);
  botao->setChecked(false);
  botao->setAutoExclusive(exclusivo);
  if (grupo_exclusivo) {
    grupo->setExclusive(true);
  }
}

Controle linha(QWidget* janela) {
  if (auto* const data = qobject_cast<DatePicker*>(janela)) {
    return {data, sem_texto, [data] { data->setToday(); }};
  }
  if (auto* const mascara = qobject_cast<MaskedBox*>(janela)) {
    return {mascara, [mascara] { return mascara->value(); }, [mascara] { mascara->setText({}); }};
  }
  if (auto* const caixa = qobject_cast<QLineEdit*>(janela)) {
    return {caixa, [caixa] { return caixa->text(); }, [caixa] { caixa->clear(); }};
  }
  return {};
}

Controle memorando(QWidget* janela) {
  if (auto* const texto = qobject_cast<QPlainTextEdit*>(janela)) {
    return {texto, [texto] { return texto->toPlainText(); }, [texto] { texto->clear(); }};
  }
  if (auto* const texto = qobject_cast<QTextEdit*>(janela)) {
    return {texto, [texto] { return texto->toPlainText(); }, [texto] { texto->clear(); }};
  }
  return {};
}

void esvazia(QComboBox* combo) {
  combo->setCurrentIndex(-1);
  if (combo->isEditable()) {
    combo->clearEditText();
  }
}

Controle lista(QWidget* janela) {
  if (auto* const combo = qobject_cast<QComboBox*>(janela)) {
    return {combo, [combo] { return combo->currentText(); }, [combo] { esvazia(combo); }};
  }
  if (auto* const linhas = qobject_cast<ListView*>(janela)) {
    return {linhas, sem_texto, [linhas] { linhas->clear(); }};
  }
  return {};
}

Controle opcao(QWidget* janela) {
  if (qobject_cast<QCheckBox*>(janela) || qobject_cast<QRadioButton*>(janela)) {
    auto* const botao = static_cast<QAbstractButton*>(janela);
    return {botao, sem_texto, [botao] { desmarca(botao); }};
  }
  return {};
}

Controle reconhece(QWidget* janela) {
  for (const auto especie : {linha, memorando, lista, opcao}) {
    if (Controle controle = especie(janela); controle.janela) {
      return controle;
    }
  }
  return {};
}

// In the order of their creation. What a control is made of is not looked at, nor windows of their
// own that belong to the screen.
template <typename Acao>
void percorre(QWidget& tela, const Acao& acao) {
  const QList<QWidget*> filhos = tela.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (QWidget* const filho : filhos) {
    if (filho->isWindow() || qobject_cast<QAbstractSpinBox*>(filho)) {
      continue;
    }
    const Controle controle = reconhece(filho);
    if (controle.janela) {
      acao(controle);
    } else {
      percorre(*filho, acao);
    }
  }
}

}  // namespace

void Ordena_lista(ListView& lista, int coluna) {
  lista.setSortKey(coluna - 1);
  lista.setSorted(true);
  const bool crescente = lista.sortOrder() == Qt::AscendingOrder;
  lista.setSortOrder(crescente ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void Troca_aba(TwoPageTab& abas) {
  const bool consulta = !abas.tabEnabled(1);
  const int nova = consulta ? 1 : 0;
  abas.setTabEnabled(1 - nova, false);
  abas.setTabEnabled(nova, true);
  abas.setCurrent(nova);
}

bool Campos_vazios(QWidget& tela) {
  bool vazio = false;
  percorre(tela, [&vazio](const Controle& controle) {
    if (controle.janela->property("Tag").toString() != QStringLiteral("1")) {
      return;
    }
    const std::optional<QString> texto = controle.texto();
    if (texto && texto->isEmpty()) {
      controle.janela->setFocus();
      vazio = true;
    }
  });
  return vazio;
}

void Limpa_tela(QWidget& tela) {
  percorre(tela, [](const Controle& controle) {
    try {
      controle.limpa();
    } catch (const RuntimeError&) {
      // A control that cannot be cleared stays as it is; the others are cleared all the same.
      return;
    }
  });
}

bool FormAberto(const QString& nome) {
  QWidget* const form = OpenForms::find(nome);
  if (!form) {
    return false;
  }
  OpenForms::unload(form);
  return true;
}

}  // namespace quartela
