#pragma once

#include "platform/AddressOpener.h"

namespace wayloom {

/// Opens addresses through Qt's desktop services. Main thread only.
class QtAddressOpener : public AddressOpener {
 public:
  void open(const std::string& address) override;
};

}  // namespace wayloom
