#include "fixed/FixedLocation.h"
#include "settings/ModeSwitch.h"
#include "tests/support/RecordedNotice.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

using Texts = std::map<std::string, std::string>;

class FixedLocationTest : public testing::Test {
 protected:
  void store(const PropertyList::Dictionary& settings) {
    ASSERT_TRUE(files.saveLocationSettings(settings));
  }
  Texts stored() const { return textsIn(files, SettingsFile::Location); }

  TemporaryRoot root;
  SettingsFiles files{root.path()};
  RecordedNotice notice{files};
  FixedLocation fixed{files, notice};
};

const PropertyList::Dictionary kOff = {
    {"enable", "0"}, {"latitude", "10.000000"}, {"longitude", "20.000000"}, {"other", "kept"}};

TEST_F(FixedLocationTest, EachWriterSetsItsOwnKeysAndOnlyTheSwitchesPostFirst) {
  const Texts off = {
      {"enable", "0"}, {"latitude", "10.000000"}, {"longitude", "20.000000"}, {"other", "kept"}};
  const auto with = [&off](Texts changed) {
    changed.insert(off.begin(), off.end());
    return changed;
  };
  const Coordinate place{1.5, -0.25};
  const auto switched = [&](FixedLocation& f, bool on) {
    f.setCoordinate(place);
    return f.setEnable(on);
  };
  const auto placed = [&](Texts changed) {
    changed.insert({{"latitude", "1.500000"}, {"longitude", "-0.250000"}});
    return with(changed);
  };
  const struct {
    const char* writer;
    std::function<Status(FixedLocation&)> write;
    Texts after;
    bool posts;
  } cases[] = {
      {"map", [&](auto& f) { return f.centerMoved(place); }, placed({}), false},
      {"on", [&](auto& f) { return switched(f, true); }, placed({{"enable", "1"}}), true},
      {"off", [&](auto& f) { return switched(f, false); }, placed({{"enable", "0"}}), true},
      {"drift switch", [](auto& f) { return f.setAuto(true, 0.25F); },
       with({{"a", "1"}, {"s", "0.250000"}}), true},
      {"slider", [](auto& f) { return f.autoSlide(true, 0.1F); },
       with({{"a", "1"}, {"s", "0.100000"}}), false},
      {"search starts", [](auto& f) { return f.beginAddressSearch(); }, with({{"enable", "0"}}),
       false},
      {"search finds", [](auto& f) { return f.endAddressSearch(true); }, with({{"enable", "1"}}),
       false},
  };
  for (const auto& test : cases) {
    store(kOff);
    notice.posts.clear();
    ASSERT_TRUE(fixed.refresh());
    ASSERT_TRUE(test.write(fixed)) << test.writer;
    EXPECT_EQ(stored(), test.after) << test.writer;
    ASSERT_EQ(notice.posts.size(), test.posts ? 1U : 0U) << test.writer;
    if (!test.posts) continue;
    EXPECT_EQ(notice.posts.front().name, "com.quorvil.wayloom.auto.changed") << test.writer;
    EXPECT_EQ(notice.posts.front().fileThen, off) << test.writer << ": posted after the write";
  }
}

TEST_F(FixedLocationTest, TheMapWritesIntoTheFileAsItIsNow) {
  store(kOff);
  ASSERT_TRUE(fixed.refresh());
  store({{"enable", "1"}, {"s", "0.700000"}});
  ASSERT_TRUE(fixed.centerMoved({1, 2}));
  const Texts written = {
      {"enable", "1"}, {"s", "0.700000"}, {"latitude", "1.000000"}, {"longitude", "2.000000"}};
  EXPECT_EQ(stored(), written);
}

TEST_F(FixedLocationTest, ReadsLenientlyWhateverTheFileHolds) {
  const PropertyList::Dictionary numbers = {
      {"enable", true}, {"a", 1}, {"s", 0.25}, {"latitude", -3.5}, {"longitude", 7}};
  const PropertyList::Dictionary nonsense = {
      {"enable", PropertyList::Array{"1"}}, {"a", "no"}, {"latitude", "x"}, {"longitude", ""}};
  const struct {
    const char* what;
    PropertyList::Dictionary settings;
    bool enabled, drifting;
    double speed;
    Coordinate coordinate;
  } cases[] = {
      {"empty", {}, false, false, 0, {0, 0}},
      {"only drift", {{"a", "1"}, {"s", "0.5"}}, false, true, 0.5, {0, 0}},
      {"numbers where texts belong", numbers, true, true, 0.25, {-3.5, 7}},
      {"nonsense", nonsense, false, false, 0, {0, 0}},
      {"white space and letters", {{"enable", "  +007"}, {"a", "yes"}}, true, true, 0, {0, 0}},
  };
  for (const auto& test : cases) {
    store(test.settings);
    const FixedLocationState state = *fixed.refresh();
    EXPECT_EQ(state.hasSettings, !test.settings.empty()) << test.what;
    EXPECT_EQ(state.enabled, test.enabled) << test.what;
    EXPECT_EQ(state.drifting, test.drifting) << test.what;
    EXPECT_EQ(state.driftSpeed, test.speed) << test.what;
    EXPECT_EQ(state.coordinate, test.coordinate) << test.what;
  }
}

}  // namespace
}  // namespace wayloom
