#include <algorithm>
#include <map>

#include "database/Builder.h"
#include "database/RowWriter.h"
#include "demonstration/Processes.h"

namespace quartela::demonstration {

namespace {

using database::RowWriter;

// Writes the requests in their order, with an orderer of the type's secretariat and a responsible
// person; someone who is no longer in office may stand on an old, closed process only.
class RequisitionWriter {
 public:
  RequisitionWriter(sqlite3* database, const Town& town, Random& random)
      : town_(town),
        random_(random),
        writer_(database, "Requisicao",
                "SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, FICHA") {}

  void write(const Process& process) {
    const bool anyone = process.stage == Stage::Closed;
    const std::int32_t orderer = ordererOf(process.type->secretariat, anyone);
    const std::int32_t person = personId(anyone);
    const std::string_view city = usualCity(random_);
    writer_.add(process.number, process.requested, orderer, person, process.amount,
                process.type->id, justification(random_, process.type->purpose, city),
                std::to_string(process.type->allocation));
  }

 private:
  std::int32_t ordererOf(std::int32_t secretariat, bool anyone) {
    std::vector<std::int32_t> fitting;
    for (const Orderer& orderer : town_.orderers) {
      if (orderer.secretariat == secretariat && (orderer.active || anyone)) {
        fitting.push_back(orderer.id);
      }
    }
    return random_.pick(std::span<const std::int32_t>(fitting));
  }

  std::int32_t personId(bool anyone) {
    const Person* person = nullptr;
    do {
      person = &random_.pick(std::span<const Person>(town_.persons));
    } while (!person->active && !anyone);
    return person->id;
  }

  const Town& town_;
  Random& random_;
  RowWriter writer_;
};

Money returned(const Process& process) {
  const bool settled = process.stage == Stage::Closed || process.stage == Stage::AnnulledClosed;
  return settled ? std::max(Money(), process.amount - process.spent) : Money();
}

void writeCommitments(sqlite3* database, Random& random, const std::vector<Process>& processes) {
  RowWriter writer(database, "Adiantamento",
                   "EMPENHO, PROCESSO, ABERTURA, RETIRADA, FECHAR_EM, FECHAMENTO, DEVOLUCAO, "
                   "DATADEV, ANULADO, OP");
  std::map<std::int32_t, std::int32_t> lastOrder;
  for (const Process& process : processes) {
    if (!process.hasCommitment()) {
      continue;
    }
    const Money back = returned(process);
    const std::optional<DateTime> backOn = back.isZero() ? std::nullopt : process.closed;
    std::int32_t& order = lastOrder[process.opened.year()];
    order += random.between(1, 8);
    writer.add(process.commitment, process.number, process.opened, process.withdrawn,
               process.deadline, process.closed, back, backOn, process.isAnnulled(), order);
  }
}

}  // namespace

void writeProcesses(database::NewDatabase& database, const Town& town, Random& random,
                    const std::vector<Process>& processes) {
  RequisitionWriter requisitions(database.handle(), town, random);
  for (const Process& process : processes) {
    requisitions.write(process);
  }
  writeCommitments(database.handle(), random, processes);
}

}  // namespace quartela::demonstration
