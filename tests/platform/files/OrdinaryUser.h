// Lets a test meet the permissions of files also where the tests run as root, whom none of them
// binds.
#pragma once

#include <unistd.h>

#include <QFile>
#include <QString>

namespace quartela::test {

// Makes the program a user without rights, as long as it lives, when it is root's. Only folders
// that were given to it can be used meanwhile. Check isOrdinary() first.
class OrdinaryUser {
 public:
  explicit OrdinaryUser(const QString& folder) : wasRoot_(::geteuid() == 0) {
    if (wasRoot_) {
      const QByteArray path = QFile::encodeName(folder);
      changed_ =
          ::chown(path.constData(), kNobody, kNobody) == 0 && ::setresuid(kNobody, kNobody, 0) == 0;
    }
  }
  ~OrdinaryUser() {
    if (changed_ && ::setresuid(0, 0, 0) != 0) {
      std::abort();
    }
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  bool isOrdinary() const { return !wasRoot_ || changed_; }

 private:
  static constexpr unsigned kNobody = 65534;
  bool wasRoot_;
  bool changed_ = false;
};

}  // namespace quartela::test
