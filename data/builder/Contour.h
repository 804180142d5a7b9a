#pragma once

#include <vector>

#include "drawing/MapGeometry.h"

namespace wayloom {

/// Samples of a height at the points of a grid, row by row from the south-west.
struct HeightGrid {
  int columns = 0;
  int rows = 0;
  std::vector<float> heights;

  [[nodiscard]] float at(int column, int row) const {
    return heights[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
                   static_cast<std::size_t>(column)];
  }
  float& at(int column, int row) {
    return heights[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
                   static_cast<std::size_t>(column)];
  }
};

/// The closed lines along which the grid's height is `level`, counter-clockwise around what is
/// higher, in units of grid cells. The outermost points must be lower than the level.
std::vector<MapPath> contours(const HeightGrid& grid, float level);

}  // namespace wayloom
