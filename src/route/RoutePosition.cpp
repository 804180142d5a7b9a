#include "route/RoutePosition.h"

#include <algorithm>

namespace wayloom {

std::optional<std::size_t> recordAt(std::int32_t now, std::int32_t start, std::int32_t end,
                                    std::size_t count) {
  if (count == 0) return std::nullopt;
  if (now < start) return 0;
  if (now >= end) return count - 1;
  // Unsigned numbers wrap where signed ones must not; the conversions back are two's complement.
  const auto bits = [](auto value) { return static_cast<std::uint32_t>(value); };
  const auto product = static_cast<std::int32_t>((bits(now) - bits(start)) * bits(count));
  const auto span = static_cast<std::int32_t>(bits(end) - bits(start));
  // In 64 bits, since the least number divided by -1 has no place in 32.
  const std::int64_t index = std::int64_t{product} / span;
  return static_cast<std::size_t>(
      std::clamp<std::int64_t>(index, 0, static_cast<std::int64_t>(count - 1)));
}

std::optional<Coordinate> positionAt(std::int32_t now, const RoutePreferences& preferences) {
  if (!preferences.points) return std::nullopt;
  const auto record =
      recordAt(now, preferences.start(), preferences.end(), preferences.points->count());
  return record ? std::optional(preferences.points->at(*record)) : std::nullopt;
}

}  // namespace wayloom
