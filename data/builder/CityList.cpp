#include "CityList.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace wayloom {

namespace {

enum Field : std::size_t {
  kName = 1,
  kPlainName = 2,
  kOtherNames = 3,
  kLatitude = 4,
  kLongitude = 5,
  kFeatureCode = 7,
  kCountry = 8,
  kAdminCode = 10,
  kPopulation = 14,
  kFields = 19,
};

constexpr std::string_view kCityWord = "市";

// The text before the next separator, which is taken from the front with it.
std::string_view takeUntil(char separator, std::string_view& text) {
  const std::size_t end = std::min(text.find(separator), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

template <typename Number>
bool readNumber(std::string_view text, Number& number) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end;
}

bool isSmall(char letter) {
  return letter >= 'a' && letter <= 'z';
}

bool isCode(std::string_view name) {
  return name.size() <= 4 && std::all_of(name.begin(), name.end(), [](char letter) {
           return letter >= 'A' && letter <= 'Z';
         });
}

// In other alphabets a sign softens consonants, which libraries write as an apostrophe
// ("Kal'kutta").
bool isLibrarians(std::string_view name) {
  constexpr std::string_view kConsonants = "bcdfghjklmnpqrstvwxz";
  for (std::size_t at = 1; at + 1 < name.size(); ++at) {
    if (name[at] == '\'' && isSmall(name[at + 1]) &&
        kConsonants.find(name[at - 1]) != std::string_view::npos) {
      return true;
    }
  }
  return false;
}

std::optional<City> readCity(std::string_view line) {
  if (std::count(line.begin(), line.end(), '\t') != kFields - 1) return std::nullopt;
  std::array<std::string_view, kFields> fields;
  for (auto& field : fields) field = takeUntil('\t', line);
  City city;
  if (!readNumber(fields[kLatitude], city.coordinate.latitude) ||
      !readNumber(fields[kLongitude], city.coordinate.longitude) ||
      !readNumber(fields[kPopulation], city.population) || !isOnGlobe(city.coordinate)) {
    return std::nullopt;
  }
  city.name = fields[kName];
  city.country = fields[kCountry];
  city.featureCode = fields[kFeatureCode];
  city.adminCode = fields[kAdminCode];
  city.otherNames = spokenNames(fields[kOtherNames]);
  if (fields[kPlainName] != city.name) city.otherNames.emplace_back(fields[kPlainName]);
  return city;
}

}  // namespace

std::vector<std::string> spokenNames(std::string_view names) {
  std::vector<std::string> spoken;
  while (!names.empty()) {
    const std::string_view name = takeUntil(',', names);
    if (name.empty() || isSmall(name.front()) || isCode(name) || isLibrarians(name)) continue;
    spoken.emplace_back(name);
    // "罗马市" is 罗马 with the word for a city.
    if (name.ends_with(kCityWord) && name.size() > 2 * kCityWord.size()) {
      spoken.emplace_back(name.substr(0, name.size() - kCityWord.size()));
    }
  }
  return spoken;
}

std::optional<std::vector<City>> readCityList(std::string_view text) {
  std::vector<City> cities;
  while (!text.empty()) {
    auto city = readCity(takeUntil('\n', text));
    if (!city) return std::nullopt;
    cities.push_back(std::move(*city));
  }
  return cities;
}

}  // namespace wayloom
