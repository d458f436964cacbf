// Measuring beside a peer in one run, and the table that comes of it.
#pragma once

#include <QString>
#include <chrono>
#include <functional>
#include <utility>

namespace quartela::bench {

using Work = std::function<void()>;

// Median wall time of one run, in microseconds; `work` runs once before, unmeasured.
double median(int runs, const Work& work);

// The medians of both, run by turns so that what else the machine does meets both alike.
std::pair<double, double> medians(int runs, const Work& ours, const Work& peer);

// Bytes by which the process's memory grew at most while `work` ran.
double peakGrowth(const Work& work);

struct Row {
  QString measure;
  double ours = 0;
  double peer = 0;    // 0: the target is absolute
  double target = 0;  // the most that ours/peer may be; without a peer the most that ours may be
  QString unit;
};

// Prints a row of the table at once, with its ratio and whether the target is met.
void printHeader();
void print(const Row& row);

// The database of the benchmarks: 100,000 processes with 700,000 notes, made once a build folder.
QString benchmarkDatabase();

void benchRecordset();
void benchDialect();
void benchSave();
void benchDamageCheck();
void benchLike();
void benchStart();
void benchMainWindow();
void benchMasterData();
void benchProcess();
void benchReports();

// Child modes of the start benchmark: show the window, leave at its first painting.
int showLoginOnce(int argc, char** argv);
int showEmptyWindowOnce(int argc, char** argv);

}  // namespace quartela::bench
