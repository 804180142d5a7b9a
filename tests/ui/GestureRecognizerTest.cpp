#include <memory>
#include <string>

#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include "ui/GestureRecognizer.h"
#include "ui/View.h"
#include "ui/ViewFrame.h"

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

}  // namespace
}  // namespace wayloom
