#include "screens/QuadroRequisicao.h"

#include <QLineEdit>

#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Rotinas.h"
#include "masterdata/cExecutor.h"
#include "masterdata/cTomador.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/CamposRequisicao.h"
#include "ui_QuadroRequisicao.h"

namespace quartela {
namespace {

QString chave_escolhida(const ComboBox& combo) {
  return QString::number(combo.itemDataAt(combo.listIndex()));
}

std::int16_t numero_escolhido(const ComboBox& combo) {
  return Convert::toI16(combo.itemDataAt(combo.listIndex()));
}

QString documentos(const QString& rg, const QString& cpf) {
  return QStringLiteral("RG: ") + rg + QStringLiteral(" - CPF: ") + cpf;
}

void carrega_orgaos(ComboBox& combo) {
  Carrega_Controles(combo, QStringLiteral("Orgao"), QStringLiteral("ORGAO"),
                    QStringLiteral("IDORGAO"), kTodos);
}

// What the program fills in does not look like a field to type into.
void mostra_preenchido(QLineEdit& campo) {
  QPalette cores = campo.palette();
  cores.setColor(QPalette::Base, QColor(Estilo::kFundo));
  campo.setPalette(cores);
}

}  // namespace

QuadroRequisicao::QuadroRequisicao(QWidget* parent)
    : QGroupBox(parent), ui_(std::make_unique<Ui::QuadroRequisicao>()) {
  ui_->setupUi(this);
  Escurece_inativos(*this);
  for (QLineEdit* const campo :
       {static_cast<QLineEdit*>(ui_->mskprocesso), ui_->txtid, ui_->txtid2}) {
    mostra_preenchido(*campo);
  }
  ui_->cmbficha->setTypingBlocked(true);
  ui_->cmbficha->lineEdit()->setAccessibleName(ui_->cmbficha->accessibleName());
  datas_.observa(*ui_->dtpdata);
  liga_listas();
}

QuadroRequisicao::~QuadroRequisicao() = default;

void QuadroRequisicao::liga_listas() {
  for (ComboBox* const combo :
       {ui_->cmbOrgao, ui_->cmbOrdenador, ui_->cmbResponsavel, ui_->cmbTipo, ui_->cmbficha}) {
    Ignora_roda(*combo);
  }
  liga(ui_->cmbOrgao, &ComboBox::dropDown, this,
       [this] { recarrega(*ui_->cmbOrgao, [this] { carrega_orgaos(*ui_->cmbOrgao); }); });
  liga(ui_->cmbResponsavel, &ComboBox::dropDown, this, [this] {
    recarrega(*ui_->cmbResponsavel, [this] {
      Carrega_Controles(*ui_->cmbResponsavel,
                        QStringLiteral("Select * from Tomador Where ATIVO = True ORDER BY NOME1;"),
                        QStringLiteral("NOME1"), QStringLiteral("ID"), kComando);
    });
  });
  liga(ui_->cmbficha, &ComboBox::dropDown, this, &QuadroRequisicao::cmbficha_DropDown);
  connect(ui_->cmbOrgao, &ComboBox::picked, this, &QuadroRequisicao::cmbOrgao_Click);
  connect(ui_->cmbOrdenador, &ComboBox::picked, this, &QuadroRequisicao::cmbOrdenador_Click);
  connect(ui_->cmbResponsavel, &ComboBox::picked, this, &QuadroRequisicao::cmbResponsavel_Click);
  connect(ui_->cmbTipo, &ComboBox::picked, this, &QuadroRequisicao::cmbTipo_Click);
}

void QuadroRequisicao::prepara_numero(const QString& rotulo, const QString& mascara) {
  ui_->lblProcesso->setText(rotulo);
  ui_->mskprocesso->setAccessibleName(rotulo);
  ui_->mskprocesso->setMask(mascara);
}

void QuadroRequisicao::carrega_listas() {
  const auto carrega = [](ComboBox* combo, const char* tabela, const char* exibida,
                          const char* chave) {
    Carrega_Controles(*combo, QLatin1String(tabela), QLatin1String(exibida), QLatin1String(chave),
                      kTodos);
  };
  carrega_orgaos(*ui_->cmbOrgao);
  carrega(ui_->cmbResponsavel, "Tomador", "NOME1", "ID");
  carrega(ui_->cmbTipo, "Tipos", "TIPO", "SEQUENCIA");
  carrega(ui_->cmbOrdenador, "Executor", "NOME", "ORDEM");
}

// The order of the lists matters: the secretariat fills those of orderers and of types, the type
// that of allocations, before they are searched.
void QuadroRequisicao::mostra(const CamposRequisicao& requisicao) {
  Mostra_data(*ui_->dtpdata, requisicao.Data);
  data_carregada_ = requisicao.Data;
  valor_.mostra(*ui_->mskvalor, requisicao.Valor,
                Format(requisicao.Valor, ui_->mskvalor->format()));
  ui_->txtjustificativa->setPlainText(requisicao.Justificativa);
  ui_->cmbResponsavel->selectByData(requisicao.Tomador);
  ui_->cmbOrgao->selectByData(requisicao.Secretaria);
  ui_->cmbOrdenador->selectByData(requisicao.Orgao);
  ui_->cmbTipo->selectByData(requisicao.Finalidade);
  ui_->cmbficha->setText(requisicao.Ficha);
}

void QuadroRequisicao::recarrega(ComboBox& combo, const std::function<void()>& carrega) {
  if (combo.listIndex() < 0) {
    carrega();
    return;
  }
  const QString texto = combo.text();
  const std::int32_t chave = combo.itemDataAt(combo.listIndex());
  carrega();
  const int lugar = combo.findKey(chave);
  combo.setCurrentIndex(lugar >= 0 ? lugar : combo.addItem(texto, chave));
}

void QuadroRequisicao::cmbOrgao_Click() {
  ui_->txtid->clear();
  Segue([this] {
    const QString fim =
        oferece_inativos_ ? QStringLiteral(" ;") : QStringLiteral(" AND ATIVO = True;");
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

void QuadroRequisicao::cmbOrdenador_Click() {
  cExecutor& executor = cExecutor::compartilhada();
  executor.Ordem = numero_escolhido(*ui_->cmbOrdenador);
  executor.CarregaList();
  ui_->txtid->setText(documentos(executor.RG, executor.CPF));
}

void QuadroRequisicao::cmbResponsavel_Click() {
  ui_->txtid2->clear();
  cTomador& tomador = cTomador::compartilhada();
  tomador.Ordem = numero_escolhido(*ui_->cmbResponsavel);
  tomador.CarregaList();
  ui_->txtid2->setText(documentos(tomador.RG, tomador.CPF));
  ui_->txtcargo->setText(tomador.Cargo);
}

void QuadroRequisicao::cmbTipo_Click() {
  Carrega_Controles(
      *ui_->cmbficha,
      QStringLiteral("SELECT Dotacao.ID, Dotacao.DOTACAO, Tipos.IDORGAO, Dotacao.ANO, "
                     "Tipos.SEQUENCIA FROM Tipos, Dotacao WHERE Tipos.SEQUENCIA = "
                     "Dotacao.IDTIPO AND Tipos.SEQUENCIA = ") +
          chave_escolhida(*ui_->cmbTipo) + QStringLiteral(" AND Dotacao.ANO =Year(Now()) ;"),
      QStringLiteral("DOTACAO"), QStringLiteral("ID"), kComando);
}

// The stored text stays, also when no row of this year holds it.
void QuadroRequisicao::cmbficha_DropDown() {
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

bool QuadroRequisicao::completo() {
  if (datas_.avisa()) {
    return false;
  }
  if (Campos_vazios(*window())) {
    Dialogs::exclamation(QStringLiteral("Todos os campos obrigatórios devem ser preenchidos!!"));
    return false;
  }
  return !Avisa_valor_recusado(*ui_->mskvalor);
}

void QuadroRequisicao::preenche_lugares(CamposRequisicao& requisicao) const {
  requisicao.Tomador = Convert::toI16(ui_->cmbResponsavel->listIndex());
  requisicao.Finalidade = Convert::toI16(ui_->cmbTipo->listIndex());
}

void QuadroRequisicao::preenche(CamposRequisicao& requisicao) const {
  requisicao.Data = Com_hora_carregada(ui_->dtpdata->value().dateTime(), data_carregada_);
  requisicao.Orgao = numero_escolhido(*ui_->cmbOrdenador);
  requisicao.Tomador = numero_escolhido(*ui_->cmbResponsavel);
  requisicao.Valor = valor_.valor(*ui_->mskvalor);
  requisicao.Finalidade = numero_escolhido(*ui_->cmbTipo);
  requisicao.Justificativa = ui_->txtjustificativa->toPlainText();
  requisicao.Ficha = ui_->cmbficha->text();
}

}  // namespace quartela
