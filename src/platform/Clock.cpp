#include "platform/Clock.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace wayloom {

std::int32_t wholeSeconds(double secondsSince1970) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(
      std::clamp<double>(secondsSince1970, Limits::min(), Limits::max()));
}

double SystemClock::secondsSince1970() const {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration<double>(now).count();
}

}  // namespace wayloom
