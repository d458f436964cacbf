#include "tests/support/Folders.h"

namespace quartela::test {

QString inSource(const QString& name) { return QStringLiteral(QUARTELA_SOURCE_DIR "/") + name; }

QString inBuild(const QString& name) { return QStringLiteral(QUARTELA_BINARY_DIR "/") + name; }

}  // namespace quartela::test
