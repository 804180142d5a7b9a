#pragma once

#include <cstdint>

namespace wayloom {

/// What time it is. Callable on any thread.
class Clock {
 public:
  virtual ~Clock() = default;

  /// Seconds since 1970-01-01 00:00 UTC, with their fraction.
  virtual double secondsSince1970() const = 0;

  /// The same in whole seconds, cut towards zero and held within 32 bits.
  std::int32_t wholeSecondsSince1970() const;
};

/// The machine's own clock.
class SystemClock : public Clock {
 public:
  double secondsSince1970() const override;
};

}  // namespace wayloom
