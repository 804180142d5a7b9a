#include <atomic>
#include <nlohmann/json.hpp>
#include <thread>

#include "tests/support/ShellRun.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;
using testing::HasSubstr;

/// Runs the real program as a shell does, with files and applications of the test's own.
class ApplicationCommandsTest : public testing::Test {
 protected:
  ShellRun run(const std::string& arguments, const std::string& tag = "run") const {
    const auto path = [&](const char* name) { return (root.path() / name).string(); };
    return runInShell("LC_ALL=C HOME='" + path("home") + "' XDG_DATA_HOME= XDG_DATA_DIRS='" +
                          path("share") + "' '" WAYLOOMCTL "' --root '" + root.path().string() +
                          "' " + arguments,
                      root.path(), tag);
  }
  void install(const std::string& name, const std::string& lines) {
    writeBytes(root.path() / "share/applications" / name, "[Desktop Entry]\n" + lines);
  }
  std::optional<Dictionary> stored() const {
    return dictionaryIn(SettingsFiles(root.path()), SettingsFile::Whitelist);
  }

  TemporaryRoot root;
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

TEST_F(ApplicationCommandsTest, RefusesWhatNoFileKeepsAndNamesDamage) {
  for (const std::string identifier :
       {"''", "\"$(printf 'a\\001b')\"", "\"$(printf '\\377')\"", ""}) {
    EXPECT_EQ(run("whitelist toggle " + identifier).status, 2) << identifier;
  }
  EXPECT_EQ(stored(), std::nullopt);
  const auto path = SettingsFiles(root.path()).path(SettingsFile::Whitelist);
  writeBytes(path, "<plist>");
  EXPECT_THAT(run("whitelist list").err, HasSubstr("whitelist.plist is damaged"));
  EXPECT_EQ(run("whitelist toggle a").status, 0);
  EXPECT_EQ(bytesOf(path.string() + ".damaged-1"), "<plist>");
}

TEST_F(ApplicationCommandsTest, WritersAtTheSameTimeNeverTearAFileAndShellsLoseNothing) {
  // Every writer has a value of its own for each key it sets: a mixed file would show two of them.
  SettingsFiles files(root.path());
  const std::string name(5000, 'n');
  const auto whitelistOf = [](bool value) {
    Dictionary ticks;
    for (int number = 0; number < 500; ++number) ticks[std::to_string(number)] = value;
    return ticks;
  };
  ASSERT_TRUE(files.save(SettingsFile::Whitelist, whitelistOf(true)));
  ASSERT_TRUE(files.saveLocationSettings(Dictionary{{"latitude", "1"}, {"longitude", "1"}}));
  ASSERT_TRUE(files.save(SettingsFile::Favorites, PropertyList::Array()));

  const auto shell = [&](const std::string& tag, const std::string& place) {
    for (int turn = 0; turn < 8; ++turn) {
      EXPECT_EQ(run("fixed move " + place + "," + place, tag).status, 0);
      EXPECT_EQ(run("favorites add " + name + tag + " " + place + "," + place, tag).status, 0);
      EXPECT_EQ(run("whitelist toggle " + tag, tag).status, 0);
    }
  };
  std::thread one(shell, "one", "11"), two(shell, "two", "22");
  std::atomic<bool> over = false;
  std::jthread waiting([&] { one.join(), two.join(), over = true; });

  int turn = 0;
  while (!over) {
    const bool value = ++turn % 2 == 0;
    EXPECT_TRUE(files.save(SettingsFile::Whitelist, whitelistOf(value)));
    const SettingsFiles reader(root.path());
    for (const auto file :
         {SettingsFile::Location, SettingsFile::Whitelist, SettingsFile::Favorites}) {
      const auto contents = reader.file(file).read();
      ASSERT_EQ(contents.state, PropertyListFile::State::Loaded) << contents.problem;
    }
    const auto location = *dictionaryIn(reader, SettingsFile::Location);
    EXPECT_EQ(location.at("latitude"), location.at("longitude"));
    auto ticks = *dictionaryIn(reader, SettingsFile::Whitelist);
    ticks.erase("one"), ticks.erase("two");
    EXPECT_TRUE(ticks == whitelistOf(true) || ticks == whitelistOf(false)) << turn;
    const auto favorites = *arrayIn(reader, SettingsFile::Favorites);
    for (const auto& favorite : favorites) {
      const auto& entry = *favorite.get<Dictionary>();
      EXPECT_EQ(entry.at("latitude"), entry.at("longitude"));
      EXPECT_EQ(entry.at("name").get<std::string>()->substr(0, name.size()), name);
    }
  }
  waiting.join();
  EXPECT_GT(turn, 10) << "the core hardly wrote at all";
  EXPECT_EQ(arrayIn(files, SettingsFile::Favorites)->size(), 16U) << "the shells take turns";
  for (const auto& entry :
       std::filesystem::directory_iterator(files.path(SettingsFile::Whitelist).parent_path())) {
    if (entry.path().filename() == WriterTurns::kLockName) continue;
    EXPECT_EQ(entry.path().extension(), ".plist") << "left behind: " << entry.path();
  }
}

}  // namespace
}  // namespace wayloom
