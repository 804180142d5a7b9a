#include "route/RouteSimulation.h"

namespace wayloom {
namespace {

const RouteChoices kChosen{.start = {57.7, 11.9},
                           .end = {57.8, 12},
                           .startTime = 1000,
                           .endTime = 2000,
                           .startText = "A street",
                           .endText = "Another"};

TEST(StartTimeTest, IsNeitherInThePastNorAfterTheEnd) {
  const std::pair<std::int32_t, double> cases[] = {{500, 1000},  {1000, 1000}, {1500, 1500},
                                                   {2000, 2000}, {2001, 1999}, {9999, 1999}};
  for (const auto& [now, start] : cases) {
    EXPECT_EQ(startTimeFrom(kChosen, now), start) << "now " << now;
  }
}

}  // namespace
}  // namespace wayloom
