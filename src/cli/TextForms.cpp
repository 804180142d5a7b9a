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

nlohmann::json toJson(Coordinate coordinate) {
  return {{"latitude", coordinate.latitude}, {"longitude", coordinate.longitude}};
}

std::string oneLine(std::string text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x20 || byte == 0x7F) text[at] = ' ';
    // U+0080 to U+009F, which terminals obey as well, are C2 80 to C2 9F in UTF-8.
    const auto next = static_cast<unsigned char>(at + 1 < text.size() ? text[at + 1] : '\0');
    if (byte == 0xC2 && next >= 0x80 && next <= 0x9F) text.replace(at, 2, " ");
  }
  return text;
}

}  // namespace wayloom
