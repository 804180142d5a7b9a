#include "lists/Whitelist.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;

class WhitelistTest : public testing::Test {
 protected:
  std::optional<Dictionary> stored() { return files.loadDictionary(SettingsFile::Whitelist); }

  TemporaryRoot root;
  SettingsFiles files{root.path()};
  Whitelist whitelist{files};
};

TEST_F(WhitelistTest, KeysComeAtTheFirstTouchAndNeverGo) {
  whitelist.load();
  EXPECT_FALSE(whitelist.isTicked("com.example.maps"));
  ASSERT_TRUE(whitelist.toggle("com.example.maps"));
  EXPECT_EQ(stored(), (Dictionary{{"com.example.maps", true}}));
  ASSERT_TRUE(whitelist.toggle("com.example.Maps"));
  ASSERT_TRUE(whitelist.toggle("com.example.maps"));
  EXPECT_EQ(stored(), (Dictionary{{"com.example.Maps", true}, {"com.example.maps", false}}));
}

TEST_F(WhitelistTest, WhatIsNoBooleanReadsByItsValueAndBecomesTheOpposite) {
  const struct {
    PropertyList value;
    bool ticked;
  } cases[] = {
      {true, true},
      {false, false},
      {1, true},
      {0, false},
      {"1", true},
      {"0", false},
      {"yes", true},
      {"", false},
      {0.5, true},
      {"unreadable", false},
      {Dictionary{{"a", true}}, false},
      {PropertyList::Array{true}, false},
  };
  int number = 0;
  for (const auto& test : cases) {
    ++number;
    const Dictionary others{{"gone.application", 7}, {"other", PropertyList::Array{"kept"}}};
    Dictionary before = others;
    before.insert_or_assign("a", test.value);
    ASSERT_TRUE(files.save(SettingsFile::Whitelist, before));
    whitelist.load();
    EXPECT_EQ(whitelist.isTicked("a"), test.ticked) << "case " << number;
    ASSERT_TRUE(whitelist.toggle("a")) << "case " << number;
    Dictionary after = others;
    after.insert_or_assign("a", !test.ticked);
    EXPECT_EQ(stored(), after) << "case " << number;
  }
}

TEST_F(WhitelistTest, ADamagedFileIsEmptyAndSetAside) {
  for (const std::string damage :
       {"<plist><dict><key>a</key>", "", "bplist00\xff", "<plist><array/></plist>"}) {
    TemporaryRoot folder;
    SettingsFiles own(folder.path());
    const auto file = own.path(SettingsFile::Whitelist);
    writeBytes(file, damage);
    Whitelist list(own);
    list.load();
    EXPECT_TRUE(list.entries().empty()) << damage;
    ASSERT_TRUE(list.toggle("a")) << damage;
    EXPECT_EQ(own.loadDictionary(SettingsFile::Whitelist), (Dictionary{{"a", true}})) << damage;
    EXPECT_EQ(bytesOf(file.string() + ".damaged-1"), damage);
  }
}

TEST_F(WhitelistTest, AFailedWriteIsTold) {
  writeBytes(root.path() / "var", "a file where a folder belongs");
  whitelist.load();
  EXPECT_FALSE(whitelist.toggle("a"));
}

}  // namespace
}  // namespace wayloom
