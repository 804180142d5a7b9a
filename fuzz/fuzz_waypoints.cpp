#include <algorithm>

#include "fuzz/Fuzzing.h"
#include "tracks/WaypointFile.h"

using namespace wayloom;

/// A file of places from somebody else: it reads, or one line says why not. What was read lies on
/// the globe, and each format gives it back as it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const auto read = readWaypoints(textOf(bytes, count));
  if (!read) {
    const std::string said = read.message();
    require(!said.empty() && said.size() < 200 && said.find_first_of("\r\n") == std::string::npos);
    return 0;
  }
  require(!read->empty());
  require(std::all_of(read->begin(), read->end(), [](const Waypoint& waypoint) {
    return isOnGlobe(waypoint.coordinate) && waypoint.name.size() <= kMaximumNameBytes;
  }));
  for (const auto format : {WaypointFormat::Gpx, WaypointFormat::Kml, WaypointFormat::GeoJson}) {
    const auto again = readWaypoints(writeWaypoints(*read, format));
    require(again && *again == *read);
  }
  return 0;
}
