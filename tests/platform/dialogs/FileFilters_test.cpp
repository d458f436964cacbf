#include "platform/dialogs/FileFilters.h"

#include "tests/support/TestMain.h"

using quartela::firstExtension;
using quartela::toolkitFilters;

class FileFilters_test : public QObject {
  Q_OBJECT

 private slots:
  void filters_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("extension");
    QTest::newRow("database") << "Banco de dados Access (*.MDB)|*.MDB|"
                              << QStringList{"Banco de dados Access (*.MDB) (*.MDB *.mdb)"}
                              << "mdb";
    QTest::newRow("counter") << "Banco de dados Access (*.ini)|*.ini|"
                             << QStringList{"Banco de dados Access (*.ini) (*.ini *.INI)"} << "ini";
    QTest::newRow("no bar at the end")
        << "Texto|*.txt" << QStringList{"Texto (*.txt *.TXT)"} << "txt";
    QTest::newRow("mixed case") << "Texto|*.Txt|" << QStringList{"Texto (*.Txt *.TXT *.txt)"}
                                << "txt";
    QTest::newRow("two patterns") << "Texto|*.txt; *.CSV|"
                                  << QStringList{"Texto (*.txt *.TXT *.CSV *.csv)"} << "txt";
    QTest::newRow("two pairs") << "Texto|*.txt|Todos|*.*"
                               << QStringList{"Texto (*.txt *.TXT)", "Todos (*.*)"} << "txt";
    QTest::newRow("all files") << "Todos|*.*|" << QStringList{"Todos (*.*)"} << "";
    QTest::newRow("no dot") << "Todos|*|" << QStringList{"Todos (*)"} << "";
    QTest::newRow("nothing") << "" << QStringList{} << "";
    QTest::newRow("words alone") << "Palavras" << QStringList{} << "";
    QTest::newRow("empty pattern") << "Palavras||" << QStringList{} << "";
  }
  void filters() {
    QFETCH(const QString, filter);
    QFETCH(const QStringList, expected);
    QFETCH(const QString, extension);
    QCOMPARE(toolkitFilters(filter), expected);
    QCOMPARE(firstExtension(filter), extension);
  }
};

QUARTELA_TEST_MAIN(FileFilters_test)
#include "FileFilters_test.moc"
