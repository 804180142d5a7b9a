#include "Contour.h"

#include <array>
#include <cstdint>
#include <unordered_map>
#include <utility>

namespace wayloom {

namespace {

// The four sides of a cell, counter-clockwise from the bottom.
enum Side { kBottom, kRight, kTop, kLeft, kNone };

using Crossing = std::pair<Side, Side>;

// For each pattern of high corners (bit 0 south-west, then counter-clockwise): from which side to
// which the contour runs with the higher ground on its left. Saddles keep the high corners apart.
constexpr std::array<std::array<Crossing, 2>, 16> kCrossings = {{
    {{{kNone, kNone}, {kNone, kNone}}},
    {{{kBottom, kLeft}, {kNone, kNone}}},
    {{{kRight, kBottom}, {kNone, kNone}}},
    {{{kRight, kLeft}, {kNone, kNone}}},
    {{{kTop, kRight}, {kNone, kNone}}},
    {{{kBottom, kLeft}, {kTop, kRight}}},
    {{{kTop, kBottom}, {kNone, kNone}}},
    {{{kTop, kLeft}, {kNone, kNone}}},
    {{{kLeft, kTop}, {kNone, kNone}}},
    {{{kBottom, kTop}, {kNone, kNone}}},
    {{{kRight, kBottom}, {kLeft, kTop}}},
    {{{kRight, kTop}, {kNone, kNone}}},
    {{{kLeft, kRight}, {kNone, kNone}}},
    {{{kBottom, kRight}, {kNone, kNone}}},
    {{{kLeft, kBottom}, {kNone, kNone}}},
    {{{kNone, kNone}, {kNone, kNone}}},
}};

class Tracer {
 public:
  Tracer(const HeightGrid& grid, float level) : mGrid(grid), mLevel(level) {}

  std::vector<MapPath> trace() {
    for (int row = 0; row + 1 < mGrid.rows; ++row) {
      for (int column = 0; column + 1 < mGrid.columns; ++column) addCell(column, row);
    }
    std::vector<MapPath> rings;
    while (!mNext.empty()) rings.push_back(takeRing(mNext.begin()->first));
    return rings;
  }

 private:
  // Edges are numbered: even ones run east from a grid point, odd ones north.
  std::int64_t edge(int column, int row, Side side) const {
    if (side == kTop) ++row;
    if (side == kRight) ++column;
    const bool isUpright = side == kLeft || side == kRight;
    return (std::int64_t{row} * mGrid.columns + column) * 2 + (isUpright ? 1 : 0);
  }

  void addCell(int column, int row) {
    const std::array heights = {mGrid.at(column, row), mGrid.at(column + 1, row),
                                mGrid.at(column + 1, row + 1), mGrid.at(column, row + 1)};
    std::size_t pattern = 0;
    for (std::size_t i = 0; i < 4; ++i) pattern |= (heights[i] >= mLevel ? 1U : 0U) << i;
    for (const auto& [from, to] : kCrossings[pattern]) {
      if (from != kNone) mNext[edge(column, row, from)] = edge(column, row, to);
    }
  }

  MapPoint pointOn(std::int64_t edgeNumber) const {
    const auto point = edgeNumber / 2;
    const int column = static_cast<int>(point % mGrid.columns);
    const int row = static_cast<int>(point / mGrid.columns);
    const bool isUpright = edgeNumber % 2 == 1;
    const float from = mGrid.at(column, row);
    const float to = isUpright ? mGrid.at(column, row + 1) : mGrid.at(column + 1, row);
    const double share = (mLevel - from) / (to - from);
    return isUpright ? MapPoint{static_cast<double>(column), row + share}
                     : MapPoint{column + share, static_cast<double>(row)};
  }

  MapPath takeRing(std::int64_t start) {
    MapPath ring;
    for (auto found = mNext.find(start); found != mNext.end();) {
      ring.push_back(pointOn(found->first));
      const std::int64_t next = found->second;
      mNext.erase(found);
      found = mNext.find(next);
    }
    ring.push_back(ring.front());
    return ring;
  }

  const HeightGrid& mGrid;
  float mLevel;
  std::unordered_map<std::int64_t, std::int64_t> mNext;
};

}  // namespace

std::vector<MapPath> contours(const HeightGrid& grid, float level) {
  return Tracer(grid, level).trace();
}

}  // namespace wayloom
