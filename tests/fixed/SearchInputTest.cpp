#include "fixed/SearchInput.h"
#include "settings/TrimmedText.h"

namespace wayloom {
namespace {

TEST(SearchInput, TakesCoordinatesAsTheyAre) {
  const struct {
    const char* text;
    Coordinate coordinate;
  } cases[] = {
      {" #:48.85,2.35\n", {48.85, 2.35}},
      {"#:31.2304, 121.4737", {31.2304, 121.4737}},
      {"#:abc,def", {0, 0}},
      {"#:,", {0, 0}},
      {"#:-95,400.5x", {-95, 400.5}},
      {"#:1e2,nan", {100, 0}},
  };
  for (const auto& test : cases) {
    const SearchInput input = parseSearchInput(test.text);
    ASSERT_TRUE(std::holds_alternative<Coordinate>(input)) << test.text;
    EXPECT_EQ(std::get<Coordinate>(input), test.coordinate) << test.text;
  }
}

TEST(SearchInput, TellsNothingMalformedAndAddressesApart) {
  for (const char* text : {"", "  \t\n", "\u00A0\u3000"}) {
    EXPECT_TRUE(std::holds_alternative<EmptySearch>(parseSearchInput(text))) << text;
  }
  for (const char* text : {"#:48.85", "#:1,2,3", "#:", "#:1,2,"}) {
    EXPECT_TRUE(std::holds_alternative<MalformedCoordinateSearch>(parseSearchInput(text))) << text;
  }
  for (const char* text : {"Paris", "#1,2", "48.85,2.35", "# :1,2"}) {
    const SearchInput input = parseSearchInput("\u2028 " + std::string(text) + "\u0085 ");
    ASSERT_TRUE(std::holds_alternative<AddressSearch>(input)) << text;
    EXPECT_EQ(std::get<AddressSearch>(input).address, text);
  }
}

TEST(TrimmedText, LeavesMalformedTextAlone) {
  EXPECT_EQ(trimmedText("\xE3\x80"), "\xE3\x80");
  EXPECT_EQ(trimmedText(" \xC2"), "\xC2");
}

}  // namespace
}  // namespace wayloom
