#include <ostream>

#include "ui/ViewFrame.h"
#include "ui/ViewResizing.h"

namespace wayloom {
namespace {

using Preset = void (*)(QQuickItem&);

TEST(ViewResizingTest, FollowsTheParentByPreset) {
  // In a parent of 200 x 100 that becomes 400 x 300.
  const struct {
    const char* name;
    Preset preset;
    unsigned mask;
    QRectF before, after;
  } cases[] = {
      {"Full", frameSetInSuperViewForFull, 63, {20, 10, 100, 40}, {40, 30, 200, 120}},
      {"Full, filling", frameSetInSuperViewForFull, 63, {0, 0, 200, 100}, {0, 0, 400, 300}},
      {"LeftTop", frameSetInSuperViewForLeftTop, 33, {20, 10, 100, 40}, {220, 10, 100, 40}},
      {"Bottom", frameSetInSuperViewForBottom, 32, {20, 10, 100, 40}, {20, 10, 100, 40}},
      {"Center", frameSetInSuperViewForCenter, 0, {20, 10, 100, 40}, {20, 10, 100, 40}},
      // Margins 20 and 80 share 200; 40 and 50 share 200.
      {"LeftBottmHeightRight",
       frameSetInSuperViewForLeftBottmHeightRight,
       53,
       {20, 10, 100, 40},
       {60, 10, 100, 40 + 200 * 40 / 90.0}},
      {"RightBottmHeightTop",
       frameSetInSuperViewForRightBottmHeightTop,
       60,
       {20, 10, 100, 40},
       {20, 30, 100, 120}},
  };
  for (const auto& test : cases) {
    QQuickItem parent;
    parent.setSize({200, 100});
    QQuickItem item(&parent);
    setFrame(item, test.before);
    test.preset(item);
    EXPECT_EQ(autoresizingMask(item), test.mask) << test.name;
    parent.setWidth(300);
    parent.setSize({400, 300});
    EXPECT_EQ(frame(item), test.after) << test.name << frame(item).y() << frame(item).height();
    parent.setSize({200, 100});
    EXPECT_EQ(frame(item), test.before) << test.name << ", and back";
  }
}

}  // namespace
}  // namespace wayloom
