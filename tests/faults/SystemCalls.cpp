#include "tests/faults/SystemCalls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <tuple>

namespace quartela::test::faults {
namespace {

constexpr int kMostFiles = 1024;

struct State {
  std::string folder;
  Plans plans;
  std::array<int, kCalls> counts{};
  std::array<bool, kMostFiles> watched{};
  std::array<bool, std::tuple_size_v<Plans>> failsOn{};
};

State& state() {
  static State* const kept = new State;  // outlives every caller
  return *kept;
}

bool isWatched(const char* path) {
  const std::string& folder = state().folder;
  return !folder.empty() && std::string_view(path).starts_with(folder);
}

bool isWatched(int file) {
  return !state().folder.empty() && file >= 0 && file < kMostFiles &&
         state().watched[static_cast<std::size_t>(file)];
}

int errorOf(Call call) {
  switch (call) {
    case Call::Open:
      return EMFILE;
    case Call::Write:
      return ENOSPC;
    case Call::Rights:
      return EPERM;
    default:
      return EIO;
  }
}

// What is to become of the next call of that kind.
Fault next(Call call) {
  State& now = state();
  const int count = ++now.counts[static_cast<std::size_t>(call)];
  for (std::size_t i = 0; i < now.plans.size(); ++i) {
    const Plan& plan = now.plans[i];
    if (call != plan.call || plan.fault == Fault::None) {
      continue;
    }
    if (count == plan.nth && plan.fault != Fault::FailsOn) {
      return plan.fault;
    }
    now.failsOn[i] = now.failsOn[i] || count == plan.nth;
    if (now.failsOn[i]) {
      return Fault::Fails;
    }
  }
  return Fault::None;
}

bool isTornNext() {
  const State& now = state();
  const int next = now.counts[static_cast<std::size_t>(Call::Write)] + 1;
  return std::any_of(now.plans.begin(), now.plans.end(), [next](const Plan& plan) {
    return plan.fault == Fault::Torn && plan.call == Call::Write && plan.nth == next;
  });
}

[[noreturn]] void kill() {
  ::kill(::getpid(), SIGKILL);
  std::abort();
}

// `act` is the system's own call.
template <typename Act>
auto carryOut(Call call, Act act) -> decltype(act()) {
  const Fault fault = next(call);
  if (fault == Fault::KilledBefore) {
    kill();
  }
  if (fault == Fault::Fails || fault == Fault::Torn) {
    errno = errorOf(call);
    return static_cast<decltype(act())>(-1);
  }
  const auto result = act();
  if (fault == Fault::KilledAfter) {
    kill();
  }
  return result;
}

template <typename Function>
Function system(const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

void remember(int file, bool watched) {
  if (file >= 0 && file < kMostFiles) {
    state().watched[static_cast<std::size_t>(file)] = watched;
  }
}

template <typename Act>
int opened(bool watched, Act act) {
  const int file = watched ? carryOut(Call::Open, act) : act();
  remember(file, watched);
  return file;
}

// Writes what a full disk still took.
template <typename Act>
ssize_t written(int file, std::size_t count, Act act) {
  if (!isWatched(file)) {
    return act(count);
  }
  if (isTornNext() && count > 1) {
    act(count / 2);
  }
  return carryOut(Call::Write, [&] { return act(count); });
}

template <typename Act>
auto onFile(int file, Call call, Act act) -> decltype(act()) {
  return isWatched(file) ? carryOut(call, act) : act();
}

Call lockCall(const struct flock* lock) {
  return lock->l_type == F_UNLCK ? Call::Unlock : Call::Lock;
}

template <typename Act>
int controlled(int file, int command, void* argument, Act act) {
  const bool isLock = command == F_SETLK || command == F_SETLKW || command == F_GETLK;
  return isLock ? onFile(file, lockCall(static_cast<struct flock*>(argument)), act) : act();
}

}  // namespace

void watch(const char* folder, const Plans& plans) {
  state() = State{};
  state().plans = plans;
  state().folder = folder;
}

void forget() {
  state().folder.clear();
}

const std::array<int, kCalls>& counts() {
  return state().counts;
}

}  // namespace quartela::test::faults

namespace faults = quartela::test::faults;

extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  static const auto real = faults::system<int (*)(const char*, int, ...)>("open64");
  return faults::opened(faults::isWatched(path), [&] { return real(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return ::open(path, flags, mode);
}

int mkostemp(char* path, int flags) {
  static const auto real = faults::system<int (*)(char*, int)>("mkostemp64");
  return faults::opened(faults::isWatched(path), [&] { return real(path, flags); });
}

int mkostemp64(char* path, int flags) {
  return ::mkostemp(path, flags);
}

ssize_t read(int file, void* bytes, size_t count) {
  static const auto real = faults::system<ssize_t (*)(int, void*, size_t)>("read");
  return faults::onFile(file, faults::Call::Read, [&] { return real(file, bytes, count); });
}

ssize_t pread64(int file, void* bytes, size_t count, off64_t at) {
  static const auto real = faults::system<ssize_t (*)(int, void*, size_t, off64_t)>("pread64");
  return faults::onFile(file, faults::Call::Read, [&] { return real(file, bytes, count, at); });
}

ssize_t pread(int file, void* bytes, size_t count, off_t at) {
  return ::pread64(file, bytes, count, at);
}

ssize_t write(int file, const void* bytes, size_t count) {
  static const auto real = faults::system<ssize_t (*)(int, const void*, size_t)>("write");
  return faults::written(file, count, [&](size_t some) { return real(file, bytes, some); });
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t at) {
  static const auto real =
      faults::system<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64");
  return faults::written(file, count, [&](size_t some) { return real(file, bytes, some, at); });
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t at) {
  return ::pwrite64(file, bytes, count, at);
}

int fsync(int file) {
  static const auto real = faults::system<int (*)(int)>("fsync");
  return faults::onFile(file, faults::Call::Sync, [&] { return real(file); });
}

int fdatasync(int file) {
  static const auto real = faults::system<int (*)(int)>("fdatasync");
  return faults::onFile(file, faults::Call::Sync, [&] { return real(file); });
}

int fchmod(int file, mode_t mode) {
  static const auto real = faults::system<int (*)(int, mode_t)>("fchmod");
  return faults::onFile(file, faults::Call::Rights, [&] { return real(file, mode); });
}

int rename(const char* from, const char* to) {
  static const auto real = faults::system<int (*)(const char*, const char*)>("rename");
  const auto act = [&] { return real(from, to); };
  return faults::isWatched(from) ? faults::carryOut(faults::Call::Rename, act) : act();
}

int unlink(const char* path) {
  static const auto real = faults::system<int (*)(const char*)>("unlink");
  const auto act = [&] { return real(path); };
  return faults::isWatched(path) ? faults::carryOut(faults::Call::Unlink, act) : act();
}

int fcntl64(int file, int command, ...) {
  va_list arguments;
  va_start(arguments, command);
  void* const argument = va_arg(arguments, void*);
  va_end(arguments);
  static const auto real = faults::system<int (*)(int, int, ...)>("fcntl64");
  return faults::controlled(file, command, argument, [&] { return real(file, command, argument); });
}

int fcntl(int file, int command, ...) {
  va_list arguments;
  va_start(arguments, command);
  void* const argument = va_arg(arguments, void*);
  va_end(arguments);
  return ::fcntl64(file, command, argument);
}

// A descriptor whose closing fails is closed all the same.
int close(int file) {
  static const auto real = faults::system<int (*)(int)>("close");
  const bool watched = faults::isWatched(file);
  faults::remember(file, false);
  if (!watched) {
    return real(file);
  }
  bool done = false;
  const int result = faults::carryOut(faults::Call::Close, [&] {
    done = true;
    return real(file);
  });
  if (!done) {
    real(file);
    errno = EIO;
  }
  return result;
}

}  // extern "C"
