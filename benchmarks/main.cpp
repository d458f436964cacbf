// Prints a row for each measure: ours, the peer in the same run, the ratio, the target.
#include <QApplication>
#include <cstring>

#include "benchmarks/Measure.h"

int main(int argc, char** argv) {
  using namespace quartela::bench;
  if (argc > 1 && std::strcmp(argv[1], "--show-login") == 0) {
    return showLoginOnce(argc, argv);
  }
  if (argc > 1 && std::strcmp(argv[1], "--show-empty") == 0) {
    return showEmptyWindowOnce(argc, argv);
  }
  QApplication application(argc, argv);
  printHeader();
  benchRecordset();
  benchDialect();
  benchSave();
  benchLike();
  benchStart();
  benchMainWindow();
  benchMasterData();
  return 0;
}
