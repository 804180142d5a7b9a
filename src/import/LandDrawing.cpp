#include "import/LandDrawing.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

#include "drawing/MapGeometry.h"
#include "drawing/Street.h"
#include "import/LandKind.h"
#include "regions/DrawingTable.h"

namespace wayloom {

namespace {

constexpr std::size_t kMostPolygonPoints = 800;
constexpr std::size_t kMostLinePoints = 60;

// One version of a layer, for the zooms up to `zoom`.
struct Scale {
  const char* ending;
  int zoom;
};
constexpr std::array kLandScales = {Scale{"_z9", 9}, Scale{"_z11", 11}, Scale{"_z13", 13},
                                    Scale{"_z15", 15}, Scale{"", 17}};
constexpr std::array kBuildingScales = {Scale{"_z14", 14}, Scale{"", 17}};
// What covers less of the map is left out.
constexpr double kFewestPixels = 10;

// How wide the style draws each kind of waterway, and from which zoom on.
struct River {
  std::string_view kind;
  double weight;
  int firstZoom;
};
constexpr std::array kRivers = {River{"river", 0.3, 7}, River{"canal", 0.12, 10},
                                River{"stream", 0.04, 13}, River{"drain", 0.025, 14},
                                River{"ditch", 0.025, 14}};

MapPath mapPath(const Line& line) {
  MapPath path;
  path.reserve(line.size());
  for (const Coordinate& position : line) path.push_back(mapPoint(position));
  return path;
}

std::string_view railwayKind(const OsmTags& tags) {
  const std::string_view kind = tagOf(tags, "railway");
  if (kind == "rail") {
    return isOneOf(tagOf(tags, "service"), {"yard", "siding", "spur"}) ? "siding" : "rail";
  }
  if (isOneOf(kind, {"light_rail", "narrow_gauge", "funicular", "tram", "subway"})) return "light";
  return {};
}

// The rings at a scale; nothing when too little is left of them.
std::vector<MapPath> ringsAt(const std::vector<MapPath>& rings, double pixel) {
  std::vector<MapPath> kept;
  for (const MapPath& ring : rings) {
    MapPath simple = simplified(ring, pixel / 2);
    const double pixels = std::abs(signedArea(simple)) / (pixel * pixel);
    if (simple.size() >= 4 && pixels >= kFewestPixels) {
      kept.push_back(std::move(simple));
    } else if (kept.empty()) {
      break;
    }
  }
  return kept;
}

// Large polygons would slow down every tile that they touch.
std::vector<MapPolygon> piecesOf(std::vector<MapPath> rings, double overlap) {
  const MapBox box = boundsOf({DrawingShape::Kind::kPolygon, rings});
  return cutToPieces({std::move(rings)}, box, kMostPolygonPoints, overlap);
}

template <typename Areas>
Status writeLand(Database& database, const Areas& areas, const Scale& scale) {
  const double pixel = metresPerPixel(scale.zoom);
  DrawingTable table(database, std::string("landuse") + scale.ending, {"kind"});
  for (const auto& area : areas) {
    auto rings = ringsAt(area.rings, pixel);
    if (rings.empty()) continue;
    for (MapPolygon& piece : piecesOf(std::move(rings), 2 * pixel)) {
      table.add({DrawingShape::Kind::kPolygon, std::move(piece)}, {std::string(area.kind)});
    }
  }
  return table.status();
}

// The style outlines these, so they stay whole.
template <typename Areas>
Status writeOutlined(Database& database, const char* name, const Areas& areas, const Scale& scale) {
  DrawingTable table(database, std::string(name) + scale.ending, {"min_zoom"});
  for (const auto& area : areas) {
    auto rings = ringsAt(area.rings, metresPerPixel(scale.zoom));
    if (!rings.empty()) table.add({DrawingShape::Kind::kPolygon, std::move(rings)}, {0});
  }
  return table.status();
}

template <typename Ways>
Status writeRivers(Database& database, const Ways& ways) {
  DrawingTable table(database, "river", {"weight", "min_zoom"});
  for (const auto& way : ways) {
    const auto* const river = std::find_if(
        kRivers.begin(), kRivers.end(), [&](const River& each) { return each.kind == way.kind; });
    for (MapPath& piece : cutToPieces(way.path, kMostLinePoints)) {
      table.add({DrawingShape::Kind::kLine, {std::move(piece)}}, {river->weight, river->firstZoom});
    }
  }
  return table.status();
}

template <typename Ways>
Status writeRailways(Database& database, const Ways& ways) {
  DrawingTable table(database, "railway", {"kind", "level", "min_zoom"});
  for (const auto& way : ways) {
    const int firstZoom = way.kind == "rail" ? 9 : way.kind == "light" ? 12 : 14;
    for (MapPath& piece : cutToPieces(simplified(way.path, metresPerPixel(17)), kMostLinePoints)) {
      table.add({DrawingShape::Kind::kLine, {std::move(piece)}},
                {std::string(way.kind), way.level, firstZoom});
    }
  }
  return table.status();
}

template <typename Ways>
Status writeBorders(Database& database, const Ways& ways) {
  DrawingTable table(database, "border", {});
  for (const auto& way : ways) {
    for (MapPath& piece : cutToPieces(simplified(way.path, metresPerPixel(15)), kMostLinePoints)) {
      table.add({DrawingShape::Kind::kLine, {std::move(piece)}});
    }
  }
  return table.status();
}

}  // namespace

void LandDrawing::addArea(const OsmTags& tags, const std::vector<GroundPolygon>& polygons) {
  const std::string_view kind = landKindOf(tags);
  if (kind.empty()) return;
  auto& areas = kind == "building" ? mBuildings : kind == "water" ? mWater : mLand;
  for (const GroundPolygon& polygon : polygons) {
    Area area{kind, {}, 0};
    for (const Line& ring : polygon) area.rings.push_back(mapPath(ring));
    area.squareMetres = std::abs(signedArea(area.rings.front()));
    areas.push_back(std::move(area));
  }
}

void LandDrawing::addLine(const OsmTags& tags, const Line& line) {
  const std::string_view waterway = tagOf(tags, "waterway");
  const auto* const river = std::find_if(kRivers.begin(), kRivers.end(),
                                         [&](const River& each) { return each.kind == waterway; });
  const int level = levelOf(tags);
  if (river != kRivers.end() && level >= 0) mRivers.push_back({river->kind, 0, mapPath(line)});
  const std::string_view railway = railwayKind(tags);
  if (!railway.empty()) mRailways.push_back({railway, level, mapPath(line)});
  if (tagOf(tags, "boundary") == "administrative" && tagOf(tags, "admin_level") == "2") {
    mBorders.push_back({{}, 0, mapPath(line)});
  }
}

std::size_t LandDrawing::count() const {
  return mLand.size() + mWater.size() + mBuildings.size() + mRivers.size() + mRailways.size();
}

Status LandDrawing::write(Database& database) {
  std::stable_sort(mLand.begin(), mLand.end(),
                   [](const Area& a, const Area& b) { return a.squareMetres > b.squareMetres; });
  Status status = done();
  for (const Scale& scale : kLandScales) {
    if (status && !mLand.empty()) status = writeLand(database, mLand, scale);
    if (status && !mWater.empty()) status = writeOutlined(database, "water", mWater, scale);
  }
  for (const Scale& scale : kBuildingScales) {
    if (mBuildings.empty() || !status) break;
    status = writeOutlined(database, "building", mBuildings, scale);
  }
  if (status && !mRivers.empty()) status = writeRivers(database, mRivers);
  if (status && !mRailways.empty()) status = writeRailways(database, mRailways);
  if (status && !mBorders.empty()) status = writeBorders(database, mBorders);
  *this = {};
  return status;
}

}  // namespace wayloom
