#include <memory>
#include <vector>

#include "platform/RegionGeocoder.h"
#include "platform/RunLoop.h"
#include "tests/regions/SmallIndex.h"

namespace wayloom {
namespace {

using namespace std::chrono_literals;

std::vector<IndexedPlace> twoTowns() {
  return {settlement("Nord", "Land", "Staat", {50, 10}, 5000),
          street("Ring", "Nord", "Staat", {{50.1, 10}, {50.1, 10.01}})};
}

TEST(RegionGeocoder, AnswersInOrderOnTheMainThread) {
  const SmallIndex regions(twoTowns());
  RunLoop loop;
  RegionGeocoder geocoder(regions.store(), loop);
  std::vector<GeocoderAnswer> answers;
  const auto keep = [&](const GeocoderAnswer& answer) {
    EXPECT_TRUE(loop.isMainThread());
    answers.push_back(answer);
  };
  geocoder.geocodeAddress("nord", std::nullopt, keep);
  geocoder.reverseGeocode({50.1, 10.005}, keep);
  geocoder.geocodeAddress("nowhere", std::nullopt, keep);
  geocoder.reverseGeocode({-50, 10}, keep);
  geocoder.geocodeAddress("nord", std::nullopt, {});
  geocoder.reverseGeocode({50, 10}, keep);
  EXPECT_TRUE(answers.empty()) << "completed within the request";
  ASSERT_TRUE(loop.runUntil([&] { return answers.size() == 5; }, 30s));
  ASSERT_TRUE(answers[0].places && answers[1].places && answers[4].places);
  EXPECT_EQ(answers[0].places->front().coordinate, (Coordinate{50, 10}));
  EXPECT_FALSE(answers[0].error);
  EXPECT_THAT(answers[1].places->front().formattedAddressLines,
              testing::ElementsAre("Ring, Nord", "Staat"));
  for (const std::size_t failed : {2, 3}) {
    EXPECT_FALSE(answers[failed].places) << failed;
    EXPECT_FALSE(answers[failed].error.value_or("").empty()) << failed;
  }
  EXPECT_THAT(answers[4].places->front().formattedAddressLines,
              testing::ElementsAre("Nord, Land, Staat"));
}

TEST(RegionGeocoder, FailsWithoutRegions) {
  RunLoop loop;
  RegionGeocoder geocoder(RegionStore({"/nonexistent"}), loop);
  std::optional<GeocoderAnswer> answer;
  geocoder.geocodeAddress("Paris", std::nullopt, [&](const auto& given) { answer = given; });
  ASSERT_TRUE(loop.runUntil([&] { return answer.has_value(); }, 30s));
  EXPECT_TRUE(answer->error && !answer->places);
}

// Destroyed at any moment: while a question waits, is being answered, or its answer is on the way.
TEST(RegionGeocoder, CompletesNothingAfterItsEnd) {
  const SmallIndex regions(twoTowns());
  const RegionStore store = regions.store();
  for (int round = 0; round < 30; ++round) {
    RunLoop loop;
    auto geocoder = std::make_unique<RegionGeocoder>(store, loop);
    bool isOver = false;
    int early = 0;
    for (int request = 0; request < 50; ++request) {
      geocoder->geocodeAddress("nord", std::nullopt, [&](const auto&) {
        EXPECT_FALSE(isOver) << "in round " << round;
        ++early;
      });
    }
    ASSERT_TRUE(loop.runUntil([&] { return early >= round; }, 30s));
    isOver = true;
    geocoder.reset();
    bool isMarkerReached = false;
    loop.post([&] { isMarkerReached = true; });
    ASSERT_TRUE(loop.runUntil([&] { return isMarkerReached; }, 30s));
  }
}

}  // namespace
}  // namespace wayloom
