#include "import/PlaceNames.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/PointGrid.h"

namespace wayloom {

namespace {

constexpr int kLastZoom = 16;
// In metres of the map.
constexpr double kNamesakeMetres = 12000;
constexpr double kSamePlaceMetres = 900;

struct Kind {
  std::string_view name;
  double importance;
  double size;
  int firstZoom;
  bool isSettlement;
};
constexpr std::array kKinds = {Kind{"city", 3e5, 12, 8, true},
                               Kind{"town", 3e4, 11.5, 10, true},
                               Kind{"village", 2e3, 11, 11, true},
                               Kind{"suburb", 1e3, 10.5, 12, false},
                               Kind{"hamlet", 200, 10.5, 13, true},
                               Kind{"quarter", 150, 10.5, 13, false},
                               Kind{"neighbourhood", 100, 10, 14, false},
                               Kind{"isolated_dwelling", 20, 10, 15, false},
                               Kind{"farm", 20, 10, 15, false},
                               Kind{"locality", 10, 10, 15, false}};

}  // namespace

void PlaceNames::addPoint(const OsmTags& tags, Coordinate position) {
  const auto* const kind = std::find_if(kKinds.begin(), kKinds.end(), [&](const Kind& each) {
    return each.name == tagOf(tags, "place");
  });
  const std::string_view name = tagOf(tags, "name");
  if (kind == kKinds.end() || name.empty()) return;
  mNames.push_back({{PlaceLabel::Kind::kPlace, std::string(name), mapPoint(position),
                     kind->importance, kind->size, kind->firstZoom, kLastZoom},
                    kind->isSettlement});
}

std::vector<PlaceLabel> PlaceNames::select(const std::vector<PlaceLabel>& shown) {
  PointGrid<std::string_view> names(kNamesakeMetres);
  for (const PlaceLabel& label : shown) names.add(label.point, label.name);
  std::vector<PlaceLabel> candidates;
  for (const Name& name : mNames) {
    const auto isSame = [&](std::string_view other, double metres) {
      return other == name.label.name || (metres < kSamePlaceMetres && name.isSettlement);
    };
    if (!names.anyNear(name.label.point, isSame)) candidates.push_back(name.label);
  }
  return selectPlaceLabels(std::move(candidates), kLastZoom, shown);
}

std::vector<PlaceLabel> labelsOf(const Region& region, const MapBox& box) {
  std::vector<PlaceLabel> labels;
  auto database = openRegion(region.path);
  if (!database) return labels;
  auto rows = database->prepare(
      "SELECT t.geometry, t.name, t.size, t.min_zoom, t.max_zoom FROM idx_place_label_geometry i "
      "JOIN place_label t ON t.fid = i.pkid WHERE i.xmax >= ?1 AND i.xmin <= ?2 AND i.ymax >= ?3 "
      "AND i.ymin <= ?4");
  if (!rows) return labels;
  rows->bind(1, box.xmin).bind(2, box.xmax).bind(3, box.ymin).bind(4, box.ymax);
  for (auto row = rows->step(); row && *row; row = rows->step()) {
    const auto bytes = rows->bytes(0);
    const auto shape = decodeShape({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    const double size = rows->real(2);
    if (!shape || shape->kind != DrawingShape::Kind::kPoint || !(size > 0 && size < 100)) continue;
    PlaceLabel label{PlaceLabel::Kind::kPlace, std::string(rows->text(1)), shape->paths[0][0]};
    label.size = size;
    label.firstZoom = static_cast<int>(std::clamp<std::int64_t>(rows->integer(3), 0, kLastZoom));
    label.lastZoom = static_cast<int>(std::clamp<std::int64_t>(rows->integer(4), 0, kLastZoom));
    labels.push_back(std::move(label));
  }
  return labels;
}

}  // namespace wayloom
