#include "GothenburgPlaces.h"

#include <cmath>
#include <limits>

#include "Gazetteer.h"
#include "GeoJson.h"
#include "ReadFile.h"
#include "regions/PlaceWriter.h"
#include "regions/StreetMerger.h"

namespace wayloom {

namespace {

constexpr char kCountry[] = "SE";

// The municipalities' seats, one of which every street belongs to.
std::vector<const City*> municipalSeats(const Gazetteer& gazetteer) {
  std::vector<const City*> seats;
  for (const City& city : gazetteer.cities()) {
    if (city.country == kCountry && city.featureCode.starts_with("PPLA")) seats.push_back(&city);
  }
  return seats;
}

// A city reaches further than a small town.
const City* seatOf(const std::vector<const City*>& seats, Coordinate position) {
  const City* best = nullptr;
  double bestMetres = std::numeric_limits<double>::infinity();
  for (const City* seat : seats) {
    const double metres = distanceMetres(seat->coordinate, position) -
                          6 * std::sqrt(static_cast<double>(seat->population));
    if (metres >= bestMetres) continue;
    bestMetres = metres;
    best = seat;
  }
  return best;
}

std::vector<NamedWay> namedWays(const std::vector<GeoFeature>& features) {
  std::vector<NamedWay> ways;
  for (const GeoFeature& feature : features) {
    const std::string name = feature.property("name");
    // Platforms are called A, B, C.
    if (name.empty() || feature.property("highway") == "platform") continue;
    for (const auto& path : feature.paths) {
      if (!path.empty()) ways.push_back({name, path});
    }
  }
  return ways;
}

IndexedPlace streetPlace(const Gazetteer& gazetteer, const City& city, MergedStreet street) {
  IndexedPlace indexed;
  indexed.place = {PlaceKind::kStreet,
                   std::move(street.name),
                   city.name,
                   gazetteer.divisionName(city),
                   gazetteer.countryName(kCountry),
                   street.middle,
                   0};
  indexed.otherContext = gazetteer.countryWords(kCountry);
  for (const auto& name : gazetteer.otherNames(city)) indexed.otherContext += ' ' + name;
  indexed.lines = std::move(street.lines);
  return indexed;
}

}  // namespace

Status addGothenburgPlaces(Database& database, const std::filesystem::path& packages) {
  const auto gazetteer = Gazetteer::read(packages);
  if (!gazetteer) return gazetteer.failure();
  const auto text = readFile(packages / "geojson-path-finder/test/large-network.json");
  if (!text) return text.failure();
  const auto features = readGeoJson(*text);
  if (!features) return Failure{"the streets of Gothenburg are damaged"};
  const auto seats = municipalSeats(*gazetteer);
  if (seats.empty()) return Failure{"the list of cities has none in Sweden"};
  auto writer = PlaceWriter::create();
  if (!writer) return writer.failure();
  for (MergedStreet& street : mergeStreets(namedWays(*features))) {
    const City& city = *seatOf(seats, street.middle);
    writer->add(streetPlace(*gazetteer, city, std::move(street)));
  }
  return writer->write(database);
}

}  // namespace wayloom
