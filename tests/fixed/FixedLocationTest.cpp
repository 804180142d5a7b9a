#include "fixed/FixedLocation.h"
#include "settings/ModeSwitch.h"
#include "tests/support/RecordedNotice.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;
using Texts = std::map<std::string, std::string>;

TEST(FixedLocationTest, WritesIntoTheFileAsItIsNow) {
  const TemporaryRoot root;
  SettingsFiles files(root.path());
  RecordedNotice notice(files);
  FixedLocation fixed(files, notice);
  ASSERT_TRUE(files.saveLocationSettings(Dictionary{{"enable", "0"}, {"latitude", "10.000000"}}));
  ASSERT_TRUE(fixed.refresh());
  ASSERT_TRUE(files.saveLocationSettings(Dictionary{{"enable", "1"}, {"other", "kept"}}));
  ASSERT_TRUE(fixed.centerMoved({1, 2}));
  const Texts written = {
      {"enable", "1"}, {"other", "kept"}, {"latitude", "1.000000"}, {"longitude", "2.000000"}};
  EXPECT_EQ(textsIn(files, SettingsFile::Location), written);
}

TEST(FixedLocationTest, TurningOnWritesNoPositionThatNobodyChose) {
  const Coordinate shown{3, 4};
  const Dictionary placed = {{"latitude", "1.000000"}, {"longitude", "2.000000"}};
  const Dictionary outside = {{"latitude", "1e999"}, {"longitude", "2.000000"}};
  const struct {
    Dictionary file;
    std::optional<Coordinate> shown;
    Texts wanted;
  } cases[] = {
      {placed, shown, {{"latitude", "1.000000"}, {"longitude", "2.000000"}}},
      {outside, shown, {{"latitude", "3.000000"}, {"longitude", "4.000000"}}},
      {outside, {}, {{"latitude", "1e999"}, {"longitude", "2.000000"}}},
      {{{"a", "0"}}, shown, {{"a", "0"}, {"latitude", "3.000000"}, {"longitude", "4.000000"}}},
  };
  for (auto [file, offered, wanted] : cases) {
    for (const bool wasRead : {true, false}) {
      const TemporaryRoot root;
      SettingsFiles files(root.path());
      RecordedNotice notice(files);
      FixedLocation fixed(files, notice);
      ASSERT_TRUE(files.saveLocationSettings(file));
      if (wasRead) {
        ASSERT_TRUE(fixed.refresh());
      }
      ASSERT_TRUE(fixed.setEnable(true, offered));
      wanted["enable"] = "1";
      EXPECT_EQ(textsIn(files, SettingsFile::Location), wanted);
    }
  }
}

TEST(FixedLocationTest, ReadsLenientlyWhateverTheFileHolds) {
  const Dictionary numbers = {
      {"enable", true}, {"a", 1}, {"s", 0.25}, {"latitude", -3.5}, {"longitude", 7}};
  const Dictionary nonsense = {
      {"enable", PropertyList::Array{"1"}}, {"a", "no"}, {"latitude", "x"}, {"longitude", ""}};
  const struct {
    const char* what;
    Dictionary settings;
    bool enabled, drifting;
    double speed;
    Coordinate coordinate;
  } cases[] = {
      {"empty", {}, false, false, 0, {0, 0}},
      {"numbers where texts belong", numbers, true, true, 0.25, {-3.5, 7}},
      {"nonsense", nonsense, false, false, 0, {0, 0}},
      {"white space and letters", {{"enable", "  +007"}, {"a", "yes"}}, true, true, 0, {0, 0}},
  };
  for (const auto& test : cases) {
    const TemporaryRoot root;
    SettingsFiles files(root.path());
    ASSERT_TRUE(files.saveLocationSettings(test.settings));
    const FixedLocationState state = *readFixedLocation(files);
    EXPECT_EQ(state.hasSettings, !test.settings.empty()) << test.what;
    EXPECT_EQ(state.enabled, test.enabled) << test.what;
    EXPECT_EQ(state.drifting, test.drifting) << test.what;
    EXPECT_EQ(state.driftSpeed, test.speed) << test.what;
    EXPECT_EQ(state.coordinate, test.coordinate) << test.what;
  }
}

}  // namespace
}  // namespace wayloom
