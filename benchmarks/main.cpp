// Prints a row for each measure: ours, the peer in the same run, the ratio, the target. The names
// of groups as arguments measure those alone.
#include <QApplication>
#include <algorithm>
#include <cstring>

#include "benchmarks/Measure.h"

namespace {

struct Group {
  const char* name;
  void (*run)();
};

constexpr Group kGroups[] = {
    {"recordset", quartela::bench::benchRecordset},
    {"dialect", quartela::bench::benchDialect},
    {"save", quartela::bench::benchSave},
    {"damage-check", quartela::bench::benchDamageCheck},
    {"like", quartela::bench::benchLike},
    {"start", quartela::bench::benchStart},
    {"main-window", quartela::bench::benchMainWindow},
    {"tables", quartela::bench::benchMasterData},
    {"process", quartela::bench::benchProcess},
    {"reports", quartela::bench::benchReports},
};

bool isAsked(const Group& group, int argc, char** argv) {
  return std::any_of(argv + 1, argv + argc,
                     [&group](const char* name) { return std::strcmp(name, group.name) == 0; });
}

}  // namespace

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
  for (const Group& group : kGroups) {
    if (argc == 1 || isAsked(group, argc, argv)) {
      group.run();
    }
  }
  return 0;
}
