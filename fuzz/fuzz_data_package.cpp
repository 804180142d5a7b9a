#include <cmath>

#include "CityList.h"
#include "GeoJson.h"
#include "TopoJson.h"
#include "WorldOutlines.h"
#include "fuzz/Fuzzing.h"

using namespace wayloom;

namespace {

void requireOnGlobe(Coordinate position) {
  require(std::abs(position.latitude) <= 90 && std::abs(position.longitude) <= 180);
}

void checkCities(std::string_view bytes) {
  const auto cities = readCityList(bytes);
  if (!cities) return;
  for (const City& city : *cities) requireOnGlobe(city.coordinate);
}

void checkFeatures(const std::string& text) {
  const auto features = readGeoJson(text);
  if (!features) return;
  for (const GeoFeature& feature : *features) {
    require(!feature.paths.empty());
    for (const auto& path : feature.paths) {
      require(path.size() >= 2);
      for (const Coordinate& position : path) requireOnGlobe(position);
    }
  }
}

void checkTopology(const std::string& text) {
  const auto topology = readTopoJson(text, "countries");
  if (!topology) return;
  for (const auto& area : topology->areas) {
    require(!area.polygons.empty());
    for (const auto& polygon : mapPolygons(*topology, area)) {
      for (const MapPath& ring : polygon) require(!ring.empty());
    }
  }
  (void)mapLines(smoothed(simplified(*topology, 1000)), ArcUse::kBorder);
}

}  // namespace

/// The readers of the data packages, chosen by the first byte: what they accept makes sense.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  if (count == 0) return 0;
  const std::string_view rest = textOf(bytes + 1, count - 1);
  if (bytes[0] == 'c') checkCities(rest);
  if (bytes[0] == 'g') checkFeatures(std::string(rest));
  if (bytes[0] == 't') checkTopology(std::string(rest));
  return 0;
}
