// The main() of a test: an application with the program's locale and words, a stopped clock, and
// every box answered by expectation only.
#pragma once

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

namespace quartela::test {

// Sets the locale (pt_BR), the toolkit's Portuguese words, the font and the clock
// (21/11/2014 10:30:00).
void prepareApplication(QApplication& application);

template <typename TestClass>
int run(int argc, char** argv) {
  QApplication application(argc, argv);
  prepareApplication(application);
  TestClass test;
  return QTest::qExec(&test, argc, argv);
}

}  // namespace quartela::test

#define QUARTELA_TEST_MAIN(TestClass)                  \
  int main(int argc, char** argv) {                    \
    return quartela::test::run<TestClass>(argc, argv); \
  }
