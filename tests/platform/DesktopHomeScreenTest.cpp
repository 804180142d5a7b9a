#include <sys/stat.h>

#include "platform/DesktopHomeScreen.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using Texts = std::vector<std::string>;

const std::string kPng = "\x89PNG\r\n\x1a\n and so on";

/// A user's and a system's data folder with the files that a test puts there.
class DesktopHomeScreenTest : public testing::Test {
 protected:
  void entry(const std::string& path, const std::string& lines) {
    writeBytes(root.path() / path, "[Desktop Entry]\n" + lines + "\n");
  }
  DesktopHomeScreen home(IconRasterizer rasterizer = {}) {
    variables["HOME"] = (root.path() / "home").string();
    variables["XDG_DATA_HOME"] = (root.path() / "own").string();
    variables["XDG_DATA_DIRS"] =
        (root.path() / "first").string() + ":relative::" + (root.path() / "second").string();
    const auto lookup = [this](const char* name) -> const char* {
      const auto found = variables.find(name);
      return found == variables.end() ? nullptr : found->second.c_str();
    };
    return DesktopHomeScreen(lookup, std::move(rasterizer));
  }
  TemporaryRoot root;
  std::map<std::string, std::string> variables;
};

TEST_F(DesktopHomeScreenTest, ReadsNamesInTheUsersLanguage) {
  const std::string names =
      "Name=Maps\nName[sr]=Карте\nName[sr@latin]=Karte\nName[sr_RS@latin]=Karte Srbije\n"
      "Name[zh_CN]=地图\nName[de]=Karten\\sund Wege\n# Name[de]=no\n"
      "[Desktop Action new]\nName=New window\nName[fr]=Nouvelle";
  entry("first/applications/maps.desktop", names);
  using Variables = std::map<std::string, std::string>;
  const std::pair<Variables, const char*> cases[] = {
      {{}, "Maps"},
      {{{"LANG", "sr_RS.UTF-8@latin"}}, "Karte Srbije"},
      {{{"LANG", "sr_ME.UTF-8@latin"}}, "Karte"},
      {{{"LANG", "sr_ME@cyrillic"}}, "Карте"},
      {{{"LC_MESSAGES", "zh_CN.UTF-8"}, {"LANG", "de_DE"}}, "地图"},
      {{{"LANG", "zh_TW.UTF-8"}}, "Maps"},
      {{{"LC_ALL", "de_AT"}, {"LC_MESSAGES", "zh_CN"}, {"LANG", "sr"}}, "Karten und Wege"},
      {{{"LANGUAGE", "fr:de:sr"}, {"LANG", "sr_RS"}}, "Karten und Wege"},
      {{{"LANGUAGE", "fr:C:de"}, {"LANG", "sr_RS"}}, "Maps"},
      {{{"LANGUAGE", "::de"}, {"LANG", "en_GB"}}, "Karten und Wege"},
      {{{"LANGUAGE", "de"}, {"LANG", "C.UTF-8"}}, "Maps"},
      {{{"LANGUAGE", "de"}, {"LC_ALL", "C"}, {"LANG", "sr_RS"}}, "Maps"},
  };
  for (const auto& [given, name] : cases) {
    variables = given;
    EXPECT_EQ(home().localizedName("maps.desktop"), name) << testing::PrintToString(given);
  }
}

TEST_F(DesktopHomeScreenTest, LeavesOutOnlyWhatSaysItIsNoApplication) {
  const std::pair<const char*, std::size_t> cases[] = {
      {" Type = Application \r\nName=a", 1},
      {"Type=Application\nName=a\nNoDisplay=true\nOnlyShowIn=Other;", 1},
      {"Name=says nothing of its type", 1},
      {"Type=Link\nName=a", 0},
      {"Type=Application\nName=a\nHidden=true", 0},
  };
  for (const auto& [lines, listed] : cases) {
    entry("own/applications/a.desktop", lines);
    EXPECT_EQ(home().identifiers({})->size(), listed) << lines;
  }
}

TEST_F(DesktopHomeScreenTest, AUsersEntryStandsForTheSystemsEntry) {
  entry("second/applications/kde/edit.desktop", "Name=Second");
  entry("first/applications/kde-edit.desktop", "Name=First");
  entry("first/applications/gone.desktop", "Name=System");
  entry("own/applications/gone.desktop", "Hidden=true");
  entry("first/applications/kept.desktop", "Name=System");
  writeBytes(root.path() / "own/applications/kept.desktop", std::string("\x7f\x45\0\1binary", 10));
  const DesktopHomeScreen screen = home();
  EXPECT_THAT(*screen.identifiers({}), ElementsAre("kde-edit.desktop", "kept.desktop"));
  EXPECT_EQ(screen.localizedName("kde-edit.desktop"), "First");
  EXPECT_EQ(screen.localizedName("kept.desktop"), "System");
  EXPECT_EQ(screen.localizedName("gone.desktop"), std::nullopt);
}

TEST_F(DesktopHomeScreenTest, OrdersByNameAndSeesWhatIsInstalledLater) {
  entry("own/applications/1.desktop", "Name=zebra");
  entry("own/applications/2.desktop", "Name=Apple");
  entry("own/applications/a.desktop", "Comment=nameless");
  entry("own/applications/A.desktop", "Comment=nameless, and another");
  const DesktopHomeScreen screen = home();
  EXPECT_THAT(*screen.identifiers({}),
              ElementsAre("A.desktop", "a.desktop", "2.desktop", "1.desktop"));
  entry("own/applications/3.desktop", "Name=melon");
  EXPECT_EQ(screen.identifiers({})->size(), 5U);
  EXPECT_EQ(screen.localizedName("3.desktop"), "melon");
  EXPECT_EQ(screen.identifiers({.onlyActive = true}), std::nullopt);
  EXPECT_EQ(screen.identifiers({.debuggable = true}), Texts());
}

TEST_F(DesktopHomeScreenTest, OutlivesHostileFolders) {
  const fs::path applications = root.path() / "own/applications";
  entry("own/applications/good.desktop", "Name=Good");
  entry("own/applications/huge.desktop",
        "Name=Huge\nX=" + std::string(3 << 20, 'x') + "\nName[de]=y");
  entry("own/applications/\xff\x01.desktop", "Name=\xff\xfe");
  writeBytes(applications / "noise.desktop", std::string(100000, '\0') + "[Desktop Entry]");
  writeBytes(applications / "empty.desktop", "");
  writeBytes(applications / "no-entry.txt", "[Desktop Entry]\nName=a");
  ASSERT_EQ(::mkfifo((applications / "pipe.desktop").c_str(), 0600), 0);
  fs::create_directory(applications / "folder.desktop");
  fs::create_directory_symlink(applications, applications / "circle");
  fs::create_directory_symlink("..", applications / "up");
  fs::create_symlink("self.desktop", applications / "self.desktop");
  EXPECT_THAT(*home().identifiers({}), testing::UnorderedElementsAre("good.desktop", "huge.desktop",
                                                                     "\uFFFD\uFFFD.desktop"));
}

TEST_F(DesktopHomeScreenTest, FindsIconsAsThemesPlaceThem) {
  const auto draw = [](const std::string& bytes) { return "drawn " + bytes; };
  writeBytes(
      root.path() / "first/icons/hicolor/index.theme",
      "[Icon Theme]\nDirectories=16,64,vector,gone,../../../secret\n"
      "[16]\nSize=16\n[64]\nSize=64\n[vector]\nSize=128\nMinSize=8\nMaxSize=512\nType=Scalable\n"
      "[../../../secret]\nSize=64\n");
  writeBytes(root.path() / "first/icons/zzz/index.theme",
             "[Icon Theme]\nDirectories=x\n[x]\nSize=x\n");
  const std::pair<const char*, std::string> icons[] = {
      {"first/icons/hicolor/16/a.png", kPng + "16"},
      {"second/icons/hicolor/64/a.png", kPng + "64"},
      {"first/icons/hicolor/vector/a.svg", "<svg/>"},
      {"first/icons/hicolor/16/b.png", kPng + "16"},
      {"own/icons/hicolor/vector/b.svg", "<svg/>"},
      {"first/icons/zzz/x/c.png", kPng + "theme"},
      {"second/pixmaps/d.png", kPng + "loose"},
      {"second/pixmaps/e.png", "no picture"},
      {"secret/s.png", kPng},
      {"second/pixmaps/large.png", kPng + std::string(5 << 20, 'x')},
  };
  for (const auto& [path, bytes] : icons) writeBytes(root.path() / path, bytes);
  const struct {
    std::string name;
    std::optional<std::string> plain, drawn;
  } cases[] = {
      {"a", kPng + "64", kPng + "64"},
      {"b", kPng + "16", "drawn <svg/>"},
      {"c", kPng + "theme", kPng + "theme"},
      {"d.png", kPng + "loose", kPng + "loose"},
      {"e", std::nullopt, "drawn no picture"},
      {"s", std::nullopt, std::nullopt},
      {"large", std::nullopt, std::nullopt},
      {"../pixmaps/d", std::nullopt, std::nullopt},
      {(root.path() / "second/pixmaps/d.png").string(), kPng + "loose", kPng + "loose"},
      {"", std::nullopt, std::nullopt},
  };
  for (const auto& test : cases) {
    entry("own/applications/it.desktop", "Icon=" + test.name);
    EXPECT_EQ(home().iconPng("it.desktop"), test.plain) << test.name;
    EXPECT_EQ(home(draw).iconPng("it.desktop"), test.drawn) << test.name;
  }
}

}  // namespace
}  // namespace wayloom
