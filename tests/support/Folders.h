// Where the tests find the repository's own files and the programs that were built beside them.
#pragma once

#include <QString>

namespace quartela::test {

// The path of `name` (such as "resources/delivery/progress.gif") in the repository.
QString inSource(const QString& name);

// The path of `name` (such as "bin/make_database") in the folder of the build.
QString inBuild(const QString& name);

}  // namespace quartela::test
