#include "database/Builder.h"
#include "database/RowWriter.h"
#include "demonstration/Names.h"
#include "demonstration/Sheets.h"
#include "platform/values/Format.h"

namespace quartela::demonstration {

namespace {

using database::RowWriter;

// A process of transport gets at most so many sheets, all of them together at most so many.
constexpr std::int32_t kSheetsOfProcess = 4;
constexpr std::int32_t kMostSheets = 8'000;

std::string written(DateTime day) {
  return Format(Value(day), u"dd/MM/yyyy").toStdString();
}

class TransportMaker {
 public:
  TransportMaker(sqlite3* database, Random& random, DateTime today)
      : random_(random),
        today_(today),
        sheets_(database, "IdentificaTransp",
                "PLANILHA, PROCESSO, DATA, DESTINO, LOCALIDADE, VEÍCULO, PLACA, HSAIDA, HCHEGADA, "
                "MOTORISTA, ACOMPANHANTE, OBS, MOTIVO"),
        documents_(database, "ItensTransp", "IDENT_TRANSP, DATADOC, RAZAO, DOCUMENTO, VALOR") {}

  void make(const Process& process) {
    const std::int32_t count = random_.between(1, kSheetsOfProcess);
    const std::string car(vehicle(random_));
    const std::string number = plate(random_);
    std::int32_t odometer = random_.between(8'000, 180'000);
    for (std::int32_t sheet = 1; sheet <= count && sheetCount_ < kMostSheets; ++sheet) {
      const std::int32_t driven = random_.between(12, 460);
      addSheet(process, sheet, {car, number, odometer, odometer + driven});
      odometer += driven + random_.below(90);
    }
  }

 private:
  struct Drive {
    const std::string& car;
    const std::string& plate;
    std::int32_t from;
    std::int32_t to;
  };

  void addSheet(const Process& process, std::int32_t number, const Drive& drive) {
    ++sheetCount_;
    const DateTime last = process.lastDay(today_);
    const DateTime day =
        process.withdrawn.addDays(random_.between(0, last.days() - process.withdrawn.days()));
    const std::string driver = personName(random_).text;
    const std::string companion = random_.chance(50) ? personName(random_).text : std::string();
    const std::int32_t sheet =
        sheets_.add(number, process.commitment, written(day), "Zona rural",
                    "Córrego do Ouro e Serra da Mata", drive.car, drive.plate, drive.from, drive.to,
                    driver, companion, "", "Transporte de alunos e materiais");
    const std::int32_t documents = random_.between(1, 4);
    for (std::int32_t i = 0; i < documents; ++i) {
      const std::string document = documentNumber(random_);
      const Money amount = Money::fromCents(random_.between(800, 45'000));
      documents_.add(sheet, day, roadSupplier(random_), document, amount);
    }
  }

  Random& random_;
  DateTime today_;
  RowWriter sheets_;
  RowWriter documents_;
  std::int32_t sheetCount_ = 0;
};

}  // namespace

void writeTransport(database::NewDatabase& database, Random& random, DateTime today,
                    const std::vector<Process>& processes) {
  TransportMaker maker(database.handle(), random, today);
  for (const Process& process : processes) {
    if (process.hasCommitment() && process.type->purpose == Purpose::Transport) {
      maker.make(process);
    }
  }
}

}  // namespace quartela::demonstration
