#include <ctime>
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

TEST(PlaceLabelsTest, NeverTouchAtAnyZoom) {
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

// Streets of one name, 200 metres long, in rows so far apart.
std::vector<Street> namesakes(int rows, int columns, double metresApart) {
  std::vector<Street> streets;
  for (int i = 0; i < rows * columns; ++i) {
    const int row = i / columns;
    const MapPoint west{i % columns * 200.0, row * metresApart};
    streets.push_back({Street::Kind::kPrimary, false, false, 0, "Ringweg", "A 1", {{west}}});
    streets.back().paths.front().push_back({west.x + 200, west.y});
  }
  return streets;
}

double secondsToLabel(const std::vector<Street>& streets) {
  const std::clock_t begin = std::clock();
  const auto names = selectStreetLabels(streets, {});
  EXPECT_FALSE(names.back().empty());
  (void)selectShields(streets, names, {});
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

TEST(StreetLabelsTest, TakeTimeInProportionToTheStreets) {
  // What looks at each pair of labels, or at the whole road for each, takes sixteen times as long.
  EXPECT_LT(secondsToLabel(namesakes(3000, 4, 400)),
            8 * secondsToLabel(namesakes(750, 4, 400)) + 0.2);
  EXPECT_LT(secondsToLabel(namesakes(1, 12000, 0)),
            8 * secondsToLabel(namesakes(1, 3000, 0)) + 0.2);
}

TEST(StreetLabelsTest, LeaveOutLinesAroundTheWorld) {
  const MapPath line = {{-2e7, 2e7}, {0, 2e7}, {2e7, -2e7}, {-1e7, 1e7}, {-2e7, 2e7}};
  const std::vector<Street> streets = {
      {Street::Kind::kPrimary, false, false, 0, "Ringweg", "A 1", {line}}};
  const auto names = selectStreetLabels(streets, {});
  EXPECT_TRUE(names.back().empty());
  EXPECT_TRUE(selectShields(streets, names, {}).back().empty());
}

}  // namespace
}  // namespace wayloom
