#include "regions/RegionWriter.h"
#include "roads/RoadGraphFile.h"
#include "roads/Router.h"
#include "roads/RouterAnswer.h"
#include "tests/roads/AsciiRoads.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

using testing::HasSubstr;
using Rows = std::vector<std::string>;

constexpr auto cell = AsciiRoads::cell;

struct RoadsToDrive {
  explicit RoadsToDrive(RoadNetwork network) : graph(std::move(network)), search(graph) {}
  const RoadGraph graph;
  RouterSearch search;
};

void expectDrive(const AsciiRoads& roads, const RoadNetwork& network, Coordinate from,
                 Coordinate to, const char* passed) {
  RoadsToDrive drive(network);
  const auto routes = routesOn(drive.search, from, to, 0);
  ASSERT_TRUE(routes) << passed << ": " << routes.message();
  EXPECT_EQ(roads.passed(routes->front().polyline), passed);
}

const Rows kBlock = {"A->-B", "|   |", "C---D"};
const Rows kRoundabout = {"A-P<Q-B", "  v ^  ", "C-R>S-D"};
const Rows kResidents = {"A-B===C-D", "  |   |  ", "  E---F  "};
const Rows kCourt = {"A-B=====C", "  |     |", "  |     |", "  E--X--F"};
const Rows kTrap = {"A---B->-C", "|   |    ", "D---E    "};

TEST(RouterTest, DrivesAsDrawn) {
  const struct {
    Rows rows;
    char from, to;
    const char* passed;
  } cases[] = {
      {{"A---B---C"}, 'A', 'C', "ABC"},  {{"A---B---C"}, 'C', 'A', "CBA"},
      {{"A---B---C"}, 'B', 'B', "BB"},   {kBlock, 'A', 'B', "AB"},
      {kBlock, 'B', 'A', "BDCA"},        {kBlock, 'D', 'A', "DCA"},
      {kRoundabout, 'A', 'B', "APRSQB"}, {kRoundabout, 'B', 'A', "BQPA"},
      {kRoundabout, 'C', 'A', "CRSQPA"}, {kRoundabout, 'D', 'C', "DSQPRC"},
      {kResidents, 'A', 'D', "ABEFCD"},  {kTrap, 'D', 'C', "DABC"},
  };
  for (const auto& test : cases) {
    const AsciiRoads roads(test.rows);
    expectDrive(roads, roads.network(), roads.at(test.from), roads.at(test.to), test.passed);
  }
}

const Rows kCross = {"    D    ", "    |    ", "A---B---C", "    |    ", "    E----F"};
const Rows kGrid = {"A---B---C", "|   |   |", "D---E---F", "|   |   |", "G---H---I"};

TEST(RouterTest, MakesOnlyTurnsThatAreAllowed) {
  const struct {
    Rows rows;
    std::vector<std::string> forbidden, only;
    char from, to;
    const char* passed;
  } cases[] = {
      {kGrid, {}, {}, 'B', 'D', "BAD"},
      {kGrid, {"BAD"}, {}, 'B', 'D', "BED"},
      {kGrid, {"BAD"}, {}, 'D', 'B', "DAB"},
      // Turned round on the road to H, not on the crossing.
      {kGrid, {"BAD", "BED"}, {}, 'B', 'D', "BEED"},
      {kGrid, {"BAD", "BED", "HEB", "EHE", "BEF", "BCF"}, {}, 'B', 'D', "BEHGD"},
      // Who starts at the junction itself comes from nowhere.
      {kGrid, {"BAD"}, {}, 'A', 'D', "AD"},
      {kGrid, {}, {"DEF"}, 'D', 'H', "DGH"},
      {kGrid, {}, {"DEF", "DGH"}, 'D', 'B', "DAB"},
      {kCross, {}, {"ABE"}, 'A', 'F', "ABEF"},
      {kCross, {}, {"ABC"}, 'A', 'F', "ABBEF"},
      // What is forbidden from one side is allowed from the others, and from there on.
      {kCross, {"ABD"}, {}, 'A', 'C', "ABC"},
      {kCross, {"ABD"}, {}, 'E', 'D', "EBD"},
      {kCross, {"ABD"}, {}, 'A', 'D', "ABBD"},
  };
  for (const auto& test : cases) {
    const AsciiRoads roads(test.rows);
    const RoadNetwork network = roads.network(test.forbidden, test.only);
    expectDrive(roads, network, roads.at(test.from), roads.at(test.to), test.passed);
  }
}

TEST(RouterTest, GoesNoFurtherWhereNoTurnIsAllowed) {
  // So far apart that neither end moves to the other road.
  const AsciiRoads roads({"A-----------B-----------C"});
  RoadsToDrive drive(roads.network({"ABC", "ABA", "CBC"}));
  const auto there = routesOn(drive.search, cell(1, 0), cell(23, 0), 0);
  EXPECT_EQ(there.message(), "no road leads from the start to the end");
  const auto back = routesOn(drive.search, cell(23, 0), cell(1, 0), 0);
  ASSERT_TRUE(back) << back.message();
  EXPECT_EQ(roads.passed(back->front().polyline), "B");
}

TEST(RouterTest, StopsAtBarriersAndTakesFerries) {
  const struct {
    Rows rows;
    Coordinate from, to;
    const char* passed;
  } cases[] = {
      {{"A--x--B", "|     |", "C-----D"}, cell(2, 0), cell(4, 0), "ACDB"},
      // Up to the barrier one may drive, from either side.
      {{"A--x--B", "|     |", "C-----D"}, cell(0, 1), cell(3, 0), "A"},
      // A barrier on a crossing closes it for all.
      {{"A---B", "|   x", "C---D"}, cell(4, 0), cell(4, 2), "BACD"},
      {{"A---B~~~~C---D"}, cell(1, 0), cell(12, 0), "BC"},
      // The slower ferry is not taken where a bridge is near.
      {{"A---B~~~~C---D", "    |    |    ", "    E----F    "}, cell(1, 0), cell(12, 0), "BEFC"},
      // Nobody gets on in the middle of the water.
      {{"A---B~~~~C---D"}, cell(6, 0), cell(12, 0), "BC"},
  };
  for (const auto& test : cases) {
    const AsciiRoads roads(test.rows);
    expectDrive(roads, roads.network(), test.from, test.to, test.passed);
  }
}

const Rows kStreet = {"A-----B"};
const Rows kIslet = {"A---B", "     ", "  X-Y"};

TEST(RouterTest, MovesBothEndsToTheNearestRoadThatLeadsThere) {
  const struct {
    Rows rows;
    Coordinate from, to, first, last;
    const char* passed;
  } cases[] = {
      // Within an edge, not at its ends; also against the direction in which it was drawn.
      {kStreet, cell(1.5, 0.3), cell(4.25, -0.2), cell(1.5, 0), cell(4.25, 0), ""},
      {kStreet, cell(4.25, 0), cell(1.5, 0), cell(4.25, 0), cell(1.5, 0), ""},
      // Back along a one-way street means once round.
      {kBlock, cell(3, 0), cell(1, 0), cell(3, 0), cell(1, 0), "BDCA"},
      // An island is no place to end, nor to start.
      {kIslet, cell(0, 0), cell(3, 1.9), cell(0, 0), cell(3, 0), "A"},
      {kIslet, cell(2, 1.9), cell(3, 1.9), cell(2, 2), cell(3, 2), "X"},
      // Out of a street that one can only enter there is no way.
      {kTrap, cell(7, 0), cell(0, 0), cell(4, 0), cell(0, 0), "BA"},
      // Within that street there is.
      {kTrap, cell(5, 0.1), cell(7, 0.1), cell(5, 0), cell(7, 0), ""},
      // A residents' street may be driven to its houses and from them.
      {kCourt, cell(0, 0), cell(4, 0), cell(0, 0), cell(4, 0), "AB"},
      {kCourt, cell(7, 0), cell(5, 3), cell(7, 0), cell(5, 3), "CFX"},
  };
  int number = 0;
  for (const auto& test : cases) {
    const AsciiRoads roads(test.rows);
    RoadsToDrive drive(roads.network());
    const auto routes = routesOn(drive.search, test.from, test.to, 0);
    ASSERT_TRUE(routes) << "case " << number << ": " << routes.message();
    const Route& route = routes->front();
    EXPECT_LT(distanceMetres(route.polyline.front(), test.first), 0.1) << "case " << number;
    EXPECT_LT(distanceMetres(route.polyline.back(), test.last), 0.1) << "case " << number;
    EXPECT_EQ(roads.passed(route.polyline), test.passed) << "case " << number;
    double metres = 0;
    for (std::size_t index = 1; index < route.polyline.size(); ++index) {
      metres += distanceMetres(route.polyline[index - 1], route.polyline[index]);
    }
    EXPECT_NEAR(route.distanceMetres, metres, 0.01) << "case " << number;
    EXPECT_NEAR(route.expectedSeconds, metres / (50 / 3.6), 0.01) << "case " << number;
    ++number;
  }
}

class RegionRoadsTest : public testing::Test {
 protected:
  void write(const std::string& name, const RegionBounds& bounds, const RoadNetwork& network) {
    auto writer = RegionWriter::create(mFolder.path() / (name + ".region"), {name, "", bounds});
    ASSERT_TRUE(writer) << writer.message();
    ASSERT_TRUE(network.edges.empty() || writeRoads(writer->database(), network));
    ASSERT_TRUE(writer->commit());
  }
  TemporaryFolder mFolder;
};

TEST_F(RegionRoadsTest, SayWhyThereIsNoRoute) {
  const AsciiRoads roads({"A---B", "|   |", "C---D"});
  std::vector<RoadWay> far = roads.ways();
  far.push_back({{{1.2, 1.2}, {1.21, 1.21}}, {}});
  write("west", {0.9, 0.9, 1.3, 1.3}, roadNetwork(far));
  write("east", {4, 0.9, 5, 1.3}, roadNetwork({{{{1, 4.5}, {1.01, 4.5}}, {}}}));
  write("world", {-180, -90, 180, 90}, {});
  Router router(RegionStore({mFolder.path()}));
  ASSERT_TRUE(router.plan(roads.at('A'), roads.at('D')));
  const struct {
    Coordinate from, to;
    const char* reason;
  } cases[] = {
      {{40, 40}, roads.at('A'), "start lies outside"},
      {roads.at('A'), {-40, -140}, "end lies outside"},
      {{1.1, 1.1}, roads.at('A'), "no road within 1000 m of the start"},
      {roads.at('A'), {0.95, 0.95}, "no road within 1000 m of the end"},
      {roads.at('A'), {1.2, 1.2}, "no road leads"},
      {roads.at('A'), {1, 4.5}, "different regions"},
      {{91, 0}, roads.at('A'), "not on the globe"},
      {roads.at('A'), {0, NAN}, "not on the globe"},
      {roads.at('A'), {0, 1e300}, "not on the globe"},
  };
  for (const auto& test : cases) {
    EXPECT_THAT(router.plan(test.from, test.to).message(), HasSubstr(test.reason));
  }
}

TEST_F(RegionRoadsTest, OfTheRegionThatKnowsTheNearestRoadAreDriven) {
  const AsciiRoads far({"A---B", "     ", "     ", "     ", "C---D"});
  write("small", {0.99, 0.99, 1.01, 1.01}, AsciiRoads({"A---B"}).network());
  write("large", {0.9, 0.9, 1.1, 1.1}, far.network());
  Router router(RegionStore({mFolder.path()}));
  const auto routes = router.plan(far.at('C'), far.at('D'), 0);
  ASSERT_TRUE(routes) << routes.message();
  EXPECT_EQ(far.passed(routes->front().polyline), "CD");
}

TEST_F(RegionRoadsTest, AreRefusedWhenDamagedAndOthersServe) {
  const AsciiRoads roads({"A---B"});
  RoadNetwork damaged = roads.network();
  damaged.edges.front().to = 99;
  write("small", {0.95, 0.95, 1.05, 1.05}, damaged);
  Router alone(RegionStore({mFolder.path()}));
  EXPECT_THAT(alone.plan(roads.at('A'), roads.at('B')).message(),
              HasSubstr("small cannot be used: its roads are damaged"));
  write("large", {0, 0, 2, 2}, roads.network());
  Router both(RegionStore({mFolder.path()}));
  EXPECT_TRUE(both.plan(roads.at('A'), roads.at('B')));
}

}  // namespace
}  // namespace wayloom
