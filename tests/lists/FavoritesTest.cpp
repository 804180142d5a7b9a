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

PropertyList place(const std::string& name) {
  return Dictionary{{"name", name}, {"latitude", "1.000000"}, {"longitude", "2.000000"}};
}

std::string names(const std::optional<PropertyList::Array>& entries) {
  std::string all;
  for (const PropertyList& entry : entries.value_or(PropertyList::Array())) {
    all += Favorites::nameOf(entry);
  }
  return all;
}

/// A list that was read, and the file that somebody else changed since.
class ChangedFavoritesTest : public testing::Test {
 protected:
  void begin(const std::string& read, const std::string& now) {
    save(read);
    ASSERT_TRUE(favorites.load());
    save(now);
  }
  void save(const std::string& all) {
    PropertyList::Array entries;
    for (const char c : all) entries.push_back(place(std::string(1, c)));
    ASSERT_TRUE(files.save(SettingsFile::Favorites, entries));
  }
  std::string stored() const { return names(arrayIn(files, SettingsFile::Favorites)); }

  TemporaryRoot root;
  SettingsFiles files{root.path()};
  Favorites favorites{files};
};

TEST_F(ChangedFavoritesTest, MovingKeepsWhatIsInTheFileNow) {
  const struct {
    const char* read;
    const char* now;
    std::size_t from, to;
    const char* stored;
  } cases[] = {
      {"abcd", "abcd", 0, 3, "bcda"},     {"abcd", "abcd", 3, 0, "dabc"},
      {"abcd", "abcd", 1, 2, "acbd"},     {"abcd", "abcd", 2, 2, "abcd"},
      {"abcd", "abcdef", 3, 1, "adbcef"}, {"abcd", "xabcd", 0, 2, "xbcad"},
      {"abcd", "abd", 0, 2, "bda"},       {"abcd", "cd", 3, 2, "cd"},
  };
  for (const auto& test : cases) {
    begin(test.read, test.now);
    ASSERT_TRUE(favorites.move(test.from, test.to)) << test.read << ' ' << test.now;
    EXPECT_EQ(stored(), test.stored) << test.read << ' ' << test.now;
    EXPECT_EQ(names(favorites.entries()), test.stored);
  }
}

TEST_F(ChangedFavoritesTest, WhatIsGoneIsNeitherRenamedNorMoved) {
  begin("abc", "xbc");
  EXPECT_THAT(favorites.rename(0, "new").message(), testing::HasSubstr("elsewhere"));
  EXPECT_EQ(names(favorites.entries()), "xbc") << "the list shows what is there";
  begin("abc", "xbc");
  EXPECT_THAT(favorites.move(0, 2).message(), testing::HasSubstr("elsewhere"));
  EXPECT_EQ(stored(), "xbc");
  begin("abc", "yabc");
  EXPECT_FALSE(favorites.rename(0, " \n"));
  ASSERT_TRUE(favorites.rename(0, " new "));
  EXPECT_EQ(stored(), "ynewbc");
}

TEST_F(ChangedFavoritesTest, AddsManyAtOnceWithoutThoseItHas) {
  begin("", "a");
  const Waypoints places{{"a", {1, 2}},   {"a", {1.0000004, 2}}, {"a", {1.000001, 2}},
                         {" b ", {1, 2}}, {"b", {1, 2}},         {" ", {3, 4}}};
  auto added = favorites.addAll(places, "Unknow");
  ASSERT_TRUE(added) << added.message();
  EXPECT_EQ(added->added, 3U);
  EXPECT_EQ(added->skipped, 3U);
  EXPECT_EQ(stored(), "aabUnknow");
  const auto before = files.currentVersion(SettingsFile::Favorites);
  EXPECT_EQ(favorites.addAll(places, "Unknow")->added, 0U);
  EXPECT_EQ(files.currentVersion(SettingsFile::Favorites), before) << "nothing is written";
}

}  // namespace
}  // namespace wayloom
