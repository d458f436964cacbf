#include "screens/frmAviso.h"

#include <QApplication>
#include <QStyle>

#include "foundation/Banco.h"
#include "foundation/Leitura.h"
#include "platform/controls/OpenForms.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "ui_frmAviso.h"

namespace quartela {
namespace {

constexpr int kFechaSozinho = 10;  // milliseconds
constexpr QSize kIcone{32, 32};

void prepara_colunas(ListView& lista) {
  lista.addColumn(QStringLiteral("PROC."), ColumnWidth::pixels(80));
  lista.addColumn(QStringLiteral("NOME"), ColumnWidth::pixels(260));
  lista.addColumn(QStringLiteral("FINALIDADE"), ColumnWidth::pixels(210));
  lista.addColumn(QStringLiteral("FECHAR EM"), ColumnWidth::pixels(100));
}

void adiciona_vencendo(ListView& lista) {
  lista.addRow({Format(Tabela.field(0), u"0000/00"), Convert::toText(Tabela.field(1)),
                Convert::toText(Tabela.field(2)), Format(Tabela.field(3), u"dd/MM/yyyy")});
}

}  // namespace

frmAviso::frmAviso(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmAviso>()) {
  ui_->setupUi(this);
  ui_->Image1->setPixmap(style()
                             ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                             .pixmap(kIcone, devicePixelRatioF()));
  prepara_colunas(*ui_->lvList);
  ui_->Command1->setFocus();
  Timer1.setInterval(kFechaSozinho);
  connect(&Timer1, &QTimer::timeout, this, [this] {
    Timer1.stop();
    close();
  });
  connect(ui_->Command1, &QPushButton::clicked, this, &frmAviso::close);
  Form_Load();
  OpenForms::add(this);
}

frmAviso::~frmAviso() = default;

void frmAviso::Form_Load() {
  Lista_sob_trava(QStringLiteral("Função Form_Load"), [this] {
    ui_->lvList->clear();
    Sql_atual = QStringLiteral(
        "SELECT Requisicao.SEQ, Executor.NOME, Tipos.TIPO, Adiantamento.FECHAR_EM FROM Tipos INNER "
        "JOIN "
        "((Executor INNER JOIN Requisicao ON Executor.ORDEM = Requisicao.ORGAO) INNER JOIN "
        "Adiantamento "
        "ON Requisicao.SEQ = Adiantamento.PROCESSO) ON Tipos.SEQUENCIA = Requisicao.FINALIDADE "
        "WHERE "
        "(((Adiantamento.FECHAR_EM)<Now()+6) AND ((Adiantamento.FECHAMENTO) Is Null));");
    Abre_consulta(Sql_atual);
    if (Tabela.recordCount() < 1) {
      Timer1.start();
    }
    for (; !Tabela.eof(); Tabela.moveNext()) {
      adiciona_vencendo(*ui_->lvList);
    }
  });
}

void mostra_frmAviso() {
  frmAviso aviso(QApplication::activeWindow());
  aviso.exec();
}

}  // namespace quartela
