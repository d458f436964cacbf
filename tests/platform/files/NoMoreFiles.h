// No further file can be opened while the object lives; what is open stays so.
#pragma once

#include <sys/resource.h>

#include "platform/values/RuntimeError.h"

namespace quartela::test {

class NoMoreFiles {
 public:
  NoMoreFiles() {
    letSanitizerKnowErrors();
    getrlimit(RLIMIT_NOFILE, &before_);
    rlimit none = before_;
    none.rlim_cur = 0;
    setrlimit(RLIMIT_NOFILE, &none);
  }
  ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &before_); }
  NoMoreFiles(const NoMoreFiles&) = delete;
  NoMoreFiles& operator=(const NoMoreFiles&) = delete;

 private:
  // The sanitizer looks at the first object of a type through a pipe, which takes a file.
  static void letSanitizerKnowErrors() {
    try {
      throw RuntimeError(ErrorNumber::PathFileAccess);
    } catch (const RuntimeError& error) {
      static_cast<void>(error.number());
    }
  }

  rlimit before_{};
};

}  // namespace quartela::test
