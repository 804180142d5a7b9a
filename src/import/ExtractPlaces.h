#pragma once

#include <set>
#include <string>
#include <vector>

#include "import/Extract.h"
#include "import/Settlements.h"
#include "regions/PlaceIndex.h"
#include "regions/PlaceWriter.h"
#include "regions/StreetMerger.h"

namespace wayloom {

/// The places of an extract that one may search for: settlements, streets, houses with a number and
/// what else has a name. Collects first and then writes the place index. Used by one thread.
class ExtractPlaces {
 public:
  void addPoint(const OsmTags& tags, Coordinate position);
  void addLine(const OsmTags& tags, const Line& line);
  void addArea(const OsmTags& tags, const std::vector<GroundPolygon>& polygons);

  std::size_t count() const { return mSettlements.size() + mWays.size() + mSpots.size(); }

  /// Divisions and countries are asked of `installed`, the regions that are there already. The
  /// collection is empty afterwards.
  Status write(Database& database, PlaceIndex& installed);

 private:
  struct Spot {
    std::string name;
    std::string city;
    std::string context;
    Coordinate position;
  };

  void addSpot(const OsmTags& tags, Coordinate position);
  void writeStreets(PlaceWriter& writer, const Settlements& settlements);
  void writeSpots(PlaceWriter& writer, const Settlements& settlements);

  std::vector<IndexedPlace> mSettlements;
  std::vector<NamedWay> mWays;
  std::vector<Spot> mSpots;
};

}  // namespace wayloom
