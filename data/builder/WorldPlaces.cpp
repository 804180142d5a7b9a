#include "WorldPlaces.h"

#include <algorithm>
#include <map>

#include "CountryNames.h"
#include "Gazetteer.h"
#include "regions/PlaceWriter.h"

namespace wayloom {

namespace {

// What the settlements of one country or division add up to.
struct Sum {
  std::int64_t population = 0;
  const City* largest = nullptr;
  const City* capital = nullptr;
  const City* namesake = nullptr;

  void add(const City& city, bool isNamesake) {
    // Parts of cities are counted with their city.
    if (city.featureCode != "PPLX") population += city.population;
    if (!largest || city.population > largest->population) largest = &city;
    if (city.featureCode == "PPLC" && (!capital || city.population > capital->population)) {
      capital = &city;
    }
    if (isNamesake && (!namesake || city.population > namesake->population)) namesake = &city;
  }
};

IndexedPlace settlementPlace(const Gazetteer& gazetteer, const City& city) {
  IndexedPlace indexed;
  indexed.place = {PlaceKind::kSettlement,
                   city.name,
                   "",
                   gazetteer.divisionName(city),
                   gazetteer.countryName(city.country),
                   city.coordinate,
                   city.population};
  indexed.otherNames = gazetteer.otherNames(city);
  indexed.otherContext = city.adminCode + ' ' + gazetteer.countryWords(city.country);
  return indexed;
}

// Divisions have no position in the data. They stand at their city of the same name, else at their
// largest: where someone who names the division most likely means to be.
Status addDivisions(const Gazetteer& gazetteer, PlaceWriter& writer) {
  const auto folder = NameFolder::create();
  if (!folder) return folder.failure();
  std::map<std::pair<std::string, std::string>, Sum> divisions;
  for (const City& city : gazetteer.cities()) {
    const std::string name = gazetteer.divisionName(city);
    if (!name.empty())
      divisions[{city.country, name}].add(city, folder->key(city.name) == folder->key(name));
  }
  for (const auto& [key, sum] : divisions) {
    const auto& [country, name] = key;
    IndexedPlace indexed;
    indexed.place = {PlaceKind::kDivision,
                     name,
                     "",
                     "",
                     gazetteer.countryName(country),
                     (sum.namesake ? sum.namesake : sum.largest)->coordinate,
                     sum.population};
    indexed.otherContext = gazetteer.countryWords(country);
    writer.add(std::move(indexed));
  }
  return done();
}

// Countries stand at their capital, else at their largest settlement, else somewhere on their edge.
void addCountries(const Gazetteer& gazetteer, PlaceWriter& writer) {
  std::map<std::string, Sum> sums;
  for (const City& city : gazetteer.cities()) {
    const std::string name = gazetteer.countryName(city.country);
    sums[name].add(city, false);
  }
  const Topology& map = gazetteer.countries();
  for (const Topology::Area& area : map.areas) {
    IndexedPlace indexed;
    for (const auto& polygon : area.polygons) {
      auto& rings = indexed.areas.emplace_back();
      for (const auto& ring : polygon) rings.push_back(map.outline(ring));
    }
    if (indexed.areas.empty()) continue;
    const std::string name = fullCountryName(area.name);
    const Sum& sum = sums[name];
    const City* const city = sum.capital ? sum.capital : sum.largest;
    indexed.place = {PlaceKind::kCountry, name, "", "", "", {}, sum.population};
    indexed.place.coordinate = city ? city->coordinate : indexed.areas.front().front().front();
    indexed.otherNames = {area.name};
    if (city) {
      for (auto& other : gazetteer.otherCountryNames(city->country)) {
        indexed.otherNames.push_back(std::move(other));
      }
    }
    writer.add(std::move(indexed));
  }
}

}  // namespace

Status addWorldPlaces(Database& database, const std::filesystem::path& packages) {
  const auto gazetteer = Gazetteer::read(packages);
  if (!gazetteer) return gazetteer.failure();
  auto writer = PlaceWriter::create();
  if (!writer) return writer.failure();
  for (const City& city : gazetteer->cities()) writer->add(settlementPlace(*gazetteer, city));
  if (auto status = addDivisions(*gazetteer, *writer); !status) return status;
  addCountries(*gazetteer, *writer);
  return writer->write(database);
}

}  // namespace wayloom
