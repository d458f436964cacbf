// A nullable cell: null, or a value of one of the seven types that columns have.
#pragma once

#include <QString>
#include <cstdint>
#include <variant>

#include "platform/values/DateTime.h"
#include "platform/values/Money.h"

namespace quartela {

// The order is that of the alternatives of Value; Null is the type of a cell without a value.
enum class ValueType : std::uint8_t { Null, Bool, I16, I32, Money, Number, DateTime, Text };

class Value {
 public:
  Value() = default;
  Value(bool value) : cell_(value) {}                       // NOLINT(google-explicit-constructor)
  Value(std::int16_t value) : cell_(value) {}               // NOLINT(google-explicit-constructor)
  Value(std::int32_t value) : cell_(value) {}               // NOLINT(google-explicit-constructor)
  Value(Money value) : cell_(value) {}                      // NOLINT(google-explicit-constructor)
  Value(double value) : cell_(value) {}                     // NOLINT(google-explicit-constructor)
  Value(DateTime value) : cell_(value) {}                   // NOLINT(google-explicit-constructor)
  Value(QString value) : cell_(std::move(value)) {}         // NOLINT(google-explicit-constructor)
  Value(const char* utf8) : cell_(QString::fromUtf8(utf8)) {}  // NOLINT(google-explicit-constructor)
  Value(const void*) = delete;

  ValueType type() const { return static_cast<ValueType>(cell_.index()); }
  bool isNull() const { return cell_.index() == 0; }

  // The cell as the type it has; error 13 when it has another. Conversions are Convert's.
  bool boolean() const { return get<bool>(); }
  std::int16_t i16() const { return get<std::int16_t>(); }
  std::int32_t i32() const { return get<std::int32_t>(); }
  Money money() const { return get<Money>(); }
  double number() const { return get<double>(); }
  DateTime dateTime() const { return get<DateTime>(); }
  const QString& text() const { return get<QString>(); }

  friend bool operator==(const Value&, const Value&) = default;

 private:
  using Cell = std::variant<std::monostate, bool, std::int16_t, std::int32_t, Money, double,
                            DateTime, QString>;
  [[noreturn]] static void typeMismatch();

  template <typename T>
  const T& get() const {
    if (const T* value = std::get_if<T>(&cell_)) {
      return *value;
    }
    typeMismatch();
  }

  Cell cell_;
};

}  // namespace quartela
