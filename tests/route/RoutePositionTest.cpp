#include <limits>

#include "route/RoutePosition.h"
#include "route/RouteSimulation.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

TEST(RecordAtTest, FollowsTheRuleAndNeverLeavesTheList) {
  const struct {
    std::int32_t now, start, end;
    std::size_t count;
    std::optional<std::size_t> record;
  } cases[] = {
      {50, 100, 200, 100, 0},
      {199, 100, 200, 100, 99},
      {200, 100, 200, 100, 99},
      {150, 100, 200, 3, 1},
      {199, 100, 200, 3, 2},
      {100, 100, 100, 5, 4},
      {150, 200, 100, 5, 0},
      {250, 200, 100, 5, 4},
      {150, 100, 200, 0, std::nullopt},
      // 50,000 seconds into a drive over 50,000 records: the product is 2,500,000,000, which wraps
      // to -1,794,967,296 and so to an index below the list.
      {50000, 0, 100000, 50000, 0},
      // 90,000 times 50,000 wraps to 205,032,704; a hundred thousandth of that is 2,050.
      {90000, 0, 100000, 50000, 2050},
      // The span itself wraps to -1, and the product to the least number there is.
      {0, kLeast, kMost, 1, 0},
      {kMost, kLeast, kMost, 7, 6},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(recordAt(test.now, test.start, test.end, test.count), test.record)
        << test.now << " in " << test.start << ".." << test.end << ", " << test.count << " records";
  }
}

TEST(PositionAtTest, HostileRecordsReadAsZeroAndNoRecordsAsNothing) {
  using Array = PropertyList::Array;
  using Dictionary = PropertyList::Dictionary;
  const std::pair<PropertyList, std::optional<Coordinate>> cases[] = {
      {"a text", std::nullopt},
      {Dictionary{{"0", 1}}, std::nullopt},
      {Array{}, std::nullopt},
      {Array{"a text"}, Coordinate{}},
      {Array{Dictionary{{"lat", "57.5 N"}, {"lng", Array{}}}}, Coordinate{57.5, 0}},
  };
  for (const auto& [points, position] : cases) {
    const RoutePreferences preferences{{{"start", "10"}, {"end", "20"}},
                                       std::make_shared<RoutePoints>(RoutePoints::stored(points))};
    EXPECT_EQ(positionAt(15, preferences), position);
  }
}

const RouteChoices kChosen{.start = {57.7, 11.9},
                           .end = {57.8, 12},
                           .startTime = 1000,
                           .endTime = 2000,
                           .startText = "",
                           .endText = ""};

TEST(StartTimeTest, IsNeitherInThePastNorAfterTheEnd) {
  const std::pair<std::int32_t, double> cases[] = {{500, 1000},  {1000, 1000}, {1500, 1500},
                                                   {2000, 2000}, {2001, 1999}, {9999, 1999}};
  for (const auto& [now, start] : cases) {
    EXPECT_EQ(startTimeFrom(kChosen, now), start) << "now " << now;
  }
}

TEST(RouteSimulationTest, ANewPlanIsFollowedFromTheSharedList) {
  const TemporaryRoot root;
  SettingsFiles files(root.path());
  FakeClock clock;
  clock.seconds = 1000;
  RouteSimulation simulation(files, clock);
  const auto points = std::make_shared<RoutePoints>(RoutePoints::planned({{3, 3}, {4, 4}}));
  simulation.turnOn(kChosen, points, false, [](const auto& start) { ASSERT_TRUE(start); });
  *points = RoutePoints::planned({{1, 1}, {2, 2}});
  clock.seconds = 1999.9;
  EXPECT_EQ(simulation.position(), (Coordinate{2, 2}));
}

}  // namespace
}  // namespace wayloom
