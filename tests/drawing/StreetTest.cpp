#include "drawing/Street.h"

namespace wayloom {
namespace {

TEST(StreetTest, TagsSayHowAWayIsDrawn) {
  using Kind = Street::Kind;
  const struct {
    OsmTags tags;
    std::optional<Kind> kind;
    bool isLink = false;
    int level = 0;
  } cases[] = {
      {{{"highway", "motorway_link"}}, Kind::kMotorway, true},
      {{{"highway", "living_street"}}, Kind::kResidential},
      {{{"highway", "construction"}}, std::nullopt},
      {{{"railway", "rail"}}, std::nullopt},
      {{{"highway", "primary"}, {"bridge", "yes"}}, Kind::kPrimary, false, 1},
      {{{"highway", "primary"}, {"bridge", "no"}, {"layer", "2"}}, Kind::kPrimary},
      {{{"highway", "primary"}, {"bridge", "viaduct"}, {"layer", "99"}}, Kind::kPrimary, false, 5},
      {{{"highway", "steps"}, {"tunnel", "yes"}, {"layer", "1"}}, Kind::kSteps, false, -1},
      {{{"highway", "service"}, {"tunnel", "building_passage"}}, Kind::kService},
  };
  for (const auto& test : cases) {
    const auto street = streetOf(test.tags, {DrawingShape::Kind::kLine, {{{0, 0}, {1, 1}}}});
    const auto about = testing::PrintToString(test.tags);
    ASSERT_EQ(street.has_value(), test.kind.has_value()) << about;
    if (!street) continue;
    EXPECT_EQ(street->kind, *test.kind) << about;
    EXPECT_EQ(street->isLink, test.isLink) << about;
    EXPECT_EQ(street->level, test.level) << about;
  }
}

TEST(StreetTest, LinesJoinWhereTwoEndsMeetAndNotAtJunctions) {
  const MapPoint a{0, 0}, b{1, 0}, c{2, 0}, d{3, 0}, e{2, 1};
  const struct {
    const char* about;
    std::vector<MapPath> lines;
    std::size_t count;
  } cases[] = {
      {"a chain", {{a, b}, {c, b}, {c, d}}, 1}, {"a junction", {{a, c}, {c, d}, {e, c}}, 3},
      {"a ring", {{a, b}, {b, e}, {e, a}}, 1},  {"a loop by itself", {{a, b, e, a}}, 1},
      {"apart", {{a, b}, {c, d}}, 2},
  };
  for (const auto& test : cases) {
    std::size_t steps = 0;
    std::size_t stepsJoined = 0;
    for (const MapPath& line : test.lines) steps += line.size() - 1;
    const auto paths = joined(test.lines);
    for (const MapPath& path : paths) stepsJoined += path.size() - 1;
    EXPECT_EQ(paths.size(), test.count) << test.about;
    EXPECT_EQ(stepsJoined, steps) << test.about;
  }
}

}  // namespace
}  // namespace wayloom
