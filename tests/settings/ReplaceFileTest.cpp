#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "settings/ReplaceFile.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// What the two calls below saw, and which of them is to fail next.
struct Calls {
  std::vector<std::string> order;
  std::vector<std::string> renamed;
  std::string failing;
  int error = 0;

  bool fail(const std::string& call) {
    order.push_back(call);
    errno = call == failing ? error : errno;
    return call == failing;
  }
};
Calls* gCalls = nullptr;

}  // namespace

// They take the place of the system's own in this program, so that a disk can fail on demand.
extern "C" int fsync(int descriptor) {
  struct stat status = {};
  ::fstat(descriptor, &status);
  if (gCalls != nullptr && gCalls->fail(S_ISDIR(status.st_mode) ? "sync folder" : "sync file")) {
    return -1;
  }
  return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

extern "C" int rename(const char* from, const char* to) noexcept {
  if (gCalls != nullptr) {
    gCalls->renamed.emplace_back(from);
    if (gCalls->fail("rename")) {
      return -1;
    }
  }
  return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

namespace wayloom {
namespace {

namespace fs = std::filesystem;

class ReplaceFileTest : public testing::Test {
 protected:
  ReplaceFileTest() {
    gCalls = &mCalls;
    writeBytes(mOld, "old");
  }
  ~ReplaceFileTest() override { gCalls = nullptr; }

  TemporaryFolder mFolder;
  fs::path mOld = mFolder.path() / "file.plist";
  Calls mCalls;
};

fs::perms permissionsOf(const fs::path& path) {
  return fs::status(path).permissions();
}

TEST_F(ReplaceFileTest, NewContentsAreOnDiskBeforeTheyTakeTheName) {
  ASSERT_TRUE(replaceFile(mOld, "new"));
  ASSERT_TRUE(replaceFile(mOld, ""));
  EXPECT_EQ(bytesOf(mOld), "");
  const std::vector<std::string> once{"sync file", "rename", "sync folder"};
  EXPECT_EQ(std::vector(mCalls.order.begin(), mCalls.order.begin() + 3), once);
  ASSERT_EQ(mCalls.renamed.size(), 2u);
  EXPECT_NE(mCalls.renamed[0], mCalls.renamed[1]) << "a temporary's name can be guessed";
  EXPECT_EQ(fs::path(mCalls.renamed[0]).parent_path(), mFolder.path());
  EXPECT_EQ(mFolder.entryCount(), 1u);
}

TEST_F(ReplaceFileTest, CreatesMissingFoldersAndAReadableFile) {
  const fs::path path = mFolder.path() / "var/mobile/file.plist";
  const mode_t mask = ::umask(022);
  const Status result = replaceFile(path, "bytes");
  ::umask(mask);
  ASSERT_TRUE(result) << result.message();
  EXPECT_EQ(bytesOf(path), "bytes");
  EXPECT_EQ(permissionsOf(path), static_cast<fs::perms>(0644));
}

TEST_F(ReplaceFileTest, KeepsThePermissionsOfTheFileItReplaces) {
  for (const auto mode : {0600, 0664, 0400}) {
    fs::permissions(mOld, static_cast<fs::perms>(mode));
    ASSERT_TRUE(replaceFile(mOld, "new"));
    EXPECT_EQ(permissionsOf(mOld), static_cast<fs::perms>(mode)) << std::oct << mode;
  }
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

  for (const auto& [call, error] : {std::pair("sync file", EIO), std::pair("rename", EROFS)}) {
    mCalls.failing = call;
    mCalls.error = error;
    const Status result = replaceFile(mOld, "new");
    EXPECT_FALSE(result) << call;
    EXPECT_THAT(result.message(), testing::HasSubstr(std::generic_category().message(error)));
    EXPECT_EQ(bytesOf(mOld), "old") << call;
    EXPECT_EQ(mFolder.entryCount(), 1u) << call;
  }
}

TEST_F(ReplaceFileTest, FolderThatCannotBeSyncedIsReportedWithTheNewFileInPlace) {
  mCalls.failing = "sync folder";
  mCalls.error = EIO;
  const Status result = replaceFile(mOld, "new");
  EXPECT_THAT(result.message(), testing::HasSubstr("power cut"));
  EXPECT_EQ(bytesOf(mOld), "new");
  mCalls.error = EINVAL;
  EXPECT_TRUE(replaceFile(mOld, "newer")) << "a file system that cannot sync folders";
}

TEST_F(ReplaceFileTest, TargetsThatNoFileCanTake) {
  fs::create_directories(mFolder.path() / "folder/inner");
  for (const char* const name : {"folder", "file.plist/below", "file.plist/far/below"}) {
    const Status result = replaceFile(mFolder.path() / name, "new");
    EXPECT_FALSE(result) << name;
    EXPECT_THAT(result.message(), testing::HasSubstr(name));
  }
  EXPECT_EQ(mFolder.entryCount(), 2u);
  EXPECT_EQ(bytesOf(mOld), "old");
  EXPECT_FALSE(replaceFile("/proc/wayloom/file.plist", "new")) << "a folder nobody can write to";
}

}  // namespace
}  // namespace wayloom
