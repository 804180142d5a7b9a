#include "fixed/SearchInput.h"

#include "settings/TextConversions.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {
constexpr std::string_view kCoordinatePrefix = "#:";
}

std::optional<std::string> markedPosition(std::string_view text) {
  std::string trimmed = trimmedText(text);
  if (!trimmed.starts_with(kCoordinatePrefix)) return std::nullopt;
  return trimmed.substr(kCoordinatePrefix.size());
}

std::optional<CoordinateTexts> splitCoordinate(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == text.npos || text.find(',', comma + 1) != text.npos) return std::nullopt;
  return CoordinateTexts{trimmedText(text.substr(0, comma)), trimmedText(text.substr(comma + 1))};
}

SearchInput parseSearchInput(std::string_view text) {
  if (const auto position = markedPosition(text)) {
    const auto parts = splitCoordinate(*position);
    if (!parts) return MalformedCoordinateSearch();
    return Coordinate{doubleValue(parts->latitude), doubleValue(parts->longitude)};
  }
  std::string trimmed = trimmedText(text);
  if (trimmed.empty()) return EmptySearch();
  return AddressSearch{std::move(trimmed)};
}

}  // namespace wayloom
