#include <sys/stat.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include "app/SingleInstance.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;
using Start = SingleInstance::Start;

struct SingleInstanceTest : testing::Test {
  SingleInstanceTest() {
    for (const fs::path& made : {runtime, cache}) {
      fs::create_directories(made);
      fs::permissions(made, fs::perms::owner_all);
    }
    useRuntime(runtime.string());
    qputenv("XDG_CACHE_HOME", cache.c_str());
  }
  ~SingleInstanceTest() override {
    qputenv("XDG_RUNTIME_DIR", runtimeBefore);
    qputenv("XDG_CACHE_HOME", cacheBefore);
  }

  static void useRuntime(const std::string& path) {
    if (path.empty()) {
      qunsetenv("XDG_RUNTIME_DIR");
    } else {
      qputenv("XDG_RUNTIME_DIR", path.c_str());
    }
  }
  fs::path socket() const {
    for (const auto& found : fs::directory_iterator(runtime)) {
      if (found.path().extension() == ".socket") return found.path();
    }
    return {};
  }
  void expectSecondTells(SingleInstance& first, const fs::path& spelling, const std::string& what) {
    QSignalSpy told(&first, &SingleInstance::startedAgain);
    SingleInstance second(spelling);
    EXPECT_EQ(second.start(), Start::Second) << what;
    EXPECT_TRUE(told.count() == 1 || told.wait()) << what;
  }

  QByteArray runtimeBefore = qgetenv("XDG_RUNTIME_DIR"), cacheBefore = qgetenv("XDG_CACHE_HOME");
  TemporaryRoot folder;
  fs::path runtime = folder.path() / "runtime";
  fs::path cache = folder.path() / "cache";
  fs::path settings = folder.path() / "phone";
};

TEST_F(SingleInstanceTest, SecondStartTellsTheFirst) {
  SingleInstance first(settings);
  ASSERT_EQ(first.start(), Start::First);
  for (const fs::path& spelling : {settings, settings / ".", folder.path() / "runtime/../phone"}) {
    expectSecondTells(first, spelling, spelling);
  }
  SingleInstance elsewhere(folder.path() / "another");
  EXPECT_EQ(elsewhere.start(), Start::First);
}

TEST_F(SingleInstanceTest, WhateverTheEnvironmentSaysThereIsOneFirst) {
  const fs::path open = folder.path() / "open", link = folder.path() / "link";
  fs::create_directories(open);
  fs::permissions(open, fs::perms::owner_all | fs::perms::group_exec);
  fs::create_directory_symlink(runtime, link);
  const std::string untrusted[] = {open, link, "relative", "", folder.path() / "missing"};
  for (const std::string& name : untrusted) {
    useRuntime(name);
    SingleInstance first(settings);
    ASSERT_EQ(first.start(), Start::First) << name;
    expectSecondTells(first, settings, name);
    useRuntime(runtime.string());
    expectSecondTells(first, settings, "another session's after " + name);
  }
  EXPECT_TRUE(fs::is_empty(open) && fs::is_empty(runtime));

  qputenv("XDG_CACHE_HOME", (folder.path() / "phone/file/cache").c_str());
  writeBytes(settings / "file", "no folder");
  useRuntime("");
  SingleInstance first(settings);
  ASSERT_EQ(first.start(), Start::First);
  EXPECT_EQ(SingleInstance(settings).start(), Start::Unanswered) << "nowhere to listen";
}

TEST_F(SingleInstanceTest, WhereNothingCanBeWrittenThereIsOneFirstAsWell) {
  writeBytes(folder.path() / "file", "no folder");
  SingleInstance first(folder.path() / "file/Preferences");
  ASSERT_EQ(first.start(), Start::First);
  expectSecondTells(first, folder.path() / "file/Preferences", "a file in the way");
}

TEST_F(SingleInstanceTest, WhatACrashLeavesIsNoHindrance) {
  { EXPECT_EQ(SingleInstance(settings).start(), Start::First); }
  const std::string left = bytesOf(settings / SingleInstance::kLockName);
  ASSERT_NE(left, "");
  writeBytes(left, "no socket");
  SingleInstance next(settings);
  ASSERT_EQ(next.start(), Start::First);
  EXPECT_EQ(SingleInstance(settings).start(), Start::Second);
}

TEST_F(SingleInstanceTest, FirstThatDoesNotListenIsSaidToBeSo) {
  SingleInstance first(settings);
  ASSERT_EQ(first.start(), Start::First);
  fs::remove(socket());
  EXPECT_EQ(SingleInstance(settings).start(), Start::Unanswered);
}

TEST_F(SingleInstanceTest, NobodyElseMayEnterItsFiles) {
  SingleInstance first(settings);
  ASSERT_EQ(first.start(), Start::First);
  for (const fs::path& file : {settings / SingleInstance::kLockName, socket()}) {
    struct stat status {};
    ASSERT_EQ(lstat(file.c_str(), &status), 0) << file;
    EXPECT_EQ(status.st_mode & 077, 0U) << file;
  }
}

}  // namespace
}  // namespace wayloom
