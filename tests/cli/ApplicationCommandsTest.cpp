#include <nlohmann/json.hpp>

#include "tests/cli/CtlTest.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;
using testing::HasSubstr;

class ApplicationCommandsTest : public CtlTest {
 protected:
  void install(const std::string& name, const std::string& lines) {
    writeBytes(root.path() / "share/applications" / name, "[Desktop Entry]\n" + lines);
  }
  std::optional<Dictionary> stored() const { return dictionaryIn(files, SettingsFile::Whitelist); }
};

TEST_F(ApplicationCommandsTest, TogglesAndLists) {
  EXPECT_THAT(run("apps").out, HasSubstr("no applications"));
  EXPECT_EQ(run("--json apps").out, "[]\n");
  EXPECT_THAT(run("whitelist list").out, HasSubstr("empty"));
  install("maps.desktop", "Name=Maps\\nand more\nIcon=" + (root.path() / "icon.png").string());
  install("zoo.desktop", "Comment=nameless");
  writeBytes(root.path() / "icon.png", "\x89PNG\r\n\x1a\n");

  EXPECT_EQ(run("whitelist toggle zoo.desktop").out, "yes\tzoo.desktop\n");
  EXPECT_EQ(run("whitelist toggle not.installed").out, "yes\tnot.installed\n");
  EXPECT_EQ(run("whitelist toggle not.installed").out, "no\tnot.installed\n");
  EXPECT_EQ(stored(), (Dictionary{{"not.installed", false}, {"zoo.desktop", true}}));
  EXPECT_EQ(run("whitelist list").out, "no\tnot.installed\nyes\tzoo.desktop\n");
  EXPECT_EQ(run("apps").out, "no\tmaps.desktop\tMaps and more\nyes\tzoo.desktop\t\n");
  const auto apps = nlohmann::json::parse(run("--json apps").out);
  EXPECT_EQ(apps, nlohmann::json::parse(R"([
    {"identifier": "maps.desktop", "name": "Maps\nand more", "icon": true, "ticked": false},
    {"identifier": "zoo.desktop", "name": "", "icon": false, "ticked": true}])"));
  EXPECT_EQ(nlohmann::json::parse(run("--json whitelist list").out), nlohmann::json::parse(R"([
    {"identifier": "not.installed", "ticked": false},
    {"identifier": "zoo.desktop", "ticked": true}])"));
}

TEST_F(ApplicationCommandsTest, SetsKeepTicksUnderNames) {
  EXPECT_THAT(run("whitelist set list").out, HasSubstr("no sets"));
  const Dictionary some{{"a", true}, {"b", "1"}, {"c", false}, {"d", "0"}};
  ASSERT_TRUE(files.save(SettingsFile::Whitelist, some));
  EXPECT_EQ(run("whitelist set save ' Work '").out, "2\tWork\n");
  run("whitelist toggle a");
  run("whitelist toggle e");
  EXPECT_EQ(run("whitelist set save home").out, "2\tWork\n2\thome\n");
  ASSERT_EQ(run("whitelist set use Work").status, 0);
  EXPECT_EQ(stored(), (Dictionary{{"a", true}, {"b", "1"}, {"c", false}, {"d", "0"}, {"e", false}}))
      << "no identifier leaves the file, and what is right already stays as it is";
  ASSERT_TRUE(files.save(SettingsFile::Whitelist, Dictionary{{"b", true}, {"z", 1}}));
  EXPECT_EQ(run("whitelist set use home").out, "yes\tb\nyes\te\nno\tz\n");
  EXPECT_EQ(run("whitelist set remove home").out, "2\tWork\n");
  for (const std::string command :
       {"use home", "remove home", "save ' '", "save \"$(printf 'a\\001')\""}) {
    EXPECT_EQ(run("whitelist set " + command).status, 1) << command;
  }
  const auto sets = root.path() / "data/wayloom/whitelist-sets.plist";
  writeBytes(sets, "damaged");
  EXPECT_EQ(run("whitelist set save new").out, "2\tnew\n");
  EXPECT_EQ(bytesOf(sets.string() + ".damaged-1"), "damaged");
}

TEST_F(ApplicationCommandsTest, RefusesWhatNoFileKeeps) {
  for (const std::string identifier :
       {"''", "\"$(printf 'a\\001b')\"", "\"$(printf '\\377')\"", ""}) {
    EXPECT_EQ(run("whitelist toggle " + identifier).status, 2) << identifier;
  }
  EXPECT_EQ(stored(), std::nullopt);
}

}  // namespace
}  // namespace wayloom
