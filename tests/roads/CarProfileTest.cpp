#include "roads/CarProfile.h"

namespace wayloom {
namespace {

TEST(CarProfileTest, ReadsTheTagsOfAWay) {
  using Tags = std::map<std::string, std::string>;
  const std::pair<Tags, std::optional<RoadUse>> cases[] = {
      {{{"highway", "residential"}}, RoadUse{true, true, false, 30}},
      {{{"highway", "footway"}}, std::nullopt},
      {{{"highway", "service"}, {"area", "yes"}}, std::nullopt},
      {{{"highway", "motorway"}}, RoadUse{true, false, false, 110}},
      {{{"highway", "motorway"}, {"oneway", "no"}}, RoadUse{true, true, false, 110}},
      {{{"highway", "primary"}, {"oneway", "-1"}}, RoadUse{false, true, false, 60}},
      {{{"highway", "primary"}, {"oneway", "reversible"}}, std::nullopt},
      {{{"highway", "primary"}, {"oneway:motorcar", "yes"}}, RoadUse{true, false, false, 60}},
      {{{"highway", "primary"}, {"vehicle:forward", "no"}}, RoadUse{false, true, false, 60}},
      {{{"highway", "tertiary"}, {"junction", "roundabout"}}, RoadUse{true, false, false, 45}},
      {{{"highway", "service"}, {"access", "no"}}, std::nullopt},
      {{{"highway", "service"}, {"access", "no"}, {"motor_vehicle", "yes"}},
       RoadUse{true, true, false, 20}},
      {{{"highway", "road"}, {"access", "yes"}, {"motorcar", "no"}}, std::nullopt},
      {{{"highway", "residential"}, {"motor_vehicle", "destination"}},
       RoadUse{true, true, true, 30}},
      {{{"highway", "service"}, {"service", "bus"}}, std::nullopt},
      {{{"highway", "service"}, {"service", "parking_aisle"}}, RoadUse{true, true, false, 10}},
      {{{"highway", "secondary"}, {"maxspeed", "30 mph"}}, RoadUse{true, true, false, 48}},
      {{{"highway", "secondary"}, {"maxspeed", "900"}}, RoadUse{true, true, false, 140}},
      {{{"highway", "secondary"}, {"maxspeed", "0.1"}}, RoadUse{true, true, false, 5}},
  };
  for (const auto& [tags, use] : cases) {
    EXPECT_EQ(carUse(tags), use) << testing::PrintToString(tags);
  }
}

}  // namespace
}  // namespace wayloom
