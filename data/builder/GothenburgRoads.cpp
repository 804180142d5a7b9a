#include "GothenburgRoads.h"

#include <vector>

#include "GeoJson.h"
#include "ReadFile.h"
#include "roads/CarProfile.h"
#include "roads/RoadGraphBuilder.h"
#include "roads/RoadGraphFile.h"

namespace wayloom {

Status addGothenburgRoads(Database& database, const std::filesystem::path& packages) {
  const auto text = readFile(packages / "geojson-path-finder/test/large-network.json");
  if (!text) return text.failure();
  const auto features = readGeoJson(*text);
  if (!features) return failed("the streets of Gothenburg are damaged");
  std::vector<RoadWay> ways;
  for (const GeoFeature& feature : *features) {
    // Areas are squares to walk on.
    if (feature.kind != GeoFeature::Kind::kLine) continue;
    if (const auto use = carUse(feature.properties)) ways.push_back({feature.paths.front(), *use});
  }
  return writeRoads(database, roadNetwork(ways));
}

}  // namespace wayloom
