#pragma once

#include <string>

namespace wayloom {

/// Hands an address to the program that the system has for it: a browser, a mail application.
class AddressOpener {
 public:
  virtual ~AddressOpener() = default;
  /// Main thread only. Whether a program was found is not told.
  virtual void open(const std::string& address) = 0;
};

}  // namespace wayloom
