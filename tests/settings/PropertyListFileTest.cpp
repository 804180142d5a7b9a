#include <sys/stat.h>

#include "settings/PropertyListFile.h"
#include "settings/PropertyListFormat.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;
using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using State = PropertyListFile::State;

constexpr const char* kDamaged = "<plist version=\"1.0\"><dict><key>a</key>";

class PropertyListFileTest : public testing::Test {
 protected:
  fs::path setAside(int number) const {
    return mPath.string() + ".damaged-" + std::to_string(number);
  }

  TemporaryFolder mFolder;
  fs::path mPath = mFolder.path() / "file.plist";
  PropertyListFile mFile{mPath, PropertyListFile::Root::Dictionary};
  const PropertyList mValue = Dictionary{{"enable", "1"}};
};

TEST_F(PropertyListFileTest, TellsMissingFromDamagedFromLoaded) {
  EXPECT_EQ(mFile.read().state, State::Missing);
  ASSERT_TRUE(mFile.write(mValue));
  EXPECT_EQ(mFile.read().state, State::Loaded);
  EXPECT_EQ(mFile.read().value, mValue);

  const std::pair<std::string, std::string> damages[] = {
      {"", "line 1"},
      {kDamaged, "line 1"},
      {"bplist00", "short"},
      {"<plist><array/></plist>", "no dictionary"}};
  for (const auto& [bytes, message] : damages) {
    writeBytes(mPath, bytes);
    const PropertyListFile::Contents contents = mFile.read();
    EXPECT_EQ(contents.state, State::Damaged) << bytes;
    EXPECT_THAT(contents.problem, testing::HasSubstr(message)) << bytes;
  }
  fs::resize_file(mPath, std::uintmax_t{1} << 40);
  EXPECT_THAT(mFile.read().problem, testing::HasSubstr("too large")) << "not parsed";
}

TEST_F(PropertyListFileTest, WhatIsNoFileIsUnreadableAndDoesNotBlock) {
  ASSERT_EQ(::mkfifo(mPath.c_str(), 0644), 0);
  EXPECT_THAT(mFile.read().problem, testing::HasSubstr("regular file"));
  fs::remove(mPath);
  fs::create_directories(mPath / "inner");
  EXPECT_THAT(mFile.read().problem, testing::HasSubstr("regular file"));
  EXPECT_FALSE(mFile.write(mValue));
  EXPECT_TRUE(fs::exists(mPath / "inner"));
}

TEST_F(PropertyListFileTest, EachDamagedFileIsKeptByTheWriteThatReplacesIt) {
  const std::string sound = *serializePropertyList(mValue).bytes;
  const std::string anotherRoot = *serializePropertyList(Array{"x"}).bytes;
  int kept = 0;
  for (const std::string& damaged : {std::string(kDamaged), std::string("second"), anotherRoot}) {
    writeBytes(mPath, damaged);
    ASSERT_TRUE(mFile.write(mValue));
    ASSERT_TRUE(mFile.write(mValue)) << "a sound file needs no keeping";
    EXPECT_EQ(bytesOf(setAside(++kept)), damaged);
    EXPECT_EQ(bytesOf(mPath), sound);
    EXPECT_EQ(mFolder.entryCount(), 1U + kept);
  }
}

TEST_F(PropertyListFileTest, RefusedValueChangesNothing) {
  writeBytes(mPath, kDamaged);
  PropertyList deep = Array{};
  for (std::size_t depth = 0; depth < kMaximumPropertyListDepth; ++depth) deep = Array{deep};
  for (const PropertyList& value : {PropertyList("text"), PropertyList(Dictionary{{"", deep}})}) {
    EXPECT_THAT(mFile.write(value).message(), testing::HasSubstr(mPath.string()));
  }
  EXPECT_EQ(bytesOf(mPath), kDamaged);
  EXPECT_EQ(mFolder.entryCount(), 1u);
}

TEST_F(PropertyListFileTest, WriteFailsWhenNoNumberIsFree) {
  for (int number = 1; number <= 999; ++number) writeBytes(setAside(number), "kept");
  writeBytes(mPath, "once more");
  EXPECT_THAT(mFile.write(mValue).message(), testing::HasSubstr("remove some"));
  EXPECT_EQ(bytesOf(mPath), "once more");
}

}  // namespace
}  // namespace wayloom
