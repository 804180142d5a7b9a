#include "GothenburgStreets.h"

#include "BuiltUpArea.h"
#include "GeoJson.h"
#include "ReadFile.h"
#include "regions/DrawingTable.h"

namespace wayloom {

namespace {

constexpr double kBuiltUpCellMetres = 40;
constexpr std::size_t kMostPolygonPoints = 800;

DrawingShape shapeOf(const GeoFeature& feature) {
  DrawingShape shape;
  shape.kind = feature.kind == GeoFeature::Kind::kPolygon ? DrawingShape::Kind::kPolygon
                                                          : DrawingShape::Kind::kLine;
  for (const auto& path : feature.paths) {
    auto& line = shape.paths.emplace_back();
    for (const Coordinate& coordinate : path) line.push_back(mapPoint(coordinate));
  }
  return shape;
}

}  // namespace

Result<std::vector<Street>> readStreets(const std::filesystem::path& path) {
  const auto text = readFile(path);
  if (!text) return text.failure();
  const auto features = readGeoJson(*text);
  if (!features) return Failure{path.string() + " is damaged"};
  std::vector<Street> streets;
  for (const GeoFeature& feature : *features) {
    if (auto street = streetOf(feature.properties, shapeOf(feature))) {
      streets.push_back(std::move(*street));
    }
  }
  return streets;
}

Status addBuiltUpArea(Database& database, const std::vector<Street>& streets) {
  std::vector<MapPath> lines;
  for (const Street& street : streets) {
    if (street.level == 0 && !street.isArea) lines.push_back(street.paths.front());
  }
  DrawingTable table(database, "built_up", {});
  if (lines.empty()) return table.status();
  auto polygons = builtUpArea(lines, kBuiltUpCellMetres);
  const MapBox box = boundsOf({DrawingShape::Kind::kPolygon, polygons.front()});
  for (MapPolygon& piece :
       cutToPieces(std::move(polygons), box, kMostPolygonPoints, 2 * metresPerPixel(8))) {
    table.add({DrawingShape::Kind::kPolygon, std::move(piece)});
  }
  return table.status();
}

}  // namespace wayloom
