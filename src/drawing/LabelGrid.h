#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "regions/DrawingShape.h"

namespace wayloom {

/// The width of a text in units of its font size, on the generous side: labels are placed without
/// the font at hand.
double textWidth(std::string_view utf8);

/// Which parts of a map at one zoom are taken by labels. Boxes are in pixels of that zoom.
class LabelGrid {
 public:
  [[nodiscard]] bool isFree(const MapBox& box) const;
  void take(const MapBox& box);

 private:
  template <typename Function>
  static bool forEachCell(const MapBox& box, Function function);

  std::unordered_map<std::int64_t, std::vector<MapBox>> mCells;
};

}  // namespace wayloom
