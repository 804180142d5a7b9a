#include "import/RegionImport.h"
#include "regions/DrawingShape.h"
#include "regions/PlaceIndex.h"
#include "regions/RegionWriter.h"
#include "roads/Router.h"
#include "tests/import/OsmText.h"
#include "tests/regions/SmallIndex.h"

namespace wayloom {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
namespace fs = std::filesystem;

Coordinate at(int row, int column) {
  return {47 + row * 0.001, 9 + column * 0.001};
}

const WorkProgress kGoOn = [](std::string_view, double) { return true; };

class RegionImportTest : public testing::Test {
 protected:
  Result<Region> import(const std::string& name = "small", const WorkProgress& progress = kGoOn) {
    return importRegion(mExtract, mFolder.path(), name, store(), progress);
  }
  Result<Region> import(const OsmText& text) {
    text.write(mExtract);
    return import();
  }
  RegionStore store() const { return RegionStore({mFolder.path()}); }
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(mFolder.path())) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }
  std::int64_t count(const std::string& from) const {
    auto database = openRegion(mFolder.path() / "small.region");
    if (!database) return -1;
    return *database->number("SELECT count(*) FROM " + from);
  }

  TemporaryFolder mFolder, mSources;
  fs::path mExtract = mSources.path() / "extract.osm";
};

OsmText oneOfEach() {
  OsmText text;
  text.node(0, {{"place", "village"}, {"name", "Dorf"}, {"population", "1200"}})
      .node(11, {{"addr:street", "Ringweg"}, {"addr:housenumber", "5"}})
      .node(12, {{"amenity", "cafe"}, {"name", "Zur Post"}})
      .node(31, {{"barrier", "bollard"}})
      .grid(9, 8)
      .way(1, {0, 1, 2}, {{"highway", "residential"}, {"name", "Ringweg"}})
      .way(2, {2, 3, 4}, {{"highway", "primary"}, {"name", "Gasse"}, {"ref", "A 1"}})
      .way(3, {2, 22, 42}, {{"highway", "residential"}, {"name", "Allee"}})
      .way(4, {20, 31, 42}, {{"highway", "service"}})
      .way(5, {20, 0}, {{"highway", "residential"}})
      .way(6, {4, 24, 44, 42}, {{"highway", "residential"}})
      .way(7, {4, 6}, {{"route", "ferry"}, {"duration", "00:10"}})
      .way(8, {6, 7}, {{"highway", "residential"}})
      .way(10, {50, 51, 61, 60, 50}, {{"building", "yes"}})
      .way(11, {52, 57, 87, 82, 52}, {})
      .way(12, {63, 64, 74, 73, 63}, {})
      .way(13, {40, 50}, {{"railway", "rail"}})
      .way(14, {41, 51}, {{"waterway", "stream"}})
      .relation(1, {"way 1 from", "node 2 via", "way 3 to"},
                {{"type", "restriction"}, {"restriction", "no_left_turn"}})
      .relation(2, {"way 11 outer", "way 12 inner"},
                {{"type", "multipolygon"}, {"natural", "water"}})
      .relation(3, {"way 999 outer"}, {{"type", "multipolygon"}, {"landuse", "forest"}});
  return text;
}

TEST_F(RegionImportTest, MakesMapPlacesAndRoads) {
  SmallIndex world({settlement("Anderswo", "Kanton", "Land", {47.1, 9.1}, 50000)});
  oneOfEach().write(mExtract);
  ASSERT_TRUE(importRegion(mExtract, mFolder.path(), "small", world.store(), kGoOn));
  EXPECT_THAT(files(), ElementsAre("small.region"));
  EXPECT_EQ(count("building"), 1);
  EXPECT_EQ(count("railway WHERE kind = 'rail'"), 1);
  EXPECT_EQ(count("river"), 1);
  EXPECT_EQ(count("road WHERE kind = 'primary'"), 1);
  EXPECT_EQ(count("road_label WHERE name = 'Ringweg'"), 1);
  EXPECT_EQ(count("place_label WHERE name = 'Dorf'"), 1);
  auto database = openRegion(mFolder.path() / "small.region");
  auto water = database->prepare("SELECT geometry FROM water");
  ASSERT_TRUE(water && *water->step());
  const auto bytes = water->bytes(0);
  const auto shape = decodeShape({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  ASSERT_TRUE(shape);
  EXPECT_EQ(shape->paths.size(), 2u) << "the lake has an island";

  auto index = PlaceIndex::open(store());
  ASSERT_TRUE(index);
  const std::pair<const char*, const char*> searches[] = {
      {"ringweg 5", "Ringweg 5, Dorf"}, {"post", "Zur Post, Dorf"}, {"allee", "Allee, Dorf"}};
  for (const auto& [text, line] : searches) {
    const auto found = index->search(text, std::nullopt);
    ASSERT_FALSE(found.empty()) << text;
    EXPECT_THAT(addressLines(found.front()), ElementsAre(line, "Kanton, Land"))
        << "division and country of what is installed";
  }
  EXPECT_EQ(addressLines(*index->placeAt(at(1, 1))).front(), "Ringweg 5, Dorf");
}

TEST_F(RegionImportTest, RoadsKeepTheirRules) {
  ASSERT_EQ(import(oneOfEach()).message(), "");
  Router router(store());
  const auto seconds = [&](Coordinate from, Coordinate to) {
    const auto routes = router.plan(from, to);
    return routes ? routes->front().expectedSeconds : -1;
  };
  // The left turn is forbidden, so the way there leads round the block; the way back does not.
  EXPECT_GT(seconds(at(0, 1), at(2, 2)), 1.5 * seconds(at(2, 2), at(0, 1)));
  // The bollard stands between, so one drives back to the village.
  const auto blocked = router.plan(at(2, 0), {47.0035, 9.0015});
  ASSERT_TRUE(blocked) << blocked.message();
  EXPECT_GT(blocked->front().distanceMetres, 500);
  // 150 metres of water in ten minutes.
  EXPECT_NEAR(seconds(at(0, 4), at(0, 6)), 600, 100);
}

TEST_F(RegionImportTest, RefusesBadExtractsInOneLine) {
  const std::string good = oneOfEach().str();
  const std::string head = "<?xml version='1.0'?><osm version='0.6'>";
  const auto node = [&](const std::string& position) {
    return head + "<node id='1' " + position + "><tag k='place' v='town'/></node></osm>";
  };
  const struct {
    const char* file;
    std::string content;
    const char* reason;
  } cases[] = {
      {"a.osm", "", "empty"},
      {"a.osm", "no XML at all", "no OpenStreetMap data"},
      {"a.osm", head + "</osm>", "no map data"},
      {"a.osm", head + "<node id='1' lat='47' lon='9'/></osm>", "no roads, places or land"},
      {"a.osm", good.substr(0, good.size() - 8), "damaged"},
      {"a.osm.gz", "\x1f\x8b\x08", "damaged"},
      {"a.osm.bz2", good, "damaged"},
      {"a.osm.pbf", std::string("\0\0\0\x0e\x0a\x09OSMHeader\x18\x7f", 17), "damaged"},
      {"a.osm", node("lat='97' lon='9'"), "node 1 lies outside the world"},
      {"a.osm", node("lat='47' lon='438.4967296'"), "a position lies outside the world"},
      {"a.osm", "<!DOCTYPE osm [<!ENTITY a 'b'>]>" + good, "it declares entities"},
      {"a.osm", OsmText().node(1).way(7, {1, 2}, {{"highway", "road"}}).str(),
       "it holds no roads, places or land"},
      {"a.osm", head + "<way id='1'/><node id='1' lat='47' lon='9'/></osm>",
       "node 1 stands behind the ways"},
      {"a.txt", good, "ends in none of"},
  };
  for (const auto& test : cases) {
    mExtract = mSources.path() / test.file;
    std::ofstream(mExtract, std::ios::binary) << test.content;
    const auto region = import();
    EXPECT_THAT(region.message(), HasSubstr(test.reason)) << test.file << ": " << test.content;
    EXPECT_THAT(files(), ElementsAre()) << test.file << ": " << test.content;
  }
  fs::create_directory(mSources.path() / "folder.osm");
  mExtract = mSources.path() / "folder.osm";
  EXPECT_THAT(import().message(), HasSubstr("not a file"));
}

TEST_F(RegionImportTest, LeavesNothingWhenItIsStoppedAndKeepsWhatWasThere) {
  OsmText().node(1, {{"place", "town"}, {"name", "Alt"}}).write(mExtract);
  ASSERT_TRUE(import());
  oneOfEach().write(mExtract);
  int calls = 0;
  ASSERT_TRUE(import("other", [&](std::string_view, double) { return ++calls > 0; }));
  fs::remove(mFolder.path() / "other.region");
  for (int last = 1; last <= calls; ++last) {
    int call = 0;
    const auto stopped = import("small", [&](std::string_view, double) { return ++call < last; });
    EXPECT_EQ(stopped.message(), "interrupted") << last;
    EXPECT_THAT(files(), ElementsAre("small.region")) << last;
  }
  EXPECT_EQ(count("place WHERE name = 'Alt'"), 1);
  EXPECT_EQ(count("place"), 1);
}

// What a killed one left is removed: RegionCommandsTest.
TEST_F(RegionImportTest, LeavesWhatAnotherIsWriting) {
  const auto working = RegionWriter::create(mFolder.path() / "b.region", {"x", "", {}});
  ASSERT_TRUE(working);
  ASSERT_EQ(import(oneOfEach()).message(), "");
  EXPECT_EQ(files().size(), 2u);
  EXPECT_EQ(store().regions().size(), 1u);
}

}  // namespace
}  // namespace wayloom
