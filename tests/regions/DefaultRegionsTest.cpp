#include <string>

#include "regions/PlaceIndex.h"
#include "regions/RegionStore.h"

namespace wayloom {
namespace {

class DefaultRegionsTest : public testing::Test {
 protected:
  DefaultRegionsTest() : mStore({WAYLOOM_REGION_DIR}) {
    auto index = PlaceIndex::open(mStore);
    if (index) mIndex.emplace(std::move(*index));
  }
  void SetUp() override {
    ASSERT_TRUE(mIndex);
    ASSERT_GE(mStore.regions().size(), 2u) << "in " WAYLOOM_REGION_DIR;
    for (const auto& refused : mStore.refused()) ADD_FAILURE() << refused.path << refused.reason;
  }

  RegionStore mStore;
  std::optional<PlaceIndex> mIndex;
};

TEST_F(DefaultRegionsTest, FindWhatPeopleLookFor) {
  const struct {
    const char* text;
    const char* line;
    Coordinate coordinate;
  } cases[] = {
      {"Paris", "Paris, Île-de-France, France", {48.85, 2.35}},
      {"gothenburg", "Göteborg, Västra Götaland, Sweden", {57.71, 11.97}},
      {"Drottninggatan 5, 411 14 Göteborg", "Drottninggatan, Göteborg", {57.706, 11.968}},
      {"kungsportsavenyn", "Kungsportsavenyn, Göteborg", {57.70, 11.97}},
      {"London", "London, England, United Kingdom", {51.51, -0.13}},
      {"københavn", "Copenhagen, Capital Region, Denmark", {55.68, 12.57}},
      {"Sweden", "Sweden", {59.33, 18.07}},
      {"lodz", "Łódź, Łódź Voivodeship, Poland", {51.77, 19.47}},
  };
  for (const auto& test : cases) {
    const auto found = mIndex->search(test.text, std::nullopt);
    ASSERT_FALSE(found.empty()) << test.text;
    EXPECT_EQ(addressLines(found.front()).front(), test.line) << test.text;
    EXPECT_NEAR(found.front().coordinate.latitude, test.coordinate.latitude, 0.01) << test.text;
    EXPECT_NEAR(found.front().coordinate.longitude, test.coordinate.longitude, 0.01) << test.text;
  }
}

TEST_F(DefaultRegionsTest, SayWhatIsHere) {
  const struct {
    Coordinate position;
    const char* line;
  } cases[] = {
      {{57.7045, 11.9685}, "Kungsgatan, Göteborg"},
      {{57.65, 12.015}, "Mölndal, Västra Götaland, Sweden"},
      {{47.141, 9.521}, "Vaduz, Liechtenstein"},
      {{35.68, 139.69}, "Tokyo, Japan"},
      {{36.14, -5.353}, "Gibraltar"},
      {{-90, 0}, "Antarctica"},
      {{66, 180}, "Egvekinot, Chukotka, Russia"},
      {{66, -180}, "Egvekinot, Chukotka, Russia"},
      {{0, -140}, "-"},
      {{90, 0}, "-"},
  };
  for (const auto& test : cases) {
    const auto place = mIndex->placeAt(test.position);
    EXPECT_EQ(place ? addressLines(*place).front() : "-", test.line)
        << test.position.latitude << ',' << test.position.longitude;
  }
}

}  // namespace
}  // namespace wayloom
