// The processes of the demonstration data: requests for advances and their commitments.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "demonstration/Random.h"
#include "demonstration/Town.h"
#include "platform/values/DateTime.h"
#include "platform/values/Money.h"

namespace quartela::demonstration {

enum class Stage : std::uint8_t {
  RequisitionOnly,
  Open,            // the deadline is a week or more away
  AboutToFallDue,  // the deadline is today or at most five days away
  Overdue,
  AnnulledOpen,
  AnnulledClosed,
  Closed,
};

struct Process {
  Stage stage = Stage::Closed;
  const AdvanceType* type = nullptr;
  DateTime requested;
  Money amount;
  // The number of the requisition, and of the commitment; the latter 0 for a requisition only.
  std::int32_t number = 0;
  std::int32_t commitment = 0;
  DateTime opened;
  DateTime withdrawn;
  DateTime deadline;
  std::optional<DateTime> closed;
  // How many notes it has and what they come to.
  std::int32_t notes = 0;
  Money spent;

  bool hasCommitment() const { return stage != Stage::RequisitionOnly; }
  bool isAnnulled() const { return stage == Stage::AnnulledOpen || stage == Stage::AnnulledClosed; }
  // The last day on which a note may have been written.
  DateTime lastDay(DateTime today) const;
};

// `count` processes in the order of their requests, the last ones in all stages, with numbers that
// are unique (those of the year of `today` from 0201 on), `notes` notes spread over those whose
// money was withdrawn. `town` must outlive them.
std::vector<Process> planProcesses(const Town& town, Random& random, DateTime today,
                                   std::int32_t count, std::int32_t notes);

// Writes Requisicao and Adiantamento.
void writeProcesses(database::NewDatabase& database, const Town& town, Random& random,
                    const std::vector<Process>& processes);

// A reason for an advance of the type, as an operator would write it; `city` is where a journey or
// a course leads.
std::string justification(Random& random, Purpose purpose, std::string_view city);

// A city with its state that the town often has business in.
std::string_view usualCity(Random& random);

}  // namespace quartela::demonstration
