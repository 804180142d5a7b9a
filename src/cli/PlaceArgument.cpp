#include "cli/PlaceArgument.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "cli/TextForms.h"
#include "fixed/SearchInput.h"
#include "places/DegreesText.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {

constexpr std::chrono::seconds kPatience{30};

std::optional<double> parseDegrees(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  const char* end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, value);
  if (text.empty() || stopped != end) return std::nullopt;
  // What no double can hold is a number all the same.
  return error == std::errc() ? value : std::numeric_limits<double>::infinity();
}

/// Two complete numbers with a comma between them, whatever their size: "nan,inf" are two as well.
std::optional<Coordinate> parseNumbers(std::string_view text) {
  const auto parts = splitCoordinate(text);
  if (!parts) return std::nullopt;
  const auto latitude = parseDegrees(parts->latitude);
  const auto longitude = parseDegrees(parts->longitude);
  if (!latitude || !longitude) return std::nullopt;
  return Coordinate{*latitude, *longitude};
}

/// Whether a position was meant, and not an address, be it a wrong one.
bool looksLikeCoordinate(std::string_view text) {
  return text.find_first_not_of("0123456789+-., \t") == std::string_view::npos ||
         parseNumbers(text);
}

template <typename Ask>
GeocoderAnswer waitFor(CommandLine& line, Ask&& ask) {
  std::optional<GeocoderAnswer> answer;
  ask([&answer](const GeocoderAnswer& given) { answer = given; });
  if (!line.loop().runUntil([&] { return answer.has_value(); }, kPatience)) {
    return {std::nullopt, "the search took too long"};
  }
  return std::move(*answer);
}

}  // namespace

std::optional<Coordinate> parseCoordinate(std::string_view text) {
  const auto marked = markedPosition(text);
  const auto numbers = parseNumbers(marked ? *marked : text);
  return numbers && isOnGlobe(*numbers) ? numbers : std::nullopt;
}

GeocoderAnswer geocodeNow(CommandLine& line, const std::string& address,
                          std::optional<Coordinate> near) {
  return waitFor(line, [&](Geocoder::Completion completion) {
    line.geocoder().geocodeAddress(address, near, std::move(completion));
  });
}

GeocoderAnswer reverseGeocodeNow(CommandLine& line, Coordinate coordinate) {
  return waitFor(line, [&](Geocoder::Completion completion) {
    line.geocoder().reverseGeocode(coordinate, std::move(completion));
  });
}

ResolvedPlace resolvePlace(CommandLine& line, const std::string& argument) {
  const std::string address = trimmedText(argument);
  if (address.empty()) return line.wrongUsage("the place is empty");
  if (markedPosition(address) || looksLikeCoordinate(address)) {
    if (const auto coordinate = parseCoordinate(address)) return GeocodedPlace{*coordinate, {}};
    const auto numbers = parseNumbers(markedPosition(address).value_or(address));
    if (numbers && std::isfinite(numbers->latitude) && std::isfinite(numbers->longitude)) {
      return line.wrongUsage(inQuotes(argument) +
                             " is no position: " + checkedPosition(*numbers).message());
    }
    return line.wrongUsage(inQuotes(argument) +
                           " is no position: give LATITUDE,LONGITUDE in degrees, latitude within "
                           "90 and longitude within 180");
  }
  const GeocoderAnswer answer = geocodeNow(line, address, std::nullopt);
  if (answer.places && !answer.places->empty()) return answer.places->front();
  return line.fail(answer.error.value_or("Nothing was found") + " (" + inQuotes(address) +
                   "); try another spelling, or give LATITUDE,LONGITUDE");
}

}  // namespace wayloom
