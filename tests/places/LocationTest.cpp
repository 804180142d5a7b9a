#include "places/LocationClass.h"
#include "tests/support/FakePlatform.h"

namespace wayloom {
namespace {

/// Writes down what it is told.
class Listener : public LocationDelegate {
 public:
  void locationSuccess(Location* sender, double latitude, double longitude) override {
    told.push_back("position " + std::to_string(latitude) + " " + std::to_string(longitude) +
                   senderText(sender));
  }
  void locationFailed(Location* sender, const std::optional<std::string>& error) override {
    told.push_back("no position: " + error.value_or("-") + senderText(sender));
  }
  void reverseGeocoderSuccess(Location* sender, const std::string& address) override {
    told.push_back("address " + address + senderText(sender));
  }
  void reverseGeocoderFailed(Location* sender, const std::optional<std::string>& error) override {
    told.push_back("no address: " + error.value_or("-") + senderText(sender));
  }
  void geocoderSuccess(Location* sender, Coordinate coordinate) override {
    told.push_back("coordinate " + std::to_string(coordinate.latitude) + senderText(sender));
  }
  void geocoderFailed(Location* sender, const std::optional<std::string>& error) override {
    told.push_back("no coordinate: " + error.value_or("-") + senderText(sender));
  }

  std::vector<std::string> told;

 private:
  static std::string senderText(Location* sender) { return sender ? " (sender)" : ""; }
};

class LocationTest : public testing::Test {
 protected:
  LocationPlatform platform() {
    return {[this] { return isOn; },
            [this] {
              auto made = std::make_unique<FakePositionSource>();
              source = made.get();
              return made;
            },
            {},
            geocoder,
            defaults,
            alerts};
  }

  bool isOn = true;
  FakePositionSource* source = nullptr;
  FakeGeocoder geocoder;
  FakeDefaults defaults;
  FakeAlerts alerts;
  Listener listener;
  LocationClass location{platform()};
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

  const LocationClass nextLaunch{platform()};
  EXPECT_EQ(nextLaunch.latitude(), 57.5);
  EXPECT_EQ(nextLaunch.longitude(), 11.25);
}

TEST_F(LocationTest, FailuresAreToldWithTheAlertsThatBelongToThem) {
  const std::string denied = "定位失败|请开启定位以保证程序正常运行|确定";
  const auto update = [](std::optional<PositionFix> fix) {
    return [=](PositionSourceDelegate& delegate) { delegate.didUpdateToLocation(fix); };
  };
  const auto failure = [](PositionError error) {
    return [=](PositionSourceDelegate& delegate) { delegate.didFailWithError(error); };
  };
  const struct {
    const char* what;
    std::function<void(PositionSourceDelegate&)> happen;
    const char* told;
    std::vector<std::string> alerts;
  } cases[] = {
      {"no fix", update(std::nullopt), "no position: - (sender)", {}},
      {"invalid fix", update(PositionFix{{1, 2}, -1}), "no position: - (sender)", {}},
      {"negative zero", update(PositionFix{{1, 2}, -0.0}), "no position: - (sender)", {}},
      {"denied", failure({1, "denied"}), "no position: denied (sender)", {denied}},
      {"other", failure({2, "network"}), "no position: network (sender)", {}},
  };
  for (const auto& test : cases) {
    listener.told.clear();
    alerts.shown.clear();
    location.sharedInstacneWithDelegate(&listener).startLocation();
    test.happen(*source->delegate);
    EXPECT_THAT(listener.told, testing::ElementsAre(test.told)) << test.what;
    EXPECT_EQ(alerts.shown, test.alerts) << test.what;
    EXPECT_FALSE(source->isUpdating) << test.what;
    EXPECT_EQ(location.latitude(), 0) << test.what;
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

TEST_F(LocationTest, GeocodingReportsToItsOwnDelegate) {
  const GeocoderAnswer found{{{{{57.5, 11}, {"Avenyn, Göteborg", "Sweden"}}, {{1, 1}, {"x"}}}}, {}};
  location.addressWithCoordinate({57.5, 11}, &listener);
  location.coordinateWithAddress("avenyn", &listener);
  location.reverseGeocoderCoordinate({0, 0}, &listener);
  location.geocoderAddress("nowhere", &listener);
  geocoder.coordinates[0].second(found);
  geocoder.addresses[0].second(found);
  geocoder.coordinates[1].second({std::nullopt, "no street there"});
  geocoder.addresses[1].second({std::vector<GeocodedPlace>(), std::nullopt});
  EXPECT_THAT(listener.told,
              testing::ElementsAre("address Avenyn, Göteborg", "coordinate 57.500000",
                                   "no address: no street there", "no coordinate: -"));

  auto gone = std::make_unique<Listener>();
  location.addressWithCoordinate({57.5, 11}, gone.get());
  gone.reset();
  geocoder.coordinates[2].second(found);

  location.addressWithCoordinate({57.5, 11}, nullptr);
  location.coordinateWithAddress("avenyn", nullptr);
  geocoder.coordinates[3].second(found);
  geocoder.addresses[2].second(found);
  EXPECT_EQ(listener.told.size(), 4U);
}

TEST(ReplaceUnicodeTest, TurnsEscapesIntoCharacters) {
  const struct {
    const char* text;
    std::optional<std::string> replaced;
  } cases[] = {
      {"", ""},
      {R"(\u5b9a\u4f4d)", "定位"},
      {R"(say "hi")", R"(say "hi")"},
      {R"(\ud83d\ude97!)", "🚗!"},
      {R"(\ud83dx)", "\uFFFDx"},
      {R"(a\\r\\nb)", "a\nb"},
      {R"(a\tb\101)", "a\tbA"},
      {R"(cut\)", std::nullopt},
      {R"(\")", std::nullopt},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(LocationClass::replaceUnicode(test.text), test.replaced) << test.text;
  }
}

}  // namespace
}  // namespace wayloom
