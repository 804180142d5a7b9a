#include <string>

#include "regions/PlaceIndex.h"
#include "regions/RegionStore.h"

namespace wayloom {
namespace {

TEST(DefaultRegionsTest, FindWhatPeopleLookForAndSayWhatIsHere) {
  const RegionStore store({WAYLOOM_REGION_DIR});
  ASSERT_GE(store.regions().size(), 2u) << "in " WAYLOOM_REGION_DIR;
  for (const auto& refused : store.refused()) ADD_FAILURE() << refused.path << refused.reason;
  auto index = PlaceIndex::open(store);
  ASSERT_TRUE(index);
  const struct {
    const char* text;
    const char* line;
    Coordinate coordinate;
  } searches[] = {
      {"Paris", "Paris, Île-de-France, France", {48.85, 2.35}},
      {"gothenburg", "Göteborg, Västra Götaland, Sweden", {57.71, 11.97}},
      {"Drottninggatan, Göteborg", "Drottninggatan, Göteborg", {57.706, 11.968}},
      {"københavn", "Copenhagen, Capital Region, Denmark", {55.68, 12.57}},
      {"Sweden", "Sweden", {59.33, 18.07}},
  };
  for (const auto& test : searches) {
    const auto found = index->search(test.text, std::nullopt);
    ASSERT_FALSE(found.empty()) << test.text;
    EXPECT_EQ(addressLines(found.front()).front(), test.line) << test.text;
    EXPECT_NEAR(found.front().coordinate.latitude, test.coordinate.latitude, 0.01) << test.text;
    EXPECT_NEAR(found.front().coordinate.longitude, test.coordinate.longitude, 0.01) << test.text;
  }
  const std::pair<Coordinate, const char*> positions[] = {
      {{57.7045, 11.9685}, "Kungsgatan, Göteborg"},
      {{47.141, 9.521}, "Vaduz, Liechtenstein"},
      {{36.14, -5.353}, "Gibraltar"},
      {{-90, 0}, "Antarctica"},
      {{66, -180}, "Egvekinot, Chukotka, Russia"},
      {{0, -140}, "-"},
  };
  for (const auto& [position, line] : positions) {
    const auto place = index->placeAt(position);
    EXPECT_EQ(place ? addressLines(*place).front() : "-", line) << position.latitude;
  }
}

}  // namespace
}  // namespace wayloom
