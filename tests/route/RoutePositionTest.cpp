#include <limits>

#include "route/RoutePosition.h"

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
      {100, 100, 200, 100, 0},
      {199, 100, 200, 100, 99},
      {200, 100, 200, 100, 99},
      {150, 100, 200, 3, 1},
      {199, 100, 200, 3, 2},
      {100, 100, 100, 5, 4},
      {99, 100, 100, 5, 0},
      {150, 200, 100, 5, 0},
      {250, 200, 100, 5, 4},
      {150, 100, 200, 0, std::nullopt},
      {50, 100, 200, 0, std::nullopt},
      // 50,000 seconds into a drive over 50,000 records: the product is 2,500,000,000, which wraps
      // to -1,794,967,296 and so to an index below the list.
      {50000, 0, 100000, 50000, 0},
      // 90,000 times 50,000 wraps to 205,032,704; a hundred thousandth of that is 2,050.
      {90000, 0, 100000, 50000, 2050},
      // The span itself wraps to -1, and the product to the least number there is.
      {0, kLeast, kMost, 1, 0},
      {kMost - 1, kLeast, kMost, 7, 6},
      {kMost, kLeast, kMost, 7, 6},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(recordAt(test.now, test.start, test.end, test.count), test.record)
        << test.now << " in " << test.start << ".." << test.end << ", " << test.count << " records";
  }
}

TEST(RecordAtTest, AdvancesEvenlyByWholeRecords) {
  constexpr std::int32_t kStart = 1'700'000'000, kEnd = kStart + 3600;
  std::map<std::size_t, int> seconds;
  for (std::int32_t now = kStart; now < kEnd; ++now) ++seconds[*recordAt(now, kStart, kEnd, 700)];
  EXPECT_EQ(seconds.size(), 700U);
  for (const auto& [record, count] : seconds) {
    EXPECT_TRUE(count == 5 || count == 6) << record << " holds for " << count << " s";
  }
}

TEST(PositionAtTest, HostileRecordsReadAsZeroAndNoRecordsAsNothing) {
  using Dictionary = PropertyList::Dictionary;
  const auto where = [](PropertyList points) {
    RoutePreferences preferences{{{"start", "10"}, {"end", "20"}},
                                 std::make_shared<RoutePoints>(RoutePoints::stored(points))};
    return positionAt(15, preferences);
  };
  EXPECT_EQ(positionAt(15, {}), std::nullopt);
  EXPECT_EQ(where("a text"), std::nullopt);
  EXPECT_EQ(where(Dictionary{{"0", 1}}), std::nullopt);
  EXPECT_EQ(where(PropertyList::Array{}), std::nullopt);
  EXPECT_EQ(where(PropertyList::Array{"a text"}), Coordinate{});
  EXPECT_EQ(where(PropertyList::Array{Dictionary{{"lat", 5}}}), (Coordinate{5, 0}));
  EXPECT_EQ(
      where(PropertyList::Array{Dictionary{{"lat", "57.5 N"}, {"lng", PropertyList::Array{}}}}),
      (Coordinate{57.5, 0}));
}

}  // namespace
}  // namespace wayloom
