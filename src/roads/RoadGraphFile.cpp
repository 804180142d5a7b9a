#include "roads/RoadGraphFile.h"

#include <cmath>
#include <string_view>
#include <utility>

namespace wayloom {

namespace {

constexpr double kUnitsPerDegree = 1e7;
constexpr std::size_t kPointBytes = 8;
constexpr std::size_t kEdgeBytes = 16;
constexpr std::size_t kTurnBytes = 12;
// The search numbers each edge several times over, in 32 bits.
constexpr std::size_t kMostEdges = 1U << 29;

constexpr std::uint32_t kForward = 1;
constexpr std::uint32_t kBackward = 2;
constexpr std::uint32_t kDestinationOnly = 4;
constexpr std::uint32_t kFerry = 8;

using Bytes = std::vector<std::byte>;

void put(Bytes& bytes, std::uint32_t value) {
  for (int shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<std::byte>(value >> shift & 0xff));
  }
}

std::uint32_t take(std::span<const std::byte>& bytes) {
  std::uint32_t value = 0;
  for (std::size_t index = 0; index < 4; ++index) {
    value |= std::to_integer<std::uint32_t>(bytes[index]) << (8 * index);
  }
  bytes = bytes.subspan(4);
  return value;
}

Bytes encodePoints(const std::vector<RoadPoint>& points) {
  Bytes bytes;
  bytes.reserve(points.size() * kPointBytes);
  for (const RoadPoint& point : points) {
    put(bytes, static_cast<std::uint32_t>(point.longitude));
    put(bytes, static_cast<std::uint32_t>(point.latitude));
  }
  return bytes;
}

Bytes encodeEdges(const std::vector<RoadEdge>& edges) {
  Bytes bytes;
  bytes.reserve(edges.size() * kEdgeBytes);
  for (const RoadEdge& edge : edges) {
    put(bytes, edge.from);
    put(bytes, edge.to);
    put(bytes, edge.firstBend);
    put(bytes, std::uint32_t{edge.use.kmPerHour} | (edge.use.forward ? kForward << 8 : 0) |
                   (edge.use.backward ? kBackward << 8 : 0) |
                   (edge.use.destinationOnly ? kDestinationOnly << 8 : 0) |
                   (edge.use.isFerry ? kFerry << 8 : 0));
  }
  return bytes;
}

Bytes encodeTurns(const std::vector<ForbiddenTurn>& turns) {
  Bytes bytes;
  bytes.reserve(turns.size() * kTurnBytes);
  for (const ForbiddenTurn& turn : turns) {
    put(bytes, turn.fromEdge);
    put(bytes, turn.junction);
    put(bytes, turn.toEdge);
  }
  return bytes;
}

Result<std::vector<RoadPoint>> decodePoints(std::span<const std::byte> bytes) {
  if (bytes.size() % kPointBytes != 0) return failed("a position of a road is cut short");
  std::vector<RoadPoint> points;
  points.reserve(bytes.size() / kPointBytes);
  while (!bytes.empty()) {
    const auto longitude = static_cast<std::int32_t>(take(bytes));
    const auto latitude = static_cast<std::int32_t>(take(bytes));
    const Coordinate coordinate = coordinateOf({longitude, latitude});
    if (!isOnGlobe(coordinate)) return failed("a position of a road is off the globe");
    points.push_back({longitude, latitude});
  }
  return points;
}

Result<std::vector<RoadEdge>> decodeEdges(std::span<const std::byte> bytes) {
  if (bytes.size() % kEdgeBytes != 0) return failed("a road is cut short");
  if (bytes.size() / kEdgeBytes > kMostEdges) return failed("it has too many roads");
  std::vector<RoadEdge> edges;
  edges.reserve(bytes.size() / kEdgeBytes);
  while (!bytes.empty()) {
    RoadEdge edge;
    edge.from = take(bytes);
    edge.to = take(bytes);
    edge.firstBend = take(bytes);
    const std::uint32_t use = take(bytes);
    edge.use = {(use >> 8 & kForward) != 0, (use >> 8 & kBackward) != 0,
                (use >> 8 & kDestinationOnly) != 0, static_cast<std::uint8_t>(use & 0xff),
                (use >> 8 & kFerry) != 0};
    edges.push_back(edge);
  }
  return edges;
}

Result<std::vector<ForbiddenTurn>> decodeTurns(std::span<const std::byte> bytes) {
  if (bytes.size() % kTurnBytes != 0) return failed("a forbidden turn is cut short");
  std::vector<ForbiddenTurn> turns;
  turns.reserve(bytes.size() / kTurnBytes);
  while (!bytes.empty()) {
    ForbiddenTurn turn;
    turn.fromEdge = take(bytes);
    turn.junction = take(bytes);
    turn.toEdge = take(bytes);
    turns.push_back(turn);
  }
  return turns;
}

// Whether the edge exists and begins or ends at the junction.
bool touches(const RoadNetwork& network, std::uint32_t edge, std::uint32_t junction) {
  return edge < network.edges.size() &&
         (network.edges[edge].from == junction || network.edges[edge].to == junction);
}

Status check(const RoadNetwork& network) {
  std::uint32_t firstBend = 0;
  for (const RoadEdge& edge : network.edges) {
    if (edge.from >= network.junctions.size() || edge.to >= network.junctions.size()) {
      return failed("a road leads to no junction");
    }
    if (edge.firstBend < firstBend || edge.firstBend > network.bends.size()) {
      return failed("the bends of a road are in disorder");
    }
    if (edge.use.kmPerHour == 0) return failed("a road has no speed");
    firstBend = edge.firstBend;
  }
  for (const ForbiddenTurn& turn : network.turns) {
    if (!touches(network, turn.fromEdge, turn.junction) ||
        !touches(network, turn.toEdge, turn.junction)) {
      return failed("a forbidden turn joins no roads");
    }
  }
  return done();
}

Status readPart(Statement& statement, RoadNetwork& network) {
  const std::string_view part = statement.text(0);
  if (part == "edges") {
    auto edges = decodeEdges(statement.bytes(1));
    if (!edges) return edges.failure();
    network.edges = std::move(*edges);
  } else if (part == "turns") {
    auto turns = decodeTurns(statement.bytes(1));
    if (!turns) return turns.failure();
    network.turns = std::move(*turns);
  } else {
    auto points = decodePoints(statement.bytes(1));
    if (!points) return points.failure();
    (part == "junctions" ? network.junctions : network.bends) = std::move(*points);
  }
  return done();
}

Result<RoadNetwork> readParts(Database& database) {
  RoadNetwork network;
  const auto count =
      database.number("SELECT count(*) FROM sqlite_schema WHERE name = 'road_network'");
  if (!count) return count.failure();
  if (*count == 0) return network;
  auto statement = database.prepare(
      "SELECT part, data FROM road_network WHERE part IN ('junctions', 'edges', 'bends', 'turns') "
      "LIMIT 4");
  if (!statement) return statement.failure();
  for (;;) {
    const auto row = statement->step();
    if (!row) return row.failure();
    if (!*row) break;
    if (auto status = readPart(*statement, network); !status) return status.failure();
  }
  if (auto status = check(network); !status) return status.failure();
  return network;
}

}  // namespace

RoadPoint roadPoint(Coordinate coordinate) {
  return {static_cast<std::int32_t>(std::lround(coordinate.longitude * kUnitsPerDegree)),
          static_cast<std::int32_t>(std::lround(coordinate.latitude * kUnitsPerDegree))};
}

Coordinate coordinateOf(RoadPoint point) {
  return {point.latitude / kUnitsPerDegree, point.longitude / kUnitsPerDegree};
}

Status writeRoads(Database& database, const RoadNetwork& network) {
  auto status =
      database.execute("CREATE TABLE road_network(part TEXT PRIMARY KEY, data BLOB NOT NULL)");
  if (!status) return status;
  auto insert = database.prepare("INSERT INTO road_network(part, data) VALUES (?1, ?2)");
  if (!insert) return insert.failure();
  const std::pair<std::string_view, Bytes> parts[] = {
      {"junctions", encodePoints(network.junctions)},
      {"edges", encodeEdges(network.edges)},
      {"bends", encodePoints(network.bends)},
      {"turns", encodeTurns(network.turns)},
  };
  for (const auto& [part, bytes] : parts) {
    status = insert->bind(1, part).bind(2, std::span<const std::byte>(bytes)).run();
    if (!status) return status;
  }
  return done();
}

Result<RoadNetwork> readRoads(Database& database) {
  auto network = readParts(database);
  if (!network) return Failure{"its roads are damaged: " + network.failure().message};
  return network;
}

}  // namespace wayloom
