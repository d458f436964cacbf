#include "platform/reporting/BarCode.h"

#include <zint.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

// The library counts two units to the module.
constexpr float kUnitsPerModule = 2;

struct Delete {
  void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};
using Symbol = std::unique_ptr<zint_symbol, Delete>;

bool isDigit(QChar letter) {
  return letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
}

[[noreturn]] void refuse(const QString& digits) {
  throw RuntimeError::withDescription(
      ErrorNumber::InvalidProcedureCall,
      QStringLiteral("O código de barras precisa de uma quantidade par de algarismos [%1].")
          .arg(digits));
}

int modules(float units) {
  return static_cast<int>(std::lround(units / kUnitsPerModule));
}

}  // namespace

BarCode interleaved2of5(const QString& digits) {
  if (digits.isEmpty() || digits.size() % 2 != 0 ||
      !std::all_of(digits.begin(), digits.end(), isDigit)) {
    refuse(digits);
  }
  const Symbol symbol(ZBarcode_Create());
  if (!symbol) {
    throw std::bad_alloc();
  }
  symbol->symbology = BARCODE_C25INTER;
  symbol->show_hrt = 0;
  const QByteArray text = digits.toLatin1();
  // The library takes unsigned letters; the bytes are the same.
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.constData());
  const int outcome =
      ZBarcode_Encode_and_Buffer_Vector(symbol.get(), bytes, static_cast<int>(text.size()), 0);
  if (outcome >= ZINT_ERROR || symbol->vector == nullptr) {
    refuse(digits);
  }
  BarCode code;
  for (const zint_vector_rect* bar = symbol->vector->rectangles; bar != nullptr; bar = bar->next) {
    code.bars.push_back({modules(bar->x), modules(bar->width)});
    code.modules = std::max(code.modules, modules(bar->x + bar->width));
  }
  return code;
}

}  // namespace quartela::reporting
