#pragma once

#include <cstdint>

namespace wayloom {

/// A moment as the position along a drive takes it: cut towards zero and held within 32 bits.
std::int32_t wholeSeconds(double secondsSince1970);

/// What time it is. Callable on any thread.
class Clock {
 public:
  virtual ~Clock() = default;

  /// Seconds since 1970-01-01 00:00 UTC, with their fraction.
  virtual double secondsSince1970() const = 0;

  std::int32_t wholeSecondsSince1970() const { return wholeSeconds(secondsSince1970()); }
};

/// The machine's own clock.
class SystemClock : public Clock {
 public:
  double secondsSince1970() const override;
};

}  // namespace wayloom
