#include <QtCore/QSettings>
#include <QtTest/QTest>

#include "app/AppDelegate.h"
#include "app/WindowDriver.h"
#include "route/RouteFile.h"
#include "tests/support/FailingFiles.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;

const FailingFiles::Fault kFaults[] = {
    {"open", 0, EMFILE},     {"read", 0, EIO},   {"write", 0, ENOSPC}, {"sync file", 0, EIO},
    {"sync folder", 0, EIO}, {"rename", 0, EIO}, {"lock", 0, EIO},
};

/// The joined application on files of which one call fails within a touch.
class FailedWritesTest : public testing::Test {
 protected:
  void start() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, remembered());
    services.emplace(AppServices::Options{.root = root.path(),
                                          .regions = root.path() / "regions",
                                          .configuredPositionOnly = true,
                                          .fileSystem = system});
    application.emplace(*services);
    ASSERT_TRUE(application->didFinishLaunching());
    window.emplace(application->window(), QString());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&application->window()));
  }
  QString remembered() const { return QString::fromStdString(root.path().string()); }

  /// Brings the files to where they were, and the window in line with them.
  void reset(Mode mode, bool fixed, bool drive) {
    system.fault = {};
    SettingsFiles files(root.path(), SettingsFiles::kPatience, plain);
    ASSERT_TRUE(files.writeMasterMode(mode));
    ASSERT_TRUE(files.save(SettingsFile::Location, Dictionary{{"enable", fixed ? "1" : "0"},
                                                              {"latitude", "1.000000"},
                                                              {"longitude", "2.000000"},
                                                              {"a", "0"},
                                                              {"s", "0.500000"}}));
    ASSERT_TRUE(RouteFile(files).change(
        {}, {{{"enable", drive ? "1" : "0"}, {"start", "2000000000"}, {"end", "2000000600"}},
             RoutePoints::planned({{1, 1}, {1, 2}})}));
    if (application) application->didBecomeActive();
  }
  std::string stored(SettingsFile name, const char* key) {
    return textsIn(SettingsFiles(root.path()), name)[key];
  }

  /// Touches a control with each call failing once: whatever became of the file, `shown` agrees
  /// with it, and a file that is not as was wished comes with a reason.
  void touch(const char* control, const std::function<void()>& prepare, SettingsFile name,
             const char* key, const std::string& wished, const std::function<bool()>& shown) {
    for (FailingFiles::Fault fault : kFaults) {
      for (int number = 1;; ++number) {
        prepare();
        system.hasFailed = false;
        fault.number = system.calls[fault.call] + number;
        system.fault = fault;
        ASSERT_TRUE(window->click(control));
        system.fault = {};
        if (!system.hasFailed) break;
        ++failed;
        const std::string what = std::string(control) + ": " + fault.call + std::to_string(number);
        const bool isWritten = stored(name, key) == wished;
        EXPECT_EQ(shown(), isWritten) << what;
        application->didBecomeActive();
        if (!isWritten) {
          EXPECT_TRUE(window->property("statusLine", "isFailure").toBool()) << what;
        }
      }
    }
  }
  bool isChecked(const char* control) { return window->property(control, "checked").toBool(); }

  TemporaryRoot root;
  FailingFiles system, plain;
  std::optional<AppServices> services;
  std::optional<AppDelegate> application;
  std::optional<WindowDriver> window;
  int failed = 0;
};

TEST_F(FailedWritesTest, EveryControlShowsWhatTheFileSays) {
  reset(Mode::FixedLocation, false, false);
  start();
  ASSERT_TRUE(window->waitForMap("mainMapView"));
  const auto fixed = [this](bool on) {
    return [=, this] { reset(Mode::FixedLocation, on, false); };
  };
  touch("enableSwitch", fixed(false), SettingsFile::Location, "enable", "1",
        [this] { return isChecked("enableSwitch"); });
  touch("enableSwitch", fixed(true), SettingsFile::Location, "enable", "0",
        [this] { return !isChecked("enableSwitch"); });
  touch("s_auto", fixed(true), SettingsFile::Location, "a", "1",
        [this] { return isChecked("s_auto"); });
  touch("btn_exchange", fixed(false), SettingsFile::Master, "mode", "0",
        [this] { return window->isShown("mv_main"); });
  const auto driving = [this] { reset(Mode::Route, false, true); };
  touch("enableSwitch", driving, SettingsFile::Route, "enable", "0",
        [this] { return !isChecked("enableSwitch"); });
  EXPECT_GT(failed, 60);
  std::cout << failed << " calls failed\n";
}

}  // namespace
}  // namespace wayloom
