#include "foundation/Escritorio.h"

#include "foundation/Ini.h"
#include "platform/values/Convert.h"

namespace quartela {
namespace {

QString le_chave(const char* chave) {
  return Le_config(QStringLiteral("Escritorio"), QLatin1String(chave)).trimmed();
}

}  // namespace

std::int32_t Le_numero(const Value& numero) {
  return le_chave("numeros") == QLatin1String("32") ? Convert::toI32(numero)
                                                    : std::int32_t{Convert::toI16(numero)};
}

QString Texto_procurado(const QString& texto) {
  if (le_chave("aspas") != QLatin1String("1")) {
    return texto;
  }
  return QString(texto).replace(QLatin1Char('\''), QLatin1String("''"));
}

}  // namespace quartela
