#include <nlohmann/json.hpp>

#include "tests/cli/CtlTest.h"

namespace wayloom {
namespace {

using testing::HasSubstr;

class FavoriteCommandsTest : public CtlTest {
 protected:
  std::string file(const std::string& name) const { return (root.path() / name).string(); }
};

TEST_F(FavoriteCommandsTest, RenamesAndMoves) {
  for (const std::string name : {"a", "b", "c"}) run("favorites add " + name + " 1,2");
  const std::string at = "\t1.000000, 2.000000\t";
  EXPECT_EQ(run("favorites rename 1 ' new '").out, "1" + at + "new\n2" + at + "b\n3" + at + "c\n");
  EXPECT_EQ(run("favorites move 1 3").out, "1" + at + "b\n2" + at + "c\n3" + at + "new\n");
  EXPECT_THAT(run("favorites rename 1 ' '").err, HasSubstr("needs a name"));
  for (const std::string command : {"rename 4 x", "move 4 1", "move 1 4", "move 0 1"}) {
    EXPECT_EQ(run("favorites " + command).status, 1) << command;
  }
}

TEST_F(FavoriteCommandsTest, ExportsAndImports) {
  run("favorites add 'A & B' -33.9,151.2");
  run("favorites add '' 57.706547,11.9671");
  const std::string list = run("favorites list").out;
  for (const std::string name : {"places.gpx", "places.KML", "places.geojson", "places.json"}) {
    ASSERT_EQ(run("favorites export " + file(name)).out, "2 exported\n") << name;
    EXPECT_EQ(run("favorites import " + file(name)).out, "0 added, 2 skipped\n") << name;
    run("favorites remove 1");
    run("favorites remove 1");
    EXPECT_EQ(run("favorites import " + file(name)).out, "2 added, 0 skipped\n") << name;
    EXPECT_EQ(run("favorites list").out, list) << name;
  }
  EXPECT_THAT(run("favorites export " + file("places.gpx")).err, HasSubstr("there already"));
  EXPECT_THAT(run("favorites export " + file("places.txt")).err, HasSubstr("must end in"));
  EXPECT_EQ(run("favorites export --format kml " + file("places.txt")).status, 0);
  EXPECT_EQ(bytesOf(root.path() / "places.txt"), bytesOf(root.path() / "places.KML"));
  EXPECT_EQ(run("favorites export").out, bytesOf(root.path() / "places.gpx"));
  EXPECT_EQ(nlohmann::json::parse(run("favorites export --format geojson").out)["features"].size(),
            2U);

  writeBytes(root.path() / "bad.gpx", "<gpx><wpt lat='1' lon='2'/><wpt lat='1' lon='200'/></gpx>");
  const auto bad = run("favorites import " + file("bad.gpx"));
  EXPECT_EQ(bad.status, 1);
  EXPECT_THAT(bad.err, HasSubstr("bad.gpx: place 2: the longitude 200.000000 is beyond 180"));
  EXPECT_EQ(run("favorites list").out, list) << "nothing of it was added";
}

}  // namespace
}  // namespace wayloom
