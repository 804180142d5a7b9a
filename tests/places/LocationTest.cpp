#include "places/LocationClass.h"
#include "tests/support/FakePlatform.h"

namespace wayloom {
namespace {

/// Writes down what it is told.
class Listener : public LocationDelegate {
 public:
  using Error = std::optional<std::string>;

  void locationSuccess(Location* sender, double latitude, double longitude) override {
    tell(sender, "position " + std::to_string(latitude) + " " + std::to_string(longitude));
  }
  void locationFailed(Location* sender, const Error& error) override {
    tell(sender, "no position: " + error.value_or("-"));
  }
  void reverseGeocoderSuccess(Location* sender, const std::string& address) override {
    tell(sender, "address " + address);
  }
  void reverseGeocoderFailed(Location* sender, const Error& error) override {
    tell(sender, "no address: " + error.value_or("-"));
  }
  void geocoderSuccess(Location* sender, Coordinate coordinate) override {
    tell(sender, "coordinate " + std::to_string(coordinate.latitude));
  }
  void geocoderFailed(Location* sender, const Error& error) override {
    tell(sender, "no coordinate: " + error.value_or("-"));
  }

  std::vector<std::string> told;

 private:
  void tell(Location* sender, const std::string& what) {
    told.push_back(what + (sender ? " (sender)" : ""));
  }
};

class LocationTest : public testing::Test {
 protected:
  bool isOn = true;
  FakePositionSource* source = nullptr;
  FakeGeocoder geocoder;
  FakeDefaults defaults;
  FakeAlerts alerts;
  Listener listener;
  LocationClass location{fakePlatform(isOn, source, geocoder, defaults, alerts)};
};

TEST_F(LocationTest, OneFixPerRequestIsReportedAndRemembered) {
  EXPECT_EQ(location.latitude(), 0);
  location.sharedInstacneWithDelegate(&listener).startLocation();
  EXPECT_THAT(source->calls, testing::ElementsAre("best accuracy", "when in use", "always"));
  EXPECT_EQ(source->distanceFilterMetres, 10.0);
  ASSERT_TRUE(source->isUpdating);
  source->delegate->didUpdateToLocation(PositionFix{{57.5, 11.25}, 0.0});
  EXPECT_THAT(listener.told, testing::ElementsAre("position 57.500000 11.250000 (sender)"));
  EXPECT_FALSE(source->isUpdating);

  const LocationClass nextLaunch{fakePlatform(isOn, source, geocoder, defaults, alerts)};
  EXPECT_EQ(nextLaunch.latitude(), 57.5);
  EXPECT_EQ(nextLaunch.longitude(), 11.25);
}

TEST_F(LocationTest, FailuresAreToldWithTheAlertsThatBelongToThem) {
  const std::string denied = "定位失败|请开启定位以保证程序正常运行|确定";
  const std::string none = "no position: - (sender)";
  const struct {
    std::optional<PositionError> error;
    std::optional<PositionFix> fix;
    std::string told;
    std::vector<std::string> alerts;
  } cases[] = {
      {std::nullopt, std::nullopt, none, {}},
      {std::nullopt, PositionFix{{1, 2}, -1}, none, {}},
      {std::nullopt, PositionFix{{1, 2}, -0.0}, none, {}},
      {PositionError{1, "denied"}, std::nullopt, "no position: denied (sender)", {denied}},
      {PositionError{2, "network"}, std::nullopt, "no position: network (sender)", {}},
  };
  for (const auto& test : cases) {
    listener.told.clear();
    alerts.shown.clear();
    location.sharedInstacneWithDelegate(&listener).startLocation();
    if (test.error) source->delegate->didFailWithError(test.error);
    if (!test.error) source->delegate->didUpdateToLocation(test.fix);
    EXPECT_THAT(listener.told, testing::ElementsAre(test.told));
    EXPECT_EQ(alerts.shown, test.alerts) << test.told;
    EXPECT_FALSE(source->isUpdating) << test.told;
    EXPECT_EQ(location.latitude(), 0) << test.told;
  }
}

TEST_F(LocationTest, DisabledServicesAlertAndFailWithoutAsking) {
  isOn = false;
  location.sharedInstacneWithDelegate(&listener).startLocation();
  EXPECT_THAT(alerts.shown, testing::ElementsAre("|定位服务未开启|确定"));
  EXPECT_THAT(listener.told, testing::ElementsAre("no position: - (sender)"));
  EXPECT_FALSE(source->isUpdating);
}

TEST_F(LocationTest, TheLastScreenThatAskedIsTheOneTold) {
  Listener second;
  location.sharedInstacneWithDelegate(&listener).startLocation();
  location.sharedInstacneWithDelegate(&second);
  source->delegate->didUpdateToLocation(PositionFix{{1, 2}, 5});
  EXPECT_TRUE(listener.told.empty());
  EXPECT_EQ(second.told.size(), 1U);

  auto gone = std::make_unique<Listener>();
  location.sharedInstacneWithDelegate(gone.get()).startLocation();
  gone.reset();
  source->delegate->didUpdateToLocation(PositionFix{{3, 4}, 5});
  EXPECT_EQ(location.latitude(), 3);
}

TEST_F(LocationTest, GeocodingReportsToItsOwnDelegateWhileItIsThere) {
  const GeocoderAnswer found{{{{{57.5, 11}, {"Avenyn, Göteborg", "Sweden"}}, {{1, 1}, {"x"}}}}, {}};
  auto gone = std::make_unique<Listener>();
  for (Listener* const delegate : {&listener, gone.get(), static_cast<Listener*>(nullptr)}) {
    location.addressWithCoordinate({57.5, 11}, delegate);
    location.coordinateWithAddress("avenyn", delegate);
  }
  gone.reset();
  for (const auto& [coordinate, completion] : geocoder.coordinates) completion(found);
  for (const auto& [address, completion] : geocoder.addresses) completion(found);
  location.reverseGeocoderCoordinate({0, 0}, &listener);
  location.geocoderAddress("nowhere", &listener);
  geocoder.coordinates.back().second({std::nullopt, "no street there"});
  geocoder.addresses.back().second({std::vector<GeocodedPlace>(), std::nullopt});
  EXPECT_THAT(listener.told,
              testing::ElementsAre("address Avenyn, Göteborg", "coordinate 57.500000",
                                   "no address: no street there", "no coordinate: -"));
}

TEST(ReplaceUnicodeTest, TurnsEscapesIntoCharacters) {
  const std::pair<const char*, std::optional<std::string>> cases[] = {
      {R"(\u5b9a\u4f4d)", "定位"}, {R"(say "hi")", R"(say "hi")"}, {R"(\ud83d\ude97!)", "🚗!"},
      {R"(\ud83dx)", "\uFFFDx"},   {R"(a\\r\\nb)", "a\nb"},        {R"(a\tb\101)", "a\tbA"},
      {R"(cut\)", std::nullopt},   {R"(\")", std::nullopt},
  };
  for (const auto& [text, replaced] : cases) {
    EXPECT_EQ(LocationClass::replaceUnicode(text), replaced) << text;
  }
}

}  // namespace
}  // namespace wayloom
