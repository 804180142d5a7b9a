#include "drawing/LabelGrid.h"

#include <algorithm>
#include <cmath>

namespace wayloom {

namespace {

constexpr double kCellPixels = 128;

bool overlap(const MapBox& a, const MapBox& b) {
  return a.xmin < b.xmax && b.xmin < a.xmax && a.ymin < b.ymax && b.ymin < a.ymax;
}

double asciiWidth(char character) {
  constexpr std::string_view kNarrow = "ijl.,:;'|! ()I-tfr";
  constexpr std::string_view kWide = "mwMWQO@%";
  if (kNarrow.find(character) != std::string_view::npos) return 0.40;
  if (kWide.find(character) != std::string_view::npos) return 0.92;
  return character >= 'A' && character <= 'Z' ? 0.70 : 0.60;
}

}  // namespace

double textWidth(std::string_view utf8) {
  double width = 0;
  for (const char character : utf8) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < 0x80) {
      width += asciiWidth(character);
    } else if (byte >= 0xE0) {
      width += 1.0;
    } else if (byte >= 0xC0) {
      width += 0.68;
    }
  }
  return width;
}

template <typename Function>
bool LabelGrid::forEachCell(const MapBox& box, Function function) {
  const auto cell = [](double pixels) {
    return static_cast<std::int64_t>(std::floor(pixels / kCellPixels));
  };
  for (std::int64_t y = cell(box.ymin); y <= cell(box.ymax); ++y) {
    for (std::int64_t x = cell(box.xmin); x <= cell(box.xmax); ++x) {
      if (!function(y * (std::int64_t{1} << 32) + x)) return false;
    }
  }
  return true;
}

bool LabelGrid::isFree(const MapBox& box) const {
  return forEachCell(box, [&](std::int64_t cell) {
    const auto found = mCells.find(cell);
    return found == mCells.end() ||
           std::none_of(found->second.begin(), found->second.end(),
                        [&](const MapBox& taken) { return overlap(taken, box); });
  });
}

void LabelGrid::take(const MapBox& box) {
  forEachCell(box, [&](std::int64_t cell) {
    mCells[cell].push_back(box);
    return true;
  });
}

}  // namespace wayloom
