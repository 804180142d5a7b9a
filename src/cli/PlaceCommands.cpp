#include <algorithm>

#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/Table.h"
#include "cli/TextForms.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {

nlohmann::json toJson(const GeocodedPlace& place) {
  return {{"latitude", place.coordinate.latitude},
          {"longitude", place.coordinate.longitude},
          {"address", place.formattedAddressLines}};
}

}  // namespace

ExitStatus searchPlaces(CommandLine& line, const std::string& text,
                        const std::optional<std::string>& near, int limit) {
  std::optional<Coordinate> center;
  if (near && !(center = parseCoordinate(*near))) {
    return line.wrongUsage(inQuotes(*near) + " is no position: give LATITUDE,LONGITUDE in degrees");
  }
  const std::string address = trimmedText(text);
  if (address.empty()) return line.wrongUsage("the text to search for is empty");

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
