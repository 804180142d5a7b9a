#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "geo/Coordinate.h"
#include "settings/Result.h"

namespace wayloom {

/// A named position as programs exchange it in files.
struct Waypoint {
  /// One line of UTF-8; empty when the file gives none.
  std::string name;
  Coordinate coordinate;

  bool operator==(const Waypoint&) const = default;
};

using Waypoints = std::vector<Waypoint>;

// What a file may hold. Files come from other people; the limits keep a reader's memory small.
inline constexpr std::size_t kMaximumWaypointBytes = std::size_t{64} << 20;
inline constexpr std::size_t kMaximumWaypoints = 100'000;
inline constexpr std::size_t kMaximumNameBytes = 10'000;
inline constexpr std::size_t kMaximumDepth = 100;

/// Puts the waypoints of a file together. What cannot be one ends the reading: nothing of such a
/// file is used.
class WaypointCollector {
 public:
  /// Trims the name and makes one blank of each run of blanks and line ends. False when the place
  /// is off the globe, the name has other control characters or is no UTF-8, or a limit is passed.
  [[nodiscard]] bool add(std::string_view name, Coordinate coordinate);
  /// Ends the reading with what is wrong with the waypoint that comes next; false.
  bool refuse(const std::string& why);

  /// The waypoints, or what was wrong.
  Result<Waypoints> take() &&;
  bool hasFailed() const { return !mProblem.empty(); }

 private:
  Waypoints mWaypoints;
  std::string mProblem;
};

/// A number that fills the whole text but for blanks at its ends; not-a-number for any other text.
double wholeNumber(std::string_view text);

/// Degrees with as many digits as it takes to read the same number again, and no exponent.
std::string degreesText(double degrees);

/// The name as a file can hold it: one blank for each control character, U+FFFD for what is no
/// UTF-8.
std::string writableName(std::string_view name);

/// The text with the five characters that mean something in XML written as entities.
std::string xmlText(std::string_view text);

}  // namespace wayloom
