#include <memory>
#include <ostream>

#include "ui/ViewFrame.h"
#include "ui/ViewResizing.h"

namespace wayloom {
namespace {

using Preset = void (*)(QQuickItem&);

TEST(ViewResizing, FollowsTheParentByPreset) {
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

TEST(ViewResizing, FindsBackFromAParentWithoutSize) {
  for (unsigned mask = 0; mask < 64; ++mask) {
    QQuickItem parent;
    parent.setSize({200, 100});
    QQuickItem item(&parent);
    setFrame(item, {20, 10, 100, 40});
    setAutoresizingMask(item, mask);
    parent.setSize({0, 0});
    EXPECT_GE(item.width(), 0) << mask;
    EXPECT_GE(item.height(), 0) << mask;
    parent.setSize({200, 100});
    EXPECT_EQ(frame(item), QRectF(20, 10, 100, 40)) << mask;
  }
}

TEST(ViewResizing, SharesEquallyWhereNothingHasALength) {
  EXPECT_EQ(resizedFrame({0, 0, 0, 0}, {0, 0}, {300, 90}, 63), QRectF(100, 30, 100, 30));
  // The item hangs out on the right.
  EXPECT_EQ(resizedFrame({50, 0, 100, 10}, {100, 10}, {120, 10}, 1 | 4), QRectF(60, 0, 100, 10));
}

TEST(ViewResizing, StartsAnewWhereTheItemWasPut) {
  QQuickItem parent;
  parent.setSize({200, 100});
  QQuickItem item(&parent);
  setFrame(item, {20, 10, 100, 40});
  frameSetInSuperViewForLeftTop(item);
  parent.setWidth(300);
  item.setX(5);
  parent.setWidth(310);
  EXPECT_EQ(item.x(), 15);

  auto other = std::make_unique<QQuickItem>();
  other->setSize({500, 500});
  item.setParentItem(other.get());
  EXPECT_EQ(item.x(), 15) << "in another parent";
  parent.setWidth(1000);
  EXPECT_EQ(item.x(), 15) << "the former parent changed";
  other->setWidth(400);
  EXPECT_EQ(item.x(), -85);
  other.reset();
  EXPECT_EQ(item.parentItem(), nullptr);
  EXPECT_EQ(item.x(), -85);
}

}  // namespace
}  // namespace wayloom
