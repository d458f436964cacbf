#include "demonstration/Requests.h"

#include <array>
#include <string>
#include <string_view>

#include "database/Builder.h"
#include "database/RowWriter.h"
#include "demonstration/Processes.h"

namespace quartela::demonstration {

namespace {

using database::RowWriter;
using Words = std::string_view;

constexpr std::int32_t kLines = 10;

constexpr std::array kGoods = {Words("Papel sulfite A4, resma com 500 folhas"),
                               Words("Caneta esferográfica azul"),
                               Words("Toner para impressora a laser"),
                               Words("Detergente neutro, frasco de 500 ml"),
                               Words("Açúcar cristal, pacote de 5 kg"),
                               Words("Café torrado e moído, pacote de 500 g"),
                               Words("Lâmpada LED de 15 W"),
                               Words("Pasta suspensa"),
                               Words("Água sanitária, frasco de 2 litros"),
                               Words("Envelope pardo A4"),
                               Words("Pilha alcalina AA"),
                               Words("Luva de látex, caixa com 100")};

constexpr std::array kServices = {Words("Manutenção do aparelho de ar-condicionado da recepção."),
                                  Words("Conserto do portão eletrônico da garagem."),
                                  Words("Recarga e revisão dos extintores de incêndio."),
                                  Words("Instalação de dois pontos de rede na sala de reuniões."),
                                  Words("Pintura das paredes do corredor e reparo do forro.")};

DateTime dayOfLastYear(Random& random, DateTime today) {
  return today.addDays(-random.below(365));
}

std::int32_t activeOrderer(const Town& town, Random& random) {
  const Orderer* orderer = nullptr;
  do {
    orderer = &random.pick(std::span<const Orderer>(town.orderers));
  } while (!orderer->active);
  return orderer->id;
}

void writeStandalone(sqlite3* database, const Town& town, Random& random, DateTime today,
                     std::int32_t count) {
  RowWriter writer(database, "ReqAvulso",
                   "DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, FICHA");
  for (std::int32_t i = 0; i < count; ++i) {
    const AdvanceType& type = random.pick(std::span<const AdvanceType>(town.types));
    const DateTime day = dayOfLastYear(random, today);
    const std::int32_t orderer = activeOrderer(town, random);
    const std::int32_t person = random.pick(std::span<const Person>(town.persons)).id;
    const Money amount = Money::fromReais(random.between(2, 40) * 50);
    const std::string_view city = usualCity(random);
    writer.add(day, orderer, person, amount, type.id, justification(random, type.purpose, city),
               std::to_string(type.allocation));
  }
}

std::string goodsColumns() {
  std::string columns = "DATA, REQUISITANTE, LOCAL, JUSTIFICATIVA";
  for (std::int32_t line = 1; line <= kLines; ++line) {
    const std::string number = std::to_string(line);
    columns.append(", PRODUTO").append(number).append(", QUANT").append(number);
  }
  return columns;
}

void putHead(RowWriter& writer, const Town& town, Random& random, DateTime today, Words reason) {
  writer.put(dayOfLastYear(random, today));
  writer.put(random.pick(std::span<const Person>(town.persons)).name);
  writer.put(random.pick(std::span<const Secretariat>(town.secretariats)).name);
  writer.put(reason);
}

void writeGoods(sqlite3* database, const Town& town, Random& random, DateTime today,
                std::int32_t count) {
  RowWriter writer(database, "Produtos", goodsColumns());
  for (std::int32_t i = 0; i < count; ++i) {
    putHead(writer, town, random, today, "Reposição do material em uso na unidade.");
    const std::int32_t filled = random.between(1, kLines);
    for (std::int32_t line = 0; line < kLines; ++line) {
      writer.put(line < filled ? random.pick(kGoods) : Words());
      writer.put(line < filled ? std::to_string(random.between(1, 60)) : std::string());
    }
    writer.step();
  }
}

void writeServices(sqlite3* database, const Town& town, Random& random, DateTime today,
                   std::int32_t count) {
  RowWriter writer(database, "Servicos", "DATA, REQUISITANTE, LOCAL, JUSTIFICATIVA, SERVICOS");
  for (std::int32_t i = 0; i < count; ++i) {
    putHead(writer, town, random, today, "Conservação do patrimônio e segurança dos servidores.");
    writer.put(random.pick(kServices));
    writer.step();
  }
}

}  // namespace

void writeRequests(database::NewDatabase& database, const Town& town, Random& random,
                   DateTime today, std::int32_t count) {
  writeStandalone(database.handle(), town, random, today, count);
  writeGoods(database.handle(), town, random, today, count);
  writeServices(database.handle(), town, random, today, count);
}

}  // namespace quartela::demonstration
