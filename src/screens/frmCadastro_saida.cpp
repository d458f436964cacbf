// What leaves the process screen: the accountability, the collection slip and the text file of the
// notes.
#include <QFileInfo>

#include "foundation/Erros.h"
#include "foundation/Textos.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/AtomicFile.h"
#include "platform/files/TextEncoding.h"
#include "platform/values/Clock.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Impressao.h"
#include "records/cAdiantamento.h"
#include "screens/frmCadastro.h"
#include "ui_QuadroRequisicao.h"
#include "ui_frmCadastro.h"

namespace quartela {
namespace {

constexpr qsizetype kNumeroEmpenho = 8;
constexpr int kColunasExportadas = 4;

QString hoje_por_extenso() {
  const DateTime hoje = Clock::today();
  const QString de = QStringLiteral(" de ");
  return Format(hoje, u"dd") + de + Format(hoje, u"MMMM") + de + Format(hoje, u"yyyy");
}

QString valor_positivo(const QString& texto) {
  const Money valor = Convert::toMoney(texto);
  return Format(valor > Money() ? valor : Money(), kAmountFormat);
}

}  // namespace

void frmCadastro::imprime_prestacao() {
  if (!fechamento_.permite()) {
    return;
  }
  Sob_trava(kFuncaoImprimir, [this] {
    const ListView& lista = *ui_->lstEmpenho;
    const int linha = lista.selectedRow();
    const QString comando = QStringLiteral("Select * from PrestContas Where PROCESSO = ") +
                            empenho_selecionado() + QStringLiteral(" Order by DATA, SEQ;");
    const QString responsavel = campos().cmbResponsavel->text();
    const QString orgao = campos().cmbOrgao->text();
    imprime({.relatorio = Relatorio::PrestContas,
             .comando = comando,
             .exibe = Exibe_antes(),
             .campos = {{QStringLiteral("Field1"), responsavel},
                        {QStringLiteral("Field47"), responsavel},
                        {QStringLiteral("Field2"), orgao},
                        {QStringLiteral("Field44"), orgao},
                        {QStringLiteral("Field37"), ui_->lblEmpenho->text()},
                        {QStringLiteral("Field3"), lista.text(linha)},
                        {QStringLiteral("Field4"), lista.subItem(linha, cAdiantamento::kAbertura)},
                        {QStringLiteral("Field5"), lista.subItem(linha, cAdiantamento::kRetirada)},
                        {QStringLiteral("Field46"), campos().cmbOrdenador->text()},
                        {QStringLiteral("Field40"), valor_positivo(ui_->lblNao_aplicado->text())},
                        {QStringLiteral("Field43"), Format(Clock::now(), u" dd/mm/yyyy h:mm")},
                        {QStringLiteral("Field42"), campos().txtcargo->text()},
                        {QStringLiteral("Field45"), hoje_por_extenso()}}});
    fechamento_.fecha();
  });
}

// The slip with which the money that was not spent is paid back.
bool frmCadastro::imprime_guia() {
  bool entregue = false;
  Sob_trava(kFuncaoImprimir, [&] {
    const ListView& lista = *ui_->lstEmpenho;
    const int linha = lista.selectedRow();
    const QString vencimento =
        Format(lista.subItem(linha, cAdiantamento::kFecharEm), u"dd/mm/YYYY");
    const QString devolvido = Format(Convert::toMoney(ui_->lblNao_aplicado->text()), kAmountFormat);
    const QString centavos = QString(devolvido).remove(QLatin1Char(',')).remove(QLatin1Char('.'));
    imprime({.relatorio = Relatorio::Guia,
             .comando = {},
             .exibe = Exibe_antes(),
             .campos = {{QStringLiteral("Field56"), campos().cmbResponsavel->text()},
                        {QStringLiteral("Field57"), campos().cmbOrgao->text()},
                        {QStringLiteral("Field58"), campos().cmbTipo->text()},
                        {QStringLiteral("Field59"), vencimento},
                        {QStringLiteral("Field60"), lista.text(linha)},
                        {QStringLiteral("Field61"), lista.subItem(linha, cAdiantamento::kOP)},
                        {QStringLiteral("Field62"), devolvido},
                        {QStringLiteral("Barcode1"),
                         Monta_barras(QStringLiteral("000"), QStringLiteral("9"), centavos,
                                      vencimento, QStringLiteral("12"), QStringLiteral("1"))}}});
    entregue = true;
  });
  return entregue;
}

void frmCadastro::Exporta() {
  ui_->Text1->clear();
  const QString arquivo = Dialogs::saveFile({.title = QStringLiteral("Salvar..."),
                                             .filter = QStringLiteral("TXT Files(*.txt)|*.txt|"),
                                             .folder = {},
                                             .fileName = {}});
  if (arquivo.isEmpty()) {
    return;
  }
  try {
    exporta_para(arquivo);
  } catch (const RuntimeError& erro) {
    Dialogs::stop(QStringLiteral("Erro ao exportar registro! Erro n.º %1").arg(erro.number()));
  }
  ui_->pbr->setValue(0);
  ui_->pbr->hide();
}

// The file is written whole, so that a failure leaves no half of one and an earlier export as it
// was.
void frmCadastro::exporta_para(const QString& arquivo) {
  const bool tem_notas = ui_->lstNotas->count() > 0;
  const std::optional<QByteArray> linhas = encodeText(texto_exportado(), TextEncoding::Windows1252);
  if (!linhas) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
  replaceFile(arquivo, *linhas);
  ui_->Text1->setText(arquivo);
  if (tem_notas) {
    Dialogs::information(QStringLiteral("Exportado com sucesso!!"));
  }
}

QString frmCadastro::texto_exportado() {
  ListView& lista = *ui_->lstNotas;
  const QString empenho = ui_->lblIdentificacao_27->text().left(kNumeroEmpenho);
  const int total = lista.count();
  QString texto;
  if (total > 0) {
    ui_->pbr->setMaximum(total);
    ui_->pbr->setValue(0);
    ui_->pbr->show();
  }
  for (int linha = 0; linha < total; ++linha) {
    ui_->pbr->setValue(linha + 1);
    lista.selectRow(linha);
    texto += lista.text(linha) + QLatin1Char(';') + empenho;
    for (int n = 1; n <= kColunasExportadas; ++n) {
      texto += QLatin1Char(';') + lista.subItem(linha, n);
    }
    texto += QStringLiteral("\r\n");
  }
  return texto;
}

}  // namespace quartela
