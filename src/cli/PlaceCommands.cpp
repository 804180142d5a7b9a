#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
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
    return line.wrongUsage("'" + *near + "' is no position: give LATITUDE,LONGITUDE in degrees");
  }
  const std::string address = trimmedText(text);
  if (address.empty()) return line.wrongUsage("the text to search for is empty");

  const GeocoderAnswer found = geocodeNow(line, address, center);
  if (!found.places || found.places->empty()) {
    return line.fail(found.error.value_or("Nothing was found") + " ('" + address + "')");
  }
  Answer answer{"", nlohmann::json::array()};
  for (const GeocodedPlace& place : *found.places) {
    if (static_cast<int>(answer.json.size()) == limit) break;
    answer.json.push_back(toJson(place));
    if (!answer.text.empty()) answer.text += '\n';
    answer.text +=
        coordinateText(place.coordinate) + "  " +
        (place.formattedAddressLines.empty() ? "" : oneLine(place.formattedAddressLines.front()));
  }
  return line.answer(answer);
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
