#include "roads/RoadGraphFile.h"

#include <cmath>
#include <string_view>
#include <utility>

namespace wayloom {

namespace {

constexpr std::size_t kPointBytes = 8;
constexpr std::size_t kNumberBytes = 8;
constexpr std::size_t kEdgeBytes = 16;
constexpr std::size_t kWordBytes = 4;
// Twice that many arcs and the states of rules fit into 31 bits.
constexpr std::size_t kMostEdges = 1U << 29;
constexpr std::size_t kMostRuleWords = 1U << 29;
constexpr std::size_t kMostHours = 255;

constexpr std::uint32_t kForward = 1;
constexpr std::uint32_t kBackward = 2;
constexpr std::uint32_t kDestinationOnly = 4;
constexpr std::uint32_t kFerry = 8;
constexpr std::uint32_t kSignalAtEnd = 16;
constexpr std::uint32_t kSignalAtBegin = 32;
constexpr std::uint32_t kKeepsLeft = 64;

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

Bytes encodeNumbers(const std::vector<std::int64_t>& numbers) {
  Bytes bytes;
  bytes.reserve(numbers.size() * kNumberBytes);
  for (const std::int64_t number : numbers) {
    const auto bits = static_cast<std::uint64_t>(number);
    put(bytes, static_cast<std::uint32_t>(bits));
    put(bytes, static_cast<std::uint32_t>(bits >> 32));
  }
  return bytes;
}

std::uint32_t flagsOf(const RoadEdge& edge) {
  return (edge.use.forward ? kForward : 0) | (edge.use.backward ? kBackward : 0) |
         (edge.use.destinationOnly ? kDestinationOnly : 0) | (edge.use.isFerry ? kFerry : 0) |
         (edge.use.keepsLeft ? kKeepsLeft : 0) | (edge.signalAtEnd ? kSignalAtEnd : 0) |
         (edge.signalAtBegin ? kSignalAtBegin : 0);
}

Bytes encodeEdges(const std::vector<RoadEdge>& edges) {
  Bytes bytes;
  bytes.reserve(edges.size() * kEdgeBytes);
  for (const RoadEdge& edge : edges) {
    put(bytes, edge.from);
    put(bytes, edge.to);
    put(bytes, edge.firstBend);
    put(bytes, std::uint32_t{edge.use.kmPerHour} | flagsOf(edge) << 8);
  }
  return bytes;
}

// One word with kind and lengths, then the arcs, then two words for the hours each.
Bytes encodeRules(const std::vector<RoadRule>& rules) {
  Bytes bytes;
  for (const RoadRule& rule : rules) {
    const std::size_t count = std::min(rule.hours.size(), kMostHours);
    put(bytes, (rule.isOnly ? 1U : 0U) | static_cast<std::uint32_t>(rule.arcs.size()) << 8 |
                   static_cast<std::uint32_t>(count) << 16);
    for (const RoadArc arc : rule.arcs) put(bytes, arc);
    for (const RoadHours& hours : std::span(rule.hours).first(count)) {
      put(bytes, std::uint32_t{hours.months} | std::uint32_t{hours.days} << 16);
      put(bytes, std::uint32_t{hours.from} | std::uint32_t{hours.to} << 16);
    }
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
    const auto is = [&](std::uint32_t flag) { return (use >> 8 & flag) != 0; };
    edge.use = {is(kForward),         is(kBackward),
                is(kDestinationOnly), static_cast<std::uint8_t>(use & 0xff),
                is(kFerry),           is(kKeepsLeft)};
    edge.signalAtEnd = is(kSignalAtEnd);
    edge.signalAtBegin = is(kSignalAtBegin);
    edges.push_back(edge);
  }
  return edges;
}

Result<std::vector<std::int64_t>> decodeNumbers(std::span<const std::byte> bytes) {
  if (bytes.size() % kNumberBytes != 0) return failed("the number of a junction is cut short");
  std::vector<std::int64_t> numbers;
  numbers.reserve(bytes.size() / kNumberBytes);
  while (!bytes.empty()) {
    const std::uint64_t low = take(bytes);
    numbers.push_back(static_cast<std::int64_t>(low | std::uint64_t{take(bytes)} << 32));
  }
  return numbers;
}

Result<std::vector<RoadRule>> decodeRules(std::span<const std::byte> bytes) {
  if (bytes.size() % kWordBytes != 0) return failed("a rule is cut short");
  if (bytes.size() / kWordBytes > kMostRuleWords) return failed("it has too many rules");
  std::vector<RoadRule> rules;
  while (!bytes.empty()) {
    const std::uint32_t head = take(bytes);
    const std::size_t arcs = head >> 8 & 0xff;
    const std::size_t hours = head >> 16 & 0xff;
    if (arcs < 2 || arcs > kMostArcsInARule) return failed("a rule joins no roads");
    if (bytes.size() < (arcs + 2 * hours) * kWordBytes) return failed("a rule is cut short");
    RoadRule& rule = rules.emplace_back();
    rule.isOnly = (head & 1) != 0;
    for (std::size_t arc = 0; arc < arcs; ++arc) rule.arcs.push_back(take(bytes));
    for (std::size_t each = 0; each < hours; ++each) {
      const std::uint32_t days = take(bytes);
      const std::uint32_t minutes = take(bytes);
      rule.hours.push_back(
          {static_cast<std::uint16_t>(days), static_cast<std::uint8_t>(days >> 16 & 0xff),
           static_cast<std::uint16_t>(minutes), static_cast<std::uint16_t>(minutes >> 16)});
    }
  }
  return rules;
}

// Whether the arcs exist and each leaves the junction to which the one before it leads.
bool followEachOther(const RoadNetwork& network, const std::vector<RoadArc>& arcs) {
  for (std::size_t at = 0; at < arcs.size(); ++at) {
    if (edgeOf(arcs[at]) >= network.edges.size()) return false;
    if (at > 0 && network.head(arcs[at - 1]) != network.tail(arcs[at])) return false;
  }
  return true;
}

Status checkEdges(const RoadNetwork& network) {
  std::uint32_t firstBend = 0;
  std::vector<std::uint8_t> roadsAt(network.junctions.size());
  for (const RoadEdge& edge : network.edges) {
    for (const std::uint32_t junction : {edge.from, edge.to}) {
      if (junction >= network.junctions.size()) return failed("a road leads to no junction");
      if (++roadsAt[junction] > kMostRoadsAtAJunction) return failed("too many roads meet");
    }
    if (edge.firstBend < firstBend || edge.firstBend > network.bends.size()) {
      return failed("the bends of a road are in disorder");
    }
    if (edge.use.kmPerHour == 0) return failed("a road has no speed");
    firstBend = edge.firstBend;
  }
  return done();
}

Status check(const RoadNetwork& network) {
  if (auto status = checkEdges(network); !status) return status;
  if (network.numbers.size() != network.junctions.size()) {
    return failed("junctions and their numbers differ");
  }
  for (const RoadRule& rule : network.rules) {
    if (!followEachOther(network, rule.arcs)) return failed("a rule joins no roads");
  }
  return done();
}

/// Puts what was decoded in its place.
template <typename Part>
Status keep(Result<Part> decoded, Part& part) {
  if (!decoded) return decoded.failure();
  part = std::move(*decoded);
  return done();
}

Status readPart(Statement& statement, RoadNetwork& network) {
  const std::string_view part = statement.text(0);
  const auto bytes = statement.bytes(1);
  if (part == "edges") return keep(decodeEdges(bytes), network.edges);
  if (part == "numbers") return keep(decodeNumbers(bytes), network.numbers);
  if (part == "rules") return keep(decodeRules(bytes), network.rules);
  return keep(decodePoints(bytes), part == "junctions" ? network.junctions : network.bends);
}

Result<RoadNetwork> readParts(Database& database) {
  RoadNetwork network;
  const auto count =
      database.number("SELECT count(*) FROM sqlite_schema WHERE name = 'road_network'");
  if (!count) return count.failure();
  if (*count == 0) return network;
  auto statement = database.prepare(
      "SELECT part, data FROM road_network WHERE part IN ('junctions', 'numbers', 'edges', "
      "'bends', 'rules') LIMIT 5");
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

Status writeRoads(Database& database, const RoadNetwork& network) {
  auto status =
      database.execute("CREATE TABLE road_network(part TEXT PRIMARY KEY, data BLOB NOT NULL)");
  if (!status) return status;
  auto insert = database.prepare("INSERT INTO road_network(part, data) VALUES (?1, ?2)");
  if (!insert) return insert.failure();
  const std::pair<std::string_view, Bytes> parts[] = {
      {"junctions", encodePoints(network.junctions)}, {"numbers", encodeNumbers(network.numbers)},
      {"edges", encodeEdges(network.edges)},          {"bends", encodePoints(network.bends)},
      {"rules", encodeRules(network.rules)},
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
