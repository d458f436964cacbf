#include "screens/frmAviso.h"

#include <QApplication>
#include <QStyle>

#include "foundation/Evento.h"
#include "platform/controls/OpenForms.h"
#include "records/cTodos.h"
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

}  // namespace

frmAviso::frmAviso(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmAviso>()) {
  ui_->setupUi(this);
  ui_->Image1->setPixmap(style()
                             ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                             .pixmap(kIcone, devicePixelRatioF()));
  prepara_colunas(*ui_->lvList);
  ui_->Command1->setFocus();
  Timer1.setInterval(kFechaSozinho);
  liga(&Timer1, &QTimer::timeout, this, [this] {
    Timer1.stop();
    close();
  });
  liga(ui_->Command1, &QPushButton::clicked, this, &frmAviso::close);
  Form_Load();
  OpenForms::add(this);
}

frmAviso::~frmAviso() = default;

void frmAviso::Form_Load() {
  if (cTodos::compartilhada().Lista_Aviso(*ui_->lvList) == 0) {
    Timer1.start();
  }
}

void mostra_frmAviso() {
  frmAviso aviso(QApplication::activeWindow());
  aviso.exec();
}

}  // namespace quartela
