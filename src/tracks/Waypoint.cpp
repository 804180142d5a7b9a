#include "tracks/Waypoint.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "settings/DecimalNumber.h"
#include "settings/TextConversions.h"
#include "settings/TrimmedText.h"
#include "settings/Utf8.h"

namespace wayloom {

namespace {

bool isControl(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029;
}

/// XML cannot hold these two.
bool isNoCharacter(char32_t c) {
  return c == 0xFFFE || c == 0xFFFF;
}

/// What is wrong with a name; null when nothing is.
const char* nameProblem(std::string_view name) {
  if (name.size() > kMaximumNameBytes) return "its name is longer than 10000 bytes";
  for (std::size_t at = 0; at < name.size();) {
    const Utf8Step step = utf8Step(name, at);
    if (!step.valid || isNoCharacter(step.character)) return "its name is not UTF-8";
    if (isControl(step.character)) return "its name has control characters";
    at += step.length;
  }
  return nullptr;
}

/// Files are indented, so that a name may go over lines.
std::string onOneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    if (!isAsciiSpace(c) || c == '\v' || c == '\f') {
      line += c;
    } else if (!line.ends_with(' ')) {
      line += ' ';
    }
  }
  return trimmedText(line);
}

std::string offGlobe(Coordinate coordinate) {
  const bool isLatitude = !(std::abs(coordinate.latitude) <= 90);
  const double value = isLatitude ? coordinate.latitude : coordinate.longitude;
  if (std::isnan(value)) return "it has no position that can be read";
  const std::string number = std::abs(value) < 1e9 ? ' ' + formatReal(value) : std::string();
  return isLatitude ? "the latitude" + number + " is beyond 90 degrees"
                    : "the longitude" + number + " is beyond 180 degrees";
}

}  // namespace

bool WaypointCollector::add(std::string_view name, Coordinate coordinate) {
  if (hasFailed()) return false;
  if (mWaypoints.size() == kMaximumWaypoints) {
    return refuse("no more than 100000 can be read");
  }
  if (!isOnGlobe(coordinate)) return refuse(offGlobe(coordinate));
  Waypoint waypoint{onOneLine(name), coordinate};
  if (const char* problem = nameProblem(waypoint.name)) return refuse(problem);
  mWaypoints.push_back(std::move(waypoint));
  return true;
}

bool WaypointCollector::refuse(const std::string& why) {
  if (!hasFailed()) mProblem = "place " + std::to_string(mWaypoints.size() + 1) + ": " + why;
  return false;
}

Result<Waypoints> WaypointCollector::take() && {
  if (hasFailed()) return failed(std::move(mProblem));
  return std::move(mWaypoints);
}

double wholeNumber(std::string_view text) {
  const std::string number = trimmedText(text);
  const DecimalNumber found = leadingDecimalNumber(number);
  const bool isWhole = found.length > 0 && found.length == number.size();
  return isWhole ? found.value : std::numeric_limits<double>::quiet_NaN();
}

std::string degreesText(double degrees) {
  // The smallest of all numbers takes 326 places behind the point.
  std::array<char, 400> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), degrees,
                                 std::chars_format::fixed);
  return {digits.data(), end.ptr};
}

std::string writableName(std::string_view name) {
  std::string result;
  for (std::size_t at = 0; at < name.size();) {
    const Utf8Step step = utf8Step(name, at);
    const bool isNone = isNoCharacter(step.character);
    appendUtf8(result, isControl(step.character) ? U' '
                       : isNone                  ? kReplacementCharacter
                                                 : step.character);
    at += step.length;
  }
  return onOneLine(result);
}

std::string xmlText(std::string_view text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      case '\'':
        result += "&apos;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

}  // namespace wayloom
