#include "drawing/StreetDrawing.h"

#include <algorithm>
#include <array>
#include <map>
#include <tuple>

#include "drawing/StreetLabels.h"
#include "regions/DrawingTable.h"

namespace wayloom {

namespace {

constexpr std::size_t kMostLinePoints = 60;

// One version of the network, for the zooms up to `zoom`, with the streets that show there.
struct Scale {
  const char* ending;
  Street::Kind least;
  int zoom;
};
constexpr std::array kScales = {Scale{"_z10", Street::Kind::kPrimary, 10},
                                Scale{"_z12", Street::Kind::kTertiary, 12},
                                Scale{"_z13", Street::Kind::kResidential, 13},
                                Scale{"_z14", Street::Kind::kService, 14},
                                Scale{"_z15", Street::Kind::kPath, 15},
                                Scale{"_z16", Street::Kind::kPath, 16},
                                Scale{"", Street::Kind::kPath, 18}};

Status writeSquares(Database& database, const std::vector<Street>& streets) {
  DrawingTable table(database, "square", {});
  for (const Street& street : streets) {
    if (street.isArea) table.add({DrawingShape::Kind::kPolygon, street.paths});
  }
  return table.status();
}

Status writeRoads(Database& database, const std::vector<Street>& streets, const Scale& scale) {
  // The order of drawing: from below to above, then from the least to the most important.
  std::map<std::tuple<int, Street::Kind, bool>, std::vector<MapPath>> groups;
  for (const Street& street : streets) {
    if (street.isArea || street.kind < scale.least) continue;
    groups[{street.level, street.kind, !street.isLink}].push_back(street.paths.front());
  }
  DrawingTable table(database, std::string("road") + scale.ending, {"kind", "link", "level"});
  for (const auto& [key, paths] : groups) {
    const auto& [level, kind, isMain] = key;
    for (const MapPath& path : joined(paths)) {
      const MapPath line = simplified(path, metresPerPixel(scale.zoom) / 2);
      for (MapPath& piece : cutToPieces(line, kMostLinePoints)) {
        table.add({DrawingShape::Kind::kLine, {std::move(piece)}},
                  {kindName(kind), isMain ? 0 : 1, level});
      }
    }
  }
  return table.status();
}

}  // namespace

Status addStreetDrawing(Database& database, const std::vector<Street>& streets,
                        const std::vector<PlaceLabel>& labels) {
  if (auto status = writeSquares(database, streets); !status) return status;
  for (const Scale& scale : kScales) {
    if (auto status = writeRoads(database, streets, scale); !status) return status;
  }
  return writeStreetLabels(database, streets, labels);
}

}  // namespace wayloom
