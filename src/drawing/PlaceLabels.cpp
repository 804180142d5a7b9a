#include "drawing/PlaceLabels.h"

#include <algorithm>
#include <array>
#include <climits>

#include "drawing/LabelGrid.h"
#include "drawing/MapGeometry.h"
#include "regions/DrawingTable.h"

namespace wayloom {

namespace {

constexpr double kAirPixels = 9;
constexpr double kDotPixels = 12;

// The style writes countries in spaced capitals.
constexpr double kCapitalsWidth = 1.38;

const char* kindName(PlaceLabel::Kind kind) {
  switch (kind) {
    case PlaceLabel::Kind::kCountry:
      return "country";
    case PlaceLabel::Kind::kCapital:
      return "capital";
    case PlaceLabel::Kind::kPlace:
      break;
  }
  return "place";
}

// What labels take at each zoom.
std::vector<LabelGrid> gridsOf(const std::vector<PlaceLabel>& labels, int lastZoom) {
  std::vector<LabelGrid> grids(static_cast<std::size_t>(lastZoom) + 1);
  for (const PlaceLabel& label : labels) {
    for (int zoom = label.firstZoom; zoom <= std::min(label.lastZoom, lastZoom); ++zoom) {
      grids[static_cast<std::size_t>(zoom)].take(labelBox(label, zoom));
    }
  }
  return grids;
}

// Whether a label can stay from its first zoom to its last.
bool staysFree(const PlaceLabel& label, const std::vector<LabelGrid>& taken) {
  for (int zoom = label.firstZoom; zoom <= label.lastZoom; ++zoom) {
    const auto index = static_cast<std::size_t>(zoom);
    if (index < taken.size() && !taken[index].isFree(labelBox(label, zoom))) return false;
  }
  return true;
}

}  // namespace

double labelSize(const PlaceLabel& label, int zoom) {
  return label.size + 0.75 * std::min(zoom - label.firstZoom, 4);
}

MapBox labelBox(const PlaceLabel& label, int zoom) {
  const double size = labelSize(label, zoom);
  const bool isCountry = label.kind == PlaceLabel::Kind::kCountry;
  const double halfWidth =
      textWidth(label.name) * size * (isCountry ? kCapitalsWidth : 1) / 2 + kAirPixels;
  const double halfHeight = size * 0.7 + kAirPixels / 2;
  const double x = label.point.x / metresPerPixel(zoom);
  double y = label.point.y / metresPerPixel(zoom);
  double below = halfHeight;
  if (!isCountry && zoom <= kLastDotZoom) {
    y += kDotPixels / 2;
    below += kDotPixels;
  }
  return {x - halfWidth, y - below, x + halfWidth, y + halfHeight};
}

std::vector<PlaceLabel> selectPlaceLabels(std::vector<PlaceLabel> candidates, int lastZoom,
                                          const std::vector<PlaceLabel>& fixed) {
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const auto& a, const auto& b) { return a.importance > b.importance; });
  const std::vector<LabelGrid> taken = gridsOf(fixed, lastZoom);
  std::vector<PlaceLabel> chosen;
  std::vector<PlaceLabel> waiting;
  for (int zoom = 0; zoom <= lastZoom; ++zoom) {
    LabelGrid grid;
    for (const PlaceLabel& label : chosen) {
      if (label.lastZoom >= zoom) grid.take(labelBox(label, zoom));
    }
    waiting.clear();
    for (PlaceLabel& label : candidates) {
      if (label.lastZoom < zoom) continue;
      PlaceLabel shown = label;
      shown.firstZoom = zoom;
      if (label.firstZoom <= zoom && grid.isFree(labelBox(shown, zoom)) &&
          staysFree(shown, taken)) {
        grid.take(labelBox(shown, zoom));
        chosen.push_back(std::move(shown));
      } else {
        waiting.push_back(std::move(label));
      }
    }
    candidates.swap(waiting);
  }
  return chosen;
}

Status writePlaceLabels(Database& database, const std::vector<PlaceLabel>& labels) {
  constexpr std::array kZooms = {3, 5, 7, 9, INT_MAX};
  int below = -1;
  for (const int upTo : kZooms) {
    const std::string ending = upTo == INT_MAX ? "" : "_z" + std::to_string(upTo);
    DrawingTable table(database, "place_label" + ending,
                       {"name", "kind", "size", "min_zoom", "max_zoom"});
    for (const PlaceLabel& label : labels) {
      if (label.firstZoom > upTo || label.lastZoom <= below) continue;
      table.add({DrawingShape::Kind::kPoint, {{label.point}}},
                {label.name, kindName(label.kind), label.size, label.firstZoom, label.lastZoom});
    }
    if (!table.status()) return table.status();
    below = upTo;
  }
  return done();
}

}  // namespace wayloom
