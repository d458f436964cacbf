// A file or folder of the system, open as long as the object lives.
#pragma once

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace quartela {

class OpenFile {
 public:
  // As ::open(); `errno` tells why isOpen() is false.
  OpenFile(const char* path, int flags, mode_t mode = 0)
      : descriptor_(::open(path, flags | O_CLOEXEC, mode)) {}
  ~OpenFile() { close(); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool isOpen() const { return descriptor_ >= 0; }
  int descriptor() const { return descriptor_; }
  // False when the system has lost what was written.
  bool close() {
    const int closed = isOpen() ? ::close(descriptor_) : 0;
    descriptor_ = -1;
    return closed == 0;
  }

 private:
  int descriptor_;
};

}  // namespace quartela
