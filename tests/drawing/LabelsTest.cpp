#include <random>

#include "drawing/MapGeometry.h"
#include "drawing/PlaceLabels.h"

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

}  // namespace
}  // namespace wayloom
