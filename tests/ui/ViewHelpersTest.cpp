#include <memory>
#include <string>

#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include "ui/GestureRecognizer.h"
#include "ui/View.h"
#include "ui/ViewFade.h"
#include "ui/ViewFrame.h"
#include "ui/ViewResizing.h"

namespace wayloom {
namespace {

/// A window with a view that knows all gestures, and a record of them: t for a tap; B, c, E and X
/// for a pan that began, changed, ended or was cancelled.
struct Gestures {
  Gestures() {
    window.resize(300, 300);
    setFrame(view, {50, 50, 200, 200});
    addTapGestureWithTarget(view, target, [this](const auto&) { seen += 't'; });
    addSwipeGestureWithTarget(view, target, [this](const auto&) { ++swipes; });
    addPanGestureWithTarget(view, target, [this](const GestureRecognizer& pan) {
      seen += "?BcEX"[static_cast<int>(pan.state())];
      panned = pan.translation();
    });
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  void drag(QPoint from, QPoint by, int stepMs) {
    QTest::mousePress(&window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 4; ++step) QTest::mouseMove(&window, from + by * step / 4, stepMs);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, from + by);
  }

  QQuickWindow window;
  View view{window.contentItem()};
  QObject target;
  std::string seen;
  int swipes = 0;
  QPointF panned;
};

TEST(GestureRecognizerTest, TellsTapsPansAndSwipes) {
  const struct {
    const char* name;
    QPoint by;
    int stepMs;
    std::string seen;
    int swipes;
  } cases[] = {
      {"no move", {0, 0}, 1, "t", 0},
      {"a tremble", {2, 1}, 1, "t", 0},
      {"down", {0, 100}, 1, "BcccE", 0},
      {"left", {-60, 0}, 1, "BcccE", 0},
      {"right, quickly", {80, 0}, 1, "BcccE", 1},
      {"right, slowly", {80, 0}, 300, "BcccE", 0},
      {"right, steeply", {80, 60}, 1, "BcccE", 0},
  };
  for (const auto& test : cases) {
    Gestures gestures;
    gestures.drag({120, 120}, test.by, test.stepMs);
    EXPECT_EQ(gestures.seen, test.seen) << test.name;
    EXPECT_EQ(gestures.swipes, test.swipes) << test.name;
    EXPECT_EQ(gestures.panned, test.seen == "t" ? QPointF() : QPointF(test.by)) << test.name;
  }
}

TEST(GestureRecognizerTest, EndsAPanWhoseFingerIsTaken) {
  Gestures gestures;
  QTest::mousePress(&gestures.window, Qt::LeftButton, {}, {100, 100});
  QTest::mouseMove(&gestures.window, {100, 160});
  EXPECT_EQ(gestures.seen, "B");
  gestures.view.ungrabMouse();
  EXPECT_EQ(gestures.seen, "BX");
  QTest::mouseRelease(&gestures.window, Qt::LeftButton, {}, {100, 160});
  EXPECT_EQ(gestures.seen, "BX");
}

TEST(ViewFadeTest, EndsWhatItInterrupts) {
  const std::pair<std::string, bool> cases[] = {
      {"sh", false}, {"hs", true}, {"ss", true}, {"hh", false}, {"hshs", true}};
  for (const auto& [fades, isVisible] : cases) {
    QQuickItem item;
    std::string ended;
    for (const char kind : fades) {
      const auto fade = kind == 's' ? fadeShowAnimationDuration : fadeHideAnimationDuration;
      fade(item, 0.03, [&ended, kind] { ended += kind; });
    }
    EXPECT_EQ(ended, "") << fades;
    const std::size_t wanted = fades.size();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended.size() == wanted; })) << fades;
    EXPECT_EQ(ended, fades);
    EXPECT_EQ(item.isVisible(), isVisible) << fades;
    EXPECT_EQ(item.opacity(), 1) << fades;
  }
}

TEST(ViewFadeTest, EndsWithItsItem) {
  int completions = 0;
  auto item = std::make_unique<QQuickItem>();
  fadeShowAnimationDuration(*item, 0.01, [&] { ++completions; });
  fadeHideAnimationDuration(*item, 0.01, [&] { ++completions; });
  item.reset();
  bool isLater = false;
  QQuickItem other;
  fadeShowAnimationDuration(other, 0.03, [&] { isLater = true; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return isLater; }));
  EXPECT_EQ(completions, 0);

  auto last = std::make_unique<QQuickItem>();
  fadeHideAnimationDuration(*last, 0.01, [&] { last.reset(); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return !last; })) << "destroyed by its completion";
}

TEST(ViewResizingTest, FollowsTheParentByPreset) {
  const QRectF before(20, 10, 100, 40);
  const struct {
    void (*preset)(QQuickItem&);
    unsigned mask;
    QRectF after;
  } cases[] = {
      // In a parent of 200 x 100 that becomes 400 x 300.
      {frameSetInSuperViewForFull, 63, {40, 30, 200, 120}},
      {frameSetInSuperViewForLeftTop, 33, {220, 10, 100, 40}},
      {frameSetInSuperViewForBottom, 32, before},
      {frameSetInSuperViewForCenter, 0, before},
      // Margins 20 and 80 share 200; 40 and 50 share 200.
      {frameSetInSuperViewForLeftBottmHeightRight, 53, {60, 10, 100, 40 + 200 * 40 / 90.0}},
      {frameSetInSuperViewForRightBottmHeightTop, 60, {20, 30, 100, 120}},
  };
  for (const auto& test : cases) {
    QQuickItem parent;
    parent.setSize({200, 100});
    QQuickItem item(&parent);
    setFrame(item, before);
    test.preset(item);
    EXPECT_EQ(autoresizingMask(item), test.mask);
    parent.setWidth(300);
    parent.setSize({400, 300});
    EXPECT_EQ(frame(item), test.after) << test.mask;
    parent.setSize({200, 100});
    EXPECT_EQ(frame(item), before) << test.mask << ", and back";
  }
}

}  // namespace
}  // namespace wayloom
