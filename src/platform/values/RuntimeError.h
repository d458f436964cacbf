// The one error type of the program: a number from a fixed table, words for an operator, and the
// piece of the program it comes from.
#pragma once

#include <QString>
#include <exception>

namespace quartela {

// The numbers of run-time errors. Each has its words in RuntimeError.cpp.
enum class ErrorNumber : int {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  FileNotFound = 53,
  DiskFull = 61,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  InvalidPicture = 481,
  PrinterFailure = 482,
  CurrentRowMissing = 3021,
  DuplicateKey = 3022,
  DatabaseNotFound = 3024,
  SourceReadOnly = 3027,
  DatabaseMoved = 3043,
  InvalidPath = 3044,
  UnknownTable = 3078,
  UnknownName = 3061,
  SyntaxError = 3075,
  InvalidStatement = 3065,
  RowDeleted = 3167,
  DependantsExist = 3200,
  ParentMissing = 3201,
  DatabaseDamaged = 3049,
  ReadOnlyDatabase = 3051,
  RowLocked = 3218,
  ColumnNotFound = 3265,
  ColumnRequired = 3314,
  ValueRefused = 3317,
  OperandMismatch = 3464,
  ObjectClosed = 3704,
  ObjectOpen = 3705,
};

// The Portuguese words that belong to `number`; the same for every place that raises it.
QString errorDescription(ErrorNumber number);

class RuntimeError : public std::exception {
 public:
  // `detail`, when not empty, follows the number's own words in brackets.
  explicit RuntimeError(ErrorNumber number, const QString& detail = {}, const QString& source = {});

  // An error whose words are not the table's.
  static RuntimeError withDescription(ErrorNumber number, const QString& description,
                                      const QString& source = {});

  int number() const { return static_cast<int>(number_); }
  ErrorNumber code() const { return number_; }
  const QString& description() const { return description_; }
  // The piece of the program that raised it, "Quartela" when none was named.
  const QString& source() const { return source_; }
  const char* what() const noexcept override { return what_.constData(); }

 private:
  struct Words {
    QString text;
  };
  RuntimeError(ErrorNumber number, const Words& words, const QString& source);

  ErrorNumber number_;
  QString description_;
  QString source_;
  QByteArray what_;
};

}  // namespace quartela
