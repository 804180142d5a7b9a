#include "fixed/SpotloomViewController.h"
#include "lists/FavoritesViewController.h"
#include "settings/ModeSwitch.h"
#include "tests/support/ScreenHarness.h"

namespace wayloom {
namespace {

using Texts = std::map<std::string, std::string>;

/// Records what is asked for, and presents the favourites as the application does.
class RecordedScreens : public ScreenSwitcher {
 public:
  explicit RecordedScreens(ScreenHarness& screen) : mScreen(screen) {}

  void changeToLocation() override { changes.emplace_back("location"); }
  void changeToRouter() override { changes.emplace_back("router"); }
  void presentFavorites(FavoritesDelegate& delegate) override {
    mScreen.modals.present(std::make_unique<FavoritesViewController>(mScreen.files, delegate),
                           ModalPresenter::Transition::Flip);
  }
  void presentInfo() override { changes.emplace_back("info"); }
  void presentSelectAddress(std::function<void(double, double, const QString&)>) override {}

  std::vector<std::string> changes;

 private:
  ScreenHarness& mScreen;
};

/// The real layout, touched as a person would, and the real files read after it.
class SpotloomScreenTest : public testing::Test {
 protected:
  void open(const PropertyList::Dictionary& settings) {
    if (!settings.empty()) {
      ASSERT_TRUE(screen.files.saveLocationSettings(settings));
    }
    controller.emplace(SpotloomViewController::Services{.files = screen.files,
                                                        .notice = screen.notice,
                                                        .location = screen.location,
                                                        .alerts = screen.alerts,
                                                        .screens = screens,
                                                        .tiles = screen.tiles});
    ASSERT_TRUE(screen.show("AppWindow", {{"locationShown", true},
                                          {"locationController", QVariant::fromValue(&*controller)},
                                          {"modals", QVariant::fromValue(&screen.modals)},
                                          {"alerts", QVariant::fromValue(&screen.alerts)}}));
    map = qobject_cast<MapView*>(screen.find("mainMapView"));
  }
  void TearDown() override { screen.view.setSource({}); }

  Texts stored() const { return screen.stored(SettingsFile::Location); }
  bool isShown(const char* objectName) const { return screen.find(objectName)->isVisible(); }
  QString textOf(const char* objectName) const {
    return screen.find(objectName)->property("text").toString();
  }
  void answerAddress(const GeocoderAnswer& answer) {
    screen.geocoder.coordinates.back().second(answer);
  }

  ScreenHarness screen;
  RecordedScreens screens{screen};
  std::optional<SpotloomViewController> controller;
  MapView* map = nullptr;
};

const PropertyList::Dictionary kOn = {
    {"enable", "1"}, {"latitude", "10.000000"}, {"longitude", "20.000000"}};
const PropertyList::Dictionary kOff = {
    {"enable", "0"}, {"latitude", "10.000000"}, {"longitude", "20.000000"}};

TEST_F(SpotloomScreenTest, StartsWhereTheFileSays) {
  open(kOn);
  EXPECT_TRUE(screen.find("enableSwitch")->property("checked").toBool());
  EXPECT_TRUE(isShown("v_auto"));
  EXPECT_EQ(screen.find("btn_mine")->y(), 667 - 130);
  EXPECT_EQ(screen.find("btn_exchange")->y(), 667 - 130);
  screen.view.resize(375, 800);
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.view.rootObject()->height() == 800; }));
  EXPECT_EQ(screen.find("btn_mine")->y(), 800 - 130) << "at once";
  const MapRegion region = map->region();
  EXPECT_NEAR(region.center.latitude, 10, 1e-7);
  EXPECT_NEAR(region.center.longitude, 20, 1e-7);
  EXPECT_NEAR(region.span.longitudeDelta, 2000 / (111195.08 * std::cos(10 * M_PI / 180)), 1e-4);
  EXPECT_EQ(screen.position, nullptr) << "nobody asked where the device is";
}

TEST_F(SpotloomScreenTest, APositionThatNoMapShowsStaysUntilThePersonMovesTheMap) {
  const PropertyList::Dictionary polar = {
      {"enable", "1"}, {"latitude", "-89.5"}, {"longitude", "190"}};
  open(polar);
  controller->viewWillAppear();
  screen.wheel("mainMapView", {20, 300}, -2);
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.geocoder.coordinates.size() == 2; }));
  EXPECT_EQ(dictionaryIn(screen.files, SettingsFile::Location), polar);
  EXPECT_EQ(screen.geocoder.coordinates.back().first, (Coordinate{-89.5, 190}));
  screen.click("enableSwitch");
  EXPECT_EQ(stored().at("latitude"), "-89.500000");
  screen.drag("mainMapView", {0, 60});
  EXPECT_GT(std::stod(stored().at("latitude")), -85.1);
}

TEST_F(SpotloomScreenTest, WithoutAFileItGoesToTheDeviceAndTheSwitchSpringsBackOnce) {
  open({});
  ASSERT_NE(screen.position, nullptr);
  screen.position->delegate->didUpdateToLocation(PositionFix{{57.7, 11.97}, 5});
  ASSERT_TRUE(QTest::qWaitFor([&] { return std::abs(map->region().span.longitudeDelta) < 0.05; }));
  EXPECT_NEAR(map->region().center.latitude, 57.7, 1e-7);
  EXPECT_EQ(screen.find("btn_mine")->y(), 667 - 86);
  EXPECT_EQ(stored(), (Texts{{"(missing)", ""}})) << "a map move creates no file";

  screen.click("enableSwitch");
  EXPECT_FALSE(screen.find("enableSwitch")->property("checked").toBool());
  EXPECT_EQ(stored(), (Texts{{"(missing)", ""}}));
  EXPECT_EQ(textOf("statusLine"), "Touch again: there was no settings file yet");
  screen.click("enableSwitch");
  EXPECT_TRUE(screen.find("enableSwitch")->property("checked").toBool());
  EXPECT_EQ(stored(),
            (Texts{{"enable", "1"}, {"latitude", "57.700000"}, {"longitude", "11.970000"}}));
}

TEST_F(SpotloomScreenTest, AFileThatCouldNotBeReadAtFirstIsTakenAsItIsOnceItCan) {
  const auto appear = [this] { controller->viewWillAppear(); };
  const struct {
    const char* then;
    PropertyList::Dictionary file;
    std::function<void()> act;
    const char* enable;
    bool asksTheDevice;
  } cases[] = {
      {"appearing while on", kOn, appear, "1", false},
      {"appearing while off", kOff, appear, "0", true},
      {"zooming while on", kOn,
       [this] {
         screen.wheel("mainMapView", {20, 300}, 1);
         EXPECT_TRUE(QTest::qWaitFor([&] { return map->region().center.latitude > 9; }));
       },
       "1", false},
      {"turning on", kOff, [this] { screen.click("enableSwitch"); }, "1", false},
  };
  for (const auto& test : cases) {
    ASSERT_TRUE(screen.files.saveLocationSettings(test.file));
    screen.system.fault = {"open", screen.system.calls["open"] + 1, EIO};
    screen.position = nullptr;
    open({});
    ASSERT_TRUE(screen.system.hasFailed);
    EXPECT_TRUE(screen.find("statusLine")->property("isFailure").toBool()) << test.then;
    test.act();
    const Texts wanted = {
        {"enable", test.enable}, {"latitude", "10.000000"}, {"longitude", "20.000000"}};
    EXPECT_EQ(stored(), wanted) << test.then;
    EXPECT_EQ(screen.position != nullptr, test.asksTheDevice) << test.then;
    const double wantedLatitude = test.asksTheDevice ? 0 : 10;
    EXPECT_NEAR(map->region().center.latitude, wantedLatitude, 1e-7) << test.then;
    screen.view.setSource({});
  }
}

TEST_F(SpotloomScreenTest, SwitchesPostBeforeTheyWriteAndTheMapDoesNot) {
  open(kOn);
  screen.notice.posts.clear();

  screen.drag("mainMapView", {100, 60});
  const Texts moved = stored();
  EXPECT_TRUE(screen.notice.posts.empty());
  EXPECT_EQ(moved.at("enable"), "1");
  EXPECT_GT(std::stod(moved.at("latitude")), 10.0);
  EXPECT_LT(std::stod(moved.at("longitude")), 20.0);

  screen.click("enableSwitch");
  ASSERT_EQ(screen.notice.posts.size(), 1U);
  EXPECT_EQ(screen.notice.posts[0].fileThen, moved);
  Texts off = moved;
  off["enable"] = "0";
  EXPECT_EQ(stored(), off);
  EXPECT_FALSE(isShown("v_auto"));

  screen.click("enableSwitch");
  EXPECT_EQ(stored(), moved);
  EXPECT_EQ(screen.notice.posts.size(), 2U);
}

TEST_F(SpotloomScreenTest, ZoomingAwayFromTheMiddleKeepsThePosition) {
  open(kOn);
  const Texts before = stored();
  int moves = 0;
  QObject::connect(map, &MapView::regionDidChange, map, [&] { ++moves; });
  screen.wheel("mainMapView", {20, 400}, 6);
  ASSERT_TRUE(QTest::qWaitFor([&] { return moves == 1; }));
  EXPECT_EQ(stored(), before);
  QTest::mouseDClick(&screen.view, Qt::LeftButton, {},
                     map->mapToScene(QPointF(300, 300)).toPoint());
  ASSERT_TRUE(QTest::qWaitFor([&] { return moves == 2; }));
  EXPECT_EQ(stored(), before);
}

TEST_F(SpotloomScreenTest, TheSliderIsLockedUntilDriftIsOn) {
  open({{"enable", "1"}, {"latitude", "10.000000"}, {"longitude", "20.000000"}, {"s", "0.5"}});
  const Texts before = stored();
  screen.click("sd_auto");
  screen.drag("sd_auto", {60, 0});
  EXPECT_EQ(stored(), before);

  screen.click("s_auto");
  EXPECT_EQ(stored().at("a"), "1");
  EXPECT_EQ(stored().at("s"), "0.500000");
  ASSERT_EQ(screen.notice.posts.size(), 1U);
  EXPECT_EQ(screen.notice.posts[0].fileThen, before);

  screen.drag("sd_auto", {60, 0});
  QTest::keyClick(&screen.view, Qt::Key_Left);
  EXPECT_GT(std::stod(stored().at("s")), 0.6);
  EXPECT_EQ(screen.notice.posts.size(), 1U) << "the slider posts nothing";

  ASSERT_TRUE(screen.find("sd_auto")->hasActiveFocus());
  controller->setAuto(false);
  EXPECT_EQ(stored().at("a"), "0");
  const Texts locked = stored();
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right}) QTest::keyClick(&screen.view, key);
  EXPECT_EQ(stored(), locked) << "nor does it move by keys";
  screen.drag("sd_auto", {-60, 0});
  screen.drag("lb_auto", {0, -40});
  EXPECT_EQ(stored(), locked) << "the panel lets nothing through to the map";
}

TEST_F(SpotloomScreenTest, AddressSearchTurnsOffUntilItFinds) {
  open(kOn);
  screen.click("searchField");
  screen.type("  Avenyn  ");
  QTest::keyClick(&screen.view, Qt::Key_Return);
  ASSERT_EQ(screen.geocoder.addresses.size(), 1U);
  EXPECT_EQ(screen.geocoder.addresses[0].first, "Avenyn");
  EXPECT_EQ(stored().at("enable"), "0");
  EXPECT_EQ(textOf("searchField"), "");
  EXPECT_TRUE(screen.find("HUD")->property("shown").toBool());
  EXPECT_TRUE(screen.find("enableSwitch")->property("checked").toBool());
  EXPECT_EQ(textOf("statusLine"), "Searching …");

  screen.geocoder.addresses[0].second({{{{{57.5, 11.5}, {"Avenyn"}}}}, std::nullopt});
  EXPECT_FALSE(screen.find("HUD")->property("shown").toBool());
  EXPECT_EQ(stored(),
            (Texts{{"enable", "1"}, {"latitude", "57.500000"}, {"longitude", "11.500000"}}));
  EXPECT_TRUE(screen.notice.posts.empty());

  screen.click("searchField");
  screen.type("nowhere");
  screen.click("searchButton");
  screen.geocoder.addresses[1].second({std::nullopt, "none"});
  EXPECT_EQ(textOf("addressLabel"), "Unknow");
  EXPECT_EQ(textOf("statusLine"), "Nothing found for nowhere: the position is off");
  EXPECT_TRUE(screen.find("HUD")->property("shown").toBool()) << "this path leaves it";
  EXPECT_EQ(stored().at("enable"), "0");
  controller->viewWillAppear();
  EXPECT_FALSE(screen.find("enableSwitch")->property("checked").toBool());
}

TEST_F(SpotloomScreenTest, CoordinateSearchMovesTheMapAndMalformedOnesDoNothing) {
  open(kOff);
  const struct {
    const char* typed;
    const char* left;
    const char* latitude;
    const char* longitude;
  } cases[] = {
      {" #:48.85,2.35 ", "", "48.850000", "2.350000"},
      {"#:1,2,3", "#:1,2,3", "48.850000", "2.350000"},
      {"#:abc,def", "", "0.000000", "0.000000"},
      {"#:-33.9,190", "", "-33.900000", "-170.000000"},
      {"#:1e400,5", "", "-33.900000", "-170.000000"},
  };
  for (const auto& test : cases) {
    controller->setSearchText({});
    screen.click("searchField");
    screen.type(test.typed);
    screen.click("searchButton");
    EXPECT_EQ(textOf("searchField"), test.left) << test.typed;
    EXPECT_EQ(stored().at("latitude"), test.latitude) << test.typed;
    EXPECT_EQ(stored().at("longitude"), test.longitude) << test.typed;
  }
  EXPECT_TRUE(screen.geocoder.addresses.empty());
}

TEST_F(SpotloomScreenTest, ShowsTheAddressOfTheCentreAndSavesItAsAFavourite) {
  open(kOff);
  screen.position->delegate->didFailWithError(std::nullopt);
  screen.drag("mainMapView", {0, 50});
  EXPECT_TRUE(isShown("spinner"));
  EXPECT_EQ(textOf("addressLabel"), "");
  answerAddress({{{{{0, 0}, {"Avenyn, Göteborg", "Sweden"}}}}, std::nullopt});
  EXPECT_FALSE(isShown("spinner"));
  EXPECT_EQ(textOf("addressLabel"), "Avenyn, Göteborg");

  screen.click("addButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.find("alertView")->opacity() == 1; }));
  EXPECT_EQ(textOf("favoritesNameField"), "Avenyn, Göteborg");
  screen.type("  ");
  screen.click("okButton");
  screen.click("okButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !isShown("alertView"); }));

  screen.click("addButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.find("alertView")->opacity() == 1; }));
  screen.type("Work");
  QTest::keyClick(&screen.view, Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !isShown("alertView"); }));

  const auto favorites = arrayIn(screen.files, SettingsFile::Favorites);
  ASSERT_TRUE(favorites.has_value());
  EXPECT_EQ(
      *favorites,
      (PropertyList::Array{PropertyList::Dictionary{{"name", "Unknow"},
                                                    {"latitude", stored().at("latitude")},
                                                    {"longitude", stored().at("longitude")}}}));
}

TEST_F(SpotloomScreenTest, TheStatusLineIsHeardAndLiesOverNothing) {
  open(kOn);
  QStringList heard;
  QObject::connect(controller->status(), &StatusText::announced, map,
                   [&] { heard += textOf("statusLine"); });
  answerAddress({{{{{0, 0}, {"Avenyn, Göteborg"}}}}, std::nullopt});
  screen.click("enableSwitch");
  EXPECT_EQ(heard, (QStringList{"On at Avenyn, Göteborg", "Off"}));

  screen.click("enableSwitch");
  screen.view.resize(320, 480);
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.find("btn_mine")->y() == 480 - 130; }));
  const auto place = [&](const char* name) {
    const QQuickItem* item = screen.find(name);
    return item->mapRectToScene(item->boundingRect());
  };
  EXPECT_EQ(place("statusLine").height(), 28);
  for (const char* other : {"topView", "mainMapView", "v_auto", "btn_mine", "btn_exchange"}) {
    EXPECT_TRUE((place(other) & place("statusLine")).isEmpty()) << other;
  }
}

TEST_F(SpotloomScreenTest, TheModeButtonIsRefusedWhileThePositionIsOn) {
  open(kOn);
  ASSERT_TRUE(screen.files.writeMasterMode(Mode::FixedLocation));
  screen.click("btn_exchange");
  EXPECT_EQ(screen.alerts.message(), kSpotloomIsWorking);
  EXPECT_EQ(screen.stored(SettingsFile::Master).at("mode"), "1");
  EXPECT_TRUE(screens.changes.empty());

  screen.click("enableSwitch");
  EXPECT_EQ(stored().at("enable"), "1") << "an alert takes every touch";
  screen.click("alertButton");
  screen.click("enableSwitch");
  EXPECT_TRUE(QTest::qWaitFor([&] { return screen.find("btn_exchange")->y() == 667 - 86; }));
  screen.click("btn_exchange");
  EXPECT_EQ(screen.stored(SettingsFile::Master), (Texts{{"mode", "0"}}));
  EXPECT_EQ(screens.changes, std::vector<std::string>{"router"});
}

TEST_F(SpotloomScreenTest, AppearingFollowsTheFileButLeavesTheMap) {
  open(kOn);
  const MapRegion before = map->region();
  ASSERT_TRUE(screen.files.saveLocationSettings(
      PropertyList::Dictionary{{"enable", "0"}, {"a", "1"}, {"s", "0.25"}, {"latitude", "50"}}));
  controller->viewWillAppear();
  EXPECT_FALSE(screen.find("enableSwitch")->property("checked").toBool());
  EXPECT_TRUE(screen.find("s_auto")->property("checked").toBool());
  EXPECT_EQ(screen.find("sd_auto")->property("value").toDouble(), 0.25);
  EXPECT_EQ(map->region(), before);
}

TEST_F(SpotloomScreenTest, AChosenFavouriteIsPinnedAndTheScreenComesBackWithTheKeyboard) {
  open(kOff);
  ASSERT_TRUE(
      screen.files.save(SettingsFile::Favorites,
                        PropertyList::Array{PropertyList::Dictionary{
                            {"name", "Home"}, {"latitude", "57.5"}, {"longitude", "11.5"}}}));
  const auto isIn = [&] { return !screen.find("btn_mine")->isVisible(); };
  for (const bool chooses : {false, true}) {
    const Texts before = stored();
    screen.click("favoritesButton");
    screen.click("favoritesButton");
    EXPECT_EQ(screen.modals.count(), 1) << "the screen below takes no touches";
    ASSERT_TRUE(QTest::qWaitFor(isIn));
    EXPECT_TRUE(screen.find("mainTableView")->hasActiveFocus());
    if (chooses) QTest::keyClick(&screen.view, Qt::Key_Down);
    QTest::keyClick(&screen.view, chooses ? Qt::Key_Return : Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen.modals.count() == 0; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.find("favoritesButton")->hasActiveFocus(); }));
    if (!chooses) {
      EXPECT_EQ(stored(), before);
    }
  }
  EXPECT_TRUE(screen.find("enableSwitch")->property("checked").toBool());
  EXPECT_NEAR(map->region().center.latitude, 57.5, 1e-7);
  EXPECT_EQ(stored(),
            (Texts{{"enable", "1"}, {"latitude", "57.500000"}, {"longitude", "11.500000"}}));
  EXPECT_TRUE(screen.notice.posts.empty());
}

TEST_F(SpotloomScreenTest, MyLocationMovesThereInTwoStepsAndStoresIt) {
  open(kOn);
  screen.click("btn_mine");
  ASSERT_NE(screen.position, nullptr);
  EXPECT_FALSE(screen.find("HUD")->property("shown").toBool()) << "attached to no view yet";
  screen.position->delegate->didUpdateToLocation(PositionFix{{10.01, 20.01}, 5});
  EXPECT_TRUE(QTest::qWaitFor([&] { return stored().at("latitude") == "10.010000"; }));
  EXPECT_EQ(stored().at("enable"), "1");
}

}  // namespace
}  // namespace wayloom
