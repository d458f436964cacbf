// The requisition side of the process screen: loading, the lists that follow one another, saving,
// printing.
#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Ini.h"
#include "foundation/Rotinas.h"
#include "masterdata/cExecutor.h"
#include "masterdata/cTomador.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Gravacao.h"
#include "records/Impressao.h"
#include "records/Principal.h"
#include "records/cRequisicao.h"
#include "screens/frmCadastro.h"
#include "ui_frmCadastro.h"

namespace quartela {
namespace {

const QString kAviso = QStringLiteral("Aviso");
constexpr int kAbertura = 7;  // the main list's column of the empenho's opening date

QString chave_escolhida(const ComboBox& combo) {
  return QString::number(combo.itemDataAt(combo.listIndex()));
}

std::int16_t numero_escolhido(const ComboBox& combo) {
  return Convert::toI16(combo.itemDataAt(combo.listIndex()));
}

QString documentos(const QString& rg, const QString& cpf) {
  return QStringLiteral("RG: ") + rg + QStringLiteral(" - CPF: ") + cpf;
}

}  // namespace

void frmCadastro::Carrega_dados() {
  cRequisicao& requisicao = cRequisicao::compartilhada();
  requisicao.Envia_dados(Convert::toI16(QString(Tag_principal).remove(QLatin1Char('/'))));
  ui_->mskprocesso->setText(Format(requisicao.Seq, u"0000/00"));
  Mostra_data(*ui_->dtpdata, requisicao.Data);
  ui_->mskvalor->setValue(requisicao.Valor);
  ui_->txtjustificativa->setPlainText(requisicao.Justificativa);
  seleciona_listas();
  ui_->cmbficha->setText(requisicao.Ficha);
  if (!Subitem_principal(kAbertura).isEmpty()) {
    ui_->fracadastro->setEnabled(false);
    // A text longer than its place could not be scrolled any more.
    ui_->txtjustificativa->setToolTip(requisicao.Justificativa);
  }
  ui_->mskprocesso->setEnabled(false);
  for (QPushButton* const botao : {ui_->cmdnovo, ui_->cmdalterar, ui_->cmdexcluir}) {
    botao->setEnabled(true);
  }
}

// The order matters: the secretariat fills the lists of orderers and of types, the type that of
// allocations, before they are searched.
void frmCadastro::seleciona_listas() {
  const cRequisicao& requisicao = cRequisicao::compartilhada();
  ui_->cmbResponsavel->selectByData(requisicao.Tomador);
  ui_->cmbOrgao->selectByData(requisicao.Secretaria);
  ui_->cmbOrdenador->selectByData(requisicao.Orgao);
  ui_->cmbTipo->selectByData(requisicao.Finalidade);
}

void frmCadastro::recarrega(ComboBox& combo, const std::function<void()>& carrega) {
  const bool escolhido = combo.listIndex() >= 0;
  const std::int32_t chave = escolhido ? combo.itemDataAt(combo.listIndex()) : 0;
  carrega();
  if (escolhido) {
    combo.setCurrentIndex(combo.findKey(chave));
  }
}

void frmCadastro::cmbOrgao_Click() {
  ui_->txtid->clear();
  Segue([this] {
    const QString fim =
        ModoAlteracao == 0 ? QStringLiteral(" AND ATIVO = True;") : QStringLiteral(" ;");
    Carrega_Controles(
        *ui_->cmbOrdenador,
        QStringLiteral("SELECT Executor.ORDEM, Executor.NOME, Orgao.IDORGAO FROM Orgao INNER "
                       "JOIN Executor ON Orgao.IDORGAO = Executor.IDORGAO WHERE "
                       "Orgao.IDORGAO = ") +
            chave_escolhida(*ui_->cmbOrgao) + fim,
        QStringLiteral("NOME"), QStringLiteral("ORDEM"), kComando);
  });
  Segue([this] {
    Carrega_Controles(
        *ui_->cmbTipo,
        QStringLiteral("SELECT Tipos.SEQUENCIA, Tipos.TIPO, Orgao.IDORGAO FROM Tipos, Orgao "
                       "WHERE Orgao.IDORGAO = Tipos.IDORGAO AND Orgao.IDORGAO = ") +
            chave_escolhida(*ui_->cmbOrgao) + QLatin1Char(';'),
        QStringLiteral("TIPO"), QStringLiteral("SEQUENCIA"), kComando);
  });
}

void frmCadastro::cmbOrdenador_Click() {
  cExecutor& executor = cExecutor::compartilhada();
  executor.Ordem = numero_escolhido(*ui_->cmbOrdenador);
  executor.CarregaList();
  ui_->txtid->setText(documentos(executor.RG, executor.CPF));
}

void frmCadastro::cmbResponsavel_Click() {
  ui_->txtid2->clear();
  cTomador& tomador = cTomador::compartilhada();
  tomador.Ordem = numero_escolhido(*ui_->cmbResponsavel);
  tomador.CarregaList();
  ui_->txtid2->setText(documentos(tomador.RG, tomador.CPF));
  ui_->txtcargo->setText(tomador.Cargo);
}

void frmCadastro::cmbTipo_Click() {
  Carrega_Controles(
      *ui_->cmbficha,
      QStringLiteral("SELECT Dotacao.ID, Dotacao.DOTACAO, Tipos.IDORGAO, Dotacao.ANO, "
                     "Tipos.SEQUENCIA FROM Tipos, Dotacao WHERE Tipos.SEQUENCIA = "
                     "Dotacao.IDTIPO AND Tipos.SEQUENCIA = ") +
          chave_escolhida(*ui_->cmbTipo) + QStringLiteral(" AND Dotacao.ANO =Year(Now()) ;"),
      QStringLiteral("DOTACAO"), QStringLiteral("ID"), kComando);
}

// The stored text stays, also when no row of this year holds it.
void frmCadastro::cmbficha_DropDown() {
  if (ui_->cmbTipo->listIndex() < 0) {
    return;
  }
  const QString escolhida = ui_->cmbficha->text();
  Segue([this] {
    Carrega_Combo(*ui_->cmbficha,
                  QStringLiteral("SELECT DISTINCT DOTACAO FROM Dotacao WHERE IDTIPO = ") +
                      chave_escolhida(*ui_->cmbTipo) + QStringLiteral(" AND ANO = YEAR(Now());"));
  });
  ui_->cmbficha->setText(escolhida);
}

void frmCadastro::cmdAplicar_Click() {
  if (datas_.avisa()) {
    return;
  }
  if (Campos_vazios(*this)) {
    Dialogs::exclamation(QStringLiteral("Todos os campos obrigatórios devem ser preenchidos!!"),
                         kAviso);
    return;
  }
  if (!aceita_outro_aberto()) {
    return;
  }
  preenche_requisicao();
  const bool inclui = ModoAlteracao == 0;
  if (!cRequisicao::compartilhada().Save_req(inclui ? kInclusao : kAlteracao)) {
    return;
  }
  requisicao_salva_ = Conteudo_digitado(*ui_->fracadastro);
  Lista_principal(FiltroStatus);
  ui_->cmdAplicar->setEnabled(false);
  ui_->cmdOk->setEnabled(true);
  ui_->cmdImprimir->setEnabled(true);
  ui_->cmdOk->setFocus();
  // Last, so that a counter that cannot be written leaves no screen that offers to save once more.
  if (inclui) {
    Grava_ini(QStringLiteral("Contador"), QStringLiteral("number"),
              ui_->mskprocesso->text().left(4), caminhos.number);
  }
}

// The warning goes by the places of person and type in their lists, not by their keys. It only
// warns, and only for a new requisition.
bool frmCadastro::aceita_outro_aberto() {
  cRequisicao& requisicao = cRequisicao::compartilhada();
  requisicao.Tomador = Convert::toI16(ui_->cmbResponsavel->listIndex());
  requisicao.Finalidade = Convert::toI16(ui_->cmbTipo->listIndex());
  const bool aberto = requisicao.Verifica_registro();
  if (!ui_->mskprocesso->isEnabled() || !aberto) {
    return true;
  }
  return Dialogs::box({.text = QStringLiteral("Há um adiantamento nesta finalidade já aberto !!!"),
                       .title = kAviso,
                       .icon = BoxIcon::Exclamation,
                       .buttons = {Button::Ok, Button::Cancel},
                       .defaultButton = Button::Cancel}) == Button::Ok;
}

void frmCadastro::preenche_requisicao() {
  cRequisicao& requisicao = cRequisicao::compartilhada();
  requisicao.Seq = Convert::toI32(numero_processo());
  requisicao.Data = ui_->dtpdata->value().dateTime();
  requisicao.Orgao = numero_escolhido(*ui_->cmbOrdenador);
  requisicao.Tomador = numero_escolhido(*ui_->cmbResponsavel);
  requisicao.Valor = ui_->mskvalor->value();
  requisicao.Finalidade = numero_escolhido(*ui_->cmbTipo);
  requisicao.Justificativa = ui_->txtjustificativa->toPlainText();
  requisicao.Ficha = ui_->cmbficha->text();
}

void frmCadastro::cmdOk_Click() {
  Lista_principal(FiltroStatus);
  close();
}

void frmCadastro::cmdImprimir_Click() {
  Sob_trava(QStringLiteral("Função imprimir"), [this] {
    Sql_atual =
        QStringLiteral("Select * from Sel_Print_req WHERE Requisicao.SEQ = ") + numero_processo();
    imprime(
        {.relatorio = Relatorio::Requisicao2, .comando = Sql_atual, .exibe = true, .campos = {}});
    close();
  });
}

}  // namespace quartela
