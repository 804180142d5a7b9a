#include <sys/stat.h>

#include "platform/DesktopHomeScreen.h"
#include "platform/LocaleNames.h"
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
    return DesktopHomeScreen(lookup(), std::move(rasterizer));
  }
  EnvironmentLookup lookup() const {
    return [this](const char* name) -> const char* {
      const auto found = variables.find(name);
      return found == variables.end() ? nullptr : found->second.c_str();
    };
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
  const struct {
    const char *language, *all, *messages, *lang, *name;
  } cases[] = {
      {nullptr, nullptr, nullptr, nullptr, "Maps"},
      {nullptr, nullptr, nullptr, "sr_RS.UTF-8@latin", "Karte Srbije"},
      {nullptr, nullptr, nullptr, "sr_ME.UTF-8@latin", "Karte"},
      {nullptr, nullptr, nullptr, "sr_ME@cyrillic", "Карте"},
      {nullptr, nullptr, "zh_CN.UTF-8", "de_DE", "地图"},
      {nullptr, nullptr, nullptr, "zh_TW.UTF-8", "Maps"},
      {nullptr, "de_AT", "zh_CN", "sr", "Karten und Wege"},
      {"fr:de:sr", nullptr, nullptr, "sr_RS", "Karten und Wege"},
      {"fr:C:de", nullptr, nullptr, "sr_RS", "Maps"},
      {"::de", nullptr, nullptr, "en_GB", "Karten und Wege"},
      {"de", nullptr, nullptr, "C.UTF-8", "Maps"},
      {"de", "C", nullptr, "sr_RS", "Maps"},
  };
  for (const auto& test : cases) {
    variables.clear();
    if (test.language) variables["LANGUAGE"] = test.language;
    if (test.all) variables["LC_ALL"] = test.all;
    if (test.messages) variables["LC_MESSAGES"] = test.messages;
    if (test.lang) variables["LANG"] = test.lang;
    EXPECT_EQ(home().localizedName("maps.desktop"), test.name)
        << testing::PrintToString(localeNames(lookup()));
  }
}

TEST_F(DesktopHomeScreenTest, LeavesOutOnlyWhatSaysItIsNoApplication) {
  const struct {
    const char* lines;
    bool listed;
  } cases[] = {
      {"Type=Application\nName=a", true},
      {" Type = Application \r\nName=a", true},
      {"Type=Application\nName=a\nNoDisplay=true\nOnlyShowIn=Other;", true},
      {"Name=says nothing of its type", true},
      {"Type=Application", true},
      {"Type=Link\nName=a", false},
      {"Type=Directory\nName=a", false},
      {"Type=Application\nName=a\nHidden=true", false},
      {"Type=Application\nName=a\nHidden=false", true},
  };
  for (const auto& test : cases) {
    entry("own/applications/a.desktop", test.lines);
    EXPECT_EQ(home().identifiers({})->size(), test.listed ? 1U : 0U) << test.lines;
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
  EXPECT_EQ(screen.localizedName("../kept.desktop"), std::nullopt);
}

TEST_F(DesktopHomeScreenTest, OrdersByNameAndSeesWhatIsInstalledLater) {
  entry("own/applications/1.desktop", "Name=zebra");
  entry("own/applications/2.desktop", "Name=Apple");
  entry("own/applications/a.desktop", "Comment=nameless");
  entry("own/applications/A.desktop", "Comment=nameless, and another");
  const DesktopHomeScreen screen = home();
  EXPECT_THAT(*screen.identifiers({}),
              ElementsAre("A.desktop", "a.desktop", "2.desktop", "1.desktop"));
  EXPECT_EQ(screen.localizedName("a.desktop"), std::nullopt);
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
  fs::create_symlink("lost", applications / "lost.desktop");
  fs::create_symlink("self.desktop", applications / "self.desktop");
  for (int number = 0; number < 3000; ++number) {
    entry("own/applications/many/" + std::to_string(number) + ".desktop", "Name=One of many");
  }
  const auto identifiers = home().identifiers({});
  ASSERT_TRUE(identifiers);
  EXPECT_EQ(identifiers->size(), 3003U);
  EXPECT_THAT(*identifiers,
              testing::IsSupersetOf({"good.desktop", "huge.desktop", "\uFFFD\uFFFD.desktop",
                                     "many-0.desktop", "many-2999.desktop"}));
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
  const auto icon = [&](const char* path, const std::string& bytes) {
    writeBytes(root.path() / path, bytes);
  };
  icon("first/icons/hicolor/16/a.png", kPng + "16");
  icon("second/icons/hicolor/64/a.png", kPng + "64");
  icon("first/icons/hicolor/vector/a.svg", "<svg/>");
  icon("first/icons/hicolor/16/b.png", kPng + "16");
  icon("own/icons/hicolor/vector/b.svg", "<svg/>");
  icon("first/icons/zzz/x/c.png", kPng + "theme");
  icon("second/pixmaps/d.png", kPng + "loose");
  icon("second/pixmaps/e.png", "no picture");
  icon("secret/s.png", kPng);
  icon("second/pixmaps/large.png", kPng + std::string(5 << 20, 'x'));
  const struct {
    std::string name;
    std::optional<std::string> plain, drawn;
  } cases[] = {
      {"a", kPng + "64", kPng + "64"},
      {"b", kPng + "16", "drawn <svg/>"},
      {"c", kPng + "theme", kPng + "theme"},
      {"d", kPng + "loose", kPng + "loose"},
      {"d.png", kPng + "loose", kPng + "loose"},
      {"e", std::nullopt, "drawn no picture"},
      {"s", std::nullopt, std::nullopt},
      {"large", std::nullopt, std::nullopt},
      {"../pixmaps/d", std::nullopt, std::nullopt},
      {(root.path() / "second/pixmaps/d.png").string(), kPng + "loose", kPng + "loose"},
      {"/", std::nullopt, std::nullopt},
      {"", std::nullopt, std::nullopt},
  };
  for (const auto& test : cases) {
    entry("own/applications/it.desktop", "Icon=" + test.name);
    EXPECT_EQ(home().iconPng("it.desktop"), test.plain) << test.name;
    EXPECT_EQ(home(draw).iconPng("it.desktop"), test.drawn) << test.name;
  }
  EXPECT_EQ(home(draw).iconPng("unknown.desktop"), std::nullopt);
}

}  // namespace
}  // namespace wayloom
