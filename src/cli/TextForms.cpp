#include "cli/TextForms.h"

#include <array>
#include <charconv>

#include "settings/Utf8.h"

namespace wayloom {

namespace {

/// Control characters, ends of lines, and marks that turn the direction of writing around.
bool actsOnTerminals(char32_t c) {
  const bool isControl = c < 0x20 || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029;
  const bool turns = c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
                     (c >= 0x2066 && c <= 0x2069);
  return isControl || turns;
}

}  // namespace

std::string shortNumber(double value) {
  std::array<char, 32> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  return {digits.data(), result.ptr};
}

nlohmann::json toJson(Coordinate coordinate) {
  return {{"latitude", coordinate.latitude}, {"longitude", coordinate.longitude}};
}

std::string oneLine(std::string_view text, std::size_t mostCharacters) {
  std::string line;
  for (std::size_t at = 0, count = 0; at < text.size(); ++count) {
    if (count == mostCharacters) return line + "…";
    const Utf8Step step = utf8Step(text, at);
    if (actsOnTerminals(step.character)) {
      line += ' ';
    } else {
      appendUtf8(line, step.character);
    }
    at += step.length;
  }
  return line;
}

std::string inQuotes(std::string_view argument) {
  constexpr std::size_t kMostCharacters = 200;
  return '\'' + oneLine(argument, kMostCharacters) + '\'';
}

}  // namespace wayloom
