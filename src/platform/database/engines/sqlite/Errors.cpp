#include "platform/database/engines/sqlite/Errors.h"

#include <QString>
#include <cerrno>
#include <cstring>
#include <new>

#include "platform/database/engines/sqlite/Arithmetic.h"
#include "platform/database/engines/sqlite/GuardedFiles.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

constexpr int kPrimaryCodeMask = 0xFF;

// What keeps a file from being used at all is a matter of its path while it is being opened.
ErrorNumber fileNumber(Activity activity, ErrorNumber later) {
  return activity == Activity::Opening ? ErrorNumber::InvalidPath : later;
}

ErrorNumber ioNumber(sqlite3* db) {
  const int cause = db != nullptr ? sqlite3_system_errno(db) : 0;
  return cause == ENOSPC || cause == EDQUOT ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccess;
}

// A statement that could be prepared only fails over a number that it computes.
ErrorNumber computingNumber(sqlite3* db) {
  const bool division = db != nullptr && std::strcmp(sqlite3_errmsg(db), kDivisionByZero) == 0;
  return division ? ErrorNumber::DivisionByZero : ErrorNumber::Overflow;
}

// Whether the number's own words leave open what has happened, so that a technician would ask.
bool leavesOpen(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::InvalidPath:
    case ErrorNumber::DatabaseDamaged:
    case ErrorNumber::PathFileAccess:
    case ErrorNumber::SyntaxError:
    case ErrorNumber::InvalidProcedureCall:
      return true;
    default:
      return false;
  }
}

ErrorNumber numberOf(sqlite3* db, int code, Activity activity) {
  switch (code & kPrimaryCodeMask) {
    case SQLITE_CONSTRAINT:
      return activity == Activity::Deleting ? ErrorNumber::DependantsExist
                                            : ErrorNumber::ValueRefused;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
      return ErrorNumber::RowLocked;
    case SQLITE_FULL:
      return ErrorNumber::DiskFull;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
    case SQLITE_AUTH:
      return fileNumber(activity, ErrorNumber::ReadOnlyDatabase);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return fileNumber(activity, ErrorNumber::DatabaseDamaged);
    case SQLITE_IOERR:
      return ioNumber(db);
    case SQLITE_MISMATCH:
      return ErrorNumber::TypeMismatch;
    case SQLITE_TOOBIG:
      return ErrorNumber::Overflow;
    case SQLITE_ERROR:
      return activity == Activity::Preparing ? ErrorNumber::SyntaxError : computingNumber(db);
    default:
      return ErrorNumber::InvalidProcedureCall;
  }
}

}  // namespace

void raise(sqlite3* db, int code, Activity activity) {
  if ((code & kPrimaryCodeMask) == SQLITE_NOMEM) {
    throw std::bad_alloc();
  }
  if (code == SQLITE_READONLY_DBMOVED) {
    throw RuntimeError(ErrorNumber::DatabaseMoved,
                       QString::fromUtf8(sqlite3_db_filename(db, "main")));
  }
  if (code == kUnknownJournal) {
    throw RuntimeError::withDescription(
        fileNumber(activity, ErrorNumber::DatabaseDamaged),
        QStringLiteral(
            "Ao lado do banco de dados há um diário de gravação (\"-journal\") que outro "
            "programa deixou, e não se sabe se é dele. Nada foi alterado: guarde uma "
            "cópia dos dois arquivos e chame o suporte."));
  }
  const char* words = db != nullptr ? sqlite3_errmsg(db) : sqlite3_errstr(code);
  const ErrorNumber number = numberOf(db, code, activity);
  throw RuntimeError(number, leavesOpen(number) ? QString::fromUtf8(words) : QString());
}

}  // namespace quartela::sqlite
