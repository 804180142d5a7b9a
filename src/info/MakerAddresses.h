#pragma once

#include <string>

namespace wayloom {

/// Where the information screen leads outside.
struct MakerAddresses {
  /// A "mailto:" address.
  std::string contact;
  std::string shop;
  std::string site;
};

/// The addresses that this build was configured with.
MakerAddresses configuredMakerAddresses();

}  // namespace wayloom
