#include "demonstration/Names.h"

#include <algorithm>
#include <array>

namespace quartela::demonstration {

namespace {

using Words = std::string_view;

constexpr std::array kMaleNames = {
    Words("João"),     Words("José"),     Words("Antônio"), Words("Luís"),      Words("Paulo"),
    Words("Márcio"),   Words("Cláudio"),  Words("Sérgio"),  Words("Fábio"),     Words("Rogério"),
    Words("Marcelo"),  Words("Adilson"),  Words("Geraldo"), Words("Sebastião"), Words("Wanderley"),
    Words("Tarcísio"), Words("Vinícius"), Words("César"),   Words("Otávio"),    Words("Valdir"),
    Words("Ronaldo"),  Words("Hélio"),    Words("Nélson"),  Words("Elias"),     Words("Gilmar"),
    Words("Ivan"),     Words("Ângelo"),   Words("Érico"),   Words("Joaquim"),   Words("Davi")};

constexpr std::array kFemaleNames = {
    Words("Maria"),   Words("Ana"),     Words("Conceição"),  Words("Luzia"),     Words("Márcia"),
    Words("Cláudia"), Words("Sônia"),   Words("Fátima"),     Words("Rosângela"), Words("Marlene"),
    Words("Adriana"), Words("Geralda"), Words("Terezinha"),  Words("Wanda"),     Words("Patrícia"),
    Words("Vitória"), Words("Cecília"), Words("Letícia"),    Words("Valéria"),   Words("Rita"),
    Words("Helena"),  Words("Noêmia"),  Words("Elisângela"), Words("Gislaine"),  Words("Inês"),
    Words("Ângela"),  Words("Érica"),   Words("Joana"),      Words("Débora"),    Words("Lúcia")};

constexpr std::array kSecondMale = {Words("Carlos"),   Words("Batista"), Words("Augusto"),
                                    Words("Henrique"), Words("Roberto"), Words("Vicente")};
constexpr std::array kSecondFemale = {Words("Aparecida"), Words("das Graças"), Words("Cristina"),
                                      Words("Beatriz"),   Words("de Lourdes"), Words("Eduarda")};

constexpr std::array kFamilyNames = {
    Words("Abreu"),     Words("Araújo"),    Words("Assunção"),  Words("Barcelos"),
    Words("Bastos"),    Words("Brandão"),   Words("Caldeira"),  Words("Câmara"),
    Words("Cordeiro"),  Words("Coutinho"),  Words("D'Ávila"),   Words("Damasceno"),
    Words("Esteves"),   Words("Falcão"),    Words("Figueiró"),  Words("Fonseca"),
    Words("Frade"),     Words("Gouvêa"),    Words("Guimarães"), Words("Lacerda"),
    Words("Leitão"),    Words("Magalhães"), Words("Meireles"),  Words("Mourão"),
    Words("Novaes"),    Words("Otoni"),     Words("Paixão"),    Words("Peçanha"),
    Words("Quintão"),   Words("Rabelo"),    Words("Resende"),   Words("Sant'Ana"),
    Words("Sepúlveda"), Words("Simões"),    Words("Tavares"),   Words("Teixeira"),
    Words("Toledo"),    Words("Ulhôa"),     Words("Valadão"),   Words("Xavier")};

constexpr std::array kSuppliers = {
    Words("PAPELARIA CENTRAL DO LESTE LTDA"),  Words("CASA DE CARNES BOI NA BRASA ME"),
    Words("SUPERMERCADO BOA COMPRA LTDA"),     Words("FERRAGENS SAO JORGE LTDA"),
    Words("DROGARIA POPULAR DA PRACA ME"),     Words("MATERIAIS DE CONSTRUCAO QUINTAO LTDA"),
    Words("ELETRICA LUZ E FORCA LTDA ME"),     Words("AUTO PECAS RIO CASCA LTDA"),
    Words("BORRACHARIA DO ZECA ME"),           Words("CHAVEIRO MODELO"),
    Words("FLORICULTURA BEM-ME-QUER ME"),      Words("GRAFICA RAPIDA IMPRESSO BOM LTDA"),
    Words("INFORMATICA BIT E BYTE LTDA"),      Words("LAVANDERIA AGUA CLARA ME"),
    Words("PADARIA PAO D'OURO LTDA"),          Words("VIDRACARIA TRANSPARENTE LTDA"),
    Words("TINTAS ARCO-IRIS COMERCIO LTDA"),   Words("DEPOSITO DE GAS CHAMA AZUL ME"),
    Words("AGROPECUARIA TERRA BOA LTDA"),      Words("COPIADORA E PLASTIFICACAO RELAMPAGO ME"),
    Words("LIVRARIA CAMINHO DAS LETRAS LTDA"), Words("CARTORIO DE NOTAS E PROTESTOS"),
    Words("CORREIOS - AGENCIA CENTRAL"),       Words("OFICINA MECANICA IRMAOS LACERDA ME")};

constexpr std::array kRoadSuppliers = {Words("AUTO POSTO SERRA AZUL LTDA"),
                                       Words("POSTO TREVO DA BR LTDA"),
                                       Words("RESTAURANTE FOGAO DE MINAS LTDA"),
                                       Words("CHURRASCARIA BOIADEIRO ME"),
                                       Words("HOTEL BELA VISTA LTDA"),
                                       Words("POUSADA RECANTO DA MATA ME"),
                                       Words("CONCESSIONARIA RODOVIA LESTE S.A."),
                                       Words("ESTACIONAMENTO CENTRAL PARK ME"),
                                       Words("LANCHONETE PARADA OBRIGATORIA ME"),
                                       Words("HOTEL PRACA SETE LTDA"),
                                       Words("TAXI - COOPERATIVA DO TERMINAL"),
                                       Words("VIACAO SERRA DO LESTE LTDA"),
                                       Words("RESTAURANTE SABOR DA ROCA ME"),
                                       Words("POSTO PE DA SERRA LTDA"),
                                       Words("BORRACHARIA KM 510 ME"),
                                       Words("PADARIA E CONFEITARIA D'MINAS ME")};

constexpr std::array kVehicles = {
    Words("Fiat Uno"),       Words("Fiat Doblò"),          Words("VW Gol"),
    Words("VW Kombi"),       Words("Renault Kangoo"),      Words("Fiat Strada"),
    Words("Chevrolet Spin"), Words("Micro-ônibus Volare"), Words("Ambulância Ducato"),
    Words("Toyota Etios")};

constexpr std::array kDocumentKinds = {Words("Nf"), Words("Nf"),     Words("Nfc-E"),
                                       Words("Cf"), Words("Recibo"), Words("Nfs-E")};

// What the field of a note's identification takes.
constexpr std::size_t kDocumentLength = 10;

char letter(Random& random) {
  return static_cast<char>('A' + random.below(26));
}

char checkDigit(std::string_view text) {
  int sum = 0;
  int weight = static_cast<int>(text.size()) + 1;
  for (const char c : text) {
    sum += (c - '0') * weight;
    --weight;
  }
  const int rest = sum * 10 % 11 % 10;
  return static_cast<char>('0' + rest);
}

}  // namespace

Name personName(Random& random) {
  Name name;
  name.female = random.chance(50);
  name.text = random.pick(name.female ? std::span<const Words>(kFemaleNames) : kMaleNames);
  if (random.chance(35)) {
    name.text += ' ';
    name.text += random.pick(name.female ? kSecondFemale : kSecondMale);
  }
  const Words first = random.pick(kFamilyNames);
  Words second = random.pick(kFamilyNames);
  while (second == first) {
    second = random.pick(kFamilyNames);
  }
  name.text.append(" ").append(first).append(random.chance(30) ? " de " : " ").append(second);
  return name;
}

std::string cpfCheckDigits(std::string_view nineDigits) {
  std::string number(nineDigits);
  number += checkDigit(number);
  number += checkDigit(number);
  return number.substr(9);
}

std::string cpf(Random& random) {
  std::string number = digits(random.between(1, 999'999'999), 9);
  if (std::count(number.begin(), number.end(), number.front()) == 9) {
    number.back() = number.back() == '9' ? '0' : '9';
  }
  return number.substr(0, 3) + '.' + number.substr(3, 3) + '.' + number.substr(6, 3) + '-' +
         cpfCheckDigits(number);
}

std::string identityCard(Random& random) {
  const std::string number = digits(random.between(1'000'000, 20'999'999), 8);
  return "MG-" + number.substr(0, 2) + '.' + number.substr(2, 3) + '.' + number.substr(5);
}

std::string plate(Random& random) {
  std::string text;
  for (int i = 0; i < 3; ++i) {
    text += letter(random);
  }
  if (random.chance(50)) {
    return text + '-' + digits(random.below(10'000), 4);
  }
  text += digits(random.below(10), 1);
  text += letter(random);
  return text + digits(random.below(100), 2);
}

std::string_view vehicle(Random& random) {
  return random.pick(kVehicles);
}

std::string_view supplier(Random& random) {
  return random.pick(kSuppliers);
}

std::string_view roadSupplier(Random& random) {
  return random.pick(kRoadSuppliers);
}

std::string documentNumber(Random& random) {
  std::string text(random.pick(kDocumentKinds));
  text += ' ';
  std::int32_t most = 1;
  for (std::size_t length = text.size(); length < kDocumentLength; ++length) {
    most *= 10;
  }
  return text.append(digits(random.between(1, 98'999) % (most - 1) + 1, 1));
}

std::string timeOfDay(Random& random, std::int32_t firstHour, std::int32_t lastHour) {
  std::string text = digits(random.between(firstHour, lastHour), 2);
  return text.append(":").append(digits(random.below(12) * 5, 2));
}

std::string digits(std::int32_t value, std::size_t width) {
  const std::string text = std::to_string(value);
  return text.size() >= width ? text : std::string(width - text.size(), '0') + text;
}

}  // namespace quartela::demonstration
