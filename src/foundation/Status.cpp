#include "foundation/Status.h"

#include "foundation/Evento.h"
#include "foundation/UmaJanela.h"
#include "foundation/ui_Status.h"
#include "platform/dialogs/ToolkitDialogs.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

constexpr int kPasso = 5;

}  // namespace

Status::Status()
    : QDialog(dialogParent()),
      ui_(std::make_unique<Ui::Status>()),
      Timer1(new QTimer(this)),
      Timer2(new QTimer(this)) {
  ui_->setupUi(this);
  setFixedSize(size().expandedTo(minimumSizeHint()));
  Timer1->setObjectName(QStringLiteral("Timer1"));
  Timer1->setInterval(15);
  Timer1->setTimerType(Qt::PreciseTimer);
  Timer2->setObjectName(QStringLiteral("Timer2"));
  Timer2->setInterval(1);
  liga(Timer1, &QTimer::timeout, this, &Status::Timer1_timer);
  liga(Timer2, &QTimer::timeout, this, &Status::Timer1_timer);
}

Status::~Status() = default;

void Status::inicia(const QString& arquivo) {
  Timer1->start();
  setWindowTitle(QStringLiteral("Excluindo Registro..."));
  try {
    ui_->Animation1->open(arquivo);
    ui_->Animation1->play();
  } catch (const RuntimeError&) {
    // The row is deleted by now: a picture that is not there must not stop what follows. The player
    // stays empty.
  }
}

void Status::reject() {}

void Status::Timer1_timer() {
  ui_->Bar1->setValue(ui_->Bar1->value() + kPasso);
  ui_->Label1->setText(QString::number(ui_->Bar1->value()));
  if (ui_->Bar1->value() == ui_->Bar1->maximum()) {
    ui_->Animation1->stop();
    Timer1->stop();
    accept();
  }
}

void Animacao_exclusao() {
  Status& status = UmaJanela<Status>::instancia();
  status.inicia(programFile(QStringLiteral("FILEDELR.avi")));
  status.exec();
}

}  // namespace quartela
