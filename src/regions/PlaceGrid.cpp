#include "regions/PlaceGrid.h"

#include <cmath>

#include "geo/WebMercator.h"

namespace wayloom {

namespace {

constexpr double kCellDegrees = 0.5;
constexpr int kColumns = 720;

}  // namespace

std::string gridWord(Coordinate position, int stepsEast, int stepsNorth) {
  const int column =
      static_cast<int>(std::floor((wrapLongitude(position.longitude) + 180) / kCellDegrees));
  const int row = static_cast<int>(std::floor((position.latitude + 90) / kCellDegrees));
  const int wrapped = (column + stepsEast + kColumns) % kColumns;
  return "§" + std::to_string((row + stepsNorth) * kColumns + wrapped);
}

}  // namespace wayloom
