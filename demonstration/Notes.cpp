#include <algorithm>
#include <string_view>

#include "database/Builder.h"
#include "database/EmbeddedFiles.h"
#include "database/RowWriter.h"
#include "demonstration/Names.h"
#include "demonstration/Sheets.h"

namespace quartela::demonstration {

namespace {

using database::RowWriter;
using Words = std::string_view;

// A note refers to its sheet by a number of 16 bits.
constexpr std::int32_t kMostSheets = 30'000;
// A sheet has room for 20 notes; a journey seldom fills it.
constexpr std::int32_t kMostNotesOfSheet = 12;

struct City {
  std::string name;
  std::string state;
  std::int32_t distance = 0;
};

// The cities that people of the town travel to: those within a day's drive, and the capital.
std::vector<City> destinations() {
  std::vector<City> cities;
  Words text = database::citiesText();
  text.remove_prefix(text.find('\n') + 1);
  while (!text.empty()) {
    const Words line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    const std::size_t name = line.find(';') + 1;
    const std::size_t state = line.find(';', name) + 1;
    const std::size_t distance = line.find(';', state) + 1;
    City city{std::string(line.substr(name, state - name - 1)),
              std::string(line.substr(state, distance - state - 1)),
              std::stoi(std::string(line.substr(distance)))};
    if (city.distance < 700 || city.name == "Brasília") {
      cities.push_back(std::move(city));
    }
  }
  return cities;
}

struct Journey {
  std::int32_t sheet = 0;
  DateTime from;
  DateTime to;
};

// Splits `total` into `count` parts by lot, none smaller than a quarter of the average.
std::vector<Money> split(Random& random, Money total, std::int32_t count) {
  const std::int64_t least = std::max<std::int64_t>(1, total.cents() / count / 4);
  const auto spare = static_cast<std::int32_t>(total.cents() - least * count);
  std::vector<std::int64_t> cuts;
  for (std::int32_t i = 1; i < count; ++i) {
    cuts.push_back(random.below(spare + 1));
  }
  std::sort(cuts.begin(), cuts.end());
  cuts.push_back(spare);
  std::vector<Money> parts;
  std::int64_t before = 0;
  for (const std::int64_t cut : cuts) {
    parts.push_back(Money::fromCents(cut - before + least));
    before = cut;
  }
  return parts;
}

class NoteMaker {
 public:
  NoteMaker(sqlite3* database, const Town& town, Random& random, DateTime today)
      : town_(town),
        random_(random),
        today_(today),
        cities_(destinations()),
        notes_(database, "PrestContas", "PROCESSO, DATA, ORDEM, HISTORICO, DESPESAS, ID_VIAGEM"),
        sheets_(database, "Viagem",
                "PLANILHA, PROCESSO, DATA_SAIDA, DATA_CHEGADA, HSAIDA, HCHEGADA, UF, DESTINO, "
                "LOCALIDADE, VEICULO, PLACA, DISTANCIA, MOTORISTA, PARTICIPANTES, OBS, MOTIVO, "
                "ORGAO") {}

  void make(const Process& process) {
    const bool travels =
        process.type->purpose == Purpose::Journey || process.type->purpose == Purpose::Course;
    std::int32_t tied = 0;
    Journey journey;
    if (travels && process.notes > 1 && sheetCount_ < kMostSheets) {
      journey = addSheet(process);
      tied = std::min(kMostNotesOfSheet, process.notes - random_.below(2));
    }
    const std::vector<Money> amounts = split(random_, process.spent, std::max(1, process.notes));
    for (std::int32_t i = 0; i < process.notes; ++i) {
      addNote(process, i < tied ? journey : Journey{0, process.withdrawn, process.lastDay(today_)},
              amounts[static_cast<std::size_t>(i)]);
    }
  }

 private:
  DateTime dayBetween(DateTime from, DateTime to) {
    return from.addDays(random_.between(0, to.days() - from.days()));
  }

  void addNote(const Process& process, const Journey& journey, Money amount) {
    const bool road = journey.sheet != 0 || process.type->purpose == Purpose::Transport;
    const DateTime day = dayBetween(journey.from, journey.to);
    const std::string document = documentNumber(random_);
    notes_.add(process.commitment, day, document, road ? roadSupplier(random_) : supplier(random_),
               amount, journey.sheet);
  }

  Journey addSheet(const Process& process) {
    ++sheetCount_;
    Journey journey;
    journey.from = dayBetween(process.withdrawn, process.lastDay(today_));
    journey.to = std::min(journey.from.addDays(random_.below(4)), process.lastDay(today_));
    const City& city = random_.pick(std::span<const City>(cities_));
    const std::string driver = personName(random_).text;
    sheets_.put(std::int32_t{0});
    sheets_.put(process.commitment);
    sheets_.put(journey.from);
    sheets_.put(journey.to);
    sheets_.put(timeOfDay(random_, 4, 9));
    sheets_.put(timeOfDay(random_, 15, 22));
    sheets_.put(city.state);
    sheets_.put(city.name);
    sheets_.put(place());
    sheets_.put(vehicle(random_));
    sheets_.put(plate(random_));
    sheets_.put(city.distance);
    sheets_.put(driver);
    sheets_.put(participants());
    sheets_.put(random_.chance(30) ? "Retorno no mesmo dia em razão da chuva." : "");
    sheets_.put(justification(random_, process.type->purpose, city.name + " - " + city.state));
    sheets_.put(secretariatName(process.type->secretariat));
    journey.sheet = sheets_.step();
    return journey;
  }

  Words place() {
    static constexpr std::array kPlaces = {Words("Secretaria de Estado de Governo"),
                                           Words("Hospital das Clínicas"),
                                           Words("Centro de convenções"),
                                           Words("Superintendência Regional de Ensino"),
                                           Words("Fórum da comarca"),
                                           Words("Associação dos municípios")};
    return random_.pick(kPlaces);
  }

  std::string participants() {
    const std::string first = random_.pick(std::span<const Person>(town_.persons)).name;
    if (random_.chance(40)) {
      return first + " (assessor)";
    }
    return first + " (fiscal) / " + random_.pick(std::span<const Person>(town_.persons)).name +
           " (técnico)";
  }

  const std::string& secretariatName(std::int32_t id) const {
    return std::find_if(town_.secretariats.begin(), town_.secretariats.end(),
                        [id](const Secretariat& one) { return one.id == id; })
        ->name;
  }

  const Town& town_;
  Random& random_;
  DateTime today_;
  std::vector<City> cities_;
  RowWriter notes_;
  RowWriter sheets_;
  std::int32_t sheetCount_ = 0;
};

}  // namespace

void writeNotes(database::NewDatabase& database, const Town& town, Random& random, DateTime today,
                const std::vector<Process>& processes) {
  NoteMaker maker(database.handle(), town, random, today);
  for (const Process& process : processes) {
    if (process.notes > 0) {
      maker.make(process);
    }
  }
}

}  // namespace quartela::demonstration
