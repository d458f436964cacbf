// Saves requisitions one after the other and prints the number of each that was acknowledged, until
// it is killed. Usage: save_requisitions DATABASE FIRST_NUMBER
#include <QApplication>
#include <cstdio>

#include "foundation/Abertura.h"
#include "foundation/Caminhos.h"
#include "platform/dialogs/Dialogs.h"
#include "records/cRequisicao.h"
#include "tests/records/durability/SavedRequisition.h"

namespace quartela {
namespace {

// The operator who always says yes; a stop box ends the child with a failure.
class Yes : public DialogHost {
 public:
  Button box(const Box& box) override {
    if (box.icon == BoxIcon::Stop) {
      std::fprintf(stderr, "%s\n", qPrintable(box.text));
      std::exit(1);
    }
    return box.buttons.first();
  }
  QString openFile(const FileRequest&) override { return {}; }
  QString saveFile(const FileRequest&) override { return {}; }
  QString pickFolder(const QString&) override { return {}; }
  QString input(const InputRequest&) override { return {}; }
  bool printer(QPrinter&) override { return false; }
};

int saveUntilKilled(const QString& database, std::int32_t seq) {
  Yes yes;
  Dialogs::setHost(&yes);
  caminhos.geral = database;
  Abre_conexao();
  cRequisicao& requisition = cRequisicao::compartilhada();
  requisition.Data = DateTime::of(2014, 11, 20);
  requisition.Orgao = requisition.Tomador = requisition.Finalidade = 1;
  for (;; ++seq) {
    requisition.Seq = seq;
    requisition.Valor = Money::fromUnits(seq);
    requisition.Justificativa = test::justificationOf(seq);
    if (!requisition.Save_req(1)) {
      return 1;
    }
    std::printf("%d\n", seq);
    std::fflush(stdout);
  }
}

}  // namespace
}  // namespace quartela

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  return quartela::saveUntilKilled(arguments.value(1), arguments.value(2).toInt());
}
