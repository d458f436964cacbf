// Invented people, companies, documents and vehicles that look Brazilian. All texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

#include "demonstration/Random.h"

namespace quartela::demonstration {

struct Name {
  std::string text;
  bool female = false;
};

// A given name (now and then two) and two family names.
Name personName(Random& random);

// "123.456.789-09" with right check digits, never eleven times the same digit.
std::string cpf(Random& random);

// The two check digits of a CPF's first nine digits.
std::string cpfCheckDigits(std::string_view nineDigits);

// "MG-12.345.678".
std::string identityCard(Random& random);

// A number plate of the old form "ABC-1234" or of the new one "ABC1D23".
std::string plate(Random& random);

std::string_view vehicle(Random& random);

// A supplier as the operators type it: capitals without accents.
std::string_view supplier(Random& random);
// A supplier that sells what a journey needs: fuel, meals, beds, tolls.
std::string_view roadSupplier(Random& random);

// The identification of a fiscal document, "Nf 1234", in the form that the note field leaves
// behind.
std::string documentNumber(Random& random);

// "07:30".
std::string timeOfDay(Random& random, std::int32_t firstHour, std::int32_t lastHour);

// `value` with at least `width` digits.
std::string digits(std::int32_t value, std::size_t width);

}  // namespace quartela::demonstration
