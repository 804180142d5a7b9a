#include <clocale>
#include <cstdlib>

#include "settings/PropertyListFormat.h"
#include "settings/TextConversions.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

constexpr const char* kName = "comma_TEST";
constexpr const char* kDefinition =
    "comment_char %\nescape_char /\nLC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\n"
    "grouping 3;3\nEND LC_NUMERIC\n";

/// Puts the whole program under a locale that writes 1,5, which Qt does where the user's language
/// does so. The locale is made in `folder`; a machine need not have one installed.
void useCommas(const std::string& folder) {
  writeBytes(folder + "/definition", kDefinition);
  // It warns, and ends with 1, about the categories that are left at their defaults.
  const std::string command = "localedef -c -i '" + folder + "/definition' -f ANSI_X3.4-1968 '" +
                              folder + "/" + kName + "' >/dev/null 2>&1";
  [[maybe_unused]] const int status = std::system(command.c_str());
  ::setenv("LOCPATH", folder.c_str(), 1);
  ASSERT_NE(std::setlocale(LC_ALL, kName), nullptr);
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
}

TEST(LocaleTest, NumbersKeepTheirPointInTextsAndPropertyLists) {
  const TemporaryFolder folder;
  useCommas(folder.path().string());
  EXPECT_EQ(formatReal(-1234567.25), "-1234567.250000");
  EXPECT_EQ(doubleValue("48.858370"), 48.85837);
  EXPECT_EQ(doubleValue("48,858370"), 48);
  EXPECT_EQ(intValue("1.234"), 1);
  const PropertyList value = PropertyList::Dictionary{{"lat", 48.85837}, {"count", 1234567}};
  const SerializedPropertyList serialized = serializePropertyList(value);
  ASSERT_TRUE(serialized.bytes);
  EXPECT_THAT(*serialized.bytes, testing::HasSubstr("<real>48.85837</real>"));
  EXPECT_THAT(*serialized.bytes, testing::HasSubstr("<integer>1234567</integer>"));
  EXPECT_EQ(parsePropertyList(*serialized.bytes).value, value);
  std::setlocale(LC_ALL, "C");
  ::unsetenv("LOCPATH");
}

}  // namespace
}  // namespace wayloom
