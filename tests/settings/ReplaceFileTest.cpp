#include <cerrno>
#include <csignal>
#include <functional>
#include <sys/resource.h>
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

fs::perms permissionsOf(const fs::path& path) {
  return fs::status(path).permissions();
}

TEST_F(ReplaceFileTest, NewContentsAreOnDiskBeforeTheyTakeTheName) {
  std::vector<std::string> order;
  std::vector<std::string> names;
  mFiles.before = [&](const std::string& call) {
    if (call != "open" && call != "write") order.push_back(call);
    for (const auto& entry : fs::directory_iterator(mFolder.path())) {
      if (call == "sync file") names.push_back(entry.path().filename().string());
    }
  };
  ASSERT_TRUE(replaceFile(mOld, "new", mFiles));
  ASSERT_TRUE(replaceFile(mOld, "", mFiles));
  EXPECT_EQ(bytesOf(mOld), "");
  const std::vector<std::string> once{"short write", "sync file", "rename", "sync folder"};
  EXPECT_EQ(std::vector(order.begin(), order.begin() + 4), once);
  std::erase(names, "file.plist");
  ASSERT_EQ(names.size(), 2U) << "temporaries stand beside the file";
  EXPECT_NE(names[0], names[1]) << "a temporary's name can be guessed";
  EXPECT_TRUE(isTemporaryFor("file.plist", names[0])) << names[0];
  EXPECT_EQ(mFolder.entryCount(), 1u);
}

TEST_F(ReplaceFileTest, KnowsItsTemporariesByTheirWholeName) {
  EXPECT_TRUE(isTemporaryFor("a.plist", "a.plist.0123456789abcdef.tmp"));
  for (const char* name : {"a.plist", "a.plist.tmp", "a.plist.0123456789abcde.tmp",
                           "a.plist.0123456789abcdeg.tmp", "b.plist.0123456789abcdef.tmp",
                           "a.plist.0123456789abcdef.tmp~", "a.plist0123456789abcdef.tmp"}) {
    EXPECT_FALSE(isTemporaryFor("a.plist", name)) << name;
  }
}

TEST_F(ReplaceFileTest, CreatesMissingFoldersAndAReadableFileWhateverTheUmask) {
  for (const mode_t mask : {022, 077, 0777}) {
    const fs::path top = mFolder.path() / std::to_string(mask);
    const mode_t before = ::umask(mask);
    const Status result = replaceFile(top / "mobile/file.plist", "bytes", mFiles);
    ::umask(before);
    ASSERT_TRUE(result) << result.message();
    EXPECT_EQ(bytesOf(top / "mobile/file.plist"), "bytes");
    EXPECT_EQ(permissionsOf(top / "mobile/file.plist"), static_cast<fs::perms>(0644));
    EXPECT_EQ(permissionsOf(top), static_cast<fs::perms>(0755));
    EXPECT_EQ(permissionsOf(top / "mobile"), static_cast<fs::perms>(0755));
  }
  EXPECT_EQ(mFiles.calls["sync folder"], 9) << "each new folder's parent, and the file's folder";
}

TEST_F(ReplaceFileTest, KeepsThePermissionsOfTheFileItReplaces) {
  for (const auto mode : {0600, 0664, 0400}) {
    fs::permissions(mOld, static_cast<fs::perms>(mode));
    ASSERT_TRUE(replaceFile(mOld, "new"));
    EXPECT_EQ(permissionsOf(mOld), static_cast<fs::perms>(mode)) << std::oct << mode;
  }
}

TEST_F(ReplaceFileTest, KeepsExtendedAttributes) {
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

/// Runs `action` with files limited to 64 KiB, as on a disk that fills up within a write.
void withFullDisk(const std::function<void()>& action) {
  rlimit old = {};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
  const rlimit small{64 << 10, old.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  action();
  EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &old), 0);
  std::signal(SIGXFSZ, handler);
}

TEST_F(ReplaceFileTest, FailuresLeaveTheOldFileAndNothingBesideIt) {
  const auto expectFailure = [&](const std::string& what, int error) {
    Status result = done();
    withFullDisk([&] { result = replaceFile(mOld, std::string(100'000, 'x')); });
    EXPECT_FALSE(result) << what;
    EXPECT_THAT(result.message(), testing::HasSubstr(mOld.string())) << what;
    EXPECT_THAT(result.message(), testing::HasSubstr(std::generic_category().message(error)));
    EXPECT_EQ(bytesOf(mOld), "old") << what;
    EXPECT_EQ(mFolder.entryCount(), 1u) << what;
  };
  expectFailure("a full disk", EFBIG);

  for (const auto& [call, error] : {std::pair("sync file", EIO), std::pair("rename", EROFS),
                                    std::pair("open", EMFILE), std::pair("write", ENOSPC)}) {
    FailingFiles failing;
    failing.fault = {call, 1, error};
    const Status result = replaceFile(mOld, "new", failing);
    EXPECT_FALSE(result) << call;
    EXPECT_THAT(result.message(), testing::HasSubstr(std::generic_category().message(error)));
    EXPECT_EQ(bytesOf(mOld), "old") << call;
    EXPECT_EQ(mFolder.entryCount(), 1u) << call;
  }
}

TEST_F(ReplaceFileTest, FolderThatCannotBeSyncedIsReportedWithTheNewFileInPlace) {
  mFiles.fault = {"sync folder", 1, EIO};
  const Status result = replaceFile(mOld, "new", mFiles);
  EXPECT_THAT(result.message(), testing::HasSubstr("power cut"));
  EXPECT_EQ(bytesOf(mOld), "new");
  mFiles.fault = {"sync folder", 2, EINVAL};
  EXPECT_TRUE(replaceFile(mOld, "newer", mFiles)) << "a file system that cannot sync folders";
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
