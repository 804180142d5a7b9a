#include <cmath>

#include "tests/map/MapWindow.h"

namespace wayloom {
namespace {

using namespace std::chrono_literals;

struct MapViewTest : testing::Test, MapWindow {};

TEST_F(MapViewTest, EveryCommandIsOneMove) {
  const MapRegion fitted = map->regionThatFits(regionWithDistance({57.7, 11.97}, 2000, 2000));
  map->setRegion(fitted, Animated::No);
  EXPECT_EQ(moves, "wd");
  map->setRegion(fitted, Animated::No);
  map->setRegion(map->region(), Animated::Yes);
  map->setCenterCoordinate({57.7, 11.97}, Animated::No);
  EXPECT_EQ(moves, "wd") << "what changes nothing is no move";
  map->setCenterCoordinate({48.85, 2.35}, Animated::No);
  EXPECT_EQ(moves, "wdwd");
  EXPECT_NEAR(center().latitude, 48.85, 1e-9);
  EXPECT_NEAR(center().longitude, 2.35, 1e-9);
  map->setRegion(regionAround(10, 10, 5), Animated::Yes);
  EXPECT_EQ(moves, "wdwdW");
  EXPECT_TRUE(waitFor("wdwdWD")) << moves;
  EXPECT_NEAR(center().latitude, 10, 1e-9);
}

TEST_F(MapViewTest, CompletionRunsOnceWhetherTheAnimationEndsOrNot) {
  int completions = 0;
  const auto complete = [&] {
    ++completions;
    moves += '!';
  };
  map->animateCenter({10, 10}, 60ms, complete);
  EXPECT_TRUE(waitFor("WD!")) << moves;
  map->animateCenter({10, 10}, 60ms, complete);
  EXPECT_EQ(moves, "WD!!") << "already there";
  moves.clear();
  map->animateCenter({20, 20}, 1h, complete);
  map->setCenterCoordinate({30, 30}, Animated::No);
  EXPECT_EQ(moves, "WD!wd");
  moves.clear();
  map->animateCenter({40, 40}, 60ms,
                     [&] { map->setRegion(regionAround(40, 40, 1), Animated::Yes); });
  EXPECT_TRUE(waitFor("WDWD")) << moves;
  EXPECT_NEAR(map->region().span.longitudeDelta,
              map->regionThatFits(regionAround(40, 40, 1)).span.longitudeDelta, 1e-9);
  EXPECT_EQ(completions, 3);
}

TEST_F(MapViewTest, CommandFromAReceiverWins) {
  QObject::connect(map, &MapView::regionWillChange, map, [this] {
    if (moves == "w") map->setCenterCoordinate({1, 1}, Animated::No);
  });
  map->setCenterCoordinate({50, 50}, Animated::No);
  EXPECT_EQ(moves, "wdwd");
  EXPECT_NEAR(center().latitude, 1, 1e-9);
}

TEST(MapViewLayoutTest, RegionSetBeforeThereIsASizeIsFittedOnce) {
  MapView map;
  std::string moves;
  QObject::connect(&map, &MapView::regionWillChange, [&](bool) { moves += 'w'; });
  QObject::connect(&map, &MapView::regionDidChange, [&](bool) { moves += 'd'; });
  map.setRegion(regionAround(57.7, 11.97, 0.1), Animated::Yes);
  map.setCenterCoordinate({57.8, 12}, Animated::No);
  EXPECT_EQ(moves, "wdwd");
  EXPECT_NEAR(map.region().center.latitude, 57.8, 1e-9);
  map.setSize({300, 500});
  EXPECT_EQ(moves, "wdwd");
  EXPECT_NEAR(map.region().span.longitudeDelta, 0.1127, 0.0001) << "the height decides";
  EXPECT_NEAR(map.region().span.latitudeDelta, 0.1, 0.0001);
  const double zoomed = map.region().span.longitudeDelta;
  map.setSize({600, 500});
  EXPECT_EQ(moves, "wdwd") << "a change of size is no move";
  EXPECT_NEAR(map.region().span.longitudeDelta, zoomed * 2, 1e-9);
  EXPECT_NEAR(map.region().center.latitude, 57.8, 1e-9);
}

TEST_F(MapViewTest, ShowsItsTilesWhereTheyBelongAndScalesThemEvenly) {
  // Red tells the row within the tile, blue which tile it is.
  struct Gradient : FakeTileSource {
    QImage draw(const TileKey& key, double) override {
      QImage image(512, 512, QImage::Format_RGB32);
      for (int y = 0; y < 512; ++y) {
        for (int x = 0; x < 512; ++x) image.setPixel(x, y, qRgb(y / 2, 0, colourOf(key).blue()));
      }
      return image;
    }
  };
  map->setTileSource(std::make_shared<Gradient>());
  // Not in the window's corner: the item's own place counts too.
  constexpr QPoint kCorner(30, 140);
  map->setPosition(kCorner);
  map->setSize({340, 420});
  for (const double zoomed : {0.71, 0.9, 1.1, 1.4}) {
    map->setRegion(regionAround(57.7, 11.97, 0.1 / zoomed), Animated::No);
    ASSERT_TRUE(waitUntilComplete());
    const MapCamera shown = camera();
    const QImage grabbed = window.grabWindow();
    for (const PlacedTile& tile : visibleTiles(shown, tileZoom(shown, 18), 1)) {
      const QRect inView = tile.rect.toRect().adjusted(1, 1, -1, -1) & QRect(0, 0, 340, 420);
      if (inView.width() < 3) continue;
      for (int y = inView.top(); y <= inView.bottom(); ++y) {
        const QColor colour = grabbed.pixelColor(kCorner + QPoint(inView.center().x(), y));
        const double row = (y + 0.5 - tile.rect.top()) / tile.rect.height();
        ASSERT_NEAR(colour.red(), row * 255.5, 2) << zoomed << " row " << y;
        ASSERT_EQ(colour.blue(), FakeTileSource::colourOf(tile.key).blue()) << zoomed;
      }
    }
  }
}

TEST_F(MapViewTest, ParentStandsInForAMissingTile) {
  map->setRegion(regionAround(0.02, 0.02, 0.05), Animated::No);
  ASSERT_TRUE(waitUntilComplete());
  const QColor parent = colourAt(200, 300);
  const MapRegion region = map->region();
  const int zoom = tileZoom(camera(), 18);
  source->hold(zoom + 1);
  map->setRegion({region.center, {0, region.span.longitudeDelta / 2}}, Animated::No);
  ASSERT_TRUE(source->waitUntilDrawing(1));
  EXPECT_EQ(colourAt(200, 300), parent);
  EXPECT_FALSE(map->isComplete());
  source->release();
  ASSERT_TRUE(waitUntilComplete());
  EXPECT_NE(colourAt(200, 300), parent);
}

TEST_F(MapViewTest, OverlaysAndAnnotationsAreDrawnAndTaken) {
  map->setRegion(regionAround(0, 0, 1), Animated::No);
  ASSERT_TRUE(waitUntilComplete());
  const auto line = std::make_shared<MapPolyline>();
  const_cast<MapPolyline&>(*line).coordinates =
      std::make_shared<const std::vector<Coordinate>>(std::vector<Coordinate>{{0, -1}, {0, 1}});
  map->addOverlay(line);
  QImage image(20, 20, QImage::Format_RGB32);
  image.fill(Qt::magenta);
  const auto mark =
      std::make_shared<MapPointAnnotation>(MapPointAnnotation{{0, 0.1}, 111111, image, {0.5, 0.5}});
  map->addAnnotation(mark);
  const QPoint at = map->viewPoint({0, 0.1}).toPoint();
  EXPECT_EQ(colourAt(100, 300), QColor(0, 255, 0));
  EXPECT_EQ(colourAt(at.x(), at.y()), QColor(Qt::magenta));
  EXPECT_EQ(map->annotations().at(0)->tag, 111111);
  map->removeOverlay(line);
  map->removeAnnotation(mark);
  EXPECT_NE(colourAt(100, 300), QColor(0, 255, 0));
  EXPECT_NE(colourAt(at.x(), at.y()), QColor(Qt::magenta));
  EXPECT_TRUE(map->overlays().empty() && map->annotations().empty());
}

}  // namespace
}  // namespace wayloom
