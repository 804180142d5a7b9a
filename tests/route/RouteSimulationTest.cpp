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
  RouteSimulation simulation{files, clock};

  Status turnOn(const std::shared_ptr<RoutePoints>& points) {
    Status result = failed("no answer");
    simulation.turnOn(kChosen, points, false,
                      [&](const Result<double>& startTime) { result = startTime.status(); });
    return result;
  }
};

TEST_F(RouteSimulationTest, ANewPlanIsFollowedFromTheSharedList) {
  auto points = path();
  clock.seconds = 1000;
  ASSERT_TRUE(turnOn(points));
  clock.seconds = 1999.9;
  EXPECT_EQ(simulation.position(), (Coordinate{57.8, 12}));
  *points = RoutePoints::planned({{1, 1}, {2, 2}});
  EXPECT_EQ(simulation.position(), (Coordinate{2, 2}));
}

}  // namespace
}  // namespace wayloom
