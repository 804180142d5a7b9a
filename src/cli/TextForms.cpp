#include "cli/TextForms.h"

#include <array>
#include <charconv>

#include "settings/TextConversions.h"

namespace wayloom {

std::string shortNumber(double value) {
  std::array<char, 32> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  return {digits.data(), result.ptr};
}

std::string coordinateText(Coordinate coordinate) {
  return formatReal(coordinate.latitude) + ", " + formatReal(coordinate.longitude);
}

}  // namespace wayloom
