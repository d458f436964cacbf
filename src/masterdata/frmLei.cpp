#include "masterdata/frmLei.h"

#include <QLineEdit>

#include "foundation/Escape.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Rotinas.h"
#include "foundation/Tamanho.h"
#include "masterdata/ItemCadastro.h"
#include "masterdata/TelaCadastro.h"
#include "masterdata/cInciso.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Gravacao.h"
#include "ui_frmLei.h"

namespace quartela {
namespace {

// Where the name of the type stands in the list's column: "001 - Diárias".
constexpr int kInicioNome = 6;
constexpr int kTamanhoNome = 20;
constexpr int kDigitosPrazo = 2;
// Pixels: the header and some rows, also on the smallest screen.
constexpr int kAlturaLista = 100;

}  // namespace

frmLei::frmLei(QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmLei>()),
      fechamento_(*this, [this] { return tem_digitacao(); }) {
  ui_->setupUi(this);
  Estilo::destaca(*ui_->Command3);
  // A term such as 3 must not become the 30 of the list by itself.
  ui_->Combo4->setCompleter(nullptr);
  for (ComboBox* lista : {ui_->Combo1, ui_->Combo4}) {
    lista->lineEdit()->setAccessibleName(lista->accessibleName());
  }
  Tamanho::rola(*ui_->Frame1);
  ui_->ListView1->setMinimumHeight(kAlturaLista);
  monta_lista();
  liga_comandos();
  edita(false);
  cInciso::compartilhada().Lista_Inciso(*ui_->ListView1);
  ui_->ListView1->setFocus();
}

// The field that loses the focus still reports to this window, not to what is left of it.
frmLei::~frmLei() {
  hide();
}

void frmLei::monta_lista() {
  ListView& lista = *ui_->ListView1;
  lista.setCheckBoxes(true);
  lista.addColumn(QStringLiteral("SEQ"), ColumnWidth::twips(1411));
  lista.addColumn(QStringLiteral("TIPO"), ColumnWidth::twips(2646));
  lista.addColumn(QStringLiteral("DESCRIÇÃO"), ColumnWidth::twips(9701));
  lista.addColumn(QStringLiteral("CATEGORIA"), ColumnWidth::twips(2540));
  lista.addColumn(QStringLiteral("DIAS"), ColumnWidth::twips(1411));
  cInciso& registro = cInciso::compartilhada();
  item_ = new ItemCadastro(
      lista, QStringLiteral("Excluir item"),
      [&registro](std::int16_t chave) {
        registro.ID = chave;
        registro.Del_inciso();
      },
      [&registro, &lista] { registro.Lista_Inciso(lista); });
}

void frmLei::liga_comandos() {
  liga(ui_->Combo1, &ComboBox::dropDown, this, &frmLei::Combo1_DropDown);
  connect(ui_->Combo1, &ComboBox::picked, this, &frmLei::Combo1_Click);
  liga(ui_->Combo1->lineEdit(), &QLineEdit::editingFinished, this, &frmLei::Combo1_LostFocus);
  liga(ui_->Command1_3, &QPushButton::clicked, this, &frmLei::inclui);
  liga(ui_->Command1_1, &QPushButton::clicked, this, &frmLei::altera);
  liga(ui_->Command1_0, &QPushButton::clicked, this, &frmLei::cancela);
  liga(ui_->Command3, &QPushButton::clicked, this, [this] { grava(); });
  liga(ui_->Command2, &QPushButton::clicked, this, &QWidget::close);
  // A button that is disabled passes the click by.
  liga(item_, &ItemCadastro::ativado, ui_->Command1_1, &QPushButton::click);
  Ao_escapar(*this, [this] { escapa(); });
}

// The list opens on the type whose key is shown, not on the first one of its name.
void frmLei::Combo1_DropDown() {
  const QString digitado = ui_->Combo1->text();
  Carrega_Controles(*ui_->Combo1, QStringLiteral("Tipos"), QStringLiteral("TIPO"),
                    QStringLiteral("SEQUENCIA"), kTodos);
  if (ui_->Text3->text().isEmpty()) {
    ui_->Combo1->setText(digitado);
    return;
  }
  ui_->Combo1->setCurrentIndex(ui_->Combo1->findKey(Convert::toI32(ui_->Text3->text())));
  if (ui_->Combo1->listIndex() < 0) {
    ui_->Combo1->setText(tipo_);
  }
  tipo_ = ui_->Combo1->text();
}

void frmLei::Combo1_Click(int indice) {
  ui_->Text3->setText(Format(ui_->Combo1->itemDataAt(indice), u"000"));
  tipo_ = ui_->Combo1->text();
}

// Typing is no choice: several types may bear one name.
void frmLei::Combo1_LostFocus() {
  if (!ui_->Text3->text().isEmpty() && ui_->Combo1->text() != tipo_) {
    ui_->Combo1->setText(tipo_);
  }
}

// Category, term and tick stay from the row seen before.
void frmLei::inclui() {
  esvazia();
  ui_->Text1->setText(kNumeracaoAutomatica);
  edita(true);
  ui_->Text1->setEnabled(true);
  carregado_ = Conteudo_digitado(*ui_->Frame1);
  ui_->Combo1->setFocus();
}

// The type's name is cut; its key is not, and it is the key that is saved.
void frmLei::altera() {
  if (!item_->tem_item()) {
    return;
  }
  ui_->Text1->setText(item_->Tag());
  ui_->Text3->setText(item_->chave_na_coluna(1));
  tipo_ = item_->coluna(1).mid(kInicioNome, kTamanhoNome);
  ui_->Combo1->setText(tipo_);
  ui_->Text2->setPlainText(item_->coluna(2));
  ui_->Text4->setText(item_->coluna(3));
  ui_->Combo4->setText(item_->coluna(4).left(kDigitosPrazo));
  ui_->Check1->setChecked(item_->marcada());
  edita(true);
  ui_->Text1->setEnabled(false);
  carregado_ = Conteudo_digitado(*ui_->Frame1);
  ui_->Combo1->setFocus();
}

void frmLei::cancela() {
  esvazia();
  edita(false);
  ui_->Text1->setEnabled(true);
  ui_->ListView1->setFocus();
}

void frmLei::esvazia() {
  ui_->Text1->clear();
  ui_->Text2->clear();
  ui_->Text3->clear();
  ui_->Combo1->setText(QString());
}

void frmLei::edita(bool editando) {
  ui_->Frame1->setEnabled(editando);
  ui_->Command3->setEnabled(editando);
  ui_->Command1_0->setEnabled(editando);
  ui_->Command1_3->setEnabled(!editando);
  ui_->Command1_1->setEnabled(!editando);
}

bool frmLei::completo() {
  if (ui_->Text3->text().isEmpty()) {
    Dialogs::exclamation(QStringLiteral("Informe o tipo de adiantamento !!"));
    ui_->Combo1->setFocus();
    return false;
  }
  if (ui_->Text2->toPlainText().isEmpty()) {
    Dialogs::exclamation(QStringLiteral("Informe o tipo de inciso !!"));
    ui_->Text2->setFocus();
    return false;
  }
  return true;
}

// The editing ends whatever the answer and the outcome were.
void frmLei::grava() {
  if (!ui_->Frame1->isEnabled() || !completo()) {
    return;
  }
  if (ui_->Text1->text() == kNumeracaoAutomatica) {
    ui_->Text1->setText(QStringLiteral("0"));
  }
  salva();
  edita(false);
  item_->relista([this] { cInciso::compartilhada().Lista_Inciso(*ui_->ListView1); });
  ui_->ListView1->setFocus();
}

// Whether a clause is new shows in the field of its key: it can be typed into then.
void frmLei::salva() {
  cInciso& registro = cInciso::compartilhada();
  registro.ID = Convert::toI16(ui_->Text1->text());
  registro.Tipo = Convert::toI16(ui_->Text3->text());
  registro.Descricao = ui_->Text2->toPlainText().trimmed();
  registro.Categoria = ui_->Text4->text().trimmed();
  registro.Prazo = Convert::toI16(ui_->Combo4->text());
  registro.Ativo = ui_->Check1->isChecked();
  registro.Save_inciso(ui_->Text1->isEnabled() ? kInclusao : kAlteracao);
}

bool frmLei::tem_digitacao() const {
  return ui_->Frame1->isEnabled() && Conteudo_digitado(*ui_->Frame1) != carregado_;
}

// Never more than one step back.
void frmLei::escapa() {
  if (fechamento_.permite()) {
    (ui_->Frame1->isEnabled() ? ui_->Command1_0 : ui_->Command2)->click();
  }
}

}  // namespace quartela
