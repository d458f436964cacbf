#include "demonstration/Processes.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>

#include "demonstration/Names.h"

namespace quartela::demonstration {

namespace {

// The stages that the latest processes go through in turn.
constexpr std::array kRecentStages = {
    Stage::RequisitionOnly, Stage::AboutToFallDue, Stage::Open, Stage::Overdue,
    Stage::Closed,          Stage::AnnulledOpen,   Stage::Open, Stage::RequisitionOnly,
    Stage::AnnulledClosed,  Stage::Closed,         Stage::Open, Stage::AboutToFallDue};

// No year gets more processes than a four-digit running number can count.
constexpr std::int32_t kProcessesPerYear = 9'000;
constexpr std::int32_t kDaysOfFewYears = 1'680;
// Older processes are settled: their longest period is over.
constexpr std::int32_t kRecentDays = 75;

// The office's counter is one for both databases, so that the numbers of this year in the
// demonstration leave room for those that the office will give. The process screen opens numbers of
// 16 bits: 0327 is the last of most years.
constexpr std::int32_t kNumbersLeftFree = 200;
constexpr std::int32_t kLastNumber = 327;
// A town of that size keeps to it; the share of this year in a larger one is the same.
constexpr std::int32_t kUsualTown = 900;

std::int32_t mostOfThisYear(std::int32_t count) {
  return std::max(kLastNumber - kNumbersLeftFree,
                  static_cast<std::int32_t>(std::int64_t{count} * (kLastNumber - kNumbersLeftFree) /
                                            kUsualTown));
}

std::int32_t countOfRecent(std::int32_t count) {
  return std::min(count, std::max(std::clamp(count / 8, 14, 60), std::min(count / 15, 600)));
}

class Planner {
 public:
  Planner(const Town& town, Random& random, DateTime today)
      : town_(town), random_(random), today_(today) {}

  std::vector<Process> plan(std::int32_t count) {
    const std::int32_t recent = countOfRecent(count);
    roomThisYear_ = mostOfThisYear(count) - recent;
    const std::int32_t span = std::max(kDaysOfFewYears, count / kProcessesPerYear * 366 + 366);
    std::vector<Process> processes;
    processes.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count - recent; ++i) {
      processes.push_back(settled(dayOfRequest(span)));
    }
    for (std::int32_t i = 0; i < recent; ++i) {
      processes.push_back(
          recentProcess(kRecentStages[static_cast<std::size_t>(i) % kRecentStages.size()]));
    }
    std::stable_sort(processes.begin(), processes.end(),
                     [](const Process& a, const Process& b) { return a.requested < b.requested; });
    return processes;
  }

 private:
  DateTime dayOfRequest(std::int32_t span) {
    const auto draw = [&] { return today_.addDays(-random_.between(kRecentDays, span)); };
    DateTime day = draw();
    while (day.year() == today_.year() && roomThisYear_ == 0) {
      day = draw();
    }
    roomThisYear_ -= day.year() == today_.year() ? 1 : 0;
    return day;
  }

  Process settled(DateTime requested) {
    Process process = draft(settledStage(), 0);
    process.requested = requested;
    process.opened = requested.addDays(random_.between(1, 6));
    process.withdrawn = process.opened.addDays(random_.between(0, 3));
    process.deadline = process.withdrawn.addDays(process.type->days);
    if (process.stage == Stage::Closed || process.stage == Stage::AnnulledClosed) {
      closeAround(process, process.deadline);
    }
    return process;
  }

  Stage settledStage() {
    const std::int32_t lot = random_.below(100);
    if (lot < 3) {
      return Stage::RequisitionOnly;
    }
    return lot < 5 ? Stage::AnnulledClosed : Stage::Closed;
  }

  Process recentProcess(Stage stage) {
    Process process = draft(stage, stage == Stage::Open ? 30 : 0);
    if (stage == Stage::RequisitionOnly) {
      process.requested = today_.addDays(-random_.below(12));
      return process;
    }
    process.deadline = recentDeadline(process);
    process.withdrawn = process.deadline.addDays(-process.type->days);
    process.opened = process.withdrawn.addDays(-random_.between(0, 3));
    process.requested = process.opened.addDays(-random_.between(1, 6));
    if (stage == Stage::Closed || stage == Stage::AnnulledClosed) {
      closeAround(process, process.deadline);
    }
    return process;
  }

  DateTime recentDeadline(const Process& process) {
    switch (process.stage) {
      case Stage::Open:
        return today_.addDays(random_.between(7, process.type->days));
      case Stage::AboutToFallDue:
        return today_.addDays(random_.between(0, std::min(5, process.type->days)));
      default:
        return today_.addDays(-random_.between(1, 40));
    }
  }

  // Mostly a few days before the deadline, now and then late, never before the money was withdrawn.
  void closeAround(Process& process, DateTime deadline) {
    const std::int32_t early = random_.below(process.type->days / 2 + 1);
    const DateTime day = deadline.addDays(random_.chance(85) ? -early : random_.between(1, 20));
    process.closed = std::clamp(day, process.withdrawn, today_);
  }

  // A process of a type that is in use and gives at least `days` days.
  Process draft(Stage stage, std::int32_t days) {
    Process process;
    process.stage = stage;
    do {
      process.type = &random_.pick(std::span<const AdvanceType>(town_.types));
    } while (!process.type->active || process.type->days < days);
    process.amount = amountFor(process.type->purpose);
    return process;
  }

  Money amountFor(Purpose purpose) {
    const bool small = purpose == Purpose::SmallExpenses;
    const std::int32_t fifties = small ? random_.between(4, 30) : random_.between(6, 120);
    const std::int32_t cents = random_.chance(10) ? random_.below(5'000) : 0;
    return Money::fromCents(fifties * 5'000 + cents);
  }

  const Town& town_;
  Random& random_;
  DateTime today_;
  std::int32_t roomThisYear_ = 0;
};

// Running number and two-digit year in one number.
std::int32_t processNumber(std::int32_t running, std::int32_t year) {
  return running * 100 + year % 100;
}

void giveNumbers(std::vector<Process>& processes, Random& random, DateTime today) {
  std::map<std::int32_t, std::int32_t> lastNumber;
  lastNumber[today.year()] = kNumbersLeftFree;
  std::map<std::int32_t, std::int32_t> lastCommitment;
  for (Process& process : processes) {
    const std::int32_t year = process.requested.year();
    process.number = processNumber(++lastNumber[year], year);
    if (process.hasCommitment()) {
      // The town commits other money too, so that the numbers of advances have gaps.
      const std::int32_t openedIn = process.opened.year();
      lastCommitment[openedIn] += random.between(1, 9);
      process.commitment = processNumber(lastCommitment[openedIn], openedIn);
    }
  }
}

// Shares of the notes by lot: 0 for a process without withdrawn or with returned money.
std::vector<std::int64_t> noteShares(const std::vector<Process>& processes, Random& random) {
  std::vector<std::int64_t> shares;
  shares.reserve(processes.size());
  for (const Process& process : processes) {
    const bool spends = process.hasCommitment() && !process.isAnnulled();
    shares.push_back(spends ? random.between(1, 13) : 0);
  }
  return shares;
}

// Percent of the amount that the notes of a process come to.
std::int32_t spentPercent(const Process& process, Random& random) {
  if (process.stage != Stage::Closed) {
    return random.between(8, 95);
  }
  const std::int32_t lot = random.below(100);
  if (lot < 12) {
    return random.between(101, 115);
  }
  return lot < 27 ? 100 : random.between(55, 99);
}

void giveNotes(std::vector<Process>& processes, Random& random, std::int32_t notes) {
  const std::vector<std::int64_t> shares = noteShares(processes, random);
  const std::int64_t total = std::accumulate(shares.begin(), shares.end(), std::int64_t{0});
  std::int64_t before = 0;
  for (std::size_t i = 0; i < processes.size(); ++i) {
    Process& process = processes[i];
    if (shares[i] == 0) {
      continue;
    }
    // Rounding the running sum, not the shares, makes the counts add up to `notes`.
    const std::int64_t after = before + shares[i];
    process.notes = static_cast<std::int32_t>(after * notes / total - before * notes / total);
    before = after;
    if (process.notes > 0) {
      const std::int64_t cents = process.amount.cents() * spentPercent(process, random) / 100;
      process.spent = Money::fromCents(std::max<std::int64_t>(cents, process.notes));
    }
  }
}

struct CityPhrase {
  std::string_view before;
  std::string_view after;
};

constexpr std::array kUsualCities = {
    std::string_view("Belo Horizonte - MG"), std::string_view("Governador Valadares - MG"),
    std::string_view("Ipatinga - MG"),       std::string_view("Vitória - ES"),
    std::string_view("Manhuaçu - MG"),       std::string_view("Brasília - DF"),
    std::string_view("Caratinga - MG"),      std::string_view("Juiz de Fora - MG")};

constexpr std::array kJourneys = {
    CityPhrase{"Viagem a ", " para reunião na Secretaria de Estado."},
    CityPhrase{"Viagem a ", " para entrega de documentos do convênio."},
    CityPhrase{"Transporte de pacientes a ", " para consultas e exames."}};

constexpr std::array kCourses = {
    CityPhrase{"Curso de licitações e contratos em ", ", três dias, dois participantes."},
    CityPhrase{"Congresso de gestão municipal em ", ", dois dias."},
    CityPhrase{"Capacitação em prestação de contas em ", ", um dia, quatro participantes."}};

constexpr std::array kOthers = {
    std::string_view("Aquisição de materiais de pronto pagamento para o funcionamento da unidade."),
    std::string_view("Despesas miúdas e urgentes que não podem esperar o processo normal."),
    std::string_view("Pequenos reparos no prédio e reposição de material de copa e limpeza."),
    std::string_view("Atendimento às despesas do evento do calendário oficial do município.")};

}  // namespace

DateTime Process::lastDay(DateTime today) const {
  return std::max(withdrawn, std::min(deadline, closed.value_or(today)));
}

std::vector<Process> planProcesses(const Town& town, Random& random, DateTime today,
                                   std::int32_t count, std::int32_t notes) {
  std::vector<Process> processes = Planner(town, random, today).plan(count);
  giveNumbers(processes, random, today);
  giveNotes(processes, random, notes);
  return processes;
}

std::string_view usualCity(Random& random) {
  return random.pick(kUsualCities);
}

std::string justification(Random& random, Purpose purpose, std::string_view city) {
  if (purpose == Purpose::Journey || purpose == Purpose::Course) {
    const CityPhrase& phrase =
        purpose == Purpose::Course ? random.pick(kCourses) : random.pick(kJourneys);
    std::string text(phrase.before);
    return text.append(city).append(phrase.after);
  }
  return std::string(random.pick(kOthers));
}

}  // namespace quartela::demonstration
