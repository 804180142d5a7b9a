#pragma once

#include <unistd.h>

namespace wayloom {

/// A file descriptor, closed when its owner goes. Negative: none.
class Descriptor {
 public:
  explicit Descriptor(int descriptor = -1) : mDescriptor(descriptor) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }

  int get() const { return mDescriptor; }

  void reset(int descriptor) {
    close();
    mDescriptor = descriptor;
  }

  /// What close(2) answers, for writers whose last error only shows there.
  int close() {
    const int status = mDescriptor < 0 ? 0 : ::close(mDescriptor);
    mDescriptor = -1;
    return status;
  }

 private:
  int mDescriptor;
};

}  // namespace wayloom
