#include <fstream>
#include <sstream>

#include "places/PlaceText.h"

namespace wayloom {
namespace {

/// What a text was taken for, in the table's words.
std::string said(const PlaceText& text, const std::string& pasted) {
  if (const auto* name = std::get_if<PlaceName>(&text)) {
    return name->words == pasted ? "name" : "name:" + name->words;
  }
  if (const auto* code = std::get_if<ShortPlaceCode>(&text)) {
    return "code:" + code->code + '/' + code->place;
  }
  if (const auto* wrong = std::get_if<Failure>(&text)) {
    return wrong->message.empty() ? "silent" : "wrong";
  }
  return "position";
}

bool isPosition(const PlaceText& text, const std::string& expected) {
  std::istringstream numbers(expected);
  Coordinate wanted;
  double tolerance = 0.00001;
  numbers >> wanted.latitude >> wanted.longitude >> tolerance;
  const auto* position = std::get_if<Coordinate>(&text);
  return position && std::abs(position->latitude - wanted.latitude) <= std::max(tolerance, 1e-5) &&
         std::abs(position->longitude - wanted.longitude) <= std::max(tolerance, 1e-5);
}

std::string unescaped(std::string text) {
  for (const auto& [escape, character] : {std::pair("\\n", "\n"), std::pair("\\t", "\t")}) {
    for (auto at = text.find(escape); at != text.npos; at = text.find(escape)) {
      text.replace(at, 2, character);
    }
  }
  return text;
}

TEST(PlaceTextTest, TakesWhatPeoplePasteForWhatItIs) {
  std::ifstream table(PASTED_PLACES);
  int rows = 0;
  for (std::string line; std::getline(table, line);) {
    if (line.starts_with('#')) continue;
    std::istringstream columns(line);
    std::string kind, text, expected;
    std::getline(columns, kind, '\t');
    std::getline(columns, text, '\t');
    std::getline(columns, expected, '\t');
    const std::string pasted = unescaped(text);
    // "O" is the east where the rest is German, as it is to a German reader.
    const PlaceText read = readPlaceText(pasted, kind == "a name or nothing" ? "en" : "de");
    const bool isNumber = !expected.empty() && (std::isdigit(expected[0]) || expected[0] == '-');
    if (isNumber) {
      EXPECT_TRUE(isPosition(read, expected))
          << kind << ": " << text << " is " << said(read, pasted);
    } else {
      EXPECT_EQ(said(read, pasted), expected) << kind << ": " << text;
    }
    ++rows;
  }
  EXPECT_GT(rows, 250);
}

TEST(PlaceTextTest, OIsEastOrWestByTheReadersLanguageOnly) {
  const std::string text = "48,85 N 2,35 O";
  EXPECT_TRUE(isPosition(readPlaceText(text, "de-AT"), "48.85 2.35"));
  EXPECT_TRUE(isPosition(readPlaceText(text, "fr"), "48.85 -2.35"));
  EXPECT_TRUE(isPosition(readPlaceText(text, "es"), "48.85 -2.35"));
  EXPECT_EQ(said(readPlaceText(text, "ja"), text), "name");
}

TEST(PlaceTextTest, FailuresSayWhichNumberIsWrong) {
  const std::pair<const char*, const char*> cases[] = {
      {"95.5, 11", "latitude 95.5 is beyond 90 degrees"},
      {"57.7, -181", "longitude -181 is beyond 180 degrees"},
      {"https://maps.app.goo.gl/x", "link"},
      {"57°61'N 11°58'E", "less than 60"},
  };
  for (const auto& [text, sentence] : cases) {
    const PlaceText read = readPlaceText(text, "en");
    ASSERT_TRUE(std::holds_alternative<Failure>(read)) << text;
    EXPECT_THAT(std::get<Failure>(read).message, testing::HasSubstr(sentence));
  }
}

}  // namespace
}  // namespace wayloom
