#include "places/GridReference.h"

#include <GeographicLib/MGRS.hpp>
#include <GeographicLib/UTMUPS.hpp>
#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

#include "places/AsciiCapitals.h"

namespace wayloom {

namespace {

constexpr std::size_t kMostCharacters = 64;
constexpr std::string_view kBands = "CDEFGHJKLMNPQRSTUVWX";
constexpr std::size_t kSouthernBands = 10;
// Separators, and the letters of "672000 mE" and "N6399000": eastings come first in any case.
constexpr std::string_view kBetweenNumbers = " ,;:/MEN";

bool isAsciiDigit(char character) {
  return character >= '0' && character <= '9';
}

/// Calls what throws when a number names nothing.
template <typename Convert>
Result<Coordinate> converted(Convert&& convert) {
  try {
    Coordinate position;
    convert(position.latitude, position.longitude);
    if (isOnGlobe(position)) return position;
  } catch (const GeographicLib::GeographicErr&) {
  }
  return failed("this grid reference names no place");
}

struct UtmParts {
  int zone = 0;
  char letter = 0;
  std::vector<double> metres;
};

/// Numbers, single letters and units; 'letter' is that of the zone.
std::optional<UtmParts> utmParts(const std::string& text) {
  UtmParts parts;
  bool hasZone = false;
  for (std::size_t at = text.starts_with("UTM") ? 3 : 0; at < text.size();) {
    if (isAsciiDigit(text[at])) {
      double number = 0;
      const auto read =
          std::from_chars(&text[at], text.data() + text.size(), number, std::chars_format::fixed);
      at = static_cast<std::size_t>(read.ptr - text.data());
      if (!hasZone && number <= 60 && number >= 1 && number == static_cast<int>(number)) {
        hasZone = true;
        parts.zone = static_cast<int>(number);
        while (at < text.size() && text[at] == ' ') ++at;
        if (at == text.size()) return std::nullopt;
        parts.letter = text[at++];
      } else {
        parts.metres.push_back(number);
      }
    } else if (text.compare(at, 4, "ZONE") == 0) {
      at += 4;
    } else if (kBetweenNumbers.find(text[at]) != kBetweenNumbers.npos) {
      ++at;
    } else {
      return std::nullopt;
    }
  }
  constexpr double kLeastMetres = 1000;  // Less are degrees, or anything.
  const bool isWhole = hasZone && parts.metres.size() == 2 && parts.metres[0] >= kLeastMetres &&
                       parts.metres[1] >= kLeastMetres;
  return isWhole ? std::optional(std::move(parts)) : std::nullopt;
}

/// Whether the zone's letter, a latitude band or a hemisphere, means the north; none when that
/// cannot be told: S is the south, and the band from 32 to 40 degrees north.
std::optional<bool> isNorth(const UtmParts& parts) {
  constexpr double kBandBegin = 3'500'000;
  constexpr double kBandEnd = 4'450'000;
  const double northing = parts.metres[1];
  if (parts.letter != 'S') return kBands.find(parts.letter) >= kSouthernBands;
  if (northing >= kBandBegin && northing <= kBandEnd) return std::nullopt;
  return false;
}

}  // namespace

std::optional<Result<Coordinate>> readUtm(std::string_view text) {
  if (text.size() > kMostCharacters) return std::nullopt;
  const auto parts = utmParts(capitals(text));
  if (!parts || kBands.find(parts->letter) == kBands.npos) return std::nullopt;
  const auto north = isNorth(*parts);
  if (!north) {
    return failed("zone letter S may be the south or a band of the north: give another form");
  }
  return converted([&](double& latitude, double& longitude) {
    constexpr bool kOnlyWithinZones = true;
    GeographicLib::UTMUPS::Reverse(parts->zone, *north, parts->metres[0], parts->metres[1],
                                   latitude, longitude, kOnlyWithinZones);
  });
}

std::optional<Result<Coordinate>> readMgrs(std::string_view text) {
  if (text.size() > kMostCharacters) return std::nullopt;
  std::string reference = capitals(text);
  if (reference.starts_with("MGRS")) reference.erase(0, 4);
  std::erase(reference, ' ');
  // Zone, band, two letters of the square, then as many digits of easting as of northing.
  const std::size_t zone = reference.find_first_not_of("0123456789");
  if (zone == 0 || zone > 2 || reference.size() < zone + 3 + 4) return std::nullopt;
  const std::string_view letters = std::string_view(reference).substr(zone, 3);
  const std::string_view digits = std::string_view(reference).substr(zone + 3);
  const auto isLetter = [](char character) { return character >= 'A' && character <= 'Z'; };
  if (!std::all_of(letters.begin(), letters.end(), isLetter)) return std::nullopt;
  if (!std::all_of(digits.begin(), digits.end(), isAsciiDigit) || digits.size() % 2 != 0) {
    return std::nullopt;
  }
  return converted([&](double& latitude, double& longitude) {
    int number = 0;
    int precision = 0;
    bool isNorthern = false;
    double easting = 0;
    double northing = 0;
    GeographicLib::MGRS::Reverse(reference, number, isNorthern, easting, northing, precision);
    GeographicLib::UTMUPS::Reverse(number, isNorthern, easting, northing, latitude, longitude);
  });
}

// Pairs of longitude and latitude, each dividing the field before it: 18, 10, 24, 10, 24 parts
// (IARU Region 1, 1980).
std::optional<Coordinate> readMaidenhead(std::string_view text) {
  constexpr int kParts[] = {18, 10, 24, 10, 24};
  if (text.size() < 6 || text.size() > 10 || text.size() % 2 != 0) return std::nullopt;
  double longitude = -180;
  double latitude = -90;
  double width = 360;
  double height = 180;
  for (std::size_t pair = 0; pair < text.size() / 2; ++pair) {
    const int parts = kParts[pair];
    const char first = parts == 10 ? '0' : 'A';
    const int east = capital(text[2 * pair]) - first;
    const int north = capital(text[2 * pair + 1]) - first;
    if (east < 0 || east >= parts || north < 0 || north >= parts) return std::nullopt;
    width /= parts;
    height /= parts;
    longitude += east * width;
    latitude += north * height;
  }
  return Coordinate{latitude + height / 2, longitude + width / 2};
}

}  // namespace wayloom
