#include "places/PlaceText.h"

#include <optional>

#include "places/DegreesText.h"
#include "places/GridReference.h"
#include "places/MapLink.h"
#include "places/OpenLocationCode.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {

PlaceText checked(const Result<Coordinate>& position) {
  if (position) return *position;
  return position.failure();
}

/// A plain text as ASCII without blanks at its ends; none when it has other characters.
std::optional<std::string> asciiText(const std::u32string& plain) {
  std::string text;
  for (const char32_t character : plain) {
    if (character >= 0x7F) return std::nullopt;
    text += static_cast<char>(character);
  }
  return trimmedText(text);
}

/// Whether a text is a short code and no sum.
bool isCodeOfLetters(std::string_view text) {
  return isShortCode(text) && text.find_first_not_of("0123456789+") != text.npos;
}

/// A short code alone, or with the name of a place before or behind it.
std::optional<ShortPlaceCode> shortCode(std::string_view words) {
  static constexpr std::string_view kBetween = " ,";
  const std::size_t firstEnd = words.find_first_of(kBetween);
  const std::size_t lastBegin = words.find_last_of(kBetween);
  if (firstEnd == words.npos) {
    const bool isCode = isCodeOfLetters(words) && words.find('+') == 4;
    return isCode ? std::optional(ShortPlaceCode{std::string(words), {}}) : std::nullopt;
  }
  const auto named = [](std::string_view code, std::string_view place) {
    place.remove_prefix(std::min(place.find_first_not_of(kBetween), place.size()));
    place = place.substr(0, place.find_last_not_of(kBetween) + 1);
    return ShortPlaceCode{std::string(code), std::string(place)};
  };
  const std::string_view first = words.substr(0, firstEnd);
  const std::string_view last = words.substr(lastBegin + 1);
  if (isCodeOfLetters(first)) return named(first, words.substr(firstEnd));
  if (isCodeOfLetters(last)) return named(last, words.substr(0, lastBegin));
  return std::nullopt;
}

/// Grid references and codes; none when the text is neither.
std::optional<PlaceText> readCode(const std::string& text) {
  if (const auto position = readUtm(text)) return checked(*position);
  if (const auto position = readMgrs(text)) return checked(*position);
  if (const auto position = readMaidenhead(text)) return *position;
  return std::nullopt;
}

}  // namespace

PlaceText readPlaceText(std::string_view text, std::string_view language) {
  const auto plain = plainText(text);
  if (!plain) return PlaceName{std::string(text)};
  if (const auto position = readDegrees(*plain, language)) return checked(*position);
  if (const auto link = linkIn(text)) {
    const auto target = readMapLink(*link);
    if (!target) return target.failure();
    if (const auto* position = std::get_if<Coordinate>(&*target)) return *position;
    // The words may be a code, but no further link.
    const std::string& words = std::get<std::string>(*target);
    return linkIn(words) ? PlaceText(PlaceName{words}) : readPlaceText(words, language);
  }
  if (const auto ascii = asciiText(*plain)) {
    if (auto position = readCode(*ascii)) return *std::move(position);
  }
  // A full code may be followed by the place that it names as well.
  const std::string trimmed = trimmedText(text);
  if (const auto position = readFullCode(trimmed.substr(0, trimmed.find_first_of(" ,")))) {
    return *position;
  }
  if (auto code = shortCode(trimmed)) return *std::move(code);
  return PlaceName{std::string(text)};
}

}  // namespace wayloom
