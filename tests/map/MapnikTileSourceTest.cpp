#include <fstream>

#include <QtGui/QColor>

#include "map/MapnikTileSource.h"
#include "map/RegionTables.h"
#include "regions/DrawingTable.h"
#include "regions/RegionWriter.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

using Kind = DrawingShape::Kind;
using std::filesystem::path;

constexpr RegionBounds kBounds = {-20, -20, 20, 20};

DrawingShape box(double west, double south, double east, double north) {
  const auto at = [](double latitude, double longitude) { return mapPoint({latitude, longitude}); };
  return {Kind::kPolygon,
          {{at(south, west), at(south, east), at(north, east), at(north, west), at(south, west)}}};
}

void addLand(Database& database) {
  DrawingTable land(database, "land", {});
  // Two pieces that share an edge, as large land is stored.
  land.add(box(-10, -10, 1, 10));
  land.add(box(-1, -10, 10, 10));
  ASSERT_TRUE(land.status());
}

void addRoad(Database& database) {
  DrawingTable road(database, "road", {"kind", "link", "level"});
  road.add({Kind::kLine, {{mapPoint({5, -9}), mapPoint({5, 9})}}}, {"motorway", 0, 0});
  ASSERT_TRUE(road.status());
}

Region region(const path& file) {
  return {file, {"Test", "Somebody", kBounds}};
}

template <typename... Functions>
Region write(const path& file, Functions... add) {
  auto writer = RegionWriter::create(file, {"Test", "Somebody", kBounds});
  EXPECT_TRUE(writer);
  (add(writer->database()), ...);
  EXPECT_TRUE(writer->commit());
  return region(file);
}

QColor colourAt(const QImage& tile, const TileKey& key, double latitude, double longitude) {
  const double world = tile.width() * std::exp2(key.zoom);
  const MapPoint p = mapPoint({latitude, longitude});
  const double half = mapPoint({0, 180}).x;
  return tile.pixelColor(static_cast<int>((p.x / half + 1) / 2 * world) - key.x * tile.width(),
                         static_cast<int>((1 - p.y / half) / 2 * world) - key.y * tile.height());
}

bool isBlue(const QColor& colour) {
  return colour.blue() > colour.red() + 20;
}

TEST(MapnikTileSourceTest, DrawsSeaLandAndRoadWhereTheyAre) {
  const TemporaryFolder folder;
  MapnikTileSource source({write(folder.path() / "a.region", addLand, addRoad)});
  for (const double scale : {1.0, 2.0, 3.0}) {
    const TileKey whole{0, 0, 0};
    const QImage world = source.draw(whole, scale);
    ASSERT_EQ(world.size(), QSize(512, 512) * scale) << scale;
    EXPECT_TRUE(isBlue(colourAt(world, whole, 15, 15))) << scale;
    EXPECT_FALSE(isBlue(colourAt(world, whole, 8, -8))) << scale;
    // Where the two pieces of land meet.
    EXPECT_EQ(colourAt(world, whole, 8, 0), colourAt(world, whole, 8, -8)) << scale;

    const TileKey street{8, 128, 124};
    const QImage tile = source.draw(street, scale);
    const QColor road = colourAt(tile, street, 5, 0.7), beside = colourAt(tile, street, 4.7, 0.7);
    EXPECT_GT(road.red(), road.blue() + 60) << scale;
    EXPECT_LT(beside.red(), beside.blue() + 60) << scale;
  }
}

TEST(MapnikTileSourceTest, ABrokenRegionTakesNothingFromTheOthers) {
  const TemporaryFolder folder;
  const Region good = write(folder.path() / "good.region", addLand);
  const QImage alone = MapnikTileSource({good}).draw({1, 0, 0}, 1);

  std::ofstream(folder.path() / "text.region") << "no database";
  const Region torn = write(folder.path() / "torn.region", addLand, addRoad);
  std::filesystem::resize_file(torn.path, std::filesystem::file_size(torn.path) / 2);
  const Region oddTables = write(folder.path() / "odd.region", [](Database& database) {
    EXPECT_TRUE(database.execute(
        "CREATE TABLE land(fid INTEGER PRIMARY KEY, geometry TEXT);"
        "INSERT INTO land VALUES (1, 'text'), (2, NULL), (3, 4.5), (4, x'0103');"
        "CREATE VIRTUAL TABLE idx_land_geometry USING rtree(pkid, xmin, xmax, ymin, ymax);"
        "INSERT INTO idx_land_geometry VALUES (1,-2e7,2e7,-2e7,2e7), (2,-2e7,2e7,-2e7,2e7),"
        "(3,-2e7,2e7,-2e7,2e7), (4,-2e7,2e7,-2e7,2e7), (99,-2e7,2e7,-2e7,2e7);"
        "CREATE TABLE coast(other TEXT); CREATE TABLE idx_coast_geometry(x);"));
  });
  for (const Region& bad : {region(folder.path() / "missing.region"),
                            region(folder.path() / "text.region"), torn, oddTables}) {
    MapnikTileSource source({bad, good});
    EXPECT_EQ(source.draw({1, 0, 0}, 1), alone) << bad.path;
  }
}

TEST(RegionTablesTest, ChoosesTheTableOfTheZoom) {
  const TemporaryFolder folder;
  const Region file = write(folder.path() / "a.region", [](Database& database) {
    DrawingTable(database, "land_z3", {"name"}).add({Kind::kPoint, {{{0, 0}}}}, {"far"});
    DrawingTable(database, "land_z6", {"name"}).add({Kind::kPoint, {{{0, 0}}}}, {"middle"});
    DrawingTable table(database, "land", {"name", "min_zoom"});
    table.add({Kind::kPoint, {{{0, 0}}}}, {"near", 7});
    table.add({Kind::kPoint, {{{0, 0}}}}, {"nearest", 12});
    table.add({Kind::kPoint, {{{50, 0}}}}, {"elsewhere", 7});
  });
  auto database = openRegion(file.path);
  ASSERT_TRUE(database);
  RegionTables tables(std::move(*database));
  const std::pair<int, std::vector<std::string>> cases[] = {
      {0, {"far"}}, {3, {"far"}}, {4, {"middle"}}, {7, {"near"}}, {12, {"near", "nearest"}}};
  for (const auto& [zoom, expected] : cases) {
    std::vector<std::string> names;
    for (const DrawingRow& row : tables.rows("land", zoom, {-1, -1, 1, 1})) {
      names.push_back(std::get<std::string>(row.values.at(0)));
    }
    EXPECT_EQ(names, expected) << "zoom " << zoom;
  }
  EXPECT_EQ(tables.columns("road", 5), nullptr);
}

}  // namespace
}  // namespace wayloom
