// make_database: makes a database file, empty but for the reference data or with demonstration
// data.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "database/Builder.h"
#include "demonstration/DataMaker.h"
#include "platform/values/Clock.h"
#include "platform/values/RuntimeError.h"

namespace {

using quartela::ErrorNumber;
using quartela::RuntimeError;

struct Arguments {
  QString empty;
  QString demonstration;
  bool replace = false;
  quartela::demonstration::Options options;

  bool asksForOneThing() const { return empty.isEmpty() != demonstration.isEmpty(); }
};

qint64 wholeNumber(const QString& text) {
  bool good = false;
  const qint64 value = text.toLongLong(&good);
  if (!good || value < 0) {
    throw RuntimeError(ErrorNumber::TypeMismatch, text);
  }
  return value;
}

std::int32_t count(const QString& text) {
  const qint64 value = wholeNumber(text);
  if (value > INT32_MAX) {
    throw RuntimeError(ErrorNumber::Overflow, text);
  }
  return static_cast<std::int32_t>(value);
}

quartela::DateTime day(const QString& text) {
  const auto value = quartela::DateTime::fromIso(text);
  if (!value) {
    throw RuntimeError(ErrorNumber::TypeMismatch, text);
  }
  return *value;
}

void addOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription("Makes a database file.");
  parser.addHelpOption();
  parser.addOptions({{"empty", "Only the reference data, into <file>.", "file"},
                     {"demonstration", "A town with its processes, into <file>.", "file"},
                     {"processes", "How many processes (900).", "count"},
                     {"notes", "How many notes in all (seven a process).", "count"},
                     {"seed", "Another seed, other people and sums (1).", "number"},
                     {"today", "The day the data looks current on (today).", "yyyy-mm-dd"},
                     {"replace", "Replaces <file> when it exists."}});
}

Arguments read(const QCommandLineParser& parser) {
  Arguments arguments;
  arguments.empty = parser.value("empty");
  arguments.demonstration = parser.value("demonstration");
  arguments.replace = parser.isSet("replace");
  arguments.options.today =
      parser.isSet("today") ? day(parser.value("today")) : quartela::Clock::today();
  if (parser.isSet("processes")) {
    arguments.options.processes = count(parser.value("processes"));
  }
  if (parser.isSet("notes")) {
    arguments.options.notes = count(parser.value("notes"));
  }
  if (parser.isSet("seed")) {
    arguments.options.seed = static_cast<std::uint64_t>(wholeNumber(parser.value("seed")));
  }
  return arguments;
}

// With `replace` the old file goes only when the new one stands complete beside it.
template <typename Make>
void makeFile(const QString& path, bool replace, Make make) {
  if (!replace || !QFile::exists(path)) {
    make(path);
    return;
  }
  const QTemporaryDir folder(path + QStringLiteral("-XXXXXX"));
  const QString fresh = folder.filePath(QStringLiteral("novo.mdb"));
  make(fresh);
  // One step, so that there is a whole file at the path at any time.
  if (std::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(path).constData()) != 0) {
    throw RuntimeError(ErrorNumber::PathFileAccess, path);
  }
}

void make(const Arguments& arguments) {
  if (!arguments.empty.isEmpty()) {
    makeFile(arguments.empty, arguments.replace, quartela::database::createEmptyDatabase);
  }
  if (!arguments.demonstration.isEmpty()) {
    makeFile(arguments.demonstration, arguments.replace, [&arguments](const QString& path) {
      quartela::demonstration::makeDatabase(path, arguments.options);
    });
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  addOptions(parser);
  parser.process(application);
  try {
    const Arguments arguments = read(parser);
    if (!arguments.asksForOneThing()) {
      parser.showHelp(1);
    }
    make(arguments);
  } catch (const RuntimeError& error) {
    std::fprintf(stderr, "make_database: %s\n", error.what());
    return 1;
  }
  return 0;
}
