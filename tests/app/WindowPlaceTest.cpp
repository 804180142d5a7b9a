#include <QtCore/QSettings>

#include "app/WindowPlace.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

TEST(WindowPlaceTest, OnlyWhatCanBeSeenAndSeizedIsUsed) {
  const QRect left(0, 0, 1000, 800), right(1000, 0, 1000, 800);
  const struct {
    const char* what;
    QRect remembered, wanted;
  } cases[] = {
      {"within", {100, 100, 400, 600}, {100, 100, 400, 600}},
      {"on the other screen", {1500, 50, 400, 600}, {1500, 50, 400, 600}},
      {"half over the edge", {-200, 100, 400, 600}, {-200, 100, 400, 600}},
      {"title above the screen", {100, -300, 400, 600}, {}},
      {"a sliver", {-390, 100, 400, 600}, {}},
      {"too small", {100, 100, 100, 100}, {100, 100, 320, 480}},
      {"larger than the screen", {0, 0, 9000, 9000}, {0, 0, 1000, 800}},
      {"inside out", QRect(QPoint(500, 500), QPoint(100, 100)), {}},
  };
  for (const auto& test : cases) {
    const QRect used = WindowPlace::usable(test.remembered, {320, 480}, {left, right});
    EXPECT_EQ(used, test.wanted) << test.what;
  }
  EXPECT_TRUE(WindowPlace::usable({10, 10, 400, 600}, {320, 480}, {}).isNull());
}

TEST(WindowPlaceTest, NextWindowStandsWhereTheLastOneWas) {
  const TemporaryRoot folder;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     QString::fromStdString(folder.path().string()));
  const QRect place(40, 60, 420, 610);
  {
    QWindow window;
    const WindowPlace remembered(window);
    window.setGeometry(place);
  }
  QWindow next;
  const WindowPlace remembered(next);
  EXPECT_EQ(next.geometry(), place);
}

}  // namespace
}  // namespace wayloom
