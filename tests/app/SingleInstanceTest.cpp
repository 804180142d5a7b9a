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

  static void useRuntime(const std::string& path) { qputenv("XDG_RUNTIME_DIR", path.c_str()); }
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
  SingleInstance unwritable(settings / "file/Preferences");
  ASSERT_EQ(unwritable.start(), Start::First);
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

TEST_F(SingleInstanceTest, NobodyElseMayEnterItsFiles) {
  SingleInstance first(settings);
  ASSERT_EQ(first.start(), Start::First);
  const auto others = fs::perms::group_all | fs::perms::others_all;
  const fs::path socket = *fs::directory_iterator(runtime);
  for (const fs::path& file : {settings / SingleInstance::kLockName, socket}) {
    EXPECT_EQ(fs::symlink_status(file).permissions() & others, fs::perms::none) << file;
  }
}

}  // namespace
}  // namespace wayloom
