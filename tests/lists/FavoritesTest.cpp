#include "lists/Favorites.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

PropertyList entry(const char* name, const char* latitude, const char* longitude) {
  return Dictionary{{"name", name}, {"latitude", latitude}, {"longitude", longitude}};
}

class FavoritesTest : public testing::Test {
 protected:
  std::optional<Array> stored() const { return files.loadArray(SettingsFile::Favorites); }
  void store(const Array& entries) { ASSERT_TRUE(files.save(SettingsFile::Favorites, entries)); }

  TemporaryRoot root;
  SettingsFiles files{root.path()};
  Favorites favorites{files};
};

TEST_F(FavoritesTest, AppendsToWhatTheFileHoldsNow) {
  ASSERT_TRUE(favorites.add(" Home\n", {57.7, -11.97}, "Unknow"));
  // Another program adds one meanwhile, with a name of its own kind of trouble.
  Favorites other(files);
  ASSERT_TRUE(other.add("<a&b> \u202E\u05D0\U0001F697", {0, 0}, "Unknow"));
  ASSERT_TRUE(favorites.add(" \t ", {-90, 180}, "Unbekannt"));

  EXPECT_EQ(stored(), (Array{entry("Home", "57.700000", "-11.970000"),
                             entry("<a&b> \u202E\u05D0\U0001F697", "0.000000", "0.000000"),
                             entry("Unbekannt", "-90.000000", "180.000000")}));
}

TEST_F(FavoritesTest, RemovingTheLastLeavesAnEmptyArrayAndUndoingPutsItBack) {
  const Array before{entry("a", "1", "2"), entry("b", "3", "4"), entry("a", "1", "2")};
  store(before);
  favorites.load();
  ASSERT_TRUE(favorites.removeAt(1));
  EXPECT_EQ(stored(), (Array{before[0], before[2]}));
  ASSERT_TRUE(favorites.insertAt(1, before[1]));
  EXPECT_EQ(stored(), before);
  for (int left = 3; left > 0; --left) ASSERT_TRUE(favorites.removeAt(0));
  EXPECT_EQ(stored(), Array());
}

TEST_F(FavoritesTest, ADamagedFileIsAnEmptyListAndIsSetAsideNotLost) {
  writeBytes(files.path(SettingsFile::Favorites), "<plist><array><dict>");
  favorites.load();
  EXPECT_TRUE(favorites.entries().empty());
  ASSERT_TRUE(favorites.add("New", {1, 2}, "Unknow"));
  EXPECT_EQ(stored(), (Array{entry("New", "1.000000", "2.000000")}));
  EXPECT_EQ(bytesOf(files.path(SettingsFile::Favorites).string() + ".damaged-1"),
            "<plist><array><dict>");
}

TEST_F(FavoritesTest, ChoosingKeepsOtherKeysOnlyWhileThePositionWasOn) {
  const PropertyList date{PropertyList::Value(PropertyList::Date{7})};
  const struct {
    const char* what;
    std::optional<Dictionary> location;
    PropertyList chosen;
    Dictionary written;
  } cases[] = {
      {"no file",
       std::nullopt,
       entry("n", "1.5", "-2"),
       {{"enable", "1"}, {"latitude", "1.5"}, {"longitude", "-2"}}},
      {"off: other keys are dropped",
       Dictionary{{"enable", "0"}, {"a", "1"}, {"s", "0.5"}, {"latitude", "9"}},
       entry("n", "1", "2"),
       {{"enable", "1"}, {"latitude", "1"}, {"longitude", "2"}}},
      {"no enable key counts as off",
       Dictionary{{"a", "1"}},
       entry("n", "1", "2"),
       {{"enable", "1"}, {"latitude", "1"}, {"longitude", "2"}}},
      {"on: other keys stay, whatever they are",
       Dictionary{{"enable", true}, {"a", "1"}, {"other", date}, {"latitude", "9"}},
       entry("n", "1", "2"),
       {{"enable", "1"}, {"a", "1"}, {"other", date}, {"latitude", "1"}, {"longitude", "2"}}},
      {"a missing coordinate takes its key out",
       Dictionary{{"enable", "1"}, {"latitude", "9"}, {"longitude", "8"}},
       Dictionary{{"name", "n"}, {"longitude", "2"}},
       {{"enable", "1"}, {"longitude", "2"}}},
      {"an entry that is no dictionary has neither",
       Dictionary{{"enable", "1"}, {"latitude", "9"}, {"longitude", "8"}},
       "only a text",
       {{"enable", "1"}}},
      {"values are written as they are stored",
       std::nullopt,
       Dictionary{{"name", 5}, {"latitude", 1.25}, {"longitude", "east"}},
       {{"enable", "1"}, {"latitude", 1.25}, {"longitude", "east"}}},
  };
  for (const auto& test : cases) {
    std::filesystem::remove(files.path(SettingsFile::Location));
    if (test.location) {
      ASSERT_TRUE(files.save(SettingsFile::Location, *test.location));
    }
    store({entry("other", "0", "0"), test.chosen});
    favorites.load();
    ASSERT_TRUE(favorites.choose(1)) << test.what;
    EXPECT_EQ(files.loadLocationSettings(), test.written) << test.what;
    EXPECT_FALSE(std::filesystem::exists(files.path(SettingsFile::Master))) << test.what;
  }
}

TEST_F(FavoritesTest, NamesAreEmptyUnlessTheyAreTexts) {
  store({Dictionary{}, Dictionary{{"name", 5}}, true, Array{}, entry("n", "", "")});
  favorites.load();
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(favorites.name(i), "") << i;
  EXPECT_EQ(favorites.name(4), "n");
}

}  // namespace
}  // namespace wayloom
