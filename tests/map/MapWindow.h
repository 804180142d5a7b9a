#pragma once

#include <gtest/gtest.h>
#include <string>

#include <QtQuick/QQuickView>
#include <QtTest/QTest>

#include "map/MapView.h"
#include "tests/map/FakeTileSource.h"

namespace wayloom {

/// A shown window filled by a map, and a record of what the map said: W and D for "will" and
/// "did", small when not animated.
struct MapWindow {
  MapWindow() {
    window.setGeometry(0, 0, 400, 600);
    map = new MapView(window.contentItem());
    map->setSize({400, 600});
    map->setTileSource(source);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QObject::connect(map, &MapView::regionWillChange, map,
                     [this](bool animated) { moves += animated ? 'W' : 'w'; });
    QObject::connect(map, &MapView::regionDidChange, map,
                     [this](bool animated) { moves += animated ? 'D' : 'd'; });
    QObject::connect(map, &MapView::tapped, map, [this] { ++taps; });
  }

  bool waitFor(const std::string& wanted) {
    return QTest::qWaitFor([&] { return moves == wanted; });
  }
  bool waitUntilComplete() {
    return QTest::qWaitFor([this] { return map->isComplete(); });
  }
  MapCamera camera() const {
    MapCamera camera;
    camera.setSize(map->size());
    camera.fit(map->region());
    return camera;
  }
  Coordinate center() const { return map->region().center; }
  QColor colourAt(int x, int y) { return window.grabWindow().pixelColor(x, y); }

  std::shared_ptr<FakeTileSource> source = std::make_shared<FakeTileSource>();
  std::string moves;
  int taps = 0;
  QQuickWindow window;
  MapView* map = nullptr;  // Owned by the window's content.
};

inline MapRegion regionAround(double latitude, double longitude, double degrees) {
  return {{latitude, longitude}, {degrees, degrees}};
}

}  // namespace wayloom
