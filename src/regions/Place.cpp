#include "regions/Place.h"

namespace wayloom {

namespace {

void append(std::string& line, std::string& last, const std::string& name) {
  if (name.empty() || name == last) return;
  if (!line.empty()) line += ", ";
  line += name;
  last = name;
}

}  // namespace

std::vector<std::string> addressLines(const Place& place) {
  std::string first;
  std::string rest;
  std::string last;
  const bool hasSecondLine = !place.locality.empty() && (place.kind == PlaceKind::kStreet ||
                                                         place.kind == PlaceKind::kAddress);
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
