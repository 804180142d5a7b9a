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
  SingleInstanceTest() : before(qgetenv("XDG_RUNTIME_DIR")) {
    fs::create_directories(runtime);
    fs::permissions(runtime, fs::perms::owner_all);
    useRuntime(runtime.string());
  }
  ~SingleInstanceTest() override { qputenv("XDG_RUNTIME_DIR", before); }

  static void useRuntime(const std::string& path) { qputenv("XDG_RUNTIME_DIR", path.c_str()); }
  fs::path entry(const std::string& extension) const {
    for (const auto& found : fs::directory_iterator(runtime)) {
      if (found.path().extension() == extension) return found.path();
    }
    return {};
  }

  TemporaryRoot folder;
  fs::path runtime = folder.path() / "runtime";
  fs::path root = folder.path() / "phone";
  QByteArray before;
};

TEST_F(SingleInstanceTest, SecondStartTellsTheFirst) {
  SingleInstance first(root);
  ASSERT_EQ(first.start(), Start::First);
  QSignalSpy told(&first, &SingleInstance::startedAgain);
  for (const fs::path& spelling : {root, root / ".", folder.path() / "other/../phone"}) {
    told.clear();
    SingleInstance second(spelling);
    EXPECT_EQ(second.start(), Start::Second) << spelling;
    EXPECT_TRUE(told.count() == 1 || told.wait()) << spelling;
  }
  SingleInstance elsewhere(folder.path() / "another");
  EXPECT_EQ(elsewhere.start(), Start::First);
}

TEST_F(SingleInstanceTest, WhatACrashLeavesIsNoHindrance) {
  { EXPECT_EQ(SingleInstance(root).start(), Start::First); }
  const fs::path socket = entry(".lock").replace_extension(".socket");
  writeBytes(socket, "no socket");
  SingleInstance next(root);
  ASSERT_EQ(next.start(), Start::First);
  EXPECT_EQ(SingleInstance(root).start(), Start::Second);
}

TEST_F(SingleInstanceTest, FirstThatDoesNotListenIsSaidToBeSo) {
  SingleInstance first(root);
  ASSERT_EQ(first.start(), Start::First);
  fs::remove(entry(".socket"));
  EXPECT_EQ(SingleInstance(root).start(), Start::Unanswered);
}

TEST_F(SingleInstanceTest, OnlyTheUsersOwnClosedFolderIsTrusted) {
  const fs::path open = folder.path() / "open", link = folder.path() / "link";
  fs::create_directories(open);
  fs::permissions(open, fs::perms::owner_all | fs::perms::group_exec);
  fs::create_directory_symlink(runtime, link);
  for (const std::string& untrusted : {open.string(), link.string(), std::string("relative"),
                                       std::string(), (folder.path() / "missing").string()}) {
    useRuntime(untrusted);
    SingleInstance first(root), second(root);
    EXPECT_EQ(first.start(), Start::First) << untrusted;
    EXPECT_EQ(second.start(), Start::First) << untrusted;
  }
  EXPECT_TRUE(fs::is_empty(open) && fs::is_empty(runtime));
}

TEST_F(SingleInstanceTest, NobodyElseMayEnterItsFiles) {
  SingleInstance first(root);
  ASSERT_EQ(first.start(), Start::First);
  for (const char* extension : {".lock", ".socket"}) {
    struct stat status {};
    ASSERT_EQ(lstat(entry(extension).c_str(), &status), 0) << extension;
    EXPECT_EQ(status.st_mode & 077, 0U) << extension;
  }
}

}  // namespace
}  // namespace wayloom
