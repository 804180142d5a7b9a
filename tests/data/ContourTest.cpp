#include <cmath>
#include <numbers>

#include "Contour.h"
#include "drawing/MapGeometry.h"

namespace wayloom {
namespace {

TEST(Contour, GoesAroundAHillOnce) {
  HeightGrid grid{60, 60, std::vector<float>(3600)};
  for (int row = 0; row < 60; ++row) {
    for (int column = 0; column < 60; ++column) {
      grid.at(column, row) = static_cast<float>(40 - std::hypot(column - 30, row - 30));
    }
  }
  const auto rings = contours(grid, 20);
  ASSERT_EQ(rings.size(), 1U);
  EXPECT_NEAR(signedArea(rings[0]), std::numbers::pi * 400, 10);
}

TEST(Contour, KeepsSaddlesClosed) {
  HeightGrid grid{4, 4, {0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0}};
  for (const MapPath& ring : contours(grid, 0.5F)) {
    EXPECT_EQ(ring.front(), ring.back());
    EXPECT_GT(signedArea(ring), 0);
  }
  EXPECT_EQ(contours(grid, 0.5F).size(), 2U);
}

}  // namespace
}  // namespace wayloom
