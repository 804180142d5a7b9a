#include "cli/PlaceArgument.h"

#include <charconv>
#include <cmath>

#include "settings/TrimmedText.h"

namespace wayloom {

namespace {

constexpr std::chrono::seconds kPatience{30};

std::optional<double> parseDegrees(std::string_view text, double limit) {
  std::string trimmed = trimmedText(text);
  if (trimmed.starts_with('+')) trimmed.erase(0, 1);
  double value = 0;
  const char* end = trimmed.data() + trimmed.size();
  const auto [stopped, error] = std::from_chars(trimmed.data(), end, value);
  if (error != std::errc() || stopped != end || !(std::abs(value) <= limit)) return std::nullopt;
  return value;
}

bool looksLikeCoordinate(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789+-., \t") == std::string_view::npos;
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
  if (text.starts_with("#:")) text.remove_prefix(2);
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return std::nullopt;
  const auto latitude = parseDegrees(text.substr(0, comma), 90);
  const auto longitude = parseDegrees(text.substr(comma + 1), 180);
  if (!latitude || !longitude) return std::nullopt;
  return Coordinate{*latitude, *longitude};
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
  if (trimmedText(argument).empty()) return line.wrongUsage("the place is empty");
  const bool marked = argument.starts_with("#:");
  const std::string text = marked ? argument.substr(2) : argument;
  if (marked || looksLikeCoordinate(text)) {
    if (const auto coordinate = parseCoordinate(text)) return GeocodedPlace{*coordinate, {}};
    return line.wrongUsage("'" + argument +
                           "' is no position: give LATITUDE,LONGITUDE in degrees, latitude within "
                           "90 and longitude within 180");
  }
  const std::string address = trimmedText(text);
  const GeocoderAnswer answer = geocodeNow(line, address, std::nullopt);
  if (answer.places && !answer.places->empty()) return answer.places->front();
  return line.fail(answer.error.value_or("Nothing was found") + " ('" + address +
                   "'); try another spelling, or give LATITUDE,LONGITUDE");
}

}  // namespace wayloom
