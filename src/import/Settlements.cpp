#include "import/Settlements.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "regions/GroundGeometry.h"

namespace wayloom {

namespace {

constexpr double kCellsPerDegree = 4;
// What is usual where the number of people is not given.
constexpr std::pair<std::string_view, double> kUsualPeople[] = {
    {"city", 100'000}, {"town", 10'000}, {"village", 1000}};

}  // namespace

Settlements::Cell Settlements::cellOf(Coordinate position) {
  return {static_cast<int>(std::floor(position.latitude * kCellsPerDegree)),
          static_cast<int>(std::floor(position.longitude * kCellsPerDegree))};
}

void Settlements::add(const Place& place, std::string_view kind) {
  const auto* const usual = std::find_if(std::begin(kUsualPeople), std::end(kUsualPeople),
                                         [&](const auto& each) { return each.first == kind; });
  if (usual == std::end(kUsualPeople)) return;
  const double people =
      place.population > 0 ? static_cast<double>(place.population) : usual->second;
  mEntries.push_back({place, 6 * std::sqrt(people)});
  mCells[cellOf(place.coordinate)].push_back(&mEntries.back());
}

const Place* Settlements::nearest(Coordinate position) const {
  const Place* best = nullptr;
  double bestMetres = std::numeric_limits<double>::infinity();
  const auto [row, column] = cellOf(position);
  for (int south = row - 1; south <= row + 1; ++south) {
    for (int west = column - 1; west <= column + 1; ++west) {
      const auto cell = mCells.find({south, west});
      if (cell == mCells.end()) continue;
      for (const Entry* entry : cell->second) {
        const double metres =
            distanceMetres(entry->place.coordinate, position) - entry->reachMetres;
        if (metres >= bestMetres) continue;
        bestMetres = metres;
        best = &entry->place;
      }
    }
  }
  return best;
}

void Settlements::locate(const Place& settlement, Place& place) {
  place.locality = settlement.name;
  place.division = settlement.division;
  place.country = settlement.country;
}

}  // namespace wayloom
