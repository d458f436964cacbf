#include "benchmarks/Measure.h"

#include <malloc.h>

#include <QFile>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace quartela::bench {
namespace {

using Clock = std::chrono::steady_clock;

double timeOf(const Work& work) {
  const auto begin = Clock::now();
  work();
  return std::chrono::duration<double, std::micro>(Clock::now() - begin).count();
}

double middle(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

// Kilobytes of the line of /proc/self/status that begins with `key`.
double statusKilobytes(const char* key) {
  QFile file(QStringLiteral("/proc/self/status"));
  if (!file.open(QIODevice::ReadOnly)) {
    return 0;
  }
  for (const QByteArray& line : file.readAll().split('\n')) {
    if (line.startsWith(key)) {
      return line.mid(static_cast<qsizetype>(qstrlen(key))).trimmed().split(' ').first().toDouble();
    }
  }
  return 0;
}

// Makes the highest memory use so far start again from the present one.
void resetHighWater() {
  QFile file(QStringLiteral("/proc/self/clear_refs"));
  if (file.open(QIODevice::WriteOnly)) {
    file.write("5");
  }
}

QByteArray amount(double value, const QString& unit) {
  const char* format = value < 10 ? "%.2f %s" : "%.0f %s";
  return QString::asprintf(format, value, qPrintable(unit)).toUtf8();
}

}  // namespace

double median(int runs, const Work& work) {
  work();
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) {
    times.push_back(timeOf(work));
  }
  return middle(std::move(times));
}

std::pair<double, double> medians(int runs, const Work& ours, const Work& peer) {
  ours();
  peer();
  std::vector<double> ourTimes;
  std::vector<double> peerTimes;
  for (int i = 0; i < runs; ++i) {
    ourTimes.push_back(timeOf(ours));
    peerTimes.push_back(timeOf(peer));
  }
  return {middle(std::move(ourTimes)), middle(std::move(peerTimes))};
}

// What earlier measures gave back goes to the system first; otherwise it would be taken again
// unseen.
double peakGrowth(const Work& work) {
  malloc_trim(0);
  resetHighWater();
  const double before = statusKilobytes("VmRSS:");
  work();
  return std::max(0.0, statusKilobytes("VmHWM:") - before) * 1024;
}

void printHeader() {
  std::printf("%-58s %12s %12s %8s %8s\n", "measure", "ours", "peer", "ratio", "target");
}

void print(const Row& row) {
  const double figure = row.peer > 0 ? row.ours / row.peer : row.ours;
  const QByteArray peer = row.peer > 0 ? amount(row.peer, row.unit) : QByteArray("-");
  std::printf("%-58s %12s %12s %8.2f %8.2f  %s\n", row.measure.toUtf8().constData(),
              amount(row.ours, row.unit).constData(), peer.constData(), figure, row.target,
              figure <= row.target ? "met" : "MISSED");
  std::fflush(stdout);
}

}  // namespace quartela::bench
