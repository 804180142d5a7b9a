#include <cmath>
#include <functional>

#include "tests/map/MapWindow.h"

namespace wayloom {
namespace {

constexpr QPoint kMiddle(200, 300);

struct MapViewGestureTest : testing::Test, MapWindow {
  MapViewGestureTest() {
    map->setRegion(regionAround(57.7, 11.97, 0.05), Animated::No);
    moves.clear();
  }

  void drag(QPoint from, QPoint to, int steps, int delayMs) {
    QTest::mousePress(&window, Qt::LeftButton, {}, from);
    for (int i = 1; i <= steps; ++i)
      QTest::mouseMove(&window, from + (to - from) * i / steps, delayMs);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, to);
  }
  void wheel(QPoint at, int delta) {
    QWheelEvent event(at, at, {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&window, &event);
  }
};

TEST_F(MapViewGestureTest, DragKeepsThePointUnderTheMouse) {
  const Coordinate grabbed = map->coordinateAtPoint({200, 300});
  drag(kMiddle, {260, 220}, 8, 0);
  EXPECT_TRUE(waitFor("wd")) << moves;
  const QPointF now = map->viewPoint(grabbed);
  EXPECT_NEAR(now.x(), 260, 0.01);
  EXPECT_NEAR(now.y(), 220, 0.01);
  EXPECT_EQ(taps, 0);
}

TEST_F(MapViewGestureTest, FlickRunsOnInTheSameMoveUntilAPress) {
  const Coordinate grabbed = map->coordinateAtPoint({200, 300});
  drag(kMiddle, {200, 180}, 8, 4);
  EXPECT_EQ(moves, "w");
  EXPECT_TRUE(waitFor("wd")) << moves;
  EXPECT_LT(map->viewPoint(grabbed).y(), 170);
  EXPECT_NEAR(map->viewPoint(grabbed).x(), 200, 0.01);
  drag(kMiddle, {200, 180}, 8, 4);
  QTest::mousePress(&window, Qt::LeftButton, {}, {50, 50});
  EXPECT_EQ(moves, "wdwd");
  QTest::mouseRelease(&window, Qt::LeftButton, {}, {50, 50});
  EXPECT_EQ(taps, 1);
  EXPECT_EQ(moves, "wdwd") << "a tap is no move";
}

TEST_F(MapViewGestureTest, WheelAndDoubleClickZoomAboutThePointAsOneMove) {
  const QPoint at(100, 450);
  const Coordinate under = map->coordinateAtPoint(at);
  const double before = map->region().span.longitudeDelta;
  for (int i = 0; i < 4; ++i) wheel(at, 120);
  EXPECT_EQ(moves, "w");
  EXPECT_TRUE(waitFor("wd")) << moves;
  EXPECT_NEAR(map->region().span.longitudeDelta, before / 4, before * 1e-6);
  QTest::mouseDClick(&window, Qt::LeftButton, {}, at);
  EXPECT_TRUE(waitFor("wdWD")) << moves;
  EXPECT_NEAR(map->region().span.longitudeDelta, before / 8, before * 1e-6);
  EXPECT_LT((map->viewPoint(under) - at).manhattanLength(), 0.02);
}

TEST_F(MapViewGestureTest, HeldKeyIsOneMoveUntilItIsLetGo) {
  QTest::mouseClick(&window, Qt::LeftButton, {}, kMiddle);
  QTest::keyPress(&window, Qt::Key_Left);
  MapView other(window.contentItem());
  other.setSize({100, 100});
  bool hasSettled = false;
  QObject::connect(&other, &MapView::regionDidChange, [&] { hasSettled = true; });
  wheel({50, 50}, 120);
  EXPECT_TRUE(QTest::qWaitFor([&] { return hasSettled; })) << "a burst that ended meanwhile";
  EXPECT_EQ(moves, "w");
  EXPECT_LT(center().longitude, 11.97);
  QTest::keyRelease(&window, Qt::Key_Left);
  EXPECT_TRUE(waitFor("wd")) << moves;
}

TEST_F(MapViewGestureTest, PinchZoomsAboutTheFingersAsOneMove) {
  QPointingDevice* screen = QTest::createTouchDevice();
  const Coordinate left = map->coordinateAtPoint({150, 300});
  const Coordinate right = map->coordinateAtPoint({250, 300});
  QTest::touchEvent(&window, screen).press(0, {150, 300}).press(1, {250, 300});
  for (int i = 1; i <= 10; ++i) {
    QTest::touchEvent(&window, screen)
        .move(0, {150 - 5 * i, 300 + i})
        .move(1, {250 + 5 * i, 300 + i});
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return std::abs(map->viewPoint(left).x() - 100) < 0.1; }));
  EXPECT_NEAR(map->viewPoint(right).x(), 300, 0.1);
  EXPECT_NEAR(map->viewPoint(right).y(), 310, 0.1);
  QTest::touchEvent(&window, screen).release(0, {100, 310}).stationary(1);
  QTest::touchEvent(&window, screen).release(1, {300, 310});
  EXPECT_TRUE(waitFor("wd")) << moves;
  EXPECT_EQ(taps, 0);
}

TEST_F(MapViewGestureTest, ZoomsAboutTheCentreMoveItNowhere) {
  map->setZoomsAboutCenter(true);
  QPointingDevice* screen = QTest::createTouchDevice();
  QTest::mouseClick(&window, Qt::LeftButton, {}, {60, 60});
  const auto pinch = [&] {
    QTest::touchEvent(&window, screen).press(0, {40, 40}).press(1, {80, 40});
    for (int i = 1; i <= 10; ++i) {
      QTest::touchEvent(&window, screen).move(0, {40, 40}).move(1, {80 + 12 * i, 40 + 8 * i});
    }
    QTest::touchEvent(&window, screen).move(0, {40, 40}).release(1, {200, 120});
    QTest::touchEvent(&window, screen).move(0, {42, 41});
    QTest::touchEvent(&window, screen).release(0, {42, 41});
  };
  const auto tapTwice = [&] {
    for (int i = 0; i < 2; ++i) {
      QTest::touchEvent(&window, screen).press(0, {350, 500});
      QTest::touchEvent(&window, screen).release(0, {350, 500});
    }
  };
  const auto turn = [&] { wheel({30, 550}, 240); };
  const auto key = [&] { QTest::keyClick(&window, Qt::Key_Minus); };
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"wheel", turn}, {"pinch", pinch}, {"taps", tapTwice}, {"key", key}};
  constexpr double kMetre = 1 / 111'195.0;
  for (const auto& [what, zoom] : cases) {
    moves.clear();
    const MapRegion before = map->region();
    zoom();
    EXPECT_TRUE(QTest::qWaitFor([&] { return moves == "wd" || moves == "WD"; })) << what << moves;
    const double change = map->region().span.longitudeDelta / before.span.longitudeDelta;
    EXPECT_GT(std::abs(change - 1), 0.2) << what;
    EXPECT_NEAR(center().latitude, before.center.latitude, kMetre / 10) << what;
    EXPECT_NEAR(center().longitude, before.center.longitude, kMetre / 10) << what;
  }
  drag(kMiddle, {260, 220}, 8, 0);
  EXPECT_GT(std::abs(center().latitude - 57.7), kMetre) << "one finger moves it still";
}

TEST_F(MapViewGestureTest, CommandDuringADragEndsItAndTheDragGoesOnAnew) {
  QTest::mousePress(&window, Qt::LeftButton, {}, kMiddle);
  QTest::mouseMove(&window, {240, 300});
  map->setCenterCoordinate({48.85, 2.35}, Animated::No);
  EXPECT_EQ(moves, "wdwd");
  EXPECT_NEAR(center().latitude, 48.85, 1e-9);
  QTest::mouseMove(&window, {280, 300});
  QTest::mouseRelease(&window, Qt::LeftButton, {}, {280, 300});
  EXPECT_TRUE(waitFor("wdwdwd")) << moves;
}

TEST_F(MapViewGestureTest, PoleStopsTheDragAndTheDateLineDoesNot) {
  map->setRegion(regionAround(80, 179.9, 20), Animated::No);
  bool hasCrossed = false;
  for (int i = 0; i < 6; ++i) {
    drag({300, 100}, {20, 590}, 4, 0);
    EXPECT_LE(center().latitude, kMercatorLatitudeLimit + 1e-9);
    EXPECT_GE(center().longitude, -180);
    EXPECT_LT(center().longitude, 180);
    hasCrossed = hasCrossed || center().longitude < 0;
  }
  EXPECT_NEAR(center().latitude, kMercatorLatitudeLimit, 1e-9);
  EXPECT_TRUE(hasCrossed);
}

}  // namespace
}  // namespace wayloom
