#include "regions/OwnRegions.h"
#include "regions/RegionWriter.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

using testing::HasSubstr;

TEST(OwnRegionsTest, ComeAndGoWithoutTouchingThoseOfTheProgram) {
  const TemporaryFolder given;
  const TemporaryFolder folder;
  // As typed with a slash at its end.
  const std::filesystem::path own = folder.path() / "";
  for (const auto& path : {given.path() / "theirs.region", folder.path() / "mine.region"}) {
    auto writer = RegionWriter::create(path, {"name", "", {0, 0, 1, 1}});
    ASSERT_TRUE(writer && writer->commit());
  }
  const RegionStore store({own, given.path()});
  const struct {
    std::string name;
    const char* refusesToMake;
    const char* refusesToRemove;
  } cases[] = {
      {"mine", "", ""},
      {"new", "", "there is no region new"},
      {"theirs", "would be hidden", "comes with the program and stays"},
      {"", "needs a name", "needs a name"},
      {"../theirs", "dot", "dot"},
      {"a/b", "slashes", "slashes"},
      {"a\xff", "control characters", "control characters"},
      {std::string(121, 'a'), "too long", "too long"},
  };
  for (const auto& test : cases) {
    const auto made = newRegionPath(own, test.name, store);
    EXPECT_EQ(made.message().empty(), !*test.refusesToMake) << test.name;
    EXPECT_THAT(made.message(), HasSubstr(test.refusesToMake)) << test.name;
    const auto removed = removeRegion(own, test.name, store);
    EXPECT_EQ(removed.message().empty(), !*test.refusesToRemove) << test.name;
    EXPECT_THAT(removed.message(), HasSubstr(test.refusesToRemove)) << test.name;
  }
  EXPECT_EQ(folder.entryCount(), 0u);
  EXPECT_EQ(given.entryCount(), 1u);
}

}  // namespace
}  // namespace wayloom
