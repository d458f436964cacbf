#include "platform/values/RuntimeError.h"

#include <QSet>

#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

struct Known {
  ErrorNumber code;
  int number;
};

constexpr Known kKnown[] = {
    {ErrorNumber::InvalidProcedureCall, 5},
    {ErrorNumber::Overflow, 6},
    {ErrorNumber::SubscriptOutOfRange, 9},
    {ErrorNumber::DivisionByZero, 11},
    {ErrorNumber::TypeMismatch, 13},
    {ErrorNumber::FileNotFound, 53},
    {ErrorNumber::DiskFull, 61},
    {ErrorNumber::PermissionDenied, 70},
    {ErrorNumber::PathFileAccess, 75},
    {ErrorNumber::PathNotFound, 76},
    {ErrorNumber::InvalidPicture, 481},
    {ErrorNumber::PrinterFailure, 482},
    {ErrorNumber::CurrentRowMissing, 3021},
    {ErrorNumber::DuplicateKey, 3022},
    {ErrorNumber::DatabaseNotFound, 3024},
    {ErrorNumber::SourceReadOnly, 3027},
    {ErrorNumber::DatabaseMoved, 3043},
    {ErrorNumber::InvalidPath, 3044},
    {ErrorNumber::DatabaseDamaged, 3049},
    {ErrorNumber::ReadOnlyDatabase, 3051},
    {ErrorNumber::UnknownName, 3061},
    {ErrorNumber::InvalidStatement, 3065},
    {ErrorNumber::SyntaxError, 3075},
    {ErrorNumber::UnknownTable, 3078},
    {ErrorNumber::RowDeleted, 3167},
    {ErrorNumber::DependantsExist, 3200},
    {ErrorNumber::ParentMissing, 3201},
    {ErrorNumber::RowLocked, 3218},
    {ErrorNumber::ColumnNotFound, 3265},
    {ErrorNumber::ColumnRequired, 3314},
    {ErrorNumber::ValueRefused, 3317},
    {ErrorNumber::OperandMismatch, 3464},
    {ErrorNumber::ObjectClosed, 3704},
    {ErrorNumber::ObjectOpen, 3705},
};

const QString kUnknown = QStringLiteral("Erro desconhecido.");

}  // namespace

class RuntimeErrorTest : public QObject {
  Q_OBJECT

 private slots:
  void everyNumberHasItsOwnWords();
  void noOtherNumberHasWords();
  void carriesNumberWordsAndSource();
  void putsADetailBehindItsWords();
  void takesOtherWords();
  void isAnOrdinaryException();
};

void RuntimeErrorTest::everyNumberHasItsOwnWords() {
  QSet<int> numbers;
  QSet<QString> words;
  for (const Known& known : kKnown) {
    QCOMPARE(static_cast<int>(known.code), known.number);
    const QString description = errorDescription(known.code);
    QVERIFY2(!description.isEmpty() && description != kUnknown, qPrintable(description));
    QVERIFY2(description.endsWith(QLatin1Char('.')), qPrintable(description));
    numbers.insert(known.number);
    words.insert(description);
  }
  QCOMPARE(numbers.size(), static_cast<qsizetype>(std::size(kKnown)));
  QCOMPARE(words.size(), static_cast<qsizetype>(std::size(kKnown)));
}

// So the table above cannot fall behind the program's.
void RuntimeErrorTest::noOtherNumberHasWords() {
  QSet<int> known;
  for (const Known& entry : kKnown) {
    known.insert(entry.number);
  }
  for (int number = 0; number < 5000; ++number) {
    const bool hasWords = errorDescription(static_cast<ErrorNumber>(number)) != kUnknown;
    QVERIFY2(hasWords == known.contains(number), qPrintable(QString::number(number)));
  }
}

void RuntimeErrorTest::carriesNumberWordsAndSource() {
  const RuntimeError error(ErrorNumber::Overflow);
  QCOMPARE(error.number(), 6);
  QCOMPARE(error.code(), ErrorNumber::Overflow);
  QCOMPARE(error.description(), errorDescription(ErrorNumber::Overflow));
  QCOMPARE(error.source(), QStringLiteral("Quartela"));
  QCOMPARE(RuntimeError(ErrorNumber::Overflow, QString(), QStringLiteral("Banco")).source(),
           QStringLiteral("Banco"));
}

void RuntimeErrorTest::putsADetailBehindItsWords() {
  const RuntimeError error(ErrorNumber::FileNotFound, QStringLiteral("Config.ini"));
  QCOMPARE(error.description(), errorDescription(ErrorNumber::FileNotFound) + " [Config.ini]");
}

void RuntimeErrorTest::takesOtherWords() {
  const auto error = RuntimeError::withDescription(
      ErrorNumber::RowLocked, QStringLiteral("Em uso."), QStringLiteral("Banco"));
  QCOMPARE(error.number(), 3218);
  QCOMPARE(error.description(), QStringLiteral("Em uso."));
  QCOMPARE(error.source(), QStringLiteral("Banco"));
}

void RuntimeErrorTest::isAnOrdinaryException() {
  try {
    throw RuntimeError(ErrorNumber::DivisionByZero);
  } catch (const std::exception& error) {
    QCOMPARE(QString::fromUtf8(error.what()), QStringLiteral("11: Divisão por zero."));
  }
}

QUARTELA_TEST_MAIN(RuntimeErrorTest)
#include "RuntimeError_test.moc"
