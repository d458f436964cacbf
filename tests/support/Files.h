// Files as tests read them.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QTest>

namespace quartela::test {

// All bytes of a file. One that cannot be read fails the test.
inline QByteArray contentOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    QTest::qFail(qPrintable(path + QStringLiteral(" cannot be read")), __FILE__, __LINE__);
  }
  return file.isOpen() ? file.readAll() : QByteArray("(cannot be read)");
}

}  // namespace quartela::test
