#include <iostream>
#include <sstream>

#include "cli/Arguments.h"
#include "regions/RegionWriter.h"
#include "route/RouteFile.h"
#include "tests/roads/AsciiRoads.h"
#include "tests/support/FailingFiles.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;
using Dictionary = PropertyList::Dictionary;
using Snapshot = std::map<std::string, std::string>;

const std::string kDrive = "route on --from 1,1 --to 1,1.008 --start 4000000000 --end 4000000600";

PropertyList favorite(const char* name) {
  return Dictionary{{"name", name}, {"latitude", "1.000000"}, {"longitude", "2.000000"}};
}

/// How the files stand before a command.
enum class Before { Nothing, AllOff, FixedOn, DriveOn, DamagedFavorites };

void prepare(const fs::path& root, Before before) {
  if (before == Before::Nothing) return;
  FailingFiles system;
  SettingsFiles files(root, SettingsFiles::kPatience, system);
  const char* const fixed = before == Before::FixedOn ? "1" : "0";
  const char* const drive = before == Before::DriveOn ? "1" : "0";
  const bool saved =
      files.writeMasterMode(before == Before::DriveOn ? Mode::Route : Mode::FixedLocation) &&
      files.save(
          SettingsFile::Location,
          Dictionary{{"enable", fixed}, {"latitude", "3"}, {"longitude", "4"}, {"a", "1"}}) &&
      files.save(SettingsFile::Favorites, PropertyList::Array{favorite("one"), favorite("two")}) &&
      files.save(SettingsFile::Whitelist, Dictionary{{"a", true}, {"b", false}}) &&
      RouteFile(files).change({},
                              {{{"enable", drive}, {"start", "2000000000"}, {"end", "2000000600"}},
                               RoutePoints::planned({{1, 1}, {1, 2}})});
  ASSERT_TRUE(saved);
  if (before == Before::DamagedFavorites)
    writeBytes(files.path(SettingsFile::Favorites), "<plist>");
}

Snapshot filesIn(const fs::path& root) {
  Snapshot files;
  std::error_code missing;
  for (const auto& entry :
       fs::directory_iterator(root / "var/mobile/Library/Preferences", missing)) {
    if (entry.path().filename() != WriterTurns::kLockName) {
      files[entry.path().filename().string()] = bytesOf(entry.path());
    }
  }
  return files;
}

/// Every command that writes, with every call on files failing once: afterwards each file is as it
/// was or as it shall be, the exit status and the message say which, and nothing is left beside it.
class FaultTest : public testing::TestWithParam<std::pair<Before, std::string>> {
 protected:
  struct Run {
    ExitStatus status;
    std::string error;
    Snapshot files;
    bool hasFailed;
  };

  void SetUp() override {
    const AsciiRoads roads({"A---B---C"});
    auto writer = RegionWriter::create(mRegions.path() / "a.region", {"a", "", {0, 0, 2, 2}});
    ASSERT_TRUE(writer && writeRoads(writer->database(), roads.network()) && writer->commit());
  }

  Run run(const FailingFiles::Fault& fault) const {
    const TemporaryRoot root;
    prepare(root.path(), GetParam().first);
    std::istringstream words(GetParam().second);
    std::vector<std::string> arguments{"--root", root.path(), "--regions", mRegions.path()};
    arguments.insert(arguments.end(), std::istream_iterator<std::string>(words), {});
    auto typed = parseArguments(arguments);
    FailingFiles files;
    files.fault = fault;
    CommandLine line(std::get<TypedCommand>(typed).options, files);
    std::ostringstream out, error;
    auto* const standardOut = std::cout.rdbuf(out.rdbuf());
    auto* const standardError = std::cerr.rdbuf(error.rdbuf());
    const ExitStatus status = std::get<TypedCommand>(typed).run(line);
    std::cout.rdbuf(standardOut);
    std::cerr.rdbuf(standardError);
    return {status, error.str(), filesIn(root.path()), files.hasFailed};
  }

  TemporaryFolder mRegions;
};

const FailingFiles::Fault kFaults[] = {
    {"open", 0, EMFILE},     {"open", 0, EACCES},        {"open", 0, EINTR},
    {"read", 0, EIO},        {"read", 0, EINTR},         {"short read", 0, 0},
    {"write", 0, ENOSPC},    {"write", 0, EIO},          {"write", 0, EINTR},
    {"short write", 0, 0},   {"sync file", 0, EIO},      {"sync file", 0, EINTR},
    {"sync folder", 0, EIO}, {"lock", 0, EIO},           {"lock", 0, EINTR},
    {"rename", 0, EIO},      {"rename", 0, ENOSPC},      {"link", 0, EIO},
    {"link", 0, EPERM},      {"make folder", 0, ENOSPC}, {"make folder", 0, EACCES},
};

TEST_P(FaultTest, LeavesEachFileOldOrNewAndSaysWhich) {
  const Snapshot before = [] {
    const TemporaryRoot root;
    prepare(root.path(), GetParam().first);
    return filesIn(root.path());
  }();
  const Run whole = run({});
  ASSERT_EQ(whole.status, ExitStatus::Done) << whole.error;
  ASSERT_NE(whole.files, before) << "the command changes nothing";

  int failed = 0;
  for (FailingFiles::Fault fault : kFaults) {
    for (fault.number = 1;; ++fault.number) {
      const Run cut = run(fault);
      if (!cut.hasFailed) break;
      ++failed;
      const std::string what = fault.call + ' ' + std::to_string(fault.number) + ", error " +
                               std::to_string(fault.error) + ": " + cut.error;
      for (const auto& [name, bytes] : cut.files) {
        const bool isOld = before.contains(name) && before.at(name) == bytes;
        const bool isNew = whole.files.contains(name) && whole.files.at(name) == bytes;
        EXPECT_TRUE(isOld || isNew) << name << " after " << what;
      }
      for (const auto& [name, bytes] : before) EXPECT_TRUE(cut.files.contains(name)) << what;
      if (cut.status == ExitStatus::Done) {
        EXPECT_EQ(cut.files, whole.files) << what;
      } else {
        const bool isHarmless = fault.error == EINTR || fault.error == 0;
        EXPECT_FALSE(isHarmless || cut.error.empty()) << what;
        const bool saysDone = cut.error.find("power cut") != std::string::npos;
        EXPECT_TRUE(cut.files != whole.files || saysDone) << what << " though all is done";
      }
    }
  }
  EXPECT_GT(failed, 20);
  std::cout << failed << " calls failed\n";
}

INSTANTIATE_TEST_SUITE_P(
    Commands, FaultTest,
    testing::Values(
        std::pair(Before::Nothing, "fixed on 1,2"), std::pair(Before::AllOff, "fixed on 1,2"),
        std::pair(Before::FixedOn, "fixed off"), std::pair(Before::AllOff, "fixed move 5,6"),
        std::pair(Before::AllOff, "fixed drift off --speed 0.5"),
        std::pair(Before::AllOff, "fixed speed 0.5"),
        std::pair(Before::AllOff, "favorites add three 5,6"),
        std::pair(Before::DamagedFavorites, "favorites add three 5,6"),
        std::pair(Before::AllOff, "favorites remove 1"),
        std::pair(Before::AllOff, "favorites choose 2"),
        std::pair(Before::AllOff, "whitelist toggle b"), std::pair(Before::AllOff, "mode route"),
        std::pair(Before::AllOff, kDrive), std::pair(Before::DriveOn, "route off")),
    [](const auto& test) { return "Number" + std::to_string(test.index + 1); });

}  // namespace
}  // namespace wayloom
