#include "import/RegionImport.h"
#include "regions/Database.h"
#include "roads/RoadGraphFile.h"
#include "roads/Router.h"
#include "tests/import/OsmText.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

using testing::ElementsAre;

constexpr Coordinate at(int row, int column) {
  return {47 + row * 0.001, 9 + column * 0.001};
}

const OsmTags kRoad = {{"highway", "residential"}};

class ExtractRoadsTest : public testing::Test {
 protected:
  Result<Region> import(const OsmText& text, const std::string& name = "a") {
    text.write(mSources.path() / (name + ".osm"));
    const auto goOn = [](std::string_view, double) { return true; };
    mReport = {};
    return importRegion(mSources.path() / (name + ".osm"), mFolder.path(), name,
                        RegionStore({mFolder.path()}), goOn, &mReport);
  }
  RoadNetwork roads() {
    auto database = openRegion(mFolder.path() / "a.region");
    return database ? *readRoads(*database) : RoadNetwork{};
  }

  TemporaryFolder mFolder, mSources;
  ImportReport mReport;
};

// A cross of four ways at node 22, and a block round one of its corners.
OsmText cross() {
  OsmText text;
  text.grid(5, 5)
      .way(1, {20, 21, 22}, kRoad)
      .way(2, {22, 23, 24}, kRoad)
      .way(3, {2, 12, 22}, kRoad)
      .way(4, {22, 32, 42}, kRoad)
      .way(5, {20, 40, 42}, kRoad);
  return text;
}

TEST_F(ExtractRoadsTest, TakeRestrictionsThatBindCars) {
  const std::vector<std::string> left = {"way 1 from", "node 22 via", "way 4 to"};
  const std::vector<std::string> exits = {"way 1 from", "way 3 from", "node 22 via", "way 4 to",
                                          "way 2 to"};
  const std::vector<std::string> over = {"way 5 from", "way 1 via", "way 4 to"};
  const std::vector<std::string> apart = {"way 5 from", "way 1 via", "way 2 via", "way 4 to"};
  const std::vector<std::string> elsewhere = {"way 1 from", "node 21 via", "way 4 to"};
  const std::vector<std::string> noRoad = {"way 1 from", "node 22 via", "way 99 to"};
  const OsmTags no = {{"restriction", "no_left_turn"}};
  const struct {
    std::vector<std::string> members;
    OsmTags tags;
    std::size_t rules, hours, unclear, unfit;
  } cases[] = {
      {left, no, 1, 0, 0, 0},
      {left, {{"restriction:hgv", "no_left_turn"}}, 0, 0, 0, 0},
      {left, {{"restriction", "no"}, {"restriction:motorcar", "only_left_turn"}}, 1, 0, 0, 0},
      {left, {{"restriction", "no_left_turn"}, {"except", "psv; motorcar"}}, 0, 0, 0, 0},
      {left, {{"restriction", "no_left_turn"}, {"hour_on", "07:00"}}, 0, 0, 1, 0},
      {left, {{"restriction:conditional", "no_left_turn @ (Mo-Fr 07:00-09:00; Sa)"}}, 1, 2, 0, 0},
      {left, {{"restriction:conditional", "no_left_turn @ (Sa); no_u_turn @ (PH)"}}, 1, 1, 1, 0},
      {exits, no, 4, 0, 0, 0},
      {over, no, 1, 0, 0, 0},
      {apart, no, 0, 0, 0, 1},
      {elsewhere, no, 0, 0, 0, 0},
      {noRoad, no, 0, 0, 0, 0},
  };
  for (const auto& test : cases) {
    OsmTags tags = test.tags;
    tags["type"] = "restriction";
    ASSERT_EQ(import(cross().relation(1, test.members, tags)).message(), "");
    const auto rules = roads().rules;
    const std::string shown = testing::PrintToString(test.members) + testing::PrintToString(tags);
    ASSERT_EQ(rules.size(), test.rules) << shown;
    for (const RoadRule& rule : rules) {
      EXPECT_EQ(rule.hours.size(), test.hours) << shown;
      EXPECT_EQ(rule.isOnly, tags.contains("restriction:motorcar")) << shown;
    }
    EXPECT_EQ(mReport.gaps.unclearConditions, test.unclear) << shown;
    EXPECT_EQ(mReport.faults.unfitRestrictions, test.unfit) << shown;
  }
}

TEST_F(ExtractRoadsTest, KnowSignalsAndTheSideOfDriving) {
  OsmText text;
  text.grid(1, 4)
      .node(1, {{"highway", "traffic_signals"}})
      .node(2, {{"highway", "traffic_signals"}, {"traffic_signals:direction", "backward"}})
      .way(1, {0, 1, 2, 3}, {{"highway", "residential"}, {"driving_side", "left"}});
  ASSERT_EQ(import(text).message(), "");
  const auto signals = [](const RoadEdge& edge) {
    EXPECT_TRUE(edge.use.keepsLeft);
    return std::pair(edge.signalAtBegin, edge.signalAtEnd);
  };
  std::vector<std::pair<bool, bool>> found;
  for (const RoadEdge& edge : roads().edges) found.push_back(signals(edge));
  EXPECT_THAT(found, testing::UnorderedElementsAre(std::pair(false, true), std::pair(true, false),
                                                   std::pair(true, false)));
}

// The bridge's node stands where the street's does.
TEST_F(ExtractRoadsTest, AreJoinedByNodesAndNotByPositions) {
  const std::string same = "<node id='900' lat='47.000000' lon='9.002000'/>";
  std::string text = OsmText().grid(1, 5).way(1, {0, 1, 2, 3}, kRoad).way(2, {4, 900}, kRoad).str();
  text.insert(text.find("<node"), same);
  std::ofstream(mSources.path() / "b.osm") << text;
  const auto goOn = [](std::string_view, double) { return true; };
  ASSERT_TRUE(importRegion(mSources.path() / "b.osm", mFolder.path(), "a", RegionStore({}), goOn));
  EXPECT_EQ(roads().junctions.size(), 4u);
}

TEST_F(ExtractRoadsTest, AreCutWhereTheExtractIsAndNotRefused) {
  OsmText text;
  text.grid(2, 5)
      .way(1, {0, 1, 2, 77, 3, 4, 78}, kRoad)
      .way(2, {10, 77, 11, 79}, kRoad)
      .way(3, {10, 11, 77, 10}, {{"building", "yes"}})
      .relation(1, {"way 1 outer", "way 55 inner"}, {{"type", "multipolygon"}, {"water", "lake"}})
      .relation(2, {"way 1 from", "node 99 via", "way 98 to"},
                {{"type", "restriction"}, {"restriction", "no_left_turn"}});
  ASSERT_EQ(import(text).message(), "");
  EXPECT_EQ(mReport.gaps.missingNodes, 3u);
  EXPECT_THAT(mReport.gaps.examples,
              ElementsAre("node 77 of way 1", "node 78 of way 1", "node 79 of way 2"));
  EXPECT_EQ(roads().edges.size(), 2u);
  Router router(RegionStore({mFolder.path()}));
  EXPECT_TRUE(router.plan(at(0, 0), at(0, 2)));
  EXPECT_TRUE(router.plan(at(0, 3), at(0, 4)));
  EXPECT_NE(router.plan(at(0, 0), at(0, 4))->front().polyline.back(), at(0, 4));
}

// Both extracts hold the way over the border; each has junctions on it that the other has not, and
// the rule at the border names a way of each.
TEST_F(ExtractRoadsTest, OfTwoRegionsAreJoinedAtTheirNodes) {
  OsmText west, east;
  for (OsmText* text : {&west, &east}) {
    for (const int node : {0, 200, 209, 400, 409, 600, 800}) text->node(node);
    if (text == &west) west.way(1, {0, 200}, kRoad);
    text->way(2, {200, 400, 600}, kRoad);
  }
  west.way(3, {209, 200}, kRoad);
  west.relation(1, {"way 3 from", "node 200 via", "way 2 to"},
                {{"type", "restriction"}, {"restriction", "no_right_turn"}});
  east.way(4, {400, 409}, kRoad).way(5, {600, 800}, kRoad);
  ASSERT_EQ(import(west, "west").message(), "");
  ASSERT_EQ(import(east, "east").message(), "");
  Router router(RegionStore({mFolder.path()}));
  const auto alone = router.plan(at(0, 0), at(60, 0));
  ASSERT_TRUE(alone) << alone.message();
  EXPECT_THAT(alone->front().regions, ElementsAre("west"));
  const auto over = router.plan(at(0, 0), at(40, 9));
  ASSERT_TRUE(over) << over.message();
  EXPECT_EQ(over->front().polyline, (Line{at(0, 0), at(20, 0), at(40, 0), at(40, 9)}));
  EXPECT_THAT(over->front().regions, ElementsAre("west", "east"));
  const auto round = router.plan(at(20, 9), at(80, 0));
  ASSERT_TRUE(round) << round.message();
  EXPECT_THAT(round->front().regions, ElementsAre("west", "east"));
  // Who comes from there turns round on the other road first.
  EXPECT_GT(round->front().expectedSeconds, 20 + round->front().distanceMetres / (30 / 3.6));
}

}  // namespace
}  // namespace wayloom
