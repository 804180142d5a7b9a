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

TEST(RegionStoreTest, FindsEachRegionInTheFirstFolderThatHasIt) {
  // Characters that mean something in a file address must not lead to another file.
  const std::string name = "a b%20?mode=rwc#ü.region";
  const TemporaryFolder own, installed;
  for (const auto* folder : {&own, &installed}) writeFilledRegion(folder->path() / name);
  writeFilledRegion(installed.path() / "other.region");
  const RegionStore store({own.path() / "missing", own.path(), installed.path()});
  ASSERT_EQ(store.regions().size(), 2u);
  EXPECT_EQ(store.regions()[0].path, own.path() / name);
  EXPECT_EQ(store.regions()[0].info, kAlps);
  EXPECT_EQ(store.regions()[1].path, installed.path() / "other.region");
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
  const Make pipe = [](const fs::path& path) { ::mkfifo(path.c_str(), 0600); };
  const Make link = [](const fs::path& path) { fs::create_symlink("nowhere", path); };
  const Make overwritten = [](const fs::path& path) {
    writeFilledRegion(path);
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(100) << std::string(8000, '\xff');
  };
  const std::pair<Make, const char*> cases[] = {
      {text(""), "not a region file"},
      {pipe, "not a file"},
      {link, "missing"},
      {overwritten, "damaged"},
      {sql("COMMIT; PRAGMA user_version = 1; BEGIN"), "version 1"},
      {sql("COMMIT; PRAGMA application_id = 7; BEGIN"), "not a region file"},
      {sql("DROP TABLE meta"), "damaged"},
      {sql("DELETE FROM meta WHERE key = 'name'"), "no name"},
      {sql("UPDATE meta SET value = hex(zeroblob(9999))"), "too long"},
      {sql("UPDATE meta SET value = 'nan' WHERE key = 'east'"), "bounds"},
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
  const fs::path path = folder.path() / "cut.region";
  writeFilledRegion(path);
  const std::string whole = bytesOf(path);
  for (std::size_t size = 0; size < whole.size(); size = size * 3 / 2 + 1) {
    writeBytes(path, whole.substr(0, size));
    const RegionStore store({folder.path()});
    EXPECT_TRUE(store.regions().empty()) << size;
    EXPECT_EQ(store.refused().size(), 1u) << size;
  }
}

TEST(RegionWriterTest, RefusesWhatItsReaderWouldRefuse) {
  const TemporaryFolder folder;
  const std::pair<const char*, RegionInfo> cases[] = {{"name.db", kAlps},
                                                      {"missing/folder.region", kAlps},
                                                      {"noname.region", {"", "", {}}},
                                                      {"bounds.region", {"a", "", {10, 0, 9, 1}}}};
  for (const auto& [name, info] : cases) {
    EXPECT_FALSE(RegionWriter::create(folder.path() / name, info)) << name;
  }
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

}  // namespace
}  // namespace wayloom
