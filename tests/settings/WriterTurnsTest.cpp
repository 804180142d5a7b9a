#include <csignal>
#include <future>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "settings/ReplaceFile.h"
#include "settings/WriterTurns.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class WriterTurnsTest : public testing::Test {
 protected:
  WriterTurns turns(std::chrono::milliseconds patience) const {
    return WriterTurns(mFolder.path(), FileSystem::machine(), patience);
  }

  TemporaryFolder mFolder;
  const fs::path mLock = mFolder.path() / WriterTurns::kLockName;
};

TEST_F(WriterTurnsTest, HoldsOffOtherProcessesAndThreadsUntilItsEnd) {
  WriterTurns mine = turns(50ms);
  WriterTurns other = turns(30ms);
  {
    const auto turn = mine.take();
    ASSERT_TRUE(turn);
    EXPECT_TRUE(mine.take()) << "whoever has it may take it again";
    EXPECT_FALSE(other.take());
    EXPECT_FALSE(std::async([&] { return static_cast<bool>(mine.take()); }).get());
    EXPECT_EQ(fs::status(mLock).permissions(), static_cast<fs::perms>(0600));
  }
  EXPECT_TRUE(other.take());
}

TEST_F(WriterTurnsTest, NamesAStoppedProcessThatKeepsTheTurn) {
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    WriterTurns mine = turns(10s);
    const auto turn = mine.take();
    [[maybe_unused]] const auto told = ::write(ready[1], "x", 1);
    ::raise(SIGSTOP);
    ::_exit(0);
  }
  char byte = 0;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  const auto refused = turns(50ms).take();
  EXPECT_THAT(refused.message(), testing::HasSubstr("process " + std::to_string(child) + ' '));
  ::kill(child, SIGCONT);
  EXPECT_TRUE(turns(10s).take());
  ::waitpid(child, nullptr, 0);
}

TEST_F(WriterTurnsTest, AReaderWhoLocksTheFolderKeepsNobodyWaiting) {
  const Descriptor folder(::open(mFolder.path().c_str(), O_RDONLY | O_DIRECTORY));
  ASSERT_EQ(::flock(folder.get(), LOCK_EX), 0);
  EXPECT_TRUE(turns(30ms).take());
}

TEST_F(WriterTurnsTest, RemovesOldTemporariesOfItsOwnFormOnly) {
  const auto old = fs::file_time_type::clock::now() - 2min;
  const struct {
    const char* name;
    bool isOld, stays;
  } cases[] = {
      {"com.quorvil.wl.master.plist.0123456789abcdef.tmp", true, false},
      {"com.quorvil.wl.route.plist.0000000000000000.tmp", false, true},
      {"com.quorvil.wl.master.plist.0123456789abcdeX.tmp", true, true},
      {"com.quorvil.wl.master.plist.damaged-1", true, true},
      {"com.example.plist.0123456789abcdef.tmp", true, true},
  };
  for (const auto& test : cases) {
    writeBytes(mFolder.path() / test.name, "x");
    if (test.isOld) fs::last_write_time(mFolder.path() / test.name, old);
  }
  ASSERT_TRUE(turns(1s).take());
  for (const auto& test : cases) {
    EXPECT_EQ(fs::exists(mFolder.path() / test.name), test.stays) << test.name;
  }
}

TEST_F(WriterTurnsTest, ALinkInTheLocksPlaceIsNotFollowed) {
  const fs::path elsewhere = mFolder.path() / "elsewhere";
  fs::create_symlink(elsewhere, mLock);
  EXPECT_FALSE(turns(30ms).take());
  EXPECT_FALSE(fs::exists(elsewhere));
}

TEST_F(WriterTurnsTest, BelongsToTheFoldersOwnerWhoeverWasThereFirst) {
  if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be somebody else";
  constexpr uid_t kOwner = 1000, kStranger = 2000;
  const fs::path file = mFolder.path() / "com.quorvil.wl.master.plist";
  ASSERT_EQ(::chown(mFolder.path().c_str(), kOwner, kOwner), 0);
  const auto ownerOf = [](const fs::path& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_uid : 0;
  };
  ASSERT_TRUE(turns(30ms).take());
  ASSERT_TRUE(replaceFile(file, "the superuser's"));
  EXPECT_EQ(ownerOf(mLock), kOwner);
  EXPECT_EQ(ownerOf(file), kOwner);

  ASSERT_EQ(::chown(mLock.c_str(), kStranger, kStranger), 0);
  ASSERT_EQ(::seteuid(kOwner), 0);
  const bool isTaken = static_cast<bool>(turns(30ms).take());
  ASSERT_EQ(::seteuid(0), 0);
  EXPECT_TRUE(isTaken);
  EXPECT_EQ(ownerOf(mLock), kOwner);
}

}  // namespace
}  // namespace wayloom
