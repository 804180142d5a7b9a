#include "BuiltUpArea.h"

#include <algorithm>
#include <cmath>

#include "Contour.h"
#include "drawing/MeasuredPath.h"

namespace wayloom {

namespace {

constexpr int kBlurCells = 5;
constexpr int kBlurPasses = 3;
constexpr int kMarginCells = 2 * kBlurCells * kBlurPasses;
constexpr float kLevel = 0.16F;
constexpr double kSmallestRingCells = 220;

// One pass of a running mean along rows (step 1) or columns (step = columns).
void blurLine(float* line, int count, int step, std::vector<float>& copy) {
  copy.resize(static_cast<std::size_t>(count));
  float* const before = copy.data();
  for (std::ptrdiff_t i = 0; i < count; ++i) before[i] = line[i * step];
  float sum = 0;
  for (std::ptrdiff_t i = -kBlurCells; i < count; ++i) {
    if (i + kBlurCells < count) sum += before[i + kBlurCells];
    if (i > kBlurCells) sum -= before[i - kBlurCells - 1];
    if (i >= 0) line[i * step] = sum / (2 * kBlurCells + 1);
  }
}

void blur(HeightGrid& grid) {
  std::vector<float> copy;
  for (int pass = 0; pass < kBlurPasses; ++pass) {
    for (int row = 0; row < grid.rows; ++row) blurLine(&grid.at(0, row), grid.columns, 1, copy);
    for (int column = 0; column < grid.columns; ++column) {
      blurLine(&grid.at(column, 0), grid.rows, grid.columns, copy);
    }
  }
}

void markStreet(HeightGrid& grid, const MeasuredPath& street, const MapPoint& origin, double cell) {
  for (double at = 0; at <= street.length(); at += cell / 2) {
    const MapPoint p = street.at(at);
    grid.at(static_cast<int>((p.x - origin.x) / cell), static_cast<int>((p.y - origin.y) / cell)) =
        1;
  }
}

}  // namespace

std::vector<MapPolygon> builtUpArea(const std::vector<MapPath>& streets, double cellMetres) {
  const MapBox box = boundsOf({DrawingShape::Kind::kLine, streets});
  const MapPoint origin{box.xmin - kMarginCells * cellMetres, box.ymin - kMarginCells * cellMetres};
  HeightGrid grid;
  grid.columns = static_cast<int>((box.xmax - origin.x) / cellMetres) + kMarginCells;
  grid.rows = static_cast<int>((box.ymax - origin.y) / cellMetres) + kMarginCells;
  grid.heights.resize(static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows));
  for (const MapPath& street : streets) {
    markStreet(grid, MeasuredPath(street), origin, cellMetres);
  }
  blur(grid);

  // Outlines run counter-clockwise, holes clockwise; a piece of even-odd area needs no nesting.
  MapPolygon rings;
  for (MapPath ring : contours(grid, kLevel)) {
    if (std::abs(signedArea(ring)) < kSmallestRingCells) continue;
    for (MapPoint& p : ring) {
      p = {origin.x + (p.x + 0.5) * cellMetres, origin.y + (p.y + 0.5) * cellMetres};
    }
    rings.push_back(smoothed(simplified(ring, cellMetres / 2), 2));
  }
  std::stable_sort(rings.begin(), rings.end(), [](const MapPath& a, const MapPath& b) {
    return std::abs(signedArea(a)) > std::abs(signedArea(b));
  });
  return {rings};
}

}  // namespace wayloom
