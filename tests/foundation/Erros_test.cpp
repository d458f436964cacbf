// The two boxes in which failures reach the operator, and the trap that leads to one of them.
#include "foundation/Erros.h"

#include <QTest>

#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"

namespace quartela {

class ErrosTest : public QObject {
  Q_OBJECT

 private slots:
  void theCommonBoxTellsEverything() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        {.text = QStringLiteral("Houve um erro interno:\n\nNúmero do erro:\n3022\n"
                                "Descrição :\nJá existe um registro com este número.\n"
                                "Origem :\nBanco / Função Save_reg"),
         .title = QStringLiteral("Aviso"),
         .icon = BoxIcon::Exclamation});
    Erro_interno(RuntimeError(ErrorNumber::DuplicateKey, QString(), QStringLiteral("Banco")),
                 QStringLiteral("Função Save_reg"));
  }

  void theBoxOfAFailedSave() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        {.text = QStringLiteral("Erro n°: 61 Descrição: O disco está cheio. Libere espaço "
                                "e tente outra vez."),
         .title = {},
         .icon = BoxIcon::Stop});
    Erro_gravacao(RuntimeError(ErrorNumber::DiskFull));
  }

  void aTrapTakesRuntimeErrorsOnly() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        {.text = QStringLiteral("Houve um erro interno:\n\nNúmero do erro:\n6\nDescrição :\n"
                                "O número é grande demais para este campo.\n"
                                "Origem :\nQuartela / Função imprimir"),
         .title = QStringLiteral("Aviso"),
         .icon = BoxIcon::Exclamation});
    bool after = false;
    Sob_trava(QStringLiteral("Função imprimir"), [] { throw RuntimeError(ErrorNumber::Overflow); });
    Sob_trava(QStringLiteral("Função imprimir"), [&after] { after = true; });
    QVERIFY(after);
  }
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::ErrosTest)
#include "Erros_test.moc"
