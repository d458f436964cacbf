// The main() of a test that plays whole windows: the program's own application, with its look,
// words and the one place where untrapped errors arrive.
#pragma once

#include "foundation/Aplicacao.h"
#include "tests/support/TestMain.h"

#define QUARTELA_OFFICE_TEST_MAIN(TestClass)         \
  int main(int argc, char** argv) {                  \
    quartela::Aplicacao application(argc, argv);     \
    quartela::test::prepareApplication(application); \
    TestClass test;                                  \
    return QTest::qExec(&test, argc, argv);          \
  }
