#include "foundation/Textos.h"

#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

constexpr QStringView kAcentuadas = u"ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÒÓÔÕÖÙÚÛÜàáâãäåçèéêëìíîïòóôõöùúûü";
constexpr QStringView kSimples = u"AAAAAACEEEEIIIIOOOOOUUUUaaaaaaceeeeiiiiooooouuuu";
static_assert(kAcentuadas.size() == kSimples.size());

constexpr qsizetype kTamanhoData = 10;
constexpr int kInicioBarras = 4;
constexpr int kFimBarras = 39;

QString fator_vencimento(const Value& vencimento) {
  const DateTime base = DateTime::of(1997, 10, 7);
  const DateTime data = Convert::toDateTime(Format(vencimento, kDateFormat));
  return QString::number(data.days() - base.days());
}

}  // namespace

bool Valida_data(const QString& data) {
  return data.size() == kTamanhoData && Convert::isDate(data);
}

QString Remove_acentos(const QString& texto) {
  QString resultado = texto;
  for (QChar& letra : resultado) {
    const qsizetype posicao = kAcentuadas.indexOf(letra);
    if (posicao >= 0) {
      letra = kSimples[posicao];
    }
  }
  return resultado;
}

QString Monta_barras(const QString& banco, const QString& moeda, const QString& valor,
                     const Value& vencimento, const QString& livre1, const QString& livre2) {
  try {
    const QString campos = banco + moeda + fator_vencimento(vencimento) +
                           Format(valor, u"0000000000") + Format(livre1, u"00000000") +
                           Format(livre2, u"00000000000000000");
    return campos.left(kInicioBarras) + QLatin1Char('1') + campos.right(kFimBarras);
  } catch (const RuntimeError& erro) {
    Dialogs::exclamation(QStringLiteral("Error %1 (").arg(erro.number()) + erro.description() +
                         QStringLiteral(") in procedure Monta_barras of Formulário frmMain"));
    return {};
  }
}

}  // namespace quartela
