// A program folder of its own for one test: empty at first, in force while this object lives.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace quartela::test {

class FreshFolder {
 public:
  FreshFolder();
  ~FreshFolder();
  FreshFolder(const FreshFolder&) = delete;
  FreshFolder& operator=(const FreshFolder&) = delete;

  QString path(const QString& name) const { return folder_.filePath(name); }
  // The file's bytes; empty when there is none.
  QByteArray read(const QString& name) const;
  // Fails the running test when the file cannot be written.
  void write(const QString& name, const QByteArray& bytes) const;
  // Copies a file of resources/delivery into the folder.
  void deliver(const QString& name) const;

 private:
  QTemporaryDir folder_;
};

}  // namespace quartela::test
