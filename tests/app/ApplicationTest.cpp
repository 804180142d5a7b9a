#include <QtCore/QSettings>
#include <QtTest/QTest>

#include "app/AppDelegate.h"
#include "app/WindowDriver.h"
#include "map/MapView.h"
#include "regions/RegionWriter.h"
#include "settings/ModeSwitch.h"
#include "tests/support/CheckedModel.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;
void collect(const QQuickItem* item, const QString& name, QList<const QQuickItem*>& found) {
  if (item->objectName() == name) found.append(item);
  for (const QQuickItem* child : item->childItems()) collect(child, name, found);
}

/// The joined application: its window, all of its screens, and real files.
class ApplicationTest : public testing::Test {
 protected:
  void SetUp() override {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(root.path().string()));
  }

  void start() {
    services.emplace(AppServices::Options{
        .root = root.path(), .regions = root.path() / "regions", .configuredPositionOnly = true});
    application.emplace(*services);
    ASSERT_TRUE(application->didFinishLaunching());
    window.emplace(application->window(), QString());
    const QVariant modals = application->window().rootObject()->property("modals");
    auto* model = modals.value<QAbstractItemModel*>();
    ASSERT_NE(model, nullptr);
    checkModel(model);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&application->window()));
  }
  void stop() {
    window.reset();
    application.reset();
    services.reset();
  }
  bool isIn(const char* map) const { return window->isShown(map); }
  std::string mode() const { return textsIn(files, SettingsFile::Master)["mode"]; }

  TemporaryRoot root;
  SettingsFiles files{root.path()};
  std::optional<AppServices> services;
  std::optional<AppDelegate> application;
  std::optional<WindowDriver> window;
};

TEST_F(ApplicationTest, TheFirstMapShowsTwoKilometresAroundTheDevice) {
  std::filesystem::create_directories(root.path() / "regions");
  auto region =
      RegionWriter::create(root.path() / "regions/a.region", {"a", "", {11.9, 57.6, 12.1, 57.8}});
  ASSERT_TRUE(region && region->commit());
  start();
  const auto* map = qobject_cast<MapView*>(window->find("mv_main"));
  const auto metresWide = [&] {
    const MapRegion shown = map->region();
    return shown.span.longitudeDelta * 111'195 * std::cos(shown.center.latitude * M_PI / 180);
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return std::abs(metresWide() - 2000) < 20; })) << metresWide();
}

TEST_F(ApplicationTest, TheModeButtonsSwapScreensThatKeepTheirState) {
  start();
  ASSERT_TRUE(isIn("mv_main"));
  ASSERT_TRUE(window->click("btn_upDown"));
  ASSERT_TRUE(window->click("btn_exchange"));
  EXPECT_EQ(mode(), "1");
  ASSERT_TRUE(isIn("mainMapView"));
  ASSERT_TRUE(window->click("searchField"));
  window->type("half an addr");

  ASSERT_TRUE(window->click("btn_exchange"));
  EXPECT_EQ(mode(), "0");
  ASSERT_TRUE(isIn("mv_main"));
  EXPECT_LT(window->find("v_top")->property("restingY").toReal(), 0) << "still collapsed";
  ASSERT_TRUE(window->click("btn_exchange"));
  EXPECT_EQ(window->find("searchField")->property("text"), "half an addr");
}

TEST_F(ApplicationTest, ComingToTheFrontRefreshesTheScreenOfTheModeOnly) {
  ASSERT_TRUE(files.writeMasterMode(Mode::FixedLocation));
  start();
  ASSERT_TRUE(window->click("btn_exchange"));
  ASSERT_TRUE(window->click("btn_exchange"));
  ASSERT_TRUE(files.save(SettingsFile::Route, Dictionary{{"enable", "1"}}));
  ASSERT_TRUE(files.saveLocationSettings(Dictionary{{"enable", "1"}}));
  application->didBecomeActive();

  QList<const QQuickItem*> switches;
  collect(application->window().rootObject(), "enableSwitch", switches);
  ASSERT_EQ(switches.size(), 2);
  for (const QQuickItem* item : switches) {
    EXPECT_EQ(item->property("checked").toBool(), item->isVisible());
  }
  EXPECT_TRUE(window->find("enableSwitch")->property("checked").toBool());
}

TEST_F(ApplicationTest, ModalScreensLieOverOneAnotherAndLeaveByKey) {
  start();
  ASSERT_TRUE(window->click("btn_info"));
  ASSERT_TRUE(window->waitForScreen("InfoViewController"));
  EXPECT_FALSE(isIn("mv_main"));
  ASSERT_TRUE(window->click("wihteListButton"));
  ASSERT_TRUE(window->waitForScreen("mainTableView"));
  window->press(Qt::Key_Escape);
  ASSERT_TRUE(window->waitUntil("the information", [&] { return !isIn("mainTableView"); }));
  window->press(Qt::Key_Escape);
  ASSERT_TRUE(window->waitUntil(
      "the route screen", [&] { return isIn("mv_main") && window->find("mv_main")->isEnabled(); }));
}

}  // namespace
}  // namespace wayloom
