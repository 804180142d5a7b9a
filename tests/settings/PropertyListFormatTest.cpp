#include <cmath>
#include <limits>

#include "settings/PropertyListFormat.h"

namespace wayloom {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using Value = PropertyList::Value;

std::string xml(const PropertyList& value) {
  SerializedPropertyList serialized = serializePropertyList(value);
  EXPECT_TRUE(serialized.bytes) << serialized.problem;
  return serialized.bytes.value_or("");
}

PropertyList throughXml(const PropertyList& value) {
  const std::string bytes = xml(value);
  ParsedPropertyList parsed = parsePropertyList(bytes);
  EXPECT_TRUE(parsed.value) << parsed.damage << " in\n" << bytes;
  return parsed.value.value_or("nothing");
}

std::string document(const std::string& content) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + content +
         "</plist>";
}

// What XML can hold reads back as it was: OtherReadersTest.
TEST(PropertyListFormatTest, WhatXmlCannotHoldBecomesTheNearestThatItCan) {
  const std::string kMark = "\uFFFD";
  const std::pair<std::string, std::string> texts[] = {
      {std::string("a\0b", 3), "a" + kMark + "b"},
      {"\x01\x1f\uFFFE\uFFFF", kMark + kMark + kMark + kMark},
      {"x\xff", "x" + kMark},
      {"\xc3", kMark},
      {"\xc0\x80", kMark + kMark},
      {"\xed\xa0\x80", kMark + kMark + kMark},
      {"\xf4\x90\x80\x80", kMark + kMark + kMark + kMark}};
  for (const auto& [text, replaced] : texts) {
    EXPECT_EQ(throughXml(text), PropertyList(replaced)) << testing::PrintToString(text);
    EXPECT_EQ(throughXml(Dictionary{{text, 1}}), PropertyList(Dictionary{{replaced, 1}}))
        << testing::PrintToString(text);
  }
  const double kFirst = -63145526400, kLast = 252423993599;
  const std::pair<double, double> dates[] = {{0.75, 0},        {-0.25, -1},       {1e300, kLast},
                                             {-1e300, kFirst}, {std::nan(""), 0}, {kLast, kLast}};
  for (const auto& [seconds, kept] : dates) {
    const PropertyList read = throughXml(Value(PropertyList::Date{seconds}));
    EXPECT_EQ(read, PropertyList(Value(PropertyList::Date{kept}))) << seconds;
  }
}

TEST(PropertyListFormatTest, NoEntryIsLostWhenReplacedKeysCollide) {
  const Dictionary keys{
      {"k\x01", 1}, {"k\x02", 2}, {"k\xff", 3}, {"k\uFFFD", 4}, {"k\uFFFD\uFFFD", 5}};
  const PropertyList read = throughXml(keys);
  const auto* entries = read.get<Dictionary>();
  ASSERT_NE(entries, nullptr);
  ASSERT_EQ(entries->size(), 5u);
  EXPECT_EQ(entries->at("k\uFFFD"), PropertyList(4));
  EXPECT_EQ(entries->at("k\uFFFD\uFFFD"), PropertyList(5));
}

TEST(PropertyListFormatTest, FormsOfOtherWritersAreUnderstood) {
  const std::pair<std::string, PropertyList> documents[] = {
      {"\xEF\xBB\xBF" + document("<true/>"), true},
      {"<dict><key>a</key><true></true></dict>", Dictionary{{"a", true}}},
      {document("<!-- c --><integer> +5\n</integer>"), 5},
      {document("<integer>0x1F</integer>"), 31},
      {document("<real> 1e5 </real>"), 1e5},
      {document("<real>+Infinity</real>"), std::numeric_limits<double>::infinity()},
      {document("<string>a<![CDATA[<&]]>b<!-- c -->&#x1F697;</string>"), "a<&b🚗"},
      {document("<data>\n\tAQID\n\tBA==\n</data>"), Value(PropertyList::Data{{1, 2, 3, 4}})},
      {xml(Value(PropertyList::Uid{7})), Value(PropertyList::Uid{7})},
      {document("<dict><key>a</key><integer>1</integer><key>a</key><integer>2</integer></dict>"),
       Dictionary{{"a", 2}}}};
  for (const auto& [bytes, value] : documents) {
    const ParsedPropertyList parsed = parsePropertyList(bytes);
    ASSERT_TRUE(parsed.value) << parsed.damage << " in " << bytes;
    EXPECT_EQ(*parsed.value, value) << bytes;
  }
}

TEST(PropertyListFormatTest, DamagedXmlIsDamagedAndNotHalfRead) {
  std::vector<std::string> documents = {
      "",
      "x",
      document("<true/>") + "junk",
      document("<true/>") + document("<true/>"),
      "<!DOCTYPE plist PUBLIC \"x\" \"file:///etc/passwd\">" +
          document("<string>&x;</string>").substr(38),
      "<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><string>&a;</string></plist>",
      "<!DOCTYPE plist [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>"
      "<plist><string>&a;</string></plist>"};
  for (const char* const content :
       {"", "<true/><false/>", "<foo/>", "<array><foo/></array>", "<array>junk</array>",
        "junk<true/>", "<plist><true/></plist>", "<key>a</key>", "<array><key>a</key></array>",
        "<dict><true/></dict>", "<dict><key>a</key></dict>",
        "<dict><key>a</key><key>b</key></dict>", "<array></dict>", "<string><true/></string>",
        "<true>x</true>"}) {
    documents.push_back(document(content));
  }
  const std::pair<const char*, std::vector<const char*>> texts[] = {
      {"integer", {"", "1x", "1.5", "0x", "--1", "18446744073709551616", "-9223372036854775809"}},
      {"real", {"", "1,5", "abc"}},
      {"data", {"!!", "AAA", "A===", "AA==AAAA"}},
      {"date", {"2020-01-02", "2020-02-30T00:00:00Z", "2020-01-02T24:00:00Z"}},
      {"string", {"\xff", "\x01", "&#0;", "&bogus;"}}};
  for (const auto& [type, damaged] : texts) {
    const std::string tag = type;
    for (const char* const text : damaged) {
      documents.push_back(document("<" + tag + ">" + text + "</" + tag + ">"));
    }
  }
  const std::string sound = xml(Dictionary{{"points", Array{Dictionary{{"lat", 1.5}}, "x"}}});
  for (std::size_t length = 0; length + 1 < sound.size(); ++length) {
    documents.push_back(sound.substr(0, length));
  }
  for (const std::string& bytes : documents) {
    const ParsedPropertyList parsed = parsePropertyList(bytes);
    EXPECT_FALSE(parsed.value) << bytes;
    EXPECT_NE(parsed.damage, "") << bytes;
  }
}

TEST(PropertyListFormatTest, DepthNumberAndBytesAreLimitedAlikeForReadingAndWriting) {
  using testing::HasSubstr;
  PropertyList deepest = Array{};
  for (std::size_t depth = 1; depth < kMaximumPropertyListDepth; ++depth) deepest = Array{deepest};
  EXPECT_EQ(throughXml(deepest), deepest);
  EXPECT_FALSE(serializePropertyList(Array{deepest}).bytes);
  std::string open, elements;
  for (std::size_t i = 0; i < 1'000'000; ++i) open += "<array>";
  EXPECT_THAT(parsePropertyList(document(open)).damage, HasSubstr("deep"));

  const Array many(kMaximumPropertyListValues, PropertyList(true));
  EXPECT_THAT(serializePropertyList(many).problem, HasSubstr("large"));
  for (std::size_t i = 0; i < kMaximumPropertyListValues; ++i) elements += "<true/>";
  const std::string tooMany = document("<array>" + elements + "</array>");
  EXPECT_THAT(parsePropertyList(tooMany).damage, HasSubstr("many"));

  const std::string large(kMaximumPropertyListBytes, 'x');
  EXPECT_THAT(serializePropertyList(large).problem, HasSubstr("large"));
  EXPECT_THAT(parsePropertyList(document("<string>" + large + "</string>")).damage,
              HasSubstr("large"));
}

}  // namespace
}  // namespace wayloom
