#include "places/PlaceTextGeocoder.h"
#include "platform/RunLoop.h"
#include "tests/support/FakePlatform.h"

namespace wayloom {
namespace {

class PlaceTextGeocoderTest : public testing::Test {
 protected:
  void ask(const std::string& address, std::optional<Coordinate> near = std::nullopt) {
    mAnswer.reset();
    mGeocoder->geocodeAddress(address, near, [this](const auto& answer) { mAnswer = answer; });
  }
  void waitFor(const std::function<bool()>& isTrue) {
    ASSERT_TRUE(mLoop.runUntil(isTrue, std::chrono::seconds(5)));
  }
  static GeocoderAnswer at(Coordinate coordinate, const char* line) {
    return {{{{coordinate, {line}}}}, std::nullopt};
  }

  RunLoop mLoop;
  FakeGeocoder* mNames = new FakeGeocoder;
  std::unique_ptr<Geocoder> mGeocoder =
      std::make_unique<PlaceTextGeocoder>(std::unique_ptr<Geocoder>(mNames), mLoop, "en");
  std::optional<GeocoderAnswer> mAnswer;
};

TEST_F(PlaceTextGeocoderTest, PositionsKeepTheirNumbersAndTakeTheAddressThatIsThere) {
  const Coordinate position{57.7, 11.97};
  const std::pair<GeocoderAnswer, const char*> cases[] = {
      {at({57.6, 11.9}, "Avenyn"), "Avenyn"},
      {{std::nullopt, "nothing here"}, "57.700000, 11.970000"},
  };
  for (const auto& [there, line] : cases) {
    ask("57.7° N, 11.97° E");
    ASSERT_TRUE(mNames->addresses.empty());
    mNames->coordinates.back().second(there);
    ASSERT_TRUE(mAnswer && mAnswer->places);
    EXPECT_EQ(mAnswer->places->front().coordinate, position);
    EXPECT_EQ(firstFormattedLine(*mAnswer), line);
  }
}

TEST_F(PlaceTextGeocoderTest, ShortCodesNeedAPlaceNearby) {
  ask("PX5F+GR Vaduz");
  ASSERT_EQ(mNames->addresses.back().first, "Vaduz");
  mNames->addresses.back().second(at({57.1, 12.4}, "Vaduz"));
  // The cells of these digits are a degree apart.
  EXPECT_NEAR(mNames->coordinates.back().first.latitude, 56.7088125, 1e-9);
  EXPECT_NEAR(mNames->coordinates.back().first.longitude, 11.9745625, 1e-9);

  ask("PX5F+GR", Coordinate{57.6, 11.8});
  EXPECT_NEAR(mNames->coordinates.back().first.latitude, 57.7088125, 1e-9);
  ask("PX5F+GR");
  waitFor([&] { return mAnswer.has_value(); });
  EXPECT_TRUE(mAnswer && mAnswer->error);
}

TEST_F(PlaceTextGeocoderTest, WrongPositionsAreNoNamesAndNobodyIsToldAfterItsEnd) {
  ask("95,11");
  EXPECT_TRUE(mNames->addresses.empty());
  waitFor([&] { return mAnswer.has_value(); });
  EXPECT_EQ(mAnswer->error, "latitude 95 is beyond 90 degrees");
  ask("95,11");
  mGeocoder.reset();
  bool isOver = false;
  mLoop.post([&] { isOver = true; });
  waitFor([&] { return isOver; });
  EXPECT_FALSE(mAnswer);
}

}  // namespace
}  // namespace wayloom
