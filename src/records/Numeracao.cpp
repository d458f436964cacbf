#include "records/Numeracao.h"

#include <QLineEdit>
#include <algorithm>
#include <vector>

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Ini.h"
#include "foundation/Leitura.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/KeyFile.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/Clock.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"

namespace quartela {
namespace {

const QString kSecao = QStringLiteral("Contador");
// The counter of the year before, for a clock that was wrong.
const QString kAnterior = QStringLiteral("Anterior");
const QString kAno = QStringLiteral("ano");
const QString kNumero = QStringLiteral("number");

struct Contador {
  QString ano;
  QString numero;
};

Contador secao_do_contador(const KeyFile& arquivo, const QString& secao) {
  return {arquivo.value(secao, kAno).trimmed(), arquivo.value(secao, kNumero).trimmed()};
}

// A file that is not there is a counter of year 0; one that is there and holds neither key is no
// counter, and must not begin at the first number again.
KeyFile le_contador(const QString& arquivo) {
  const auto lido = readKeyFile(nativePath(arquivo));
  if (!lido) {
    return KeyFile();
  }
  const Contador contador = secao_do_contador(*lido, kSecao);
  if (contador.ano.isEmpty() && contador.numero.isEmpty()) {
    throw RuntimeError::withDescription(
        ErrorNumber::TypeMismatch,
        QStringLiteral(
            "O arquivo contador \"%1\" existe, mas não traz ano nem número. Nenhum número "
            "foi dado: confira o caminho nas configurações ou recupere o arquivo.")
            .arg(nativePath(arquivo)));
  }
  return *lido;
}

std::int32_t ano_de(const Contador& contador) {
  return contador.ano.isEmpty() ? 0 : Convert::toI32(contador.ano);
}

QString ano_atual() {
  return QString::number(Clock::now().year());
}

QString proximo_numero(const Contador& contador) {
  const double numero = Convert::toNumber(contador.numero) + 1;
  return Format(numero, u"0000") + Format(Convert::toI16(contador.ano.right(2)), u"00");
}

Contador comeca_ano(const Contador& antes, const QString& ano, const QString& arquivo) {
  const Contador novo{ano, QStringLiteral("0")};
  std::vector<KeyValue> chaves{{kSecao, kAno, novo.ano}, {kSecao, kNumero, novo.numero}};
  if (!antes.ano.isEmpty()) {
    chaves.push_back({kAnterior, kAno, antes.ano});
    chaves.push_back({kAnterior, kNumero, antes.numero});
  }
  Grava_ini(chaves, arquivo);
  return novo;
}

// A clock that was ahead has begun a year in which nothing was saved: its own year goes on.
bool retoma_anterior(const KeyFile& lido, const QString& ano, const QString& arquivo,
                     Contador& contador) {
  const Contador anterior = secao_do_contador(lido, kAnterior);
  if (contador.numero != QLatin1String("0") || anterior.ano != ano) {
    return false;
  }
  Grava_contador(anterior.ano, anterior.numero, arquivo);
  contador = anterior;
  return true;
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
  const KeyFile lido = le_contador(arquivo);
  Contador contador = secao_do_contador(lido, kSecao);
  const QString ano = ano_atual();
  const std::int32_t diferenca = Convert::toI32(ano) - ano_de(contador);
  if (diferenca < 0 && !retoma_anterior(lido, ano, arquivo, contador)) {
    Dialogs::box(
        {.text = QStringLiteral("Erro no relógio do micro ou o arquivo INI está adulterado.")});
    return;
  }
  if (diferenca > 0) {
    contador = comeca_ano(contador, ano, arquivo);
  }
  mostra_numero(destino, proximo_numero(contador));
}

// The highest running number of the year in the table; 0 when it has none.
std::int32_t maior_numero(const QString& ano) {
  const std::int32_t fim = Convert::toI32(ano.right(2));
  std::int32_t maior = 0;
  Le_tabela(QStringLiteral("SELECT SEQ FROM Requisicao"), [&] {
    const std::int32_t seq = Convert::toI32(Tabela.field(0));
    if (seq % 100 == fim) {
      maior = std::max(maior, seq / 100);
    }
  });
  return maior;
}

}  // namespace

void Novo_item(QLineEdit& destino, const QString& arquivo) {
  Sob_trava(QStringLiteral("Função Novo_item"), [&] { propoe_numero(destino, arquivo); });
}

void Grava_contador(const QString& ano, const QString& numero, const QString& arquivo) {
  Grava_ini({{kSecao, kAno, ano}, {kSecao, kNumero, numero}}, arquivo);
}

void Avanca_contador(const QString& arquivo) {
  const Contador contador = secao_do_contador(le_contador(arquivo), kSecao);
  const QString ano = ano_atual();
  const std::int32_t diferenca = Convert::toI32(ano) - ano_de(contador);
  const double contado = diferenca == 0 ? Convert::toNumber(contador.numero) : 0;
  const std::int32_t maior = maior_numero(ano);
  if (diferenca >= 0 && maior > contado) {
    Grava_contador(ano, QString::number(maior), arquivo);
  }
}

}  // namespace quartela
