#include <random>

#include "drawing/MapGeometry.h"
#include "drawing/PlaceLabels.h"
#include "drawing/StreetLabels.h"

namespace wayloom {
namespace {

bool overlap(const MapBox& a, const MapBox& b) {
  return a.xmin < b.xmax && b.xmin < a.xmax && a.ymin < b.ymax && b.ymin < a.ymax;
}

// Places crowded into a square that is about a tile wide at zoom 5.
std::vector<PlaceLabel> crowd(unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> place(0, 1.2e6);
  std::vector<PlaceLabel> labels;
  for (int i = 0; i < 400; ++i) {
    PlaceLabel label;
    label.kind = i % 20 == 0 ? PlaceLabel::Kind::kCountry : PlaceLabel::Kind::kPlace;
    label.name = std::string(1 + random() % 18, 'a');
    label.point = {place(random), place(random)};
    label.importance = static_cast<double>(random() % 1000);
    label.size = 10 + static_cast<double>(random() % 4);
    label.firstZoom = static_cast<int>(random() % 8);
    label.lastZoom = label.firstZoom + 5;
    labels.push_back(label);
  }
  return labels;
}

TEST(PlaceLabels, NeverTouchAtAnyZoom) {
  for (unsigned seed = 1; seed <= 5; ++seed) {
    const auto shown = selectPlaceLabels(crowd(seed), 12);
    ASSERT_FALSE(shown.empty());
    for (int zoom = 0; zoom <= 12; ++zoom) {
      std::vector<const PlaceLabel*> present;
      for (const PlaceLabel& label : shown) {
        if (label.firstZoom <= zoom && zoom <= label.lastZoom) present.push_back(&label);
      }
      for (std::size_t i = 0; i < present.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
          EXPECT_FALSE(overlap(labelBox(*present[i], zoom), labelBox(*present[j], zoom)))
              << "seed " << seed << ", zoom " << zoom << ", labels " << i << " and " << j;
        }
      }
    }
  }
}

TEST(PlaceLabels, TheMoreImportantOfTwoComesFirst) {
  PlaceLabel small{PlaceLabel::Kind::kPlace, "Small", {0, 0}, 10, 11, 3, 12};
  PlaceLabel large{PlaceLabel::Kind::kPlace, "Large", {2000, 0}, 20, 11, 3, 12};
  const auto shown = selectPlaceLabels({small, large}, 12);
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0].name, "Large");
  EXPECT_EQ(shown[0].firstZoom, 3);
  EXPECT_GT(shown[1].firstZoom, 3);
}

Street street(const std::string& name, MapPath path) {
  Street result;
  result.kind = Street::Kind::kPrimary;
  result.name = name;
  result.ref = "E6;E 20;40";
  result.paths = {std::move(path)};
  return result;
}

TEST(StreetLabels, StandOnStraightStretchesLongEnough) {
  const std::vector<Street> streets = {
      street("Longstreet", {{0, 0}, {6000, 300}}),
      street("Joined Street", {{0, 2000}, {300, 2000}}),
      street("Joined Street", {{300, 2000}, {600, 2000}}),
      street("Zigzag", {{0, 4000}, {100, 4100}, {200, 4000}, {300, 4100}, {400, 4000}}),
      street("Alley", {{0, 6000}, {10, 6000}})};
  const auto sheets = selectStreetLabels(streets, {});
  std::set<std::string> first;
  std::set<std::string> all;
  for (const StreetLabel& label : sheets.front()) first.insert(label.text);
  for (const auto& sheet : sheets) {
    for (const StreetLabel& label : sheet) all.insert(label.text);
  }
  EXPECT_THAT(first, testing::ElementsAre("Longstreet"));
  EXPECT_TRUE(all.count("Joined Street"));
  EXPECT_FALSE(all.count("Alley"));
}

TEST(StreetLabels, ShieldsSplitListsAndWriteNumbersAlike) {
  const std::vector<Street> streets = {street("", {{0, 0}, {90000, 0}})};
  const auto sheets = selectShields(streets, selectStreetLabels(streets, {}), {});
  std::set<std::string> texts;
  for (const StreetLabel& label : sheets.front()) texts.insert(label.text);
  EXPECT_THAT(texts, testing::ElementsAre("40", "E 20", "E 6"));
}

}  // namespace
}  // namespace wayloom
