// Somebody whom file permissions bind, which they do not do with the superuser.
#pragma once

#include <unistd.h>

#include <QtGlobal>

namespace quartela::test {

class AnotherUser {
 public:
  AnotherUser() : changed_(::geteuid() == 0 && ::seteuid(kNobody) == 0) {}
  ~AnotherUser() {
    if (changed_ && ::seteuid(0) != 0) {
      qFatal("the user cannot be changed back");
    }
  }
  AnotherUser(const AnotherUser&) = delete;
  AnotherUser& operator=(const AnotherUser&) = delete;
  static bool bound() { return ::geteuid() != 0; }

 private:
  static constexpr uid_t kNobody = 65534;
  bool changed_;
};

}  // namespace quartela::test
