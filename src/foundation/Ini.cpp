#include "foundation/Ini.h"

#include "platform/files/KeyFile.h"
#include "platform/files/ProgramFolder.h"

namespace quartela {

QString Le_ini(const QString& secao, const QString& chave, const QString& arquivo) {
  return readKey(nativePath(arquivo), secao, chave);
}

void Grava_ini(const QString& secao, const QString& chave, const QString& valor,
               const QString& arquivo) {
  writeKey(nativePath(arquivo), secao, chave, valor);
}

void Grava_ini(const std::vector<KeyValue>& chaves, const QString& arquivo) {
  writeKeys(nativePath(arquivo), chaves);
}

QString Le_config(const QString& secao, const QString& chave) {
  return Le_ini(secao, chave, programFile(QStringLiteral("Config.ini")));
}

void Grava_config(const QString& secao, const QString& chave, const QString& valor) {
  Grava_ini(secao, chave, valor, programFile(QStringLiteral("Config.ini")));
}

}  // namespace quartela
