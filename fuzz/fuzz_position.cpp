#include <cmath>

#include "cli/PlaceArgument.h"
#include "cli/TextForms.h"
#include "fixed/SearchInput.h"
#include "fuzz/Fuzzing.h"

using namespace wayloom;

/// A position that was typed or pasted: what the command line takes lies on the globe, reads the
/// same in the search field, and its own form of it reads back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const std::string_view text = textOf(bytes, count);
  const SearchInput input = parseSearchInput(text);
  if (const auto* search = std::get_if<AddressSearch>(&input)) {
    require(!search->address.empty() && !search->address.starts_with("#:"));
  }
  const auto position = parseCoordinate(text);
  if (!position) return 0;
  require(std::abs(position->latitude) <= 90 && std::abs(position->longitude) <= 180);
  const auto shown = parseCoordinate(coordinateText(*position));
  require(shown && std::abs(shown->latitude - position->latitude) < 1e-6 &&
          std::abs(shown->longitude - position->longitude) < 1e-6);
  const SearchInput typed = parseSearchInput("#:" + coordinateText(*position));
  require(std::holds_alternative<Coordinate>(typed) && std::get<Coordinate>(typed) == *shown);
  return 0;
}
