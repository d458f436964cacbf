#include "foundation/Passos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace quartela {
namespace {

// The version stands in the first four digits of a step's name: "0002-consultas-em-ordem.sql".
constexpr qsizetype kDigits = 4;

SchemaStep le_passo(const QFileInfo& arquivo) {
  QFile file(arquivo.filePath());
  SchemaStep passo;
  passo.name = arquivo.completeBaseName();
  passo.version = passo.name.left(kDigits).toInt();
  if (file.open(QIODevice::ReadOnly)) {
    passo.sql = file.readAll();
  }
  return passo;
}

SchemaSteps le_passos() {
  SchemaSteps passos;
  const QDir pasta(QStringLiteral(":/quartela/steps"));
  const QFileInfoList arquivos =
      pasta.entryInfoList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name);
  for (const QFileInfo& arquivo : arquivos) {
    passos.push_back(le_passo(arquivo));
  }
  return passos;
}

}  // namespace

const SchemaSteps& passos_do_banco() {
  static const SchemaSteps passos = le_passos();
  return passos;
}

}  // namespace quartela
