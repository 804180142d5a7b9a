#include <cstdlib>
#include <gtest/gtest.h>
#include <time.h>

#include "fixed/FixedStatus.h"
#include "route/DriveStatus.h"

namespace wayloom {
namespace {

constexpr std::int32_t kNow = 1'700'000'000;  // 22:13:20 UTC

RoutePreferences drive(const char* enable, double start, double end, std::size_t points = 9) {
  return {{{"enable", enable}, {"start", start}, {"end", end}},
          std::make_shared<RoutePoints>(RoutePoints::planned(std::vector<Coordinate>(points)))};
}

TEST(DriveStatusTest, SaysHowFarTheDriveIs) {
  setenv("TZ", "UTC", 1);
  tzset();
  const struct {
    RoutePreferences file;
    double progress;
    const char* says;
  } cases[] = {
      {drive("0", kNow - 10, kNow + 10), -1, "Off"},
      {drive("1", kNow - 42, kNow + 58), 0.42, "Driving: 42 %, 1 min left, arrives 22:14"},
      {drive("1", kNow, kNow + 360), 0, "Driving: 0 %, 6 min left, arrives 22:19"},
      {drive("1", kNow - 1, kNow + 7200), 1.0 / 7201,
       "Driving: 0 %, 2 h 0 min left, arrives 2023-11-15 00:13"},
      {drive("1", kNow + 60, kNow + 120), 0, "Starts 22:14, arrives 22:15"},
      {drive("1", kNow - 60, kNow), 1, "Arrived"},
      {drive("1", kNow + 60, kNow - 60), 0, "The drive ends before it starts"},
      {drive("1", kNow - 60, kNow - 120), 1, "Arrived"},
      {drive("1", -2147483648.0, 2147483647.0), 0.8958,
       "Driving: 89 %, 124301 h 1 min left, arrives 2038-01-19 03:14"},
      {drive("1", kNow, 2240524800, 9), 0,
       "Driving: 0 %, 150145 h 47 min left, arrives 2040-12-31 00:00"},
      {drive("1", 2208988800, 2240524800), 0, "Starts 2040-01-01 00:00, arrives 2040-12-31 00:00"},
      {drive("1", kNow, 1e300), 0, "Driving: 0 %, 124301 h 1 min left, arrives 2038-01-19 03:14"},
      {drive("1", kNow - 60, kNow + 60, 0), -1, "The drive has no path"},
      {{{{"enable", "1"}}, nullptr}, -1, "The drive has no path"},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(englishText(driveStatus(kNow, test.file)), test.says);
    EXPECT_NEAR(progressAt(kNow, test.file).value_or(-1), test.progress, 1e-4) << test.says;
  }
}

TEST(DriveStatusTest, SaysWhatIsChosen) {
  RouteChoices choices;
  choices.startText = "Vaduz %2";
  choices.endText = "Paris";
  const auto says = [&](std::optional<PlannedDrive> planned) {
    return englishText(choiceStatus(kNow, choices, planned));
  };
  const PlannedDrive planned{false, 12345, 700};
  EXPECT_EQ(says({}), "Off");
  EXPECT_EQ(says(PlannedDrive{true, 0, 0}), "No roads lead from Vaduz %2 to Paris");
  EXPECT_EQ(says(planned), "Drive: 12.3 km, 12 min");
  choices.endTime = kNow + 1200;
  EXPECT_EQ(says(planned), "Drive: 12.3 km, 12 min");
  choices.startTime = kNow;
  EXPECT_EQ(says(planned), "Drive: 12.3 km, 12 min; you gave 20 min, 37 km/h");
  choices.startTime = kNow - 40;
  EXPECT_EQ(says(planned), "Drive: 12.3 km, 12 min; you gave 20 min, 37 km/h") << "what is left";
  choices.startTime = kNow - 400;
  choices.endTime = kNow + 800;
  EXPECT_EQ(says(planned), "Drive: 12.3 km, 12 min; you gave 14 min, 56 km/h");
  choices.startTime = choices.endTime + 60;
  EXPECT_EQ(says(planned), "Drive: 12.3 km, 12 min");
  choices.startTime = kNow;
  choices.endTime = kNow + 1200;
  EXPECT_EQ(says(PlannedDrive{false, 850, 3}), "Drive: 850 m, 1 min; you gave 20 min, 3 km/h");
}

TEST(DriveStatusTest, SaysWhereThePositionIsOn) {
  const FixedLocationState on{
      .hasSettings = true, .enabled = true, .coordinate = {1, 2}, .hasCoordinate = true};
  FixedLocationState off = on, nowhere = on;
  off.enabled = nowhere.hasCoordinate = false;
  FixedLocationState outside = nowhere;
  outside.coordinate = {57.7, 181.5};
  const Phrase driving("Arrived");
  using Kind = FixedActivity::Kind;
  const struct {
    FixedLocationState file;
    FixedActivity activity;
    const char* says;
    std::optional<Phrase> drive = {};
  } cases[] = {
      {on, {}, "On at A street"},
      {nowhere, {}, "On"},
      {outside, {}, "On at a position that is not on the globe"},
      {off, {}, "Arrived", driving},
      {on, {}, "Both are on: turn the position or the drive off", driving},
      {off, {}, "Off"},
      {on, {Kind::Searching, "X"}, "Searching …"},
      {off, {Kind::NothingFound, "X"}, "Nothing found for X: the position is off"},
      {on, {Kind::NothingFound, "X"}, "On at A street"},
      {{}, {Kind::TouchAgain}, "Touch again: there was no settings file yet"},
      {off, {Kind::TouchAgain}, "Off"},
  };
  for (const auto& [file, activity, text, drive] : cases) {
    EXPECT_EQ(englishText(fixedStatus(file, "A street", drive, activity)), text);
  }
  EXPECT_EQ(englishText(fixedStatus(on, "")), "On at 1.000000, 2.000000");
}

}  // namespace
}  // namespace wayloom
