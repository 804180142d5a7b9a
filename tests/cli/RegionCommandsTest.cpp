#include <algorithm>
#include <nlohmann/json.hpp>

#include "regions/RegionStore.h"
#include "tests/cli/CtlTest.h"
#include "tests/import/OsmText.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class RegionCommandsTest : public CtlTest {
 protected:
  void SetUp() override {
    OsmText text;
    text.node(0, {{"place", "village"}, {"name", "Dorf"}})
        .grid(5, 5)
        .way(1, {0, 2, 4}, {{"highway", "residential"}, {"name", "Ringweg"}})
        .way(2, {4, 24, 44}, {{"highway", "residential"}, {"name", "Allee"}, {"oneway", "yes"}})
        .write(path("dorf.osm"));
  }

  std::string path(const std::string& name) const { return (root.path() / name).string(); }
  fs::path folder() const { return root.path() / "data/wayloom/regions"; }
};

TEST_F(RegionCommandsTest, ImportsListsPlansAndRemoves) {
  const ShellRun imported = run("region import '" + path("dorf.osm") + "'");
  ASSERT_EQ(imported.status, 0) << imported.err;
  EXPECT_EQ(imported.err, "") << "no progress without a terminal";
  EXPECT_THAT(imported.out, HasSubstr((folder() / "dorf.region").string()));
  EXPECT_THAT(run("region list").out, HasSubstr("dorf\t"));
  ASSERT_EQ(run("--json region import '" + path("dorf.osm") + "' --name Zweites").status, 0);
  const auto listed = nlohmann::json::parse(run("--json region list").out);
  const auto named = std::count_if(listed.begin(), listed.end(), [](const auto& region) {
    return region["name"] == "dorf" || region["name"] == "Zweites";
  });
  EXPECT_EQ(named, 2);

  const ShellRun there = run("route plan --from 'ringweg dorf' --to 47.004,9.004");
  EXPECT_EQ(there.status, 0) << there.err;
  EXPECT_THAT(there.out, HasSubstr(" points\nfrom 47.000000, 9.00"));
  const ShellRun line = run("route plan --from 47,9 --to 47.004,9.004 --geojson");
  const auto feature = nlohmann::json::parse(line.out);
  EXPECT_EQ(feature["geometry"]["coordinates"],
            nlohmann::json::parse("[[9,47],[9.002,47],[9.004,47],[9.004,47.002],[9.004,47.004]]"));
  const ShellRun back = run("route plan --from 47,9 --to 10,10");
  EXPECT_EQ(back.status, 1) << back.out;
  EXPECT_THAT(back.err, HasSubstr("no route: the end lies outside every installed region"));

  EXPECT_EQ(run("region remove dorf").status, 0);
  EXPECT_EQ(run("region remove dorf").status, 1);
  EXPECT_FALSE(fs::exists(folder() / "dorf.region"));
  EXPECT_TRUE(fs::exists(folder() / "Zweites.region"));
}

TEST_F(RegionCommandsTest, AnswersBadInputInOneLine) {
  writeBytes(root.path() / "cut.osm", bytesOf(path("dorf.osm")).substr(0, 400));
  const struct {
    std::string arguments;
    int status;
    const char* says;
  } cases[] = {
      {"region", 2, "required"},
      {"region import nowhere.osm", 1, "nowhere.osm is not imported: there is no such file"},
      {"region import http://example.org/a.osm", 1, "there is no such file"},
      {"region import -- -", 1, "ends in none of"},
      {"region import '" + path("cut.osm") + "'", 1, "damaged"},
      {"region import '" + path("dorf.osm") + "' --name a/b", 1, "slashes"},
      {"region remove nothing", 1, "no region nothing"},
      {"--regions '" + path("dorf.osm") + "/x' region import '" + path("dorf.osm") + "'", 1,
       "dorf.osm"},
  };
  for (const auto& test : cases) {
    const ShellRun answer = run(test.arguments);
    EXPECT_EQ(answer.status, test.status) << test.arguments;
    EXPECT_EQ(answer.out, "") << test.arguments;
    EXPECT_EQ(std::count(answer.err.begin(), answer.err.end(), '\n'), 1) << answer.err;
    EXPECT_THAT(answer.err, HasSubstr(test.says)) << test.arguments;
  }
  EXPECT_TRUE(!fs::exists(folder()) || fs::is_empty(folder()));

  // Without a home the program's own regions would be the first folder found.
  const ShellRun homeless = run("region remove gothenburg", "env -u HOME -u XDG_DATA_HOME");
  EXPECT_EQ(homeless.status, 1) << homeless.out;
  EXPECT_THAT(homeless.err, HasSubstr("there is no folder for regions of your own"));
}

// Whenever it is stopped, there is the whole region or none; leftovers count for nothing and go.
TEST_F(RegionCommandsTest, ASuddenEndLeavesNothingHalf) {
  OsmText town;
  town.grid(10, 10);
  for (int way = 0; way < 2000; ++way) {
    town.way(way, {way % 97, (way + 1) % 97, (way + 13) % 97},
             {{"highway", "residential"}, {"name", "Weg " + std::to_string(way)}});
  }
  town.write(path("town.osm"));
  for (const char* signal : {"INT", "KILL"}) {
    for (const char* seconds : {"0.01", "0.03", "0.06", "0.1", "0.2", "0.4"}) {
      const std::string limit = std::string("timeout -s ") + signal + ' ' + seconds;
      const ShellRun stopped = run("region import '" + path("town.osm") + "'", limit);
      const RegionStore store({folder()});
      EXPECT_TRUE(store.refused().empty()) << limit;
      EXPECT_EQ(store.regions().size(), fs::exists(folder() / "town.region") ? 1u : 0u) << limit;
      EXPECT_LE(std::count(stopped.err.begin(), stopped.err.end(), '\n'), 1) << stopped.err;
    }
  }
  writeBytes(folder() / ".old.region.wayloom-writes-aB3xY9", "half a region");
  writeBytes(folder() / "town.region.backup", "the user's own");
  ASSERT_EQ(run("region import '" + path("town.osm") + "'").status, 0);
  EXPECT_EQ(bytesOf(folder() / "town.region.backup"), "the user's own");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder()), {}), 2);
}

}  // namespace
}  // namespace wayloom
