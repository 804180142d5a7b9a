#include <QtTest/QTest>

#include "map/TileLoader.h"
#include "tests/map/FakeTileSource.h"

namespace wayloom {
namespace {

std::vector<TileRequest> row(int zoom, int first, int count) {
  std::vector<TileRequest> tiles;
  for (int i = 0; i < count; ++i) tiles.push_back({{zoom, first + i, 0}, 1});
  return tiles;
}

bool waitFor(const TileLoader& loader, const std::vector<TileRequest>& tiles) {
  return QTest::qWaitFor([&] {
    return std::all_of(tiles.begin(), tiles.end(),
                       [&](const auto& tile) { return loader.has(tile); });
  });
}

TEST(TileLoaderTest, DrawsTheMostWantedFirstAndDropsWhatNobodyWants) {
  const auto source = std::make_shared<FakeTileSource>();
  TileLoader loader(source);
  source->hold();
  loader.want(&loader, row(9, 0, 50));
  ASSERT_TRUE(source->waitUntilDrawing(2));
  loader.want(&loader, row(9, 100, 4));
  source->release();
  ASSERT_TRUE(waitFor(loader, row(9, 100, 4)));
  const std::vector<TileKey> drawn = source->drawn();
  ASSERT_EQ(drawn.size(), 6u) << "two begun before the change, then only those wanted";
  for (const TileKey& tile : drawn) EXPECT_TRUE(tile.x < 2 || tile.x >= 100) << tile.x;
  EXPECT_EQ(source->mostAtOnce(), 2);
}

TEST(TileLoaderTest, KeepsItsMemoryBoundedButNeverDropsWhatIsWanted) {
  const auto source = std::make_shared<FakeTileSource>();
  const std::int64_t tileBytes = std::int64_t{512} * 512 * 4;
  TileLoader loader(source, 3 * tileBytes + 2000);
  for (int first = 0; first < 40; first += 4) {
    loader.want(&loader, row(9, first, 4));
    ASSERT_TRUE(waitFor(loader, row(9, first, 4))) << first;
    EXPECT_LE(loader.cachedBytes(), 5 * tileBytes) << first;
  }
  loader.want(&loader, row(9, 0, 1));
  ASSERT_TRUE(waitFor(loader, row(9, 0, 1)));
  EXPECT_LE(loader.cachedBytes(), 3 * tileBytes + 2000);
}

TEST(TileLoaderTest, MissingAndFailingTilesAreKnownAndNotDrawnAgain) {
  struct Failing : FakeTileSource {
    QImage draw(const TileKey& key, double scale) override {
      FakeTileSource::draw(key, scale);
      if (key.x == 0) throw std::runtime_error("damaged");
      return {};
    }
  };
  const auto source = std::make_shared<Failing>();
  TileLoader loader(source);
  for (int i = 0; i < 3; ++i) {
    loader.want(&loader, row(9, 0, 2));
    ASSERT_TRUE(waitFor(loader, row(9, 0, 2)));
  }
  EXPECT_EQ(source->drawn().size(), 2u);
  EXPECT_TRUE(loader.image({{9, 0, 0}, 1}).isNull());
}

}  // namespace
}  // namespace wayloom
