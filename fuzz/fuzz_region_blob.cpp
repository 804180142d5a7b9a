#include <cmath>

#include "fuzz/Fuzzing.h"
#include "regions/DrawingShape.h"
#include "regions/ShapeBlob.h"
#include "roads/RoadGraphFile.h"
#include "roads/RouterSearch.h"

using namespace wayloom;

namespace {

void checkDrawing(std::string_view bytes) {
  const auto shape = decodeShape(bytes);
  if (!shape) return;
  require(decodeShape(encodeShape(*shape)) == shape);
  const MapBox box = boundsOf(*shape);
  require(std::isfinite(box.xmin) && box.xmin <= box.xmax && box.ymin <= box.ymax);
}

void checkLines(std::string_view bytes) {
  const std::span all(bytes.data(), bytes.size());
  const auto lines = decodeShape(std::as_bytes(all));
  if (!lines) return;
  for (const Line& line : *lines) require(!line.empty());
  const auto again = encodeShape(*lines);
  require(std::ranges::equal(again, std::as_bytes(all)));
}

// The parts of a road network as four lengths and the bytes of each.
void checkRoads(std::string_view bytes) {
  auto database = Database::openInMemory();
  require(database && database->execute("CREATE TABLE road_network(part, data)"));
  auto insert = database->prepare("INSERT INTO road_network VALUES (?1, ?2)");
  for (const std::string_view part : {"junctions", "edges", "bends", "rules"}) {
    if (bytes.empty()) break;
    const auto size = std::min<std::size_t>(std::size_t{static_cast<unsigned char>(bytes[0])} * 4,
                                            bytes.size() - 1);
    const std::span data(bytes.data() + 1, size);
    require(bool(insert->bind(1, part).bind(2, std::as_bytes(data)).run()));
    // Any numbers will do, and each takes as many bytes as a junction.
    if (part == "junctions") {
      require(bool(insert->bind(1, std::string_view("numbers")).run()));
    }
    bytes.remove_prefix(size + 1);
  }
  const auto network = readRoads(*database);
  if (!network) return;
  auto copy = Database::openInMemory();
  require(copy && writeRoads(*copy, *network));
  const auto again = readRoads(*copy);
  require(again && *again == *network);
  const RoadGraph graph(*network);
  RouterSearch search(graph);
  const auto spots = graph.spotsAround({47, 9}, 1e5);
  for (const RoadSpot& spot : spots) {
    require(spot.edge < graph.edges().size() && spot.awayMetres <= 1e5);
    require(spot.alongMetres >= 0 && spot.alongMetres <= graph.metres(spot.edge));
    if (!graph.leads(spots.front(), spot)) continue;
    search.ask(spots.front(), spot, std::nullopt);
    const auto path = search.find();
    require(!path || path->cost >= 0);
  }
}

}  // namespace

/// What a region file holds in its binary columns, chosen by the first byte: what is accepted is
/// sound, and written again it is the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  if (count == 0) return 0;
  const std::string_view rest = textOf(bytes + 1, count - 1);
  if (bytes[0] == 'd') checkDrawing(rest);
  if (bytes[0] == 'l') checkLines(rest);
  if (bytes[0] == 'r') checkRoads(rest);
  return 0;
}
