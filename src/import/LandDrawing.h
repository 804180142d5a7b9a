#pragma once

#include <string_view>
#include <vector>

#include "import/Extract.h"
#include "regions/Database.h"
#include "regions/DrawingShape.h"

namespace wayloom {

/// The ground of an extract as the map draws it: land use, water, buildings, railways, borders.
/// Collects first, since large areas lie below small ones, and then writes the drawing tables.
/// Used by one thread.
class LandDrawing {
 public:
  void addArea(const OsmTags& tags, const std::vector<GroundPolygon>& polygons);
  void addLine(const OsmTags& tags, const Line& line);

  /// How many things the map will show.
  std::size_t count() const;

  /// Makes the tables; the drawing is empty afterwards.
  Status write(Database& database);

 private:
  struct Area {
    std::string_view kind;
    std::vector<MapPath> rings;
    double squareMetres = 0;
  };
  struct Way {
    std::string_view kind;
    int level = 0;
    MapPath path;
  };

  std::vector<Area> mLand, mWater, mBuildings;
  std::vector<Way> mRivers, mRailways, mBorders;
};

}  // namespace wayloom
