#include "records/Numeracao.h"

#include <QLineEdit>

#include "foundation/Erros.h"
#include "foundation/Ini.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Clock.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"

namespace quartela {
namespace {

const QString kSecao = QStringLiteral("Contador");
const QString kAno = QStringLiteral("ano");
const QString kNumero = QStringLiteral("number");

std::int32_t le_ano(const QString& arquivo) {
  const QString ano = Le_ini(kSecao, kAno, arquivo).trimmed();
  return ano.isEmpty() ? 0 : Convert::toI32(ano);
}

QString proximo_numero(const QString& ano, const QString& arquivo) {
  const double numero = Convert::toNumber(Le_ini(kSecao, kNumero, arquivo)) + 1;
  return Format(numero, u"0000") + Format(Convert::toI16(ano.right(2)), u"00");
}

// A number that outgrows the template of its field must not be cut down to another one.
void mostra_numero(QLineEdit& destino, const QString& numero) {
  destino.setText(numero);
  if (destino.text().remove(QLatin1Char('/')) != numero) {
    destino.clear();
    throw RuntimeError(ErrorNumber::Overflow);
  }
}

void propoe_numero(QLineEdit& destino, const QString& arquivo) {
  const QString ano = QString::number(Clock::now().year());
  const std::int32_t diferenca = Convert::toI32(ano) - le_ano(arquivo);
  if (diferenca < 0) {
    Dialogs::box(
        {.text = QStringLiteral("Erro no relógio do micro ou o arquivo INI está adulterado.")});
    return;
  }
  if (diferenca > 0) {
    Grava_contador(ano, QStringLiteral("0"), arquivo);
  }
  mostra_numero(destino, proximo_numero(ano, arquivo));
}

}  // namespace

void Novo_item(QLineEdit& destino, const QString& arquivo) {
  Sob_trava(QStringLiteral("Função Novo_item"), [&] { propoe_numero(destino, arquivo); });
}

void Grava_contador(const QString& ano, const QString& numero, const QString& arquivo) {
  Grava_ini(kSecao, kAno, ano, arquivo);
  Grava_ini(kSecao, kNumero, numero, arquivo);
}

}  // namespace quartela
