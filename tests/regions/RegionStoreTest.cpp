#include <fstream>
#include <functional>
#include <sys/stat.h>
#include <vector>

#include "regions/RegionStore.h"
#include "regions/RegionWriter.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

const RegionInfo kAlps{"Älps \"1\"; --", "© somebody", {9.4, 47.0, 9.7, 47.3}};

Status writeRegion(const fs::path& path, const std::string& statements) {
  auto writer = RegionWriter::create(path, kAlps);
  if (!writer) return writer.failure();
  if (auto status = writer->database().execute(statements); !status) return status;
  return writer->commit();
}

// A region of some pages, so that there is something to cut off or overwrite.
void writeFilledRegion(const fs::path& path) {
  const auto status = writeRegion(path,
                                  "CREATE TABLE filling(text TEXT);"
                                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                                  "WHERE i < 500) INSERT INTO filling SELECT hex(zeroblob(100)) "
                                  "FROM n");
  ASSERT_TRUE(status) << status.failure().message;
}

TEST(RegionStoreTest, FindsARegionAndWhatItSaysOfItself) {
  // Characters that mean something in a file address must not lead to another file.
  const TemporaryFolder folder;
  const fs::path path = folder.path() / "a b%20?mode=rwc#ü.region";
  writeFilledRegion(path);
  const RegionStore store({folder.path() / "missing", folder.path()});
  ASSERT_EQ(store.regions().size(), 1u);
  EXPECT_EQ(store.regions()[0].path, path);
  EXPECT_EQ(store.regions()[0].info, kAlps);
  EXPECT_TRUE(store.refused().empty());
}

TEST(RegionStoreTest, RefusesByNameWhatItCannotUse) {
  using Make = std::function<void(const fs::path&)>;
  const auto sql = [](const char* statements) -> Make {
    return [=](const fs::path& path) { (void)writeRegion(path, statements); };
  };
  const auto text = [](const char* bytes) -> Make {
    return [=](const fs::path& path) { writeBytes(path, bytes); };
  };
  const Make folder = [](const fs::path& path) { fs::create_directory(path); };
  const Make pipe = [](const fs::path& path) { ::mkfifo(path.c_str(), 0600); };
  const Make link = [](const fs::path& path) { fs::create_symlink("nowhere", path); };
  const Make overwritten = [](const fs::path& path) {
    writeFilledRegion(path);
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(100) << std::string(8000, '\xff');
  };
  const std::pair<Make, const char*> cases[] = {
      {text("not a database, but long enough to be "), "damaged"},
      {text(""), "not a region file"},
      {folder, "not a file"},
      {pipe, "not a file"},
      {link, "missing"},
      {overwritten, "damaged"},
      {sql("COMMIT; PRAGMA user_version = 1; BEGIN"), "version 1"},
      {sql("COMMIT; PRAGMA application_id = 7; BEGIN"), "not a region file"},
      {sql("DROP TABLE meta"), "damaged"},
      {sql("DELETE FROM meta WHERE key = 'name'"), "no name"},
      {sql("UPDATE meta SET value = hex(zeroblob(9999))"), "too long"},
      {sql("UPDATE meta SET value = 'nan' WHERE key = 'east'"), "bounds"},
      {sql("UPDATE meta SET value = '1e9' WHERE key = 'north'"), "bounds"},
      {sql("UPDATE meta SET value = '9.4x' WHERE key = 'west'"), "bounds"},
  };
  int number = 0;
  for (const auto& [make, reason] : cases) {
    const TemporaryFolder directory;
    const fs::path path = directory.path() / "bad.region";
    make(path);
    writeFilledRegion(directory.path() / "good.region");
    const RegionStore store({directory.path()});
    EXPECT_EQ(store.regions().size(), 1u) << "case " << number;
    ASSERT_EQ(store.refused().size(), 1u) << "case " << number;
    EXPECT_EQ(store.refused()[0].path, path);
    EXPECT_THAT(store.refused()[0].reason, HasSubstr(reason)) << "case " << number++;
  }
}

TEST(RegionStoreTest, SurvivesAFileCutAnywhere) {
  const TemporaryFolder folder;
  const fs::path whole = folder.path() / "whole";
  const fs::path path = folder.path() / "cut.region";
  writeFilledRegion(folder.path() / "whole.region");
  fs::rename(folder.path() / "whole.region", whole);
  for (std::uintmax_t size = 0; size < fs::file_size(whole); size = size * 3 / 2 + 1) {
    fs::copy_file(whole, path, fs::copy_options::overwrite_existing);
    fs::resize_file(path, size);
    const RegionStore store({folder.path()});
    EXPECT_TRUE(store.regions().empty()) << size;
    EXPECT_EQ(store.refused().size(), 1u) << size;
  }
}

TEST(RegionStoreTest, PrefersTheFileOfTheFirstDirectory) {
  const TemporaryFolder own;
  const TemporaryFolder installed;
  for (const auto* folder : {&own, &installed}) writeFilledRegion(folder->path() / "same.region");
  writeFilledRegion(installed.path() / "other.region");
  const RegionStore store({own.path(), installed.path()});
  ASSERT_EQ(store.regions().size(), 2u);
  EXPECT_EQ(store.regions()[0].path, own.path() / "same.region");
  EXPECT_EQ(store.regions()[1].path, installed.path() / "other.region");
}

TEST(RegionWriterTest, LeavesTheOldFileAndNothingElseWhenItIsNotCommitted) {
  const TemporaryFolder folder;
  const fs::path path = folder.path() / "kept.region";
  writeFilledRegion(path);
  const auto size = fs::file_size(path);
  {
    auto writer = RegionWriter::create(path, kAlps);
    ASSERT_TRUE(writer);
    ASSERT_TRUE(writer->database().execute("CREATE TABLE more(a)"));
  }
  {
    auto unfinished = RegionWriter::create(path, kAlps);
    ASSERT_TRUE(unfinished);
    const auto statement = unfinished->database().prepare("SELECT 1");
    EXPECT_FALSE(unfinished->commit()) << "with a statement still open";
  }
  EXPECT_EQ(fs::file_size(path), size);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
}

TEST(RegionWriterTest, RefusesWhatItsReaderWouldRefuse) {
  const TemporaryFolder folder;
  const std::vector<std::pair<std::string, RegionInfo>> cases = {
      {"name.db", kAlps},
      {"missing/folder.region", kAlps},
      {"noname.region", {"", "", {}}},
      {"bounds.region", {"a", "", {10, 0, 9, 1}}},
  };
  for (const auto& [name, info] : cases) {
    EXPECT_FALSE(RegionWriter::create(folder.path() / name, info)) << name;
  }
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

}  // namespace
}  // namespace wayloom
