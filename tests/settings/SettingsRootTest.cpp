#include <map>
#include <string>

#include "settings/SettingsRoot.h"

namespace wayloom {
namespace {

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
      {{}, {{"XDG_DATA_HOME", ""}, {"HOME", "/h"}}, "/h/.local/share/wayloom/phone"},
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
