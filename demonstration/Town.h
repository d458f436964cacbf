// The town hall of the demonstration data: its secretariats, people, advance types and allocations.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "demonstration/Random.h"
#include "platform/values/DateTime.h"

namespace quartela::database {
class NewDatabase;
}

namespace quartela::demonstration {

// What an advance of a type is spent on; decides amounts, suppliers and sheets.
enum class Purpose : std::uint8_t { SmallExpenses, Journey, Course, Transport, Other };

struct Secretariat {
  std::int32_t id = 0;
  std::string name;
};

struct Orderer {
  std::int32_t id = 0;
  std::int32_t secretariat = 0;
  bool active = true;
};

struct Person {
  std::int32_t id = 0;
  std::string name;
  bool active = true;
};

struct AdvanceType {
  std::int32_t id = 0;
  std::int32_t secretariat = 0;
  Purpose purpose = Purpose::Other;
  // Days of the period of application: 5, 30 or 60.
  std::int32_t days = 30;
  // The budget file number of its allocation, the same in every year.
  std::int32_t allocation = 0;
  bool active = true;
};

struct Town {
  std::vector<Secretariat> secretariats;
  std::vector<Orderer> orderers;
  std::vector<Person> persons;
  std::vector<AdvanceType> types;
};

// Writes the reference tables and gives what the processes need of them. The allocations are those
// of the year of `today` and the two before it.
Town makeTown(database::NewDatabase& database, Random& random, DateTime today);

}  // namespace quartela::demonstration
