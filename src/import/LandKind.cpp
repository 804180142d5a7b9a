#include "import/LandKind.h"

#include <array>

namespace wayloom {

namespace {

struct Entry {
  const char* key;
  std::string_view value;
  std::string_view kind;
};

// The first that fits decides.
constexpr std::array kEntries = {
    Entry{"natural", "water", "water"},
    Entry{"waterway", "riverbank", "water"},
    Entry{"waterway", "dock", "water"},
    Entry{"landuse", "reservoir", "water"},
    Entry{"landuse", "basin", "water"},
    Entry{"leisure", "swimming_pool", "water"},
    Entry{"natural", "wood", "wood"},
    Entry{"landuse", "forest", "wood"},
    Entry{"natural", "scrub", "scrub"},
    Entry{"natural", "heath", "scrub"},
    Entry{"natural", "wetland", "wetland"},
    Entry{"natural", "glacier", "ice"},
    Entry{"natural", "bare_rock", "rock"},
    Entry{"natural", "scree", "rock"},
    Entry{"natural", "shingle", "sand"},
    Entry{"natural", "sand", "sand"},
    Entry{"natural", "beach", "sand"},
    Entry{"landuse", "quarry", "rock"},
    Entry{"leisure", "pitch", "sport"},
    Entry{"leisure", "track", "sport"},
    Entry{"leisure", "sports_centre", "park"},
    Entry{"leisure", "playground", "park"},
    Entry{"leisure", "park", "park"},
    Entry{"leisure", "garden", "park"},
    Entry{"leisure", "golf_course", "park"},
    Entry{"leisure", "common", "grass"},
    Entry{"landuse", "cemetery", "park"},
    Entry{"landuse", "recreation_ground", "park"},
    Entry{"landuse", "village_green", "park"},
    Entry{"landuse", "grass", "grass"},
    Entry{"landuse", "meadow", "grass"},
    Entry{"natural", "grassland", "grass"},
    Entry{"natural", "fell", "grass"},
    Entry{"landuse", "orchard", "orchard"},
    Entry{"landuse", "vineyard", "orchard"},
    Entry{"landuse", "allotments", "orchard"},
    Entry{"landuse", "plant_nursery", "orchard"},
    Entry{"landuse", "farmland", "farm"},
    Entry{"landuse", "farm", "farm"},
    Entry{"landuse", "residential", "town"},
    Entry{"landuse", "farmyard", "town"},
    Entry{"landuse", "retail", "trade"},
    Entry{"landuse", "commercial", "trade"},
    Entry{"landuse", "industrial", "trade"},
    Entry{"landuse", "railway", "trade"},
    Entry{"amenity", "school", "campus"},
    Entry{"amenity", "university", "campus"},
    Entry{"amenity", "college", "campus"},
    Entry{"amenity", "kindergarten", "campus"},
    Entry{"amenity", "hospital", "campus"},
    Entry{"amenity", "parking", "parking"},
};

}  // namespace

std::string_view landKindOf(const OsmTags& tags) {
  const std::string_view building = tagOf(tags, "building");
  if (!building.empty() && building != "no") return "building";
  for (const Entry& entry : kEntries) {
    if (tagOf(tags, entry.key) == entry.value) return entry.kind;
  }
  return {};
}

}  // namespace wayloom
