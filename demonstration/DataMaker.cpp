#include "demonstration/DataMaker.h"

#include <algorithm>

#include "database/Builder.h"
#include "demonstration/Processes.h"
#include "demonstration/Requests.h"
#include "demonstration/Sheets.h"
#include "demonstration/Town.h"
#include "platform/values/RuntimeError.h"

namespace quartela::demonstration {

namespace {

constexpr std::int32_t kMostProcesses = 500'000;
constexpr std::int32_t kMostNotes = 20'000'000;
constexpr std::int32_t kNotesOfProcess = 7;
constexpr std::int32_t kMostRequests = 200;

void checkOptions(const Options& options) {
  const std::int32_t notes = options.notes.value_or(0);
  if (options.processes < 1 || options.processes > kMostProcesses || notes < 0 ||
      notes > kMostNotes) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
}

}  // namespace

void makeDatabase(const QString& path, const Options& options) {
  checkOptions(options);
  const DateTime today = options.today.date();
  const std::int32_t notes = options.notes.value_or(options.processes * kNotesOfProcess);
  Random random(options.seed);
  database::NewDatabase database(path);
  database.addStoredQueries();
  database.addReferenceData();
  const Town town = makeTown(database, random, today);
  const std::vector<Process> processes =
      planProcesses(town, random, today, options.processes, notes);
  writeProcesses(database, town, random, processes);
  writeNotes(database, town, random, today, processes);
  writeTransport(database, random, today, processes);
  writeRequests(database, town, random, today,
                std::clamp(options.processes / 40, 5, kMostRequests));
  database.finish();
}

}  // namespace quartela::demonstration
