#include <fstream>
#include <iterator>

#include "settings/SettingsFiles.h"
#include "tests/settings/TemporaryFolder.h"

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

TEST_F(SettingsFilesTest, ModeIsReadLeniently) {
  EXPECT_EQ(mFiles.readMasterMode(), Mode::Route) << "no file";
  const std::pair<PropertyList, Mode> kModes[] = {
      {"1", Mode::FixedLocation},  {"0", Mode::Route},          {"2", Mode::FixedLocation},
      {" 7", Mode::FixedLocation}, {"-1", Mode::FixedLocation}, {"abc", Mode::Route},
      {"", Mode::Route},           {1, Mode::FixedLocation},    {true, Mode::FixedLocation},
      {false, Mode::Route},        {0.5, Mode::Route},          {Dictionary{}, Mode::Route}};
  for (const auto& [stored, mode] : kModes) {
    putMode(stored);
    EXPECT_EQ(mFiles.readMasterMode(), mode) << testing::PrintToString(stored.value().index());
  }
}

TEST_F(SettingsFilesTest, WritingTheModeLeavesNothingElseInTheFile) {
  putMode("0");
  ASSERT_TRUE(mFiles.writeMasterMode(Mode::FixedLocation));
  EXPECT_EQ(mFiles.loadDictionary(SettingsFile::Master), (Dictionary{{"mode", "1"}}));
  ASSERT_TRUE(mFiles.writeMasterMode(Mode::Route));
  EXPECT_EQ(mFiles.loadDictionary(SettingsFile::Master), (Dictionary{{"mode", "0"}}));
}

TEST_F(SettingsFilesTest, DamagedMasterFileMeansRouteAndIsKept) {
  fs::create_directories(mFiles.path(SettingsFile::Master).parent_path());
  std::ofstream(mFiles.path(SettingsFile::Master)) << "<plist><dict><key>mode</key>";
  EXPECT_EQ(mFiles.readMasterMode(), Mode::Route);
  ASSERT_TRUE(mFiles.writeMasterMode(Mode::FixedLocation));
  EXPECT_EQ(mFiles.readMasterMode(), Mode::FixedLocation);
  fs::path kept = mFiles.path(SettingsFile::Master);
  kept += ".damaged-1";
  EXPECT_TRUE(fs::exists(kept));
}

TEST_F(SettingsFilesTest, SavingNoLocationSettingsWritesNothing) {
  EXPECT_TRUE(mFiles.saveLocationSettings(std::nullopt));
  EXPECT_FALSE(fs::exists(mFolder.path() / "phone"));
  EXPECT_EQ(mFiles.loadLocationSettings(), std::nullopt);

  const Dictionary settings{{"a", "1"}, {"s", "0.500000"}};
  ASSERT_TRUE(mFiles.saveLocationSettings(settings));
  ASSERT_TRUE(mFiles.saveLocationSettings(std::nullopt));
  EXPECT_EQ(mFiles.loadLocationSettings(), settings);
}

TEST_F(SettingsFilesTest, EmptyRootsAreWrittenAndAreNotNothing) {
  ASSERT_TRUE(mFiles.save(SettingsFile::Favorites, PropertyList::Array()));
  ASSERT_TRUE(mFiles.saveLocationSettings(Dictionary()));
  EXPECT_EQ(mFiles.loadArray(SettingsFile::Favorites), PropertyList::Array());
  EXPECT_EQ(mFiles.loadLocationSettings(), Dictionary());
}

TEST_F(SettingsFilesTest, RootOfTheWrongTypeIsNeitherSavedNorLoaded) {
  EXPECT_FALSE(mFiles.save(SettingsFile::Favorites, Dictionary()));
  EXPECT_FALSE(mFiles.save(SettingsFile::Route, PropertyList::Array()));
  EXPECT_FALSE(fs::exists(mFolder.path() / "phone"));
  ASSERT_TRUE(mFiles.save(SettingsFile::Favorites, PropertyList::Array{"x"}));
  EXPECT_EQ(mFiles.loadDictionary(SettingsFile::Favorites), std::nullopt);
}

}  // namespace
}  // namespace wayloom
