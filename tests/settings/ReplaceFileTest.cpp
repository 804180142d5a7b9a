#include <sys/stat.h>
#include <sys/xattr.h>

#include "settings/ReplaceFile.h"
#include "tests/support/FailingFiles.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;

class ReplaceFileTest : public testing::Test {
 protected:
  ReplaceFileTest() { writeBytes(mOld, "old"); }

  TemporaryFolder mFolder;
  fs::path mOld = mFolder.path() / "file.plist";
  FailingFiles mFiles;
};

unsigned permissionsOf(const fs::path& path) {
  return static_cast<unsigned>(fs::status(path).permissions());
}

TEST_F(ReplaceFileTest, CreatesMissingFoldersAndAReadableFileWhateverTheUmask) {
  for (const mode_t mask : {022, 077, 0777}) {
    const fs::path top = mFolder.path() / std::to_string(mask);
    const mode_t before = ::umask(mask);
    const Status result = replaceFile(top / "mobile/file.plist", "bytes", mFiles);
    ::umask(before);
    ASSERT_TRUE(result) << result.message();
    EXPECT_EQ(bytesOf(top / "mobile/file.plist"), "bytes");
    EXPECT_EQ(permissionsOf(top / "mobile/file.plist"), 0644U);
    EXPECT_EQ(permissionsOf(top), 0755U);
    EXPECT_EQ(permissionsOf(top / "mobile"), 0755U);
  }
  EXPECT_EQ(mFiles.calls["sync folder"], 9) << "each new folder's parent, and the file's folder";
}

TEST_F(ReplaceFileTest, KeepsPermissionsAndExtendedAttributes) {
  for (const unsigned mode : {0600U, 0400U, 0664U}) {
    fs::permissions(mOld, static_cast<fs::perms>(mode));
    ASSERT_TRUE(replaceFile(mOld, "new"));
    EXPECT_EQ(permissionsOf(mOld), mode) << std::oct << mode;
  }
  if (::setxattr(mOld.c_str(), "user.origin", "atlas", 5, 0) != 0) {
    GTEST_SKIP() << "this file system has no extended attributes";
  }
  ASSERT_TRUE(replaceFile(mOld, "new"));
  char value[8] = {};
  ASSERT_EQ(::getxattr(mOld.c_str(), "user.origin", value, sizeof value), 5);
  EXPECT_STREQ(value, "atlas");
}

TEST_F(ReplaceFileTest, RefusesASymbolicLinkAndLeavesWhatItLeadsTo) {
  const fs::path link = mFolder.path() / "link.plist";
  fs::create_symlink(mOld, link);
  EXPECT_THAT(replaceFile(link, "new").message(), testing::HasSubstr("symbolic link"));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(bytesOf(mOld), "old");
  EXPECT_EQ(mFolder.entryCount(), 2u);
}

TEST_F(ReplaceFileTest, SaysWhatFailedAndNamesItsTemporariesForTheirRemoval) {
  bool isNamed = false;
  mFiles.before = [&](const std::string& call) {
    for (const auto& entry : fs::directory_iterator(mFolder.path())) {
      isNamed |= call == "rename" && isTemporaryFor("file.plist", entry.path().filename().string());
    }
  };
  mFiles.fault = {"rename", 1, EROFS};
  const std::string said = replaceFile(mOld, "new", mFiles).message();
  EXPECT_THAT(said, testing::HasSubstr(mOld.string()));
  EXPECT_THAT(said, testing::HasSubstr(std::generic_category().message(EROFS)));
  EXPECT_TRUE(isNamed);
}

TEST_F(ReplaceFileTest, GoesOnWhereFoldersCannotBeSynced) {
  mFiles.fault = {"sync folder", 1, EINVAL};
  EXPECT_TRUE(replaceFile(mOld, "new", mFiles));
  EXPECT_TRUE(mFiles.hasFailed);
}

TEST_F(ReplaceFileTest, TargetsThatNoFileCanTake) {
  fs::create_directories(mFolder.path() / "folder/inner");
  for (const char* const name : {"folder", "file.plist/below", "file.plist/far/below"}) {
    const Status result = replaceFile(mFolder.path() / name, "new");
    EXPECT_FALSE(result) << name;
    EXPECT_THAT(result.message(), testing::HasSubstr(fs::path(name).begin()->string()));
  }
  EXPECT_EQ(mFolder.entryCount(), 2u);
  EXPECT_EQ(bytesOf(mOld), "old");
  EXPECT_FALSE(replaceFile("/proc/wayloom/file.plist", "new")) << "a folder nobody can write to";
}

}  // namespace
}  // namespace wayloom
