#include <random>

#include "Contour.h"

namespace wayloom {
namespace {

bool isInside(const std::vector<MapPath>& rings, double x, double y) {
  bool inside = false;
  for (const MapPath& ring : rings) {
    for (std::size_t i = 1; i < ring.size(); ++i) {
      const MapPoint& a = ring[i - 1];
      const MapPoint& b = ring[i];
      if ((a.y > y) != (b.y > y) && x < a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y)) {
        inside = !inside;
      }
    }
  }
  return inside;
}

double enclosedArea(const std::vector<MapPath>& rings) {
  double twice = 0;
  for (const MapPath& ring : rings) {
    for (std::size_t i = 1; i < ring.size(); ++i) {
      twice += ring[i - 1].x * ring[i].y - ring[i].x * ring[i - 1].y;
    }
  }
  return twice / 2;
}

TEST(ContourTest, ClosedLinesPartHighGroundFromLow) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::mt19937 random(seed);
    HeightGrid grid{
        .columns = 12, .rows = 9, .heights = std::vector<float>(std::size_t{12} * 9, 0)};
    for (int row = 1; row < 8; ++row) {
      for (int column = 1; column < 11; ++column)
        grid.at(column, row) = static_cast<float>(random() % 5);
    }
    const auto rings = contours(grid, 1.5);
    for (const MapPath& ring : rings) EXPECT_EQ(ring.front(), ring.back()) << seed;
    EXPECT_GT(enclosedArea(rings), 0) << seed;
    for (int row = 0; row < 9; ++row) {
      for (int column = 0; column < 12; ++column) {
        EXPECT_EQ(isInside(rings, column, row), grid.at(column, row) >= 1.5)
            << "seed " << seed << " at " << column << ", " << row;
      }
    }
  }
}

}  // namespace
}  // namespace wayloom
