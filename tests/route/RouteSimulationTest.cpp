#include "route/RouteSimulation.h"
#include "settings/ModeSwitch.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

using Texts = std::map<std::string, std::string>;

const RouteChoices kChosen{.start = {57.7, 11.9},
                           .end = {57.8, 12},
                           .startTime = 1000,
                           .endTime = 2000,
                           .startText = "A street",
                           .endText = "Another"};

std::shared_ptr<RoutePoints> path() {
  return std::make_shared<RoutePoints>(
      RoutePoints::planned({{57.7, 11.9}, {57.75, 12}, {57.8, 12}}));
}

TEST(RefusalToTurnOnTest, NamesTheFirstReasonInOrder) {
  RouteChoices choices;
  RoutePoints points;
  const auto refusal = [&](bool isRouteError) {
    const char* message = refusalToTurnOn(choices, points, isRouteError);
    return std::string(message ? message : "");
  };
  choices.start = {0, 11.9};
  EXPECT_EQ(refusal(false), "Please choose Start");
  choices.start = {57.7, 11.9};
  choices.end = {57.8, 0};
  EXPECT_EQ(refusal(false), "Please choose End");
  choices.end = {57.8, 12};
  EXPECT_EQ(refusal(false), "Please choose Start Time");
  choices.startTime = 2000;
  EXPECT_EQ(refusal(false), "Please choose End Time");
  choices.endTime = 1999;
  EXPECT_EQ(refusal(false), "End Time must later than Start Time");
  choices.endTime = 2000;
  EXPECT_EQ(refusal(false), "Path planning failure, rechoose Start/End please");
  points = *path();
  EXPECT_EQ(refusal(true), "Path planning failure, rechoose Start/End please");
  EXPECT_EQ(refusal(false), "") << "equal times are allowed";
}

TEST(StartTimeTest, IsNeitherInThePastNorAfterTheEnd) {
  const struct {
    std::int32_t now;
    double start;
  } cases[] = {{500, 1000}, {1000, 1000}, {1500, 1500}, {2000, 2000}, {2001, 1999}, {9999, 1999}};
  for (const auto& test : cases) {
    EXPECT_EQ(startTimeFrom(kChosen, test.now), test.start) << "now " << test.now;
  }
}

class RouteSimulationTest : public testing::Test {
 protected:
  TemporaryRoot root;
  SettingsFiles files{root.path()};
  FakeClock clock;
  WorkQueue saves;
  RouteSimulation simulation{files, clock, &saves};

  PropertyList::Dictionary stored() {
    saves.waitUntilDone();
    return files.loadDictionary(SettingsFile::Route).value_or(PropertyList::Dictionary());
  }
};

TEST_F(RouteSimulationTest, OnWritesTheDriveAndOffLeavesAllButTheSwitch) {
  ASSERT_TRUE(files.save(SettingsFile::Route, PropertyList::Dictionary{{"extra", 7}}));
  simulation.refresh();
  ASSERT_TRUE(simulation.turnOn(kChosen, path()));
  PropertyList::Dictionary expected{
      {"enable", "1"},
      {"end", "2000.000000"},
      {"e", "Another"},
      {"extra", 7},
      {"s", "A street"},
      {"start", "1000.000000"},
      {"points", PropertyList::Array{PropertyList::Dictionary{{"lat", 57.7}, {"lng", 11.9}},
                                     PropertyList::Dictionary{{"lat", 57.75}, {"lng", 12.0}},
                                     PropertyList::Dictionary{{"lat", 57.8}, {"lng", 12.0}}}}};
  EXPECT_EQ(stored(), expected);

  simulation.refresh();
  ASSERT_TRUE(simulation.turnOff());
  expected["enable"] = "0";
  EXPECT_EQ(stored(), expected);
}

TEST_F(RouteSimulationTest, ANewPlanIsFollowedFromTheSharedList) {
  auto points = path();
  ASSERT_TRUE(simulation.turnOn(kChosen, points));
  clock.seconds = 1999.9;
  EXPECT_EQ(simulation.position(), (Coordinate{57.8, 12}));
  *points = RoutePoints::planned({{1, 1}, {2, 2}});
  EXPECT_EQ(simulation.position(), (Coordinate{2, 2}));
}

TEST_F(RouteSimulationTest, WhatCannotBeReadAsPointsStaysAsItWas) {
  const PropertyList::Dictionary odd{
      {"enable", "1"}, {"points", "none"}, {"start", 5}, {"s", PropertyList::Array{}}};
  ASSERT_TRUE(files.save(SettingsFile::Route, odd));
  simulation.refresh();
  EXPECT_EQ(simulation.preferences().start(), 5);
  EXPECT_EQ(simulation.preferences().text("s"), "");
  EXPECT_EQ(simulation.position(), std::nullopt);
  ASSERT_TRUE(simulation.turnOff());
  PropertyList::Dictionary off = odd;
  off["enable"] = "0";
  EXPECT_EQ(stored(), off);
}

TEST_F(RouteSimulationTest, TheModeIsKeptWhileTheDriveIsOn) {
  ASSERT_TRUE(simulation.turnOn(kChosen, path()));
  EXPECT_EQ(simulation.leaveForFixedLocation().message(), kWayloomIsWorking);
  EXPECT_EQ(textsIn(files, SettingsFile::Master), (Texts{{"(missing)", ""}}));
  ASSERT_TRUE(simulation.turnOff());
  ASSERT_TRUE(simulation.leaveForFixedLocation());
  EXPECT_EQ(textsIn(files, SettingsFile::Master), (Texts{{"mode", "1"}}));
  EXPECT_EQ(textsIn(files, SettingsFile::Route).at("enable"), "0") << "and it was written before";
}

}  // namespace
}  // namespace wayloom
