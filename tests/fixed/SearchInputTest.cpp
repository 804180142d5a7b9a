#include "fixed/SearchInput.h"
#include "settings/TrimmedText.h"

namespace wayloom {
namespace {

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

}  // namespace
}  // namespace wayloom
