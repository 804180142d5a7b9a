#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "import/Extract.h"
#include "import/Settlements.h"
#include "regions/PlaceIndex.h"
#include "regions/PlaceWriter.h"
#include "regions/StreetMerger.h"

namespace wayloom {

/// The places of an extract that one may search for: settlements, streets, houses with a number,
/// postcodes and what else has a name. Collects first and then writes the place index. Used by one
/// thread.
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
    PlaceKind kind;
    std::string name;
    std::vector<std::string> otherNames;
    std::string city;
    std::string context;
    Coordinate position;
  };

  void addSpot(const OsmTags& tags, Coordinate position);
  void writeStreets(PlaceWriter& writer, const Settlements& settlements);
  void writePostcodes(PlaceWriter& writer, const Settlements& settlements);
  void writeSpots(PlaceWriter& writer, const Settlements& settlements);

  std::vector<IndexedPlace> mSettlements;
  std::vector<NamedWay> mWays;
  /// What a street is called besides, by its name.
  std::map<std::string, std::set<std::string>> mStreetNames;
  /// Where a postcode is used.
  std::map<std::string, std::vector<Coordinate>> mPostcodes;
  std::vector<Spot> mSpots;
};

}  // namespace wayloom
