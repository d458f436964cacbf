// The database file is replaced while an operator works: the save is refused in words, what was
// typed stays, and the file that is there now can be opened from the box that follows.
#include <QFile>
#include <QTest>

#include "records/cRequisicao.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/Samples.h"

namespace quartela {

namespace boxes = test::boxes;

class MovedFileTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    moved_ = office_->file(QStringLiteral("levado.mdb"));
  }
  void cleanup() { office_.reset(); }

  void replacedFileIsOpenedAnew() {
    takeAway();
    QVERIFY(QFile::copy(moved_, office_->database()));
    test::ScriptedDialogs dialogs;
    cRequisicao requisition = sample(114);
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    expectRefusal(dialogs, Button::Yes);
    QVERIFY(!requisition.Save_req(1));
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("0"));

    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    QVERIFY(requisition.Save_req(1));
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("1"));
  }

  void operatorDeclines() {
    takeAway();
    QVERIFY(QFile::copy(moved_, office_->database()));
    test::ScriptedDialogs dialogs;
    cRequisicao requisition = sample(114);
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    expectRefusal(dialogs, Button::No);
    QVERIFY(!requisition.Save_req(1));
    // Still refused, and still offered.
    expectRefusal(dialogs, Button::No);
    requisition.Del_req();
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("0"));
  }

  // Nothing at the path: told, and the next save tells and offers again.
  void missingFileIsTold() {
    takeAway();
    test::ScriptedDialogs dialogs;
    cRequisicao requisition = sample(114);
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    expectRefusal(dialogs, Button::Yes);
    dialogs.expectBox(
        {.text = QStringLiteral("Erro n°: 3024 Descrição: O arquivo do banco de dados "
                                "não foi encontrado: \"") +
                 office_->database() + QStringLiteral("\"."),
         .title = {},
         .icon = BoxIcon::Stop});
    QVERIFY(!requisition.Save_req(1));
    QVERIFY(QFile::rename(moved_, office_->database()));
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    QVERIFY(requisition.Save_req(1));
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("1"));
  }

 private:
  void takeAway() const { QVERIFY(QFile::rename(office_->database(), moved_)); }

  void expectRefusal(test::ScriptedDialogs& dialogs, Button answer) const {
    dialogs.expectBox(
        {.text = QStringLiteral("Erro n°: 3043 Descrição: Nada foi gravado: o arquivo "
                                "do banco de dados foi movido, trocado ou excluído "
                                "enquanto o programa estava aberto. [") +
                 office_->database() + QLatin1Char(']'),
         .title = {},
         .icon = BoxIcon::Stop});
    dialogs.expectBox(
        boxes::question(QStringLiteral("Deseja abrir o arquivo que está agora em \"") +
                        office_->database() +
                        QStringLiteral("\"?\n\nO que foi digitado continua na tela; grave outra "
                                       "vez depois.")),
        answer);
  }

  static cRequisicao sample(std::int32_t seq) {
    cRequisicao requisition;
    requisition.Seq = seq;
    requisition.Data = DateTime::of(2014, 11, 20);
    requisition.Orgao = requisition.Tomador = requisition.Finalidade = 1;
    return requisition;
  }

  std::unique_ptr<test::Office> office_;
  QString moved_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::MovedFileTest)
#include "MovedFile_test.moc"
