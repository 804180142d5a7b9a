#include "platform/Place.h"

namespace wayloom {

namespace {

constexpr std::string_view kKindNames[] = {"country", "division",          "settlement", "street",
                                           "address", "point of interest", "postcode"};

void append(std::string& line, std::string& last, const std::string& name) {
  if (name.empty() || name == last) return;
  if (!line.empty()) line += ", ";
  line += name;
  last = name;
}

}  // namespace

std::optional<PlaceKind> placeKind(std::int64_t number) {
  if (number < 1 || number > static_cast<std::int64_t>(std::size(kKindNames))) return std::nullopt;
  return static_cast<PlaceKind>(number);
}

std::string_view kindName(PlaceKind kind) {
  return kKindNames[static_cast<std::size_t>(kind) - 1];
}

std::vector<std::string> addressLines(const Place& place) {
  std::string first;
  std::string rest;
  std::string last;
  const bool hasSecondLine = !place.locality.empty() && (place.kind >= PlaceKind::kStreet);
  append(first, last, place.name);
  append(first, last, place.locality);
  append(hasSecondLine ? rest : first, last, place.division);
  append(hasSecondLine ? rest : first, last, place.country);
  std::vector<std::string> lines;
  for (auto* line : {&first, &rest}) {
    if (!line->empty()) lines.push_back(std::move(*line));
  }
  return lines;
}

}  // namespace wayloom
