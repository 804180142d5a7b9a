#include <fstream>
#include <iterator>

#include "settings/SettingsFiles.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;
using Dictionary = PropertyList::Dictionary;

class SettingsFilesTest : public testing::Test {
 protected:
  void putMode(const PropertyList& mode) {
    ASSERT_TRUE(mFiles.save(SettingsFile::Master, Dictionary{{"mode", mode}, {"other", "x"}}));
  }

  TemporaryFolder mFolder;
  SettingsFiles mFiles{mFolder.path() / "phone"};
};

TEST_F(SettingsFilesTest, EachFileStandsWhereOtherProgramsLookForIt) {
  const fs::path folder = mFolder.path() / "phone/var/mobile/Library/Preferences";
  const std::pair<SettingsFile, const char*> kFiles[] = {
      {SettingsFile::Master, "com.quorvil.wl.master.plist"},
      {SettingsFile::Location, "com.quorvil.wl.location.plist"},
      {SettingsFile::Route, "com.quorvil.wl.route.plist"},
      {SettingsFile::Favorites, "com.quorvil.wl.favorites.plist"},
      {SettingsFile::Whitelist, "com.quorvil.wl.whitelist.plist"}};
  for (const auto& [name, file] : kFiles) {
    EXPECT_EQ(mFiles.path(name), folder / file);
  }
  EXPECT_EQ(SettingsFiles("/").path(SettingsFile::Master),
            "/var/mobile/Library/Preferences/com.quorvil.wl.master.plist");
}

TEST_F(SettingsFilesTest, SavingNoLocationSettingsWritesNothing) {
  EXPECT_TRUE(mFiles.saveLocationSettings(std::nullopt));
  EXPECT_FALSE(fs::exists(mFolder.path() / "phone"));
  EXPECT_EQ(dictionaryIn(mFiles, SettingsFile::Location), std::nullopt);

  const Dictionary settings{{"a", "1"}, {"s", "0.500000"}};
  ASSERT_TRUE(mFiles.saveLocationSettings(settings));
  ASSERT_TRUE(mFiles.saveLocationSettings(std::nullopt));
  EXPECT_EQ(dictionaryIn(mFiles, SettingsFile::Location), settings);
}

}  // namespace
}  // namespace wayloom
