#include <algorithm>
#include <cmath>

#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/Table.h"
#include "cli/TextForms.h"
#include "fixed/SearchInput.h"
#include "regions/GroundGeometry.h"
#include "regions/PlaceIndex.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {

nlohmann::json toJson(const GeocodedPlace& place) {
  return {{"latitude", place.coordinate.latitude},
          {"longitude", place.coordinate.longitude},
          {"address", place.formattedAddressLines}};
}

// What the arguments ask for.
struct Question {
  std::string text;
  std::optional<Coordinate> near;
};

std::variant<Question, ExitStatus> understand(CommandLine& line, const std::string& text,
                                              const std::optional<std::string>& near) {
  Question question{trimmedText(text), std::nullopt};
  if (near && !(question.near = parseCoordinate(*near))) {
    return line.wrongUsage(inQuotes(*near) + " is no position: give LATITUDE,LONGITUDE in degrees");
  }
  if (const auto position = markedPosition(question.text)) question.text = *position;
  if (question.text.empty()) return line.wrongUsage("the text to search for is empty");
  return question;
}

// Kind, name, what it lies in, and how far away it is, if that is known.
void addSuggestion(Table& table, const Place& place, std::optional<Coordinate> near) {
  std::vector<std::string> cells = {std::string(kindName(place.kind)), place.name, place.locality,
                                    place.division, place.country};
  nlohmann::json json = toJson(place.coordinate);
  const char* const keys[] = {"kind", "name", "locality", "division", "country"};
  for (std::size_t index = 0; index < cells.size(); ++index) json[keys[index]] = cells[index];
  if (near) {
    const double metres = distanceMetres(*near, place.coordinate);
    json["distance"] = std::round(metres);
    cells.push_back(shortNumber(std::round(metres / 100) / 10) + " km");
  }
  table.add(cells, std::move(json));
}

}  // namespace

ExitStatus suggestPlaces(CommandLine& line, const std::string& text,
                         const std::optional<std::string>& near, int limit) {
  const auto question = understand(line, text, near);
  if (const auto* status = std::get_if<ExitStatus>(&question)) return *status;
  const auto& [typed, center] = std::get<Question>(question);
  auto index = PlaceIndex::open(line.regions());
  if (!index) return line.fail(index.failure().message);
  const auto found = index->suggest(typed, center, static_cast<std::size_t>(limit));
  if (found.empty()) return line.fail("Nothing to suggest was found (" + inQuotes(typed) + ")");
  Table table;
  for (const Place& place : found) addSuggestion(table, place, center);
  return line.answer(std::move(table).orNote(""));
}

ExitStatus searchPlaces(CommandLine& line, const std::string& text,
                        const std::optional<std::string>& near, int limit) {
  const auto question = understand(line, text, near);
  if (const auto* status = std::get_if<ExitStatus>(&question)) return *status;
  const auto& [address, center] = std::get<Question>(question);
  GeocoderAnswer found = geocodeNow(line, address, center);
  if (!found.places || found.places->empty()) {
    return line.fail(found.error.value_or("Nothing was found") + " (" + inQuotes(address) + ")");
  }
  found.places->resize(std::min(found.places->size(), static_cast<std::size_t>(limit)));
  Table table;
  for (const GeocodedPlace& place : *found.places) {
    table.add({coordinateText(place.coordinate) + "  " + firstFormattedLine(place).value_or("")},
              toJson(place));
  }
  return line.answer(std::move(table).orNote(""));
}

ExitStatus showAddress(CommandLine& line, const std::string& place) {
  const ResolvedPlace resolved = resolvePlace(line, place);
  if (const auto* status = std::get_if<ExitStatus>(&resolved)) return *status;
  const Coordinate coordinate = std::get<GeocodedPlace>(resolved).coordinate;
  const GeocoderAnswer found = reverseGeocodeNow(line, coordinate);
  if (!found.places || found.places->empty()) {
    return line.fail(found.error.value_or("No address is known") + " (" +
                     coordinateText(coordinate) + ")");
  }
  std::string text;
  for (const std::string& addressLine : found.places->front().formattedAddressLines) {
    if (!text.empty()) text += '\n';
    text += oneLine(addressLine);
  }
  return line.answer({std::move(text), toJson(found.places->front())});
}

}  // namespace wayloom
