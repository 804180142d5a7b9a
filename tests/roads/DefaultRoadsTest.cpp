#include <map>
#include <random>
#include <set>

#include "regions/RegionStore.h"
#include "roads/RoadGraph.h"
#include "roads/RouterAnswer.h"

namespace wayloom {
namespace {

using Hop = std::pair<RoadPoint, RoadPoint>;

/// The roads of Gothenburg and what a driver may do there, position by position.
class DefaultRoadsTest : public testing::Test {
 protected:
  void SetUp() override {
    auto database = openRegion(std::filesystem::path(WAYLOOM_REGION_DIR) / "gothenburg.region");
    ASSERT_TRUE(database) << database.message();
    auto network = readRoads(*database);
    ASSERT_TRUE(network) << network.message();
    mGraph = std::make_unique<RoadGraph>(std::move(*network));
    for (std::uint32_t edge = 0; edge < mGraph->edges().size(); ++edge) {
      const RoadUse& use = mGraph->edges()[edge].use;
      const Line line = mGraph->line(edge);
      for (std::size_t index = 1; index < line.size(); ++index) {
        const RoadPoint a = roadPoint(line[index - 1]);
        const RoadPoint b = roadPoint(line[index]);
        if (use.forward) mHops.insert({a, b});
        if (use.backward) mHops.insert({b, a});
        if (use.forward != use.backward) mOneWay.insert({{a, b}, {b, a}});
        if (use.destinationOnly) mResidents.insert({{a, b}, {b, a}});
      }
    }
  }

  std::vector<Coordinate> places(int count) const {
    std::mt19937 random(5);
    std::vector<Coordinate> places;
    while (static_cast<int>(places.size()) < count) {
      const auto edge = static_cast<std::uint32_t>(random() % mGraph->edges().size());
      places.push_back(mGraph->line(edge).front());
    }
    return places;
  }

  // Whether a route uses a stretch of the set; its first and last hop are parts of one.
  static bool uses(const std::set<Hop>& hops, const Line& line) {
    for (std::size_t index = 1; index < line.size(); ++index) {
      if (hops.contains({roadPoint(line[index - 1]), roadPoint(line[index])})) return true;
    }
    return false;
  }

  std::unique_ptr<RoadGraph> mGraph;
  std::set<Hop> mHops, mOneWay, mResidents;
};

TEST_F(DefaultRoadsTest, CarryRoutesThatFollowThemInTheirDirections) {
  EXPECT_GT(mGraph->edges().size(), 9000u);
  int planned = 0;
  const auto asked = places(200);
  for (std::size_t index = 1; index < asked.size(); ++index) {
    const auto routes = routesOn(*mGraph, asked[index - 1], asked[index], 2);
    if (!routes) continue;
    for (const Route& route : *routes) {
      ++planned;
      for (std::size_t hop = 2; hop + 1 < route.polyline.size(); ++hop) {
        const RoadPoint a = roadPoint(route.polyline[hop - 1]);
        const RoadPoint b = roadPoint(route.polyline[hop]);
        ASSERT_TRUE(mHops.contains({a, b}))
            << "drive " << index << ": " << a.latitude << ',' << a.longitude << " to " << b.latitude
            << ',' << b.longitude;
      }
    }
  }
  EXPECT_GT(planned, 300);
}

// The way back takes as long where no one-way street is on either.
TEST_F(DefaultRoadsTest, TakeAsLongInBothDirectionsWhereAllIsTwoWay) {
  int compared = 0;
  // Edges stand in the file by their places on the ground, so these drives are short.
  std::vector<Coordinate> asked;
  for (std::uint32_t edge = 0; edge < mGraph->edges().size(); edge += 20) {
    asked.push_back(mGraph->line(edge).front());
  }
  for (std::size_t index = 1; index < asked.size(); ++index) {
    const auto there = routesOn(*mGraph, asked[index - 1], asked[index], 0);
    const auto back = routesOn(*mGraph, asked[index], asked[index - 1], 0);
    if (!there || !back) continue;
    const Line& line = there->front().polyline;
    if (uses(mOneWay, line) || uses(mOneWay, back->front().polyline)) continue;
    // Each end may have moved to another road in the other direction.
    if (line.front() != back->front().polyline.back()) continue;
    if (line.back() != back->front().polyline.front()) continue;
    ++compared;
    EXPECT_NEAR(there->front().expectedSeconds, back->front().expectedSeconds, 0.01)
        << "drive " << index;
    EXPECT_NEAR(there->front().distanceMetres, back->front().distanceMetres, 100)
        << "drive " << index;
  }
  EXPECT_GE(compared, 50);
}

TEST_F(DefaultRoadsTest, AreNeverQuickerByADetour) {
  int compared = 0;
  const auto asked = places(300);
  for (std::size_t index = 2; index < asked.size(); ++index) {
    const auto whole = routesOn(*mGraph, asked[index - 2], asked[index], 0);
    const auto first = routesOn(*mGraph, asked[index - 2], asked[index - 1], 0);
    const auto second = routesOn(*mGraph, asked[index - 1], asked[index], 0);
    if (!whole || !first || !second) continue;
    const Line& line = whole->front().polyline;
    if (first->front().polyline.front() != line.front()) continue;
    if (second->front().polyline.back() != line.back()) continue;
    if (first->front().polyline.back() != second->front().polyline.front()) continue;
    // Residents' streets may be used on a visit but not to go through.
    if (uses(mResidents, line) || uses(mResidents, first->front().polyline) ||
        uses(mResidents, second->front().polyline)) {
      continue;
    }
    ++compared;
    EXPECT_LE(whole->front().expectedSeconds,
              first->front().expectedSeconds + second->front().expectedSeconds + 0.01)
        << "drive " << index;
  }
  EXPECT_GT(compared, 100);
}

}  // namespace
}  // namespace wayloom
