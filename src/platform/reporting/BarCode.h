// Bar codes of the kind Interleaved 2 of 5.
#pragma once

#include <QString>
#include <vector>

namespace quartela::reporting {

struct BarCode {
  struct Bar {
    int start = 0;  // modules from the first bar's left edge
    int width = 0;  // modules
  };
  int modules = 0;  // from the first bar to the last, without the quiet zones
  std::vector<Bar> bars;
};

// The blank that a reader needs on either side, in modules.
constexpr int kQuietModules = 10;

// Error 5 when the text is empty, holds anything but the digits 0 to 9, or an odd count of them.
BarCode interleaved2of5(const QString& digits);

}  // namespace quartela::reporting
