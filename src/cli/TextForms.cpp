#include "cli/TextForms.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "settings/TextConversions.h"

namespace wayloom {

std::string shortNumber(double value) {
  std::array<char, 32> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  return {digits.data(), result.ptr};
}

std::string oneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
  return text;
}

std::string coordinateText(Coordinate coordinate) {
  return formatReal(coordinate.latitude) + ", " + formatReal(coordinate.longitude);
}

}  // namespace wayloom
