#include "info/MakerAddresses.h"

namespace wayloom {

MakerAddresses configuredMakerAddresses() {
  return {WAYLOOM_CONTACT_ADDRESS, WAYLOOM_SHOP_ADDRESS, WAYLOOM_SITE_ADDRESS};
}

}  // namespace wayloom
