#include "roads/RoadGraphTree.h"

#include <algorithm>
#include <utility>

namespace wayloom {

namespace {

constexpr std::size_t kBoxesInABox = 8;

bool overlap(const RegionBounds& a, const RegionBounds& b) {
  return a.west <= b.east && b.west <= a.east && a.south <= b.north && b.south <= a.north;
}

RegionBounds joined(const RegionBounds& a, const RegionBounds& b) {
  return {std::min(a.west, b.west), std::min(a.south, b.south), std::max(a.east, b.east),
          std::max(a.north, b.north)};
}

std::vector<RegionBounds> largerBoxes(const std::vector<RegionBounds>& boxes) {
  std::vector<RegionBounds> larger;
  for (std::size_t index = 0; index < boxes.size(); ++index) {
    if (index % kBoxesInABox == 0) {
      larger.push_back(boxes[index]);
    } else {
      larger.back() = joined(larger.back(), boxes[index]);
    }
  }
  return larger;
}

}  // namespace

RoadGraphTree::RoadGraphTree(std::vector<RegionBounds> boxes) {
  if (boxes.empty()) return;
  mLevels.push_back(std::move(boxes));
  while (mLevels.back().size() > 1) mLevels.push_back(largerBoxes(mLevels.back()));
}

std::vector<std::uint32_t> RoadGraphTree::edgesIn(const RegionBounds& bounds) const {
  std::vector<std::uint32_t> found;
  if (!mLevels.empty()) collect(mLevels.size() - 1, 0, bounds, found);
  return found;
}

void RoadGraphTree::collect(std::size_t level, std::size_t box, const RegionBounds& bounds,
                            std::vector<std::uint32_t>& found) const {
  if (!overlap(mLevels[level][box], bounds)) return;
  if (level == 0) {
    found.push_back(static_cast<std::uint32_t>(box));
    return;
  }
  const std::size_t end = std::min((box + 1) * kBoxesInABox, mLevels[level - 1].size());
  for (std::size_t inner = box * kBoxesInABox; inner < end; ++inner) {
    collect(level - 1, inner, bounds, found);
  }
}

}  // namespace wayloom
