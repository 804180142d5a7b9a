#include "settings/PropertyListFile.h"
#include "settings/PropertyListFormat.h"
#include "tests/support/PowerCutFiles.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;
using Disk = PowerCutFiles::Disk;

const Dictionary kNew{{"mode", "1"}};

/// Replaces a file that held `old`; `mayBeLeft` judges each disk that a cut on the way could leave.
void replaceWithCuts(const std::string& old,
                     const std::function<bool(const Disk&, const std::string& path)>& mayBeLeft) {
  const TemporaryFolder folder;
  const std::filesystem::path path = folder.path() / "file.plist";
  if (!old.empty()) writeBytes(path, old);
  PowerCutFiles files;
  PropertyListFile file(path, PropertyListFile::Root::Dictionary, files);
  ASSERT_NE(file.read().state, PropertyListFile::State::Unreadable);
  int disks = 0;
  files.check = [&](const Disk& disk) {
    ++disks;
    EXPECT_TRUE(mayBeLeft(disk, path)) << "after a cut on the way, disk " << disks;
  };
  ASSERT_TRUE(file.write(kNew));
  EXPECT_GT(disks, 4);
  files.check = nullptr;
  const std::string written = *serializePropertyList(kNew).bytes;
  files.forEachDisk([&](const Disk& disk) {
    EXPECT_EQ(disk.at(path), written) << "said to be written, and lost in a cut";
    EXPECT_TRUE(mayBeLeft(disk, path));
  });
}

bool holds(const Disk& disk, const std::string& path, const std::string& bytes) {
  const auto found = disk.find(path);
  return found != disk.end() && found->second == bytes;
}

TEST(PowerCutTest, LeavesTheOldFileOrTheNewOne) {
  const std::string written = *serializePropertyList(kNew).bytes;
  const std::string old = *serializePropertyList(Dictionary{{"mode", "0"}}).bytes;
  replaceWithCuts(old, [&](const Disk& disk, const std::string& path) {
    return holds(disk, path, old) || holds(disk, path, written);
  });
  replaceWithCuts("", [&](const Disk& disk, const std::string& path) {
    return !disk.contains(path) || holds(disk, path, written);
  });
}

TEST(PowerCutTest, NeverTakesADamagedFileBeforeItsFurtherNameIsKept) {
  const std::string damaged = "<plist>what a person may still save";
  replaceWithCuts(damaged, [&](const Disk& disk, const std::string& path) {
    return holds(disk, path, damaged) || holds(disk, path + ".damaged-1", damaged);
  });
}

}  // namespace
}  // namespace wayloom
