#include "fixed/SearchInput.h"
#include "settings/TrimmedText.h"

namespace wayloom {
namespace {

TEST(SearchInputTest, TellsNothingMalformedPositionsAndAddressesApart) {
  for (const char* text : {"", "  \t\n", "\u00A0\u3000"}) {
    EXPECT_TRUE(std::holds_alternative<EmptySearch>(parseSearchInput(text))) << text;
  }
  for (const char* text : {"#:48.85", "#:1,2,3", "#:", "#:1,2,"}) {
    EXPECT_TRUE(std::holds_alternative<MalformedCoordinateSearch>(parseSearchInput(text))) << text;
  }
  for (const char* text : {"#:-48.8,2.3", "\u00A0#:\u00A0-48.8\u00A0,\u00A02.3\u00A0",
                           "\u3000 #:\t-48.8 ,\u20032.3\n"}) {
    const SearchInput input = parseSearchInput(text);
    ASSERT_TRUE(std::holds_alternative<Coordinate>(input)) << text;
    EXPECT_EQ(std::get<Coordinate>(input), (Coordinate{-48.8, 2.3})) << text;
  }
  for (const char* text : {"Paris", "#1,2", "48.85,2.35", "# :1,2"}) {
    const SearchInput input = parseSearchInput("\u2028 " + std::string(text) + "\u0085 ");
    ASSERT_TRUE(std::holds_alternative<AddressSearch>(input)) << text;
    EXPECT_EQ(std::get<AddressSearch>(input).address, text);
  }
}

}  // namespace
}  // namespace wayloom
