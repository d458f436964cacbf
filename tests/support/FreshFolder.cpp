#include "tests/support/FreshFolder.h"
#include "tests/support/Folders.h"

#include <QFile>
#include <QTest>

#include "platform/files/ProgramFolder.h"
#include "tests/support/Files.h"

namespace quartela::test {

FreshFolder::FreshFolder() {
  setProgramFolder(folder_.path());
}

FreshFolder::~FreshFolder() {
  setProgramFolder({});
}

QByteArray FreshFolder::read(const QString& name) const {
  return contentOf(path(name));
}

void FreshFolder::write(const QString& name, const QByteArray& bytes) const {
  QFile file(path(name));
  QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush(),
           qUtf8Printable(file.errorString()));
}

void FreshFolder::deliver(const QString& name) const {
  const QString source = inSource(QStringLiteral("resources/delivery/")) + name;
  QVERIFY2(QFile::copy(source, path(name)), qUtf8Printable(source));
}

}  // namespace quartela::test
