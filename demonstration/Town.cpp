#include "demonstration/Town.h"

#include <array>
#include <set>
#include <string_view>

#include "database/Builder.h"
#include "database/RowWriter.h"
#include "demonstration/Names.h"

namespace quartela::demonstration {

namespace {

using database::RowWriter;
using Words = std::string_view;

constexpr std::int32_t kPersons = 80;
constexpr std::int32_t kExtraOrderers = 8;

constexpr std::array kSecretariats = {Words("Secretaria de Administração"),
                                      Words("Secretaria de Agricultura"),
                                      Words("Secretaria de Assistência Social"),
                                      Words("Secretaria de Cultura e Turismo"),
                                      Words("Secretaria de Educação"),
                                      Words("Secretaria de Esporte e Lazer"),
                                      Words("Secretaria da Fazenda"),
                                      Words("Gabinete do Prefeito"),
                                      Words("Secretaria de Meio Ambiente"),
                                      Words("Secretaria de Obras Públicas"),
                                      Words("Secretaria de Planejamento"),
                                      Words("Secretaria de Saúde")};

struct Post {
  Words male;
  Words female;
};

constexpr std::array kPosts = {Post{"Agente Administrativo", "Agente Administrativa"},
                               Post{"Assistente Social", "Assistente Social"},
                               Post{"Auxiliar de Serviços", "Auxiliar de Serviços"},
                               Post{"Chefe de Divisão", "Chefe de Divisão"},
                               Post{"Contador", "Contadora"},
                               Post{"Coordenador Pedagógico", "Coordenadora Pedagógica"},
                               Post{"Diretor de Escola", "Diretora de Escola"},
                               Post{"Enfermeiro", "Enfermeira"},
                               Post{"Engenheiro Civil", "Engenheira Civil"},
                               Post{"Fiscal de Posturas", "Fiscal de Posturas"},
                               Post{"Motorista", "Motorista"},
                               Post{"Professor", "Professora"},
                               Post{"Técnico Agrícola", "Técnica Agrícola"},
                               Post{"Tesoureiro", "Tesoureira"}};

struct TypeModel {
  Purpose purpose;
  Words name;
  Words element;
  Words period;
  std::int32_t days;
  Words materials;
};

constexpr std::array kModels = {
    TypeModel{Purpose::SmallExpenses, "Miúdas", "339030 - Outros Materiais de Consumo", "30 dias",
              30, "Despesas miúdas de pronto pagamento: material de expediente, limpeza e copa."},
    TypeModel{Purpose::Journey, "Viagem", "339033 - Passagens e Locomoções", "05 dias", 5,
              "Passagens, pedágios, combustível, alimentação e hospedagem em viagem a serviço."},
    TypeModel{Purpose::Course, "Curso", "339039 - Outros Serviços de Terceiros (Jurídica)",
              "05 dias", 5,
              "Inscrição, apostilas, alimentação e hospedagem em curso ou congresso."},
    TypeModel{Purpose::Transport, "Transporte", "339033 - Passagens e Locomoções", "30 dias", 30,
              "Combustível, pedágio e pequenos reparos de veículos em serviço."},
    TypeModel{Purpose::Other, "Eventos", "339032 - Outros Materiais de Distribuição Gratuita",
              "60 dias", 60, "Material de divulgação, premiação e apoio a eventos do município."},
    TypeModel{Purpose::Other, "Manutenção veicular",
              "339036 - Outros Serviços de Terceiros (Fisica)", "30 dias", 30,
              "Serviços de mecânica, borracharia e elétrica de pequena monta."},
    TypeModel{Purpose::Journey, "Trat. fora domicílio", "339033 - Passagens e Locomoções",
              "30 dias", 30, "Transporte e alimentação de pacientes e acompanhantes."}};

// Which models a secretariat has beyond the first three, by its place in the list above.
struct ExtraType {
  std::size_t secretariat;
  std::size_t model;
};
constexpr std::array kExtraTypes = {ExtraType{1, 3},  ExtraType{3, 4}, ExtraType{4, 3},
                                    ExtraType{5, 4},  ExtraType{9, 3}, ExtraType{9, 5},
                                    ExtraType{11, 6}, ExtraType{11, 5}};

class TownMaker {
 public:
  TownMaker(database::NewDatabase& database, Random& random, DateTime today)
      : database_(database.handle()), random_(random), today_(today) {}

  Town make() {
    makeSecretariats();
    makeOrderers();
    makePersons();
    makeTypes();
    makeAllocations();
    return std::move(town_);
  }

 private:
  void makeSecretariats() {
    RowWriter writer(database_, "Orgao", "ORGAO");
    for (const Words name : kSecretariats) {
      town_.secretariats.push_back({writer.add(name), std::string(name)});
    }
  }

  // One orderer a secretariat who is in office, and some who came before or stand in.
  void makeOrderers() {
    RowWriter writer(database_, "Executor", "IDORGAO, NOME, RG, CPF, FUNCAO, ATIVO");
    for (const Secretariat& secretariat : town_.secretariats) {
      addOrderer(writer, secretariat.id, true);
    }
    for (std::int32_t i = 0; i < kExtraOrderers; ++i) {
      const Secretariat& secretariat =
          random_.pick(std::span<const Secretariat>(town_.secretariats));
      addOrderer(writer, secretariat.id, random_.chance(50));
    }
  }

  void addOrderer(RowWriter& writer, std::int32_t secretariat, bool active) {
    const Name name = freshName();
    const std::string card = identityCard(random_);
    const std::string number = cpf(random_);
    const Words post = name.female ? "Secretária Municipal" : "Secretário Municipal";
    const std::int32_t id = writer.add(secretariat, name.text, card, number, post, active);
    town_.orderers.push_back({id, secretariat, active});
  }

  void makePersons() {
    RowWriter writer(database_, "Tomador", "NOME1, CARGO, RG1, CPF1, ATIVO");
    for (std::int32_t i = 0; i < kPersons; ++i) {
      const Name name = personOfPlace(i);
      const Post& post = random_.pick(kPosts);
      const std::string card = identityCard(random_);
      const std::string number = cpf(random_);
      const bool active = i < 3 || !random_.chance(10);
      const std::int32_t id =
          writer.add(name.text, name.female ? post.female : post.male, card, number, active);
      town_.persons.push_back({id, name.text, active});
    }
  }

  // Names that show accents and an apostrophe are always among the people.
  Name personOfPlace(std::int32_t place) {
    static const std::array<Name, 3> kFixed = {Name{"João Batista Quintão Barcelos", false},
                                               Name{"Márcia Helena D'Ávila Simões", true},
                                               Name{"Érica Conceição Sant'Ana", true}};
    if (place < static_cast<std::int32_t>(kFixed.size())) {
      const Name& name = kFixed[static_cast<std::size_t>(place)];
      names_.insert(name.text);
      return name;
    }
    return freshName();
  }

  Name freshName() {
    Name name = personName(random_);
    while (!names_.insert(name.text).second) {
      name = personName(random_);
    }
    return name;
  }

  void makeTypes() {
    RowWriter types(database_, "Tipos", "IDORGAO, TIPO, ELEMENTO, LEI, MATERIAIS, PRAZO, ATIVO");
    RowWriter clauses(database_, "Inciso", "TIPO, DESCRICAO, CATEGORIA, PRAZO, ATIVO");
    for (std::size_t i = 0; i < town_.secretariats.size(); ++i) {
      for (std::size_t model = 0; model < 3; ++model) {
        addType(types, clauses, i, kModels[model]);
      }
    }
    for (const ExtraType& extra : kExtraTypes) {
      addType(types, clauses, extra.secretariat, kModels[extra.model]);
    }
  }

  void addType(RowWriter& types, RowWriter& clauses, std::size_t place, const TypeModel& model) {
    const std::int32_t secretariat = town_.secretariats[place].id;
    const auto number = static_cast<std::int32_t>(town_.types.size()) + 1;
    const std::string law = "Lei Municipal n° 1.482, de 12 de março de 2003, artigo 4°, inciso " +
                            std::string(number % 2 == 0 ? "II" : "III");
    // One type is out of use, as any office has one.
    const bool active = number != 6;
    const std::int32_t id = types.add(secretariat, model.name, model.element, law, model.materials,
                                      model.period, active);
    town_.types.push_back({id, secretariat, model.purpose, model.days, 100 + number * 7, active});
    clauses.add(id, "Despesas de pronto pagamento que não possam subordinar-se ao processo normal.",
                "Pronto pagamento", model.days, true);
    if (random_.chance(50)) {
      clauses.add(id, "Despesas extraordinárias e urgentes cuja realização não permita demora.",
                  "Urgência", std::int32_t{15}, random_.chance(80));
    }
  }

  void makeAllocations() {
    RowWriter writer(database_, "Dotacao", "IDTIPO, IDORGAO, DOTACAO, DESCRICAO, ANO");
    for (std::int32_t year = today_.year() - 2; year <= today_.year(); ++year) {
      for (const AdvanceType& type : town_.types) {
        writer.add(type.id, type.secretariat, type.allocation,
                   "Manutenção das atividades da unidade", year);
        if (type.purpose == Purpose::SmallExpenses) {
          writer.add(type.id, type.secretariat, type.allocation + 1, "Recursos vinculados", year);
        }
      }
    }
  }

  sqlite3* database_;
  Random& random_;
  DateTime today_;
  Town town_;
  std::set<std::string> names_;
};

}  // namespace

Town makeTown(database::NewDatabase& database, Random& random, DateTime today) {
  return TownMaker(database, random, today).make();
}

}  // namespace quartela::demonstration
