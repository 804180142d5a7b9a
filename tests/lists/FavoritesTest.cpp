#include "lists/Favorites.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

TEST(Favorites, AppendsToWhatTheFileHoldsNow) {
  const TemporaryRoot root;
  SettingsFiles files(root.path());
  Favorites favorites(files);
  ASSERT_TRUE(favorites.add(" Home\n", {57.7, -11.97}, "Unknow"));
  // Another program adds one meanwhile, with a name of its own kind of trouble.
  Favorites other(files);
  ASSERT_TRUE(other.add("<a&b> \u202E\u05D0\U0001F697", {0, 0}, "Unknow"));
  ASSERT_TRUE(favorites.add(" \t ", {-90, 180}, "Unbekannt"));

  const auto entry = [](const char* name, const char* latitude, const char* longitude) {
    return PropertyList(
        PropertyList::Dictionary{{"name", name}, {"latitude", latitude}, {"longitude", longitude}});
  };
  EXPECT_EQ(files.loadArray(SettingsFile::Favorites),
            (PropertyList::Array{entry("Home", "57.700000", "-11.970000"),
                                 entry("<a&b> \u202E\u05D0\U0001F697", "0.000000", "0.000000"),
                                 entry("Unbekannt", "-90.000000", "180.000000")}));
}

}  // namespace
}  // namespace wayloom
