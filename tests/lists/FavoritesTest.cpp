#include "lists/Favorites.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;

TEST(FavoritesTest, ChoosingKeepsOtherKeysOnlyWhileThePositionWasOn) {
  const TemporaryRoot root;
  SettingsFiles files(root.path());
  Favorites favorites(files);
  const PropertyList date{PropertyList::Value(PropertyList::Date{7})};
  const PropertyList chosen = Dictionary{{"name", "n"}, {"latitude", "1"}, {"longitude", "2"}};
  const Dictionary on{{"enable", "1"}, {"latitude", "9"}, {"longitude", "8"}};
  const Dictionary written{{"enable", "1"}, {"latitude", "1"}, {"longitude", "2"}};
  const PropertyList half = Dictionary{{"longitude", "2"}};
  const PropertyList real = Dictionary{{"name", 5}, {"latitude", 1.25}, {"longitude", "east"}};
  const Dictionary kept{
      {"enable", "1"}, {"a", "1"}, {"other", date}, {"latitude", "1"}, {"longitude", "2"}};
  const struct {
    const char* what;
    std::optional<Dictionary> location;
    PropertyList chosen;
    Dictionary written;
  } cases[] = {
      {"no file", std::nullopt, chosen, written},
      {"off: other keys are dropped", Dictionary{{"enable", "0"}, {"a", "1"}}, chosen, written},
      {"no enable key counts as off", Dictionary{{"a", "1"}}, chosen, written},
      {"on: other keys stay, whatever they are",
       Dictionary{{"enable", true}, {"a", "1"}, {"other", date}, {"latitude", "9"}}, chosen, kept},
      {"a missing coordinate takes its key out", on, half, {{"enable", "1"}, {"longitude", "2"}}},
      {"an entry that is no dictionary has neither", on, "only a text", {{"enable", "1"}}},
      {"values are written as they are stored",
       std::nullopt,
       real,
       {{"enable", "1"}, {"latitude", 1.25}, {"longitude", "east"}}},
  };
  for (const auto& test : cases) {
    std::filesystem::remove(files.path(SettingsFile::Location));
    ASSERT_TRUE(files.saveLocationSettings(test.location));
    ASSERT_TRUE(files.save(SettingsFile::Favorites, PropertyList::Array{"other", test.chosen}));
    ASSERT_TRUE(favorites.load());
    ASSERT_TRUE(favorites.choose(1)) << test.what;
    EXPECT_EQ(dictionaryIn(files, SettingsFile::Location), test.written) << test.what;
    EXPECT_FALSE(std::filesystem::exists(files.path(SettingsFile::Master))) << test.what;
  }
}

}  // namespace
}  // namespace wayloom
