#include <random>

#include "roads/RoadGraphBuilder.h"
#include "roads/RoadGraphFile.h"
#include "roads/RouterAnswer.h"
#include "tests/roads/AsciiRoads.h"

namespace wayloom {
namespace {

using testing::HasSubstr;

Database databaseWith(const RoadNetwork& network) {
  auto database = Database::openInMemory();
  EXPECT_TRUE(database && writeRoads(*database, network));
  return std::move(*database);
}

const RoadNetwork kNetwork = {
    {{-1800000000, 900000000}, {1800000000, -900000000}, {1, -1}},
    {7, 0, std::int64_t{1} << 40},
    {{0, 1, 0, {true, false, true, 130}, true, false},
     {1, 1, 2, {false, true, false, 5, true, true}, false, true},
     {2, 0, 2, {}}},
    {{5, 6}, {-7, -8}, {9, 10}},
    {{{0, 2, 3}, true, {}}, {{4, 0}, false, {{1, 64, 30, 1440}, {4095, 127, 1320, 360}}}}};

TEST(RoadGraphFileTest, KeepsEveryField) {
  for (const RoadNetwork& network : {kNetwork, RoadNetwork{}}) {
    Database database = databaseWith(network);
    const auto read = readRoads(database);
    ASSERT_TRUE(read) << read.message();
    EXPECT_EQ(*read, network);
  }
}

TEST(RoadGraphFileTest, RefusesWhatLeadsNowhere) {
  const std::pair<const char*, const char*> cases[] = {
      {"UPDATE road_network SET data = x'00112233445566' WHERE part = 'bends'", "cut short"},
      {"UPDATE road_network SET data = x'0011223344' WHERE part = 'edges'", "cut short"},
      {"UPDATE road_network SET data = x'ffffff7f00000000' WHERE part = 'bends'", "off the globe"},
      {"UPDATE road_network SET data = x'00000000ffffff7f' WHERE part = 'junctions'", "globe"},
      {"DELETE FROM road_network WHERE part = 'junctions'", "no junction"},
      {"DELETE FROM road_network WHERE part = 'bends'", "disorder"},
      {"UPDATE road_network SET data = zeroblob(16) WHERE part = 'edges'", "no speed"},
      {"DELETE FROM road_network WHERE part = 'numbers'", "numbers differ"},
      {"UPDATE road_network SET data = zeroblob(7) WHERE part = 'rules'", "cut short"},
      {"UPDATE road_network SET data = x'000202000000000003000000' WHERE part = 'rules'", "cut"},
      {"UPDATE road_network SET data = zeroblob(4) WHERE part = 'rules'", "no roads"},
      {"UPDATE road_network SET data = x'000200000000000004000000' WHERE part = 'rules'",
       "no roads"},
      {"UPDATE road_network SET data = x'00020000ffffffff00000000' WHERE part = 'rules'",
       "no roads"},
      {"DROP TABLE road_network; CREATE TABLE road_network(x)", "damaged"},
  };
  for (const auto& [change, reason] : cases) {
    Database database = databaseWith(kNetwork);
    ASSERT_TRUE(database.execute(change)) << change;
    EXPECT_THAT(readRoads(database).message(), HasSubstr(reason)) << change;
  }
}

TEST(RoadGraphFileTest, KeepsHundredsOfRoadsFromMeeting) {
  std::vector<RoadWay> ways;
  for (int way = 0; way < 300; ++way) ways.push_back({{{47, 9}, {47.001, 9 + 0.001 * way}}, {}});
  RoadFaults faults;
  RoadNetwork network = roadNetwork(ways, {}, &faults);
  EXPECT_EQ(faults.unjoinedRoads, 300 - kMostRoadsAtAJunction);
  Database database = databaseWith(network);
  EXPECT_TRUE(readRoads(database));
  for (RoadEdge& edge : network.edges) edge.from = network.edges.front().from;
  Database crowded = databaseWith(network);
  EXPECT_THAT(readRoads(crowded).message(), HasSubstr("too many roads meet"));
}

// Whatever stands in the file, it is refused or drivable; the sanitizers watch.
TEST(RoadGraphFileTest, SurvivesAnyBytes) {
  const AsciiRoads roads({"A->-B-C", "|   | |", "D---E-F"});
  std::mt19937 random(11);
  int refused = 0;
  for (int round = 0; round < 600; ++round) {
    Database database = databaseWith(roads.network({"ABC"}, {"ABED"}));
    const char* part = std::array{"junctions", "edges", "bends", "rules", "numbers"}[random() % 5];
    std::vector<std::byte> bytes(16 * (random() % 12));
    for (auto& byte : bytes) byte = static_cast<std::byte>(random() % 4 == 0 ? random() : 0);
    for (std::size_t at = 12; at < bytes.size(); at += 16) bytes[at] = std::byte{30};
    auto update = database.prepare("UPDATE road_network SET data = ?1 WHERE part = ?2");
    ASSERT_TRUE(update);
    ASSERT_TRUE(
        update->bind(1, std::span<const std::byte>(bytes)).bind(2, std::string_view(part)).run());
    auto network = readRoads(database);
    if (!network) {
      ++refused;
      continue;
    }
    const RoadGraph graph(std::move(*network));
    RouterSearch search(graph);
    for (const char letter : {'A', 'B', 'F'}) {
      const auto routes = routesOn(search, roads.at('D'), roads.at(letter), 2);
      EXPECT_TRUE(!routes || routes->front().polyline.size() >= 2) << "round " << round;
    }
  }
  EXPECT_GT(refused, 100);
  EXPECT_LT(refused, 599);
}

TEST(RoadGraphBuilderTest, JoinsWaysOnlyWhereTheyShareAPosition) {
  const Line street{{1, 1}, {1, 1.001}, {1, 1.002}};
  const struct {
    Line other;
    std::size_t junctions, edges, bends;
  } cases[] = {
      {{{1, 1.002}, {1, 1.003}}, 3, 2, 1},
      {{{1.001, 1.001}, {1, 1.001}, {0.999, 1.001}}, 5, 4, 0},
      {{{1.001, 1.0015}, {0.999, 1.0015}}, 4, 2, 1},
      {{{1, 1}, {1, 1}, {1, 1}}, 2, 1, 1},
      {{{2, 2}, {2, 2.001}, {2.001, 2.001}, {2, 2}}, 3, 2, 3},
  };
  for (const auto& test : cases) {
    const RoadNetwork network = roadNetwork({{street, {}}, {test.other, {}}});
    EXPECT_EQ(network.junctions.size(), test.junctions) << test.other[0].latitude;
    EXPECT_EQ(network.edges.size(), test.edges) << test.other[0].latitude;
    EXPECT_EQ(network.bends.size(), test.bends) << test.other[0].latitude;
  }
}

}  // namespace
}  // namespace wayloom
