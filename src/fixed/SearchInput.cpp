#include "fixed/SearchInput.h"

#include "settings/TextConversions.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {
constexpr std::string_view kCoordinatePrefix = "#:";
}

SearchInput parseSearchInput(std::string_view text) {
  std::string trimmed = trimmedText(text);
  if (trimmed.empty()) return EmptySearch();
  if (!trimmed.starts_with(kCoordinatePrefix)) return AddressSearch{std::move(trimmed)};

  const std::string_view parts = std::string_view(trimmed).substr(kCoordinatePrefix.size());
  const std::size_t comma = parts.find(',');
  if (comma == std::string_view::npos || parts.find(',', comma + 1) != std::string_view::npos) {
    return MalformedCoordinateSearch();
  }
  return Coordinate{doubleValue(parts.substr(0, comma)), doubleValue(parts.substr(comma + 1))};
}

}  // namespace wayloom
