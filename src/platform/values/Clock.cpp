#include "platform/values/Clock.h"

#include <QDateTime>
#include <optional>

namespace quartela::Clock {
namespace {

std::optional<DateTime>& stopped() {
  static std::optional<DateTime> moment;
  return moment;
}

DateTime machineTime() {
  const QDateTime moment = QDateTime::currentDateTime();
  const QDate date = moment.date();
  const QTime time = moment.time();
  return DateTime::of(date.year(), date.month(), date.day(), time.hour(), time.minute(),
                      time.second());
}

}  // namespace

DateTime now() {
  return stopped() ? *stopped() : machineTime();
}

DateTime today() {
  return now().date();
}

void stopAt(DateTime moment) {
  stopped() = moment;
}

void run() {
  stopped().reset();
}

}  // namespace quartela::Clock
