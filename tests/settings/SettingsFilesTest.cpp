#include <map>
#include <string>

#include "settings/SettingsFiles.h"
#include "settings/SettingsRoot.h"

namespace wayloom {
namespace {

TEST(SettingsFilesTest, EachFileStandsWhereOtherProgramsLookForIt) {
  const std::pair<SettingsFile, const char*> kFiles[] = {
      {SettingsFile::Master, "com.quorvil.wl.master.plist"},
      {SettingsFile::Location, "com.quorvil.wl.location.plist"},
      {SettingsFile::Route, "com.quorvil.wl.route.plist"},
      {SettingsFile::Favorites, "com.quorvil.wl.favorites.plist"},
      {SettingsFile::Whitelist, "com.quorvil.wl.whitelist.plist"}};
  for (const auto& [name, file] : kFiles) {
    EXPECT_EQ(SettingsFiles("/").path(name).string(),
              std::string("/var/mobile/Library/Preferences/") + file);
  }
}

TEST(SettingsRootTest, FirstChoiceThatIsGivenWins) {
  struct Choice {
    std::optional<std::filesystem::path> argument;
    std::map<std::string, const char*> environment;
    const char* root;
  };
  const Choice choices[] = {
      {"/", {{"WAYLOOM_ROOT", "/env"}}, "/"},
      {"", {{"WAYLOOM_ROOT", "/env"}}, "/env"},
      {{}, {{"WAYLOOM_ROOT", "/env"}, {"XDG_DATA_HOME", "/xdg"}}, "/env"},
      {{}, {{"WAYLOOM_ROOT", ""}, {"XDG_DATA_HOME", "/xdg"}}, "/xdg/wayloom/phone"},
      {{}, {{"XDG_DATA_HOME", "relative"}, {"HOME", "/h"}}, "/h/.local/share/wayloom/phone"},
      {{}, {{"HOME", "/h"}}, "/h/.local/share/wayloom/phone"}};
  for (const Choice& choice : choices) {
    const auto lookup = [&](const char* name) -> const char* {
      const auto found = choice.environment.find(name);
      return found == choice.environment.end() ? nullptr : found->second;
    };
    EXPECT_EQ(settingsRoot(choice.argument, lookup), choice.root);
  }
  const std::filesystem::path homeless =
      settingsRoot(std::nullopt, [](const char*) -> const char* { return nullptr; });
  EXPECT_TRUE(homeless.is_absolute()) << homeless;
}

}  // namespace
}  // namespace wayloom
