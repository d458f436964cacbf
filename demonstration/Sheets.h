// What is spent from the advances: expense notes, travel sheets with the notes tied to them, and
// transport sheets with their documents.
#pragma once

#include <vector>

#include "demonstration/Processes.h"

namespace quartela::demonstration {

// Writes Viagem and PrestContas. Notes are dated between withdrawal and deadline (or closing, or
// today), those of a sheet within its journey; the sums are those of the processes.
void writeNotes(database::NewDatabase& database, const Town& town, Random& random, DateTime today,
                const std::vector<Process>& processes);

// Writes IdentificaTransp and ItensTransp.
void writeTransport(database::NewDatabase& database, Random& random, DateTime today,
                    const std::vector<Process>& processes);

}  // namespace quartela::demonstration
