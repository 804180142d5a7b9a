#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QPointingDevice>
#include <QtGui/QStyleHints>

#include "fixed/SpotloomViewController.h"
#include "places/SearchOffers.h"
#include "settings/TextConversions.h"
#include "tests/support/ScreenHarness.h"

namespace wayloom {
namespace {

class NoOtherScreens : public ScreenSwitcher {
 public:
  void changeToLocation() override {}
  void changeToRouter() override {}
  void presentFavorites(FavoritesDelegate&) override {}
  void presentInfo() override {}
  void presentSelectAddress(std::function<void(double, double, const QString&)>) override {}
};

Place placeNamed(const std::string& name, Coordinate coordinate) {
  Place place;
  place.name = name;
  place.country = "Finland";
  place.coordinate = coordinate;
  return place;
}

/// What stands beside the fixed-location screen's own controls: the list under the search field,
/// the map's menu and its stars.
class MapAndSearchTest : public testing::Test {
 protected:
  void open() {
    const PropertyList::Dictionary settings = {
        {"enable", "1"}, {"latitude", "10.000000"}, {"longitude", "20.000000"}};
    ASSERT_TRUE(screen.files.saveLocationSettings(settings));
    controller.emplace(SpotloomViewController::Services{.files = screen.files,
                                                        .notice = screen.notice,
                                                        .location = screen.location,
                                                        .alerts = screen.alerts,
                                                        .screens = screens,
                                                        .tiles = screen.tiles,
                                                        .offers = &offers});
    ASSERT_TRUE(screen.show("AppWindow", {{"locationShown", true},
                                          {"locationController", QVariant::fromValue(&*controller)},
                                          {"modals", QVariant::fromValue(&screen.modals)},
                                          {"alerts", QVariant::fromValue(&screen.alerts)}}));
    map = qobject_cast<MapView*>(screen.find("mainMapView"));
    QGuiApplication::clipboard()->clear();
  }
  void TearDown() override { screen.view.setSource({}); }

  void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&screen.view, code, modifiers);
  }
  bool isShown(const char* name) const { return screen.find(name)->isVisible(); }
  QQuickItem* rowOf(const char* list, int index) const {
    QQuickItem* item = nullptr;
    const bool isThere = QTest::qWaitFor([&] {
      QMetaObject::invokeMethod(screen.find(list), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                                Q_ARG(int, index));
      return item != nullptr;
    });
    return isThere ? item : nullptr;
  }
  void chooseInMenu(const QString& text) {
    QQuickItem* rows = screen.find("mapMenuRows");
    ASSERT_TRUE(rows->isVisible());
    for (int row = 0; row < rows->property("count").toInt(); ++row) {
      QQuickItem* item = rowOf("mapMenuRows", row);
      if (item->property("modelData").toMap()["text"] == text) return screen.click(item);
    }
    FAIL() << "not in the menu: " << qPrintable(text);
  }
  void rightClick(QPointF at) {
    QTest::mouseClick(&screen.view, Qt::RightButton, Qt::NoModifier, map->mapToScene(at).toPoint());
  }

  ScreenHarness screen;
  NoOtherScreens screens;
  FakeSuggestions names;
  RecentSearches recent{screen.root.path() / "recent-searches"};
  SearchOffers offers{screen.geocoder, names, recent, "en"};
  std::optional<SpotloomViewController> controller;
  MapView* map = nullptr;
};

TEST_F(MapAndSearchTest, ASuggestionIsSearchedAsIfItHadBeenTyped) {
  open();
  for (const bool byKey : {true, false}) {
    names.questions.clear();
    screen.geocoder.addresses.clear();
    screen.click("searchField");
    screen.type("va");
    ASSERT_EQ(names.questions.size(), 2U) << "one for each letter";
    EXPECT_FALSE(byKey && isShown("searchList"));
    names.questions[1].second({placeNamed("Vasa", {63.1, 21.6}), placeNamed("Vaduz", {47, 9.5})});
    names.questions[0].second({placeNamed("Valencia", {39.5, -0.4})});
    ASSERT_TRUE(isShown("searchList"));
    EXPECT_EQ(rowOf("searchRows", 0)->property("title"), "Vasa");
    if (byKey) {
      key(Qt::Key_Down);
      key(Qt::Key_Down);
      key(Qt::Key_Return);
    } else {
      screen.click(rowOf("searchRows", 1));
    }
    ASSERT_EQ(screen.geocoder.addresses.size(), 1U);
    EXPECT_EQ(screen.geocoder.addresses[0].first, "47.000000, 9.500000");
    EXPECT_EQ(screen.stored(SettingsFile::Location).at("enable"), "0") << "while it is searched";
    EXPECT_EQ(screen.find("searchField")->property("text"), "");
    EXPECT_TRUE(map->hasActiveFocus());
    EXPECT_FALSE(isShown("searchList"));
    screen.geocoder.addresses[0].second({{{GeocodedPlace{{47, 9.5}, {"Vaduz"}}}}, std::nullopt});
    EXPECT_EQ(screen.stored(SettingsFile::Location).at("latitude"), "47.000000");
    EXPECT_EQ(screen.stored(SettingsFile::Location).at("enable"), "1");
  }
  EXPECT_EQ(recent.all(), (std::vector<RecentSearch>{{"Vaduz", "47.000000, 9.500000"}}));
}

TEST_F(MapAndSearchTest, RecentSearchesStandUnderTheEmptyFieldUntilTheyAreForgotten) {
  for (const char* text : {"first", "second", "third"}) ASSERT_TRUE(recent.add({text, text}));
  open();
  EXPECT_FALSE(isShown("searchList"));
  screen.click("searchField");
  ASSERT_TRUE(isShown("searchList"));
  screen.click(foundItem(rowOf("searchRows", 1), "removeSearch"));
  EXPECT_EQ(recent.all().size(), 2U);
  EXPECT_EQ(rowOf("searchRows", 1)->property("title"), "first");
  key(Qt::Key_Down);
  key(Qt::Key_Delete);
  EXPECT_EQ(recent.all(), (std::vector<RecentSearch>{{"first", "first"}}));
  screen.click(rowOf("searchRows", 1));
  EXPECT_TRUE(recent.all().empty());
  EXPECT_FALSE(isShown("searchList"));
  EXPECT_TRUE(screen.find("searchField")->hasActiveFocus());
  key(Qt::Key_Escape);
  EXPECT_TRUE(map->hasActiveFocus());
}

TEST_F(MapAndSearchTest, TheMenuActsWhereItWasAskedFor) {
  open();
  const QPointF at(300, 60);
  const Coordinate there = map->coordinateAtPoint(at);
  rightClick(at);
  chooseInMenu("Copy coordinates");
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), coordinateText(there));
  EXPECT_NEAR(map->region().center.latitude, 10, 1e-7) << "the map stays";

  rightClick(at);
  chooseInMenu("Save as favorite");
  screen.geocoder.coordinates.back().second({{{GeocodedPlace{there, {"Corner"}}}}, std::nullopt});
  EXPECT_EQ(screen.find("favoritesNameField")->property("text"), "Corner");
  key(Qt::Key_Return);
  const auto favorites = screen.files.loadArray(SettingsFile::Favorites);
  ASSERT_TRUE(favorites && *favorites && (*favorites)->size() == 1);
  const auto* entry = (*favorites)->front().get<PropertyList::Dictionary>();
  EXPECT_EQ(*valueOf(*entry, "latitude")->get<std::string>(), formatReal(there.latitude));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !isShown("alertView"); }));

  rightClick(at);
  key(Qt::Key_Escape);
  EXPECT_FALSE(isShown("mapMenu"));
  rightClick(at);
  chooseInMenu("Put the pin here");
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return screen.stored(SettingsFile::Location).at("longitude") == formatReal(there.longitude);
  }));

  map->forceActiveFocus();
  key(Qt::Key_F10, Qt::ShiftModifier);
  key(Qt::Key_Up);
  key(Qt::Key_Return);
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
            coordinateText(map->region().center));
}

TEST_F(MapAndSearchTest, ALongTouchAsksForTheMenuAndNothingElse) {
  open();
  static QPointingDevice* const finger = QTest::createTouchDevice();
  const QPoint at = map->mapToScene(QPointF(100, 100)).toPoint();
  QTest::touchEvent(&screen.view, finger).press(1, at);
  ASSERT_TRUE(QTest::qWaitFor([&] { return isShown("mapMenu"); }));
  QTest::touchEvent(&screen.view, finger).move(1, at + QPoint(60, 60));
  QTest::touchEvent(&screen.view, finger).release(1, at + QPoint(60, 60));
  EXPECT_TRUE(isShown("mapMenu"));
  EXPECT_NEAR(map->region().center.latitude, 10, 1e-7);
}

TEST_F(MapAndSearchTest, StarsStandWhereTheFavoritesAreAndChooseThem) {
  Favorites favorites(screen.files);
  ASSERT_TRUE(favorites.add("far away", {-10, 20}, "?"));
  ASSERT_TRUE(favorites.add("close by", {10.004, 20.003}, "?"));
  open();
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.find("star") != nullptr; }));
  const QQuickItem* star = screen.find("star");
  EXPECT_EQ(star->property("name"), "close by");
  const QPointF before = ScreenHarness::centerOf(star);
  screen.drag("mainMapView", {20, 30});
  star = screen.find("star");
  EXPECT_NEAR(ScreenHarness::centerOf(star).y(), before.y() + 30, 2);
  screen.click(star);
  EXPECT_EQ(screen.stored(SettingsFile::Location).at("latitude"), "10.004000");
  EXPECT_EQ(screen.stored(SettingsFile::Location).at("enable"), "1");
  EXPECT_NEAR(map->region().center.longitude, 20.003, 1e-7);
}

TEST_F(MapAndSearchTest, ATouchOnTheAddressCopiesItsPosition) {
  open();
  EXPECT_EQ(screen.find("coordinatesLabel")->property("text"), "10.000000, 20.000000");
  screen.click("addressLine");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "10.000000, 20.000000");
  EXPECT_EQ(screen.find("hint")->property("labelText"), "Copied\n10.000000, 20.000000");
}

}  // namespace
}  // namespace wayloom
