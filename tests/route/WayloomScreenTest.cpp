#include <QtCore/QDateTime>

#include "map/MapView.h"
#include "places/SelectAddressViewController.h"
#include "platform/QtMainQueue.h"
#include "route/WayloomViewController.h"
#include "settings/ModeSwitch.h"
#include "tests/support/ScreenHarness.h"

namespace wayloom {
namespace {

using Texts = std::map<std::string, std::string>;
using Dictionary = PropertyList::Dictionary;

constexpr double kNow = 1'700'000'000;
const std::vector<Coordinate> kPath = {{57.70, 11.90}, {57.71, 11.95}, {57.72, 12.00}};

PropertyList records(const std::vector<Coordinate>& path) {
  PropertyList::Array records;
  for (const Coordinate& point : path) {
    records.push_back(Dictionary{{"lat", point.latitude}, {"lng", point.longitude}});
  }
  return records;
}

Dictionary activeFile() {
  return {{"enable", "1"},
          {"start", "1699999990.000000"},
          {"end", "1700000020.000000"},
          {"s", "A place"},
          {"e", "Another"},
          {"points", records(kPath)},
          {"extra", "kept"}};
}

QString shown(double seconds) {
  return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(seconds)).toString("MM-dd HH:mm");
}

/// Records the changes of screens, and presents the address picker as the application does.
class RouteScreens : public ScreenSwitcher {
 public:
  explicit RouteScreens(ScreenHarness& screen) : mScreen(screen) {}

  void changeToLocation() override { changes.emplace_back("location"); }
  void changeToRouter() override {}
  void presentFavorites(FavoritesDelegate&) override {}
  void presentInfo() override { changes.emplace_back("info"); }
  void presentSelectAddress(SelectAddressViewController::Block block) override {
    mScreen.modals.present(
        std::make_unique<SelectAddressViewController>(
            SelectAddressViewController::Services{mScreen.location, mScreen.alerts, mScreen.tiles},
            std::move(block)),
        ModalPresenter::Transition::Slide);
  }

  std::vector<std::string> changes;

 private:
  ScreenHarness& mScreen;
};

/// The real layouts, touched as a person would, and the real file read after it.
class WayloomScreenTest : public testing::Test {
 protected:
  void open() {
    screen.view.setSource({});
    controller.emplace(WayloomViewController::Services{.files = screen.files,
                                                       .clock = clock,
                                                       .background = {saves, mainQueue},
                                                       .directions = directions,
                                                       .location = screen.location,
                                                       .alerts = screen.alerts,
                                                       .screens = screens,
                                                       .tiles = screen.tiles});
    ASSERT_TRUE(screen.show("AppWindow", {{"locationShown", false},
                                          {"wayloomController", QVariant::fromValue(&*controller)},
                                          {"modals", QVariant::fromValue(&screen.modals)},
                                          {"alerts", QVariant::fromValue(&screen.alerts)}}));
    map = qobject_cast<MapView*>(screen.find("mv_main"));
  }
  void open(const Dictionary& file) {
    ASSERT_TRUE(screen.files.save(SettingsFile::Route, file));
    open();
  }
  void SetUp() override { clock.seconds = kNow + 0.9; }
  void TearDown() override { screen.view.setSource({}); }

  Dictionary stored() {
    return dictionaryIn(screen.files, SettingsFile::Route).value_or(Dictionary());
  }
  QString textOf(const char* objectName) const {
    return screen.find(objectName)->property("text").toString();
  }
  bool isOn() const { return screen.find("enableSwitch")->property("checked").toBool(); }
  bool hudIsShown() const { return screen.find("HUD")->property("shown").toBool(); }
  double panelBottom() const { return screen.find("v_top")->y() + screen.find("v_top")->height(); }
  int hints() const { return hintsWithin(screen.view.rootObject()); }
  static int hintsWithin(const QQuickItem* item) {
    int count = item->objectName() == "hint" ? 1 : 0;
    for (const QQuickItem* child : item->childItems()) count += hintsWithin(child);
    return count;
  }

  void answerDirections(const std::vector<Coordinate>& path) {
    DirectionsAnswer answer;
    if (path.empty()) {
      answer.error = "no road";
    } else {
      answer.routes.push_back({path, 1000, 60});
    }
    ASSERT_FALSE(directions.requests.empty());
    directions.requests.back().second(answer);
  }
  /// Opens the picker, finds a place and takes it.
  void pick(const char* label, Coordinate place, const char* address) {
    screen.click(label);
    ASSERT_TRUE(QTest::qWaitFor([&] {
      const QQuickItem* bar = screen.find("buttonBar");
      return bar && bar->mapToScene({0, bar->height()}).y() == screen.view.height();
    }));
    screen.click("searchField");
    screen.type(address);
    QTest::keyClick(&screen.view, Qt::Key_Return);
    const GeocoderAnswer answer{std::vector<GeocodedPlace>{{place, {address}}}, std::nullopt};
    screen.geocoder.addresses.back().second(answer);
    screen.geocoder.coordinates.back().second(answer);
    screen.click("btn_ok");
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen.modals.count() == 0; }));
  }
  void chooseTime(const char* label) {
    screen.click(label);
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen.find("v_picker")->property("arrival") == 1; }));
  }
  void closePicker() {
    QTest::mouseClick(&screen.view, Qt::LeftButton, Qt::NoModifier, {180, 300});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !screen.find("v_picker")->isVisible(); }));
  }

  ScreenHarness screen;
  FakeClock clock;
  WorkQueue saves;
  QtMainQueue mainQueue;
  FakeDirections directions;
  RouteScreens screens{screen};
  std::optional<WayloomViewController> controller;
  MapView* map = nullptr;
};

TEST_F(WayloomScreenTest, TheMapsMenuAndItsStarsChooseAsThePickerDoes) {
  Favorites favorites(screen.files);
  ASSERT_TRUE(favorites.add("Work", {57.702, 11.903}, "?"));
  open();
  map->setRegion({{57.7, 11.9}, {0.02, 0.02}}, Animated::No);
  const Coordinate corner = map->coordinateAtPoint({40, 60});
  QTest::mouseClick(&screen.view, Qt::RightButton, Qt::NoModifier,
                    map->mapToScene({40, 60}).toPoint());
  QTest::keyClick(&screen.view, Qt::Key_Down);
  QTest::keyClick(&screen.view, Qt::Key_Return);
  const GeocodedPlace there{corner, {"Corner"}};
  screen.geocoder.coordinates.back().second({{{there}}, std::nullopt});
  EXPECT_EQ(textOf("lb_start"), "Corner");
  EXPECT_TRUE(directions.requests.empty());

  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.find("star") != nullptr; }));
  screen.click("star");
  QTest::keyClick(&screen.view, Qt::Key_Down);
  QTest::keyClick(&screen.view, Qt::Key_Down);
  QTest::keyClick(&screen.view, Qt::Key_Return);
  EXPECT_EQ(textOf("lb_end"), "Work");
  ASSERT_EQ(directions.requests.size(), 1U);
  EXPECT_EQ(screen.stored(SettingsFile::Location), (Texts{{"(missing)", ""}}));
}

TEST_F(WayloomScreenTest, TheWholeStoryFromAnEmptyScreenToTheNextStart) {
  open();
  ASSERT_NE(screen.position, nullptr) << "without a drive the device is asked where it is";
  EXPECT_EQ(textOf("lb_start"), "Please choose Start");
  const auto refused = [&](const char* message) {
    screen.click("enableSwitch");
    EXPECT_EQ(screen.alerts.message(), message);
    EXPECT_FALSE(isOn());
    screen.click("alertButton");
  };
  refused("Please choose Start");
  pick("lb_start", {57.7, 11.9}, "A place");
  EXPECT_TRUE(directions.requests.empty());
  refused("Please choose End");
  pick("lb_end", {57.72, 12.0}, "Another");
  EXPECT_EQ(textOf("lb_end"), "Another");
  ASSERT_EQ(directions.requests.size(), 1U);
  EXPECT_TRUE(hudIsShown());
  EXPECT_NEAR(directions.requests[0].first.destination.longitude, 12, 1e-9);
  refused("Please choose Start Time");

  chooseTime("lb_startTime");
  closePicker();
  EXPECT_EQ(textOf("lb_startTime"), shown(kNow)) << "closed at once, the opening counts";
  refused("Please choose End Time");
  chooseTime("lb_endTime");
  QTest::keyClick(&screen.view, Qt::Key_Up);
  EXPECT_EQ(textOf("lb_endTime"), shown(kNow)) << "nothing lies before the opening";
  QTest::keyClick(&screen.view, Qt::Key_Right);
  QTest::keyClick(&screen.view, Qt::Key_Down);
  closePicker();
  const double end = std::floor((kNow + 3600) / 60) * 60;
  EXPECT_EQ(textOf("lb_endTime"), shown(end));
  refused("Path planning failure, rechoose Start/End please");
  answerDirections({});
  EXPECT_FALSE(hudIsShown());
  EXPECT_EQ(textOf("statusLine"), "No roads lead from A place to Another");
  refused("Path planning failure, rechoose Start/End please");
  EXPECT_TRUE(stored().empty());

  pick("lb_end", {57.72, 12.0}, "Another");
  answerDirections(kPath);
  EXPECT_EQ(textOf("statusLine"), "Drive: 1.0 km, 1 min; you gave 1 h 0 min, 1 km/h");
  ASSERT_EQ(map->annotations().size(), 2U);
  EXPECT_EQ(map->annotations()[0]->tag, 111111);
  EXPECT_EQ(map->annotations()[0]->coordinate, kPath.back());
  EXPECT_FALSE(map->annotations()[0]->image.isNull());
  EXPECT_EQ(map->annotations()[1]->tag, 222222);
  EXPECT_EQ(map->annotations()[1]->coordinate, kPath.front());
  ASSERT_EQ(map->overlays().size(), 1U);
  EXPECT_EQ(*map->overlays()[0]->coordinates, kPath);

  clock.seconds = kNow + 60;
  screen.click("enableSwitch");
  EXPECT_TRUE(isOn());
  EXPECT_EQ(textOf("lb_tip"), "Wayloom is working");
  EXPECT_TRUE(QTest::qWaitFor([&] { return panelBottom() == 54; }));
  const Dictionary on = {{"enable", "1"},
                         {"start", "1700000060.000000"},
                         {"end", std::to_string(static_cast<long>(end)) + ".000000"},
                         {"s", "A place"},
                         {"e", "Another"},
                         {"points", records(kPath)}};
  EXPECT_EQ(stored(), on);
  ASSERT_EQ(directions.requests.size(), 3U) << "the path is planned once more";
  answerDirections(kPath);

  EXPECT_TRUE(textOf("statusLine").startsWith("Driving: 0 %"));
  clock.seconds = end - 1;
  const auto follows = [&] { return map->viewPoint(kPath[2]) == map->boundingRect().center(); };
  EXPECT_TRUE(QTest::qWaitFor(follows)) << "the map follows by itself";
  EXPECT_TRUE(textOf("statusLine").startsWith("Driving: 99 %, 1 min left"));
  screen.click("lb_start");
  EXPECT_EQ(screen.modals.count(), 0) << "out of sight";

  open();
  EXPECT_TRUE(isOn()) << "the next start goes on";
  EXPECT_EQ(textOf("lb_end"), "Another");
  EXPECT_EQ(textOf("lb_startTime"), shown(kNow + 60));
  EXPECT_EQ(directions.requests.back().first.source, kPath.front());
  EXPECT_TRUE(follows());

  screen.click("enableSwitch");
  EXPECT_TRUE(QTest::qWaitFor([&] { return panelBottom() > 200; }));
  Dictionary off = on;
  off["enable"] = "0";
  EXPECT_EQ(stored(), off);
  EXPECT_TRUE(map->annotations().empty());
  EXPECT_TRUE(map->overlays().empty());
}

TEST_F(WayloomScreenTest, ADriveThatCannotBeWrittenIsNotShownAsOn) {
  open();
  pick("lb_start", {57.7, 11.9}, "A place");
  pick("lb_end", {57.72, 12.0}, "Another");
  answerDirections(kPath);
  for (const char* label : {"lb_startTime", "lb_endTime"}) {
    chooseTime(label);
    closePicker();
  }
  screen.system.fault = {"write", screen.system.calls["write"] + 1, ENOSPC};
  screen.click("enableSwitch");
  EXPECT_TRUE(screen.system.hasFailed);
  EXPECT_FALSE(isOn());
  EXPECT_EQ(textOf("lb_tip"), "");
  EXPECT_GT(panelBottom(), 200);
  EXPECT_TRUE(textOf("statusLine").contains("No space left")) << qPrintable(textOf("statusLine"));
  EXPECT_TRUE(stored().empty());

  screen.click("enableSwitch");
  EXPECT_TRUE(isOn());
  EXPECT_EQ(textOf("statusLine"), "Arrived");
}

TEST_F(WayloomScreenTest, WhileItDrivesEveryChoiceIsRefused) {
  open(activeFile());
  EXPECT_EQ(screen.position, nullptr);
  EXPECT_TRUE(QTest::qWaitFor([&] { return panelBottom() == 54; }));
  screen.click("btn_upDown");
  EXPECT_TRUE(QTest::qWaitFor([&] { return panelBottom() > 200; }));
  for (const char* label : {"lb_start", "lb_end", "lb_startTime", "lb_endTime"}) {
    const int before = hints();
    screen.click(label);
    EXPECT_EQ(hints(), before + 1) << label;
    EXPECT_EQ(screen.modals.count(), 0) << label;
    EXPECT_FALSE(screen.find("v_picker")->isVisible()) << label;
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return hints() == 0; })) << "they go by themselves";

  screen.click("btn_exchange");
  EXPECT_EQ(screen.alerts.message(), kWayloomIsWorking);
  screen.click("alertButton");
  EXPECT_TRUE(screens.changes.empty());
  EXPECT_EQ(stored(), activeFile());

  screen.click("enableSwitch");
  screen.click("btn_exchange");
  EXPECT_EQ(screens.changes, std::vector<std::string>{"location"});
  EXPECT_EQ(screen.stored(SettingsFile::Master), (Texts{{"mode", "1"}}));
  Dictionary off = activeFile();
  off["enable"] = "0";
  EXPECT_EQ(stored(), off);
}

TEST_F(WayloomScreenTest, AppearingReadsTheFileAgainAndLeavesTheRest) {
  open({{"enable", "0"}, {"s", "A place"}, {"points", records(kPath)}});
  EXPECT_EQ(textOf("lb_start"), "Please choose Start") << "nothing else of a drive that is off";
  ASSERT_TRUE(screen.files.save(SettingsFile::Route, activeFile()));
  controller->viewWillAppear();
  EXPECT_TRUE(isOn());
  EXPECT_EQ(textOf("lb_tip"), "");
  EXPECT_GT(panelBottom(), 200);
  screen.click("enableSwitch");
  EXPECT_EQ(stored().at("enable"), PropertyList("0"));
}

TEST_F(WayloomScreenTest, AWheelThatStillRunsChoosesNothingAfterThePickerIsClosed) {
  open();
  chooseTime("lb_startTime");
  QQuickItem* wheel = screen.find("dayWheel");
  QMetaObject::invokeMethod(wheel, "flick", Q_ARG(qreal, 0), Q_ARG(qreal, -2500));
  ASSERT_TRUE(QTest::qWaitFor([&] { return wheel->property("contentY").toReal() > 0; }));
  closePicker();
  const QString chosen = textOf("lb_startTime");
  EXPECT_FALSE(wheel->property("moving").toBool());
  chooseTime("lb_endTime");
  closePicker();
  EXPECT_EQ(textOf("lb_startTime"), chosen);
  EXPECT_EQ(textOf("lb_endTime"), shown(kNow));
}

TEST_F(WayloomScreenTest, TheWheelsCarryThroughTheNightInWhichTheClocksGoBack) {
  const struct Zone {
    explicit Zone(const char* name) { set(name); }
    ~Zone() { set("UTC"); }
    static void set(const char* name) {
      setenv("TZ", name, 1);
      tzset();
    }
  } stockholm("CET-1CEST,M3.5.0,M10.5.0/3");
  clock.seconds = 1'792'879'140;  // 2026-10-24 23:59, two minutes before a day of 25 hours.
  open();
  chooseTime("lb_startTime");
  const auto turn = [&](Qt::Key key, int times) {
    for (int time = 0; time < times; ++time) QTest::keyClick(&screen.view, key);
  };
  const auto rows = [&] {
    std::string texts;
    for (const char* wheel : {"dayWheel", "hourWheel", "minuteWheel"}) {
      const QObject* item = screen.find(wheel)->property("currentItem").value<QObject*>();
      texts += (item ? item->property("text").toString().toStdString() : "none") + '|';
    }
    return texts;
  };
  turn(Qt::Key_Right, 2);
  turn(Qt::Key_Down, 1);
  EXPECT_EQ(textOf("lb_startTime"), "10-25 00:00");
  EXPECT_EQ(rows(), "Sun 25 Oct|00|00|");
  QTest::keyClick(&screen.view, Qt::Key_Backtab);
  turn(Qt::Key_Down, 2);
  EXPECT_EQ(rows(), "Sun 25 Oct|02 CEST|00|");
  turn(Qt::Key_Down, 1);
  EXPECT_EQ(rows(), "Sun 25 Oct|02 CET|00|");
  EXPECT_EQ(controller->picker()->date(), 1'792'879'200 + 3 * 3600);
  turn(Qt::Key_Down, 22);
  EXPECT_EQ(textOf("lb_startTime"), "10-26 00:00");
  EXPECT_EQ(screen.find("hourWheel")->property("count"), 24);
  turn(Qt::Key_Up, 1);
  EXPECT_EQ(rows(), "Sun 25 Oct|23|00|");
}

TEST_F(WayloomScreenTest, TheOneOverlayMovesBetweenViewAndWindow) {
  open();
  controller->showHUDView();
  const QQuickItem* overlay = screen.find("HUD");
  EXPECT_NE(overlay->parentItem(), screen.view.contentItem());
  controller->showHUDViewOnWindowWithTextYOffset("Wait", 30);
  EXPECT_EQ(overlay->parentItem(), screen.view.contentItem());
  EXPECT_EQ(screen.find("HUD"), nullptr) << "there is no second one in the view";
  EXPECT_EQ(overlay->property("labelText"), "Wait");
  EXPECT_EQ(overlay->property("yOffset"), 30);
  controller->hideHUDView();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !overlay->isVisible(); }));
}

TEST_F(WayloomScreenTest, HostileRouteFilesStopNothingAndStayAsTheyAre) {
  const PropertyList::Array huge(3, Dictionary{{"lat", "1e308"}, {"lng", "-1e308"}});
  const Dictionary files[] = {
      {{"enable", "1"}},
      {{"enable", true}, {"points", PropertyList::Array{}}, {"start", "x"}, {"end", 1e300}},
      {{"enable", "1"}, {"points", "a text"}, {"s", 5}, {"e", PropertyList::Array{}}},
      {{"enable", "yes"}, {"points", PropertyList::Array{1, "two", PropertyList::Array{}}}},
      {{"enable", "1"}, {"points", huge}, {"start", "-99999999999"}, {"end", "99999999999"}},
      {{"enable", "1"}, {"points", records(kPath)}, {"start", "9"}, {"end", "1"}},
      {{"enable", PropertyList::Array{}}, {"points", records(kPath)}},
  };
  int number = 0;
  for (const Dictionary& file : files) {
    open(file);
    controller->refreshLocation();
    controller->viewWillAppear();
    EXPECT_EQ(isOn(), ++number < 7) << "file " << number;
    EXPECT_TRUE(std::isfinite(map->region().center.latitude)) << "file " << number;
    EXPECT_EQ(stored(), file) << "file " << number;
  }
}

TEST_F(WayloomScreenTest, ThePickerZoomsAboutItsPinAndTheRouteMapAboutThePointer) {
  open();
  map->setRegion(regionWithDistance({57.7, 11.97}, 2000, 2000), Animated::No);
  const auto metresMoved = [](const MapView& view, Coordinate before) {
    return std::abs(view.region().center.latitude - before.latitude) * 111'195;
  };
  Coordinate before = map->region().center;
  screen.wheel("mv_main", {20, 20}, 2);
  EXPECT_GT(metresMoved(*map, before), 100);

  screen.click("lb_start");
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.find("buttonBar") != nullptr; }));
  auto* picker = qobject_cast<MapView*>(screen.find("mainMapView"));
  before = picker->region().center;
  screen.wheel("mainMapView", {20, 20}, 2);
  EXPECT_LT(metresMoved(*picker, before), 1);
}

TEST_F(WayloomScreenTest, ThePickerHandsBackOnlyWhatHasAnAddressAndACancelNothing) {
  open();
  const auto opened = [&] {
    screen.click("lb_start");
    return QTest::qWaitFor([&] {
      const QQuickItem* bar = screen.find("buttonBar");
      return bar && bar->mapToScene({0, bar->height()}).y() == screen.view.height();
    });
  };
  ASSERT_TRUE(opened());
  EXPECT_TRUE(hudIsShown());
  screen.position->delegate->didUpdateToLocation(PositionFix{{57.7, 11.97}, 5});
  EXPECT_FALSE(hudIsShown());
  ASSERT_TRUE(QTest::qWaitFor([&] { return !screen.geocoder.coordinates.empty(); }));
  screen.click("btn_ok");
  EXPECT_EQ(hints(), 1) << "the address is still loading";
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return std::abs(screen.geocoder.coordinates.back().first.latitude - 57.7) < 1e-6 &&
           !qobject_cast<MapView*>(screen.find("mainMapView"))->property("moving").toBool();
  }));
  screen.click("searchField");
  screen.type("   ");
  QTest::keyClick(&screen.view, Qt::Key_Return);
  EXPECT_TRUE(screen.geocoder.addresses.empty());
  screen.type(" nowhere ");
  screen.click("searchButton");
  ASSERT_EQ(screen.geocoder.addresses.size(), 1U);
  EXPECT_EQ(screen.geocoder.addresses[0].first, "nowhere");
  screen.geocoder.addresses[0].second({std::nullopt, "none"});
  EXPECT_EQ(textOf("addressLabel"), "Unknow");
  EXPECT_TRUE(hudIsShown()) << "this path leaves it";
  QTest::keyClick(&screen.view, Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.modals.count() == 0; }));
  EXPECT_EQ(textOf("lb_start"), "Please choose Start");

  ASSERT_TRUE(opened());
  screen.drag("mainMapView", {40, 40});
  screen.geocoder.coordinates.back().second({std::nullopt, "none"});
  screen.click("btn_ok");
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.modals.count() == 0; }));
  EXPECT_EQ(textOf("lb_start"), "Unknow");
}

}  // namespace
}  // namespace wayloom
