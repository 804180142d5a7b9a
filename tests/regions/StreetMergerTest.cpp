#include <algorithm>

#include "regions/StreetMerger.h"

namespace wayloom {
namespace {

TEST(StreetMergerTest, JoinsPiecesOfAStreetButNotNamesakesElsewhere) {
  // A and its continuation beyond a square; a crossing street met half-way; the next town's A.
  auto streets = mergeStreets({
      {"A", {{50, 10}, {50, 10.01}}},
      {"B", {{49.99, 10.005}, {50.01, 10.005}}},
      {"A", {{50, 10.012}, {50, 10.02}}},
      {"A", {{50.001, 10.0}, {50.01, 10.0}}},
      {"A", {{50.2, 10}, {50.2, 10.01}}},
  });
  ASSERT_EQ(streets.size(), 3u);
  std::sort(streets.begin(), streets.end(),
            [](const auto& a, const auto& b) { return a.lines.size() > b.lines.size(); });
  EXPECT_EQ(streets[0].lines.size(), 3u);
  EXPECT_EQ(streets[1].lines.size(), 1u);
  for (const auto& street : streets) {
    double nearest = 1e9;
    for (const Line& line : street.lines) {
      nearest = std::min(nearest, nearestSpot(street.middle, line).metres);
    }
    EXPECT_LT(nearest, 0.1) << street.name << " has its middle off the street";
  }
}

}  // namespace
}  // namespace wayloom
