#include "regions/PlaceIndex.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "regions/GroundGeometry.h"

namespace wayloom {

namespace {

constexpr double kHouseMetres = 40;
constexpr double kStreetMetres = 120;
constexpr double kAroundMetres = 15000;
constexpr double kFarMetres = 100000;

bool isPosition(Coordinate position) {
  return std::abs(position.latitude) <= 90 && std::isfinite(position.longitude);
}

// How far a position is outside a settlement, taking it for a disc that grows with its population
// (a million people: 6 km). Another country's settlements count as further than they are, because
// a wrong country is worse than a wrong village; but not on their own ground, because borders on
// the map are rough.
double metresOutside(const Place& settlement, Coordinate position,
                     const std::optional<Place>& country) {
  const double metres = distanceMetres(position, settlement.coordinate);
  const double people = static_cast<double>(std::max<std::int64_t>(settlement.population, 0));
  const double outside = metres - 6 * std::sqrt(people);
  const bool isForeign = country && settlement.country != country->name;
  return isForeign && outside > 0 ? outside + 2000 + metres : outside;
}

}  // namespace

Result<PlaceIndex> PlaceIndex::open(const RegionStore& store) {
  auto folder = NameFolder::create();
  if (!folder) return folder.failure();
  PlaceIndex index(std::move(*folder));
  for (const Region& region : store.regions()) {
    if (auto places = RegionPlaces::open(region.path)) index.mRegions.push_back(std::move(*places));
  }
  return index;
}

std::vector<Place> PlaceIndex::search(std::string_view text, std::optional<Coordinate> near,
                                      std::size_t limit) {
  return finder(near).search(text, limit);
}

std::vector<Place> PlaceIndex::suggest(std::string_view text, std::optional<Coordinate> near,
                                       std::size_t limit) {
  return finder(near).suggest(text, limit);
}

std::optional<Place> PlaceIndex::withoutNumbers(std::string_view text,
                                                std::optional<Coordinate> near) {
  return finder(near).withoutNumbers(text);
}

PlaceFinder PlaceIndex::finder(std::optional<Coordinate> near) {
  return {mRegions, mFolder, near && isPosition(*near) ? near : std::nullopt};
}

std::optional<Place> PlaceIndex::placeAt(Coordinate position) {
  if (!isPosition(position)) return std::nullopt;
  if (auto street = streetAt(position)) return street;
  return areaAt(position);
}

std::optional<Place> PlaceIndex::areaAt(Coordinate position) {
  if (!isPosition(position)) return std::nullopt;
  auto country = countryAt(position);
  for (const double radius : {kAroundMetres, kFarMetres}) {
    if (auto settlement = settlementAt(position, radius, country)) return settlement;
  }
  return country;
}

std::optional<Place> PlaceIndex::streetAt(Coordinate position) {
  std::optional<Place> nearest;
  double nearestMetres = std::numeric_limits<double>::infinity();
  for (RegionPlaces& region : mRegions) {
    for (const NearbyLine& line : region.linesAround(position, kStreetMetres)) {
      if (line.spot.metres >= nearestMetres + kHouseMetres) continue;
      auto row = region.withId(line.place);
      if (!row) continue;
      // A house says more than the street it stands at, unless it is some way off.
      const bool isHouse = row->place.kind != PlaceKind::kStreet;
      const double metres = line.spot.metres - (isHouse ? kHouseMetres : 0);
      if (metres >= nearestMetres) continue;
      nearestMetres = metres;
      nearest = std::move(row->place);
      nearest->coordinate = line.spot.coordinate;
    }
  }
  return nearest;
}

std::optional<Place> PlaceIndex::settlementAt(Coordinate position, double radiusMetres,
                                              const std::optional<Place>& country) {
  std::optional<Place> best;
  double bestMetres = std::numeric_limits<double>::infinity();
  for (RegionPlaces& region : mRegions) {
    for (auto& row : region.settlementsAround(position, radiusMetres)) {
      if (distanceMetres(position, row.place.coordinate) > radiusMetres) continue;
      const double metres = metresOutside(row.place, position, country);
      if (metres >= bestMetres) continue;
      bestMetres = metres;
      best = std::move(row.place);
    }
  }
  return best;
}

std::optional<Place> PlaceIndex::countryAt(Coordinate position) {
  for (RegionPlaces& region : mRegions) {
    for (auto& row : region.areasAt(position)) {
      if (row.place.kind == PlaceKind::kCountry) return std::move(row.place);
    }
  }
  return std::nullopt;
}

}  // namespace wayloom
