#include <random>
#include <set>

#include "regions/RegionStore.h"
#include "regions/RoadGraph.h"
#include "regions/RouterAnswer.h"

namespace wayloom {
namespace {

// Routes between random places of Gothenburg follow its roads, in the directions allowed there.
TEST(DefaultRoads, CarryRoutesThatFollowThemInTheirDirections) {
  auto database = openRegion(std::filesystem::path(WAYLOOM_REGION_DIR) / "gothenburg.region");
  ASSERT_TRUE(database) << database.message();
  auto network = readRoads(*database);
  ASSERT_TRUE(network) << network.message();
  const RoadGraph graph(std::move(*network));
  ASSERT_GT(graph.edges().size(), 9000u);
  std::set<std::pair<RoadPoint, RoadPoint>> hops;
  for (std::uint32_t edge = 0; edge < graph.edges().size(); ++edge) {
    const RoadUse& use = graph.edges()[edge].use;
    const Line line = graph.line(edge);
    for (std::size_t index = 1; index < line.size(); ++index) {
      const RoadPoint a = roadPoint(line[index - 1]);
      const RoadPoint b = roadPoint(line[index]);
      if (use.forward) hops.insert({a, b});
      if (use.backward) hops.insert({b, a});
    }
  }
  std::mt19937 random(5);
  const auto place = [&] {
    return graph.line(static_cast<std::uint32_t>(random() % graph.edges().size())).front();
  };
  int planned = 0;
  for (int drive = 0; drive < 200; ++drive) {
    const Coordinate from = place(), to = place();
    const auto routes = routesOn(graph, from, to, 2);
    if (!routes) continue;
    for (const Route& route : *routes) {
      ++planned;
      // The first and the last hop are parts of a stretch.
      for (std::size_t hop = 2; hop + 1 < route.line.size(); ++hop) {
        const RoadPoint a = roadPoint(route.line[hop - 1]);
        const RoadPoint b = roadPoint(route.line[hop]);
        ASSERT_TRUE(hops.contains({a, b}))
            << "drive " << drive << ": " << a.latitude << ',' << a.longitude << " to " << b.latitude
            << ',' << b.longitude;
      }
    }
  }
  EXPECT_GT(planned, 300);
}

}  // namespace
}  // namespace wayloom
