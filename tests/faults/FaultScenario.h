// A working day in small: opening, seven saves, four deletes, counter, configuration, text file,
// PDF, closing. Each step tells whether its effect is in the office's files.
#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace quartela::test::faults {

struct Step {
  const char* name;
  // What the program does; false or an error when the operator is told that it failed.
  std::function<bool()> act;
  // Plain SQL giving 1 when the effect is in the file whole, 0 when there is nothing of it; any
  // other number is a half. Empty for a step on another file.
  QByteArray effect;
  // That file's name and its contents before and after the step; "" for a file that is not there,
  // a PDF's end stands for its content.
  QByteArray file;
  QByteArray before;
  QByteArray after;
};

// The steps on the office in `folder`; the first opens its database, the last closes it.
std::vector<Step> stepsOf(const QString& folder);

// The rows that the steps build on, and the key files, in a fresh folder; quick, since it is done
// for every run.
class OfficeFiles {
 public:
  OfficeFiles();
  void layOut(const QString& folder) const;

 private:
  QByteArray database_;
};

}  // namespace quartela::test::faults
