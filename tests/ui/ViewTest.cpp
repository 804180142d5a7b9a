#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include "ui/View.h"
#include "ui/ViewFrame.h"

namespace wayloom {
namespace {

TEST(View, HasTheFrameAndColourItWasMadeWith) {
  const QRectF place(10, 20, 30, 40);
  EXPECT_EQ(frame(*View::view()), QRectF());
  EXPECT_EQ(frame(*View::clearViewWithFrame(place)), place);
  EXPECT_EQ(frame(*View::viewWithColor(Qt::red, place)), place);
  EXPECT_EQ(View::view()->color().alpha(), 0);
  EXPECT_EQ(View::viewWithColor(Qt::red)->color(), QColor(Qt::red));
}

TEST(View, IsOnePixelThinOnFineScreens) {
  const struct {
    double scale, points;
  } cases[] = {{0.5, 1}, {1, 1}, {1.25, 0.5}, {2, 0.5}, {3, 0.5}};
  for (const auto& test : cases) EXPECT_EQ(onePixel(test.scale), test.points) << test.scale;
  const double thin = onePixel(QGuiApplication::primaryScreen()->devicePixelRatio());
  EXPECT_EQ(frame(*View::onePixelHeightViewWithWidth(320)), QRectF(0, 0, 320, thin));
  EXPECT_EQ(frame(*View::onePixelWidthViewWithHeight(44)), QRectF(0, 0, thin, 44));
}

TEST(View, ChangesOnePartOfItsFrame) {
  const auto view = View::view();
  const auto after = [&view](auto&& change) {
    setFrame(*view, {10, 20, 30, 40});
    change(*view);
    return frame(*view);
  };
  EXPECT_EQ(after([](auto& v) { setOrigin(v, {1, 2}); }), QRectF(1, 2, 30, 40));
  EXPECT_EQ(after([](auto& v) { v.setSize({1, 2}); }), QRectF(10, 20, 1, 2));
  EXPECT_EQ(after([](auto& v) { v.setY(-5); }), QRectF(10, -5, 30, 40));
  EXPECT_EQ(after([](auto& v) { v.setHeight(1); }), QRectF(10, 20, 30, 1));
  EXPECT_EQ(after([](auto& v) { setTail(v, 100); }), QRectF(10, 60, 30, 40));
  EXPECT_EQ(after([](auto& v) { setBottom(v, 100); }), QRectF(10, 60, 30, 40));
  EXPECT_EQ(after([](auto& v) { setRight(v, 100); }), QRectF(70, 20, 30, 40));
  setFrame(*view, {10, 20, 30, 40});
  EXPECT_EQ(origin(*view), QPointF(10, 20));
  EXPECT_EQ(tail(*view), 60);
  EXPECT_EQ(bottom(*view), 60);
  EXPECT_EQ(right(*view), 40);
}

TEST(View, IsDrawnRoundWithABorder) {
  QQuickWindow window;
  window.setColor(Qt::blue);
  window.resize(100, 100);
  View view(window.contentItem());
  setFrame(view, {20, 20, 60, 60});
  view.setColor(Qt::red);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  const auto colourAt = [&window](int x, int y) { return window.grabWindow().pixelColor(x, y); };
  EXPECT_EQ(colourAt(21, 21), QColor(Qt::red)) << "corner before it is round";
  view.circleWithWhiteBorder();
  EXPECT_EQ(view.cornerRadius(), 30);
  EXPECT_TRUE(view.clip());
  EXPECT_EQ(colourAt(21, 21), QColor(Qt::blue)) << "corner";
  EXPECT_EQ(colourAt(21, 50), QColor(Qt::white)) << "border";
  EXPECT_EQ(colourAt(23, 50), QColor(Qt::red)) << "within the border";
  view.setColor(QColor());
  EXPECT_EQ(colourAt(50, 50), QColor(Qt::blue)) << "no colour";
}

}  // namespace
}  // namespace wayloom
