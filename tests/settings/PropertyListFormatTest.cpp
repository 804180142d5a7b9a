#include <bit>
#include <cmath>
#include <limits>
#include <random>

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

TEST(PropertyListFormatTest, EveryTypeReadsBack) {
  using Integers = std::numeric_limits<std::int64_t>;
  const Dictionary none, inner{{"", "empty key"}, {"a", Array{}}, {"d", none}};
  const PropertyList empty = Array(), nested = Array{1, "x", inner, Array{Array{}}};
  const auto most = std::numeric_limits<std::uint64_t>::max();
  Array values{true,   false,           0,
               -1,     Integers::min(), Integers::max(),
               most,   48.85837,        "",
               "text", empty,           none,
               nested, inner,           Value(PropertyList::Uid{7})};
  for (const std::size_t size : {0, 1, 2, 3, 1000}) {
    values.push_back(Value(PropertyList::Data{std::vector<std::uint8_t>(size, 0xA5)}));
  }
  for (const double seconds : {0.0, -1.0, 789012345.0, -63113904000.0, 252423993599.0}) {
    values.push_back(Value(PropertyList::Date{seconds}));
  }
  for (const PropertyList& value : values) {
    EXPECT_EQ(throughXml(value), value) << xml(value);
    const PropertyList within = Dictionary{{"key", Array{value, value}}};
    EXPECT_EQ(throughXml(within), within) << xml(within);
  }
}

TEST(PropertyListFormatTest, TextsOfEveryCharacterReadBackInValuesAndKeys) {
  const char* const texts[] = {
      "a&b<c>d\"e'f",        "]]>",        "<![CDATA[x]]>", "<!-- x -->", "&amp;",    "&#65;",
      "  lead and trail \t", "\r",         "a\r\nb\rc\n",   "\x7f",       "Göteborg", "Ω☕🚗",
      "\uD7FF\uE000\uFFFD",  "\U0010FFFF", "e\u0301",       "CF$UID"};
  for (const char* const text : texts) {
    const PropertyList value = Dictionary{{text, text}};
    EXPECT_EQ(throughXml(value), value) << text;
  }
}

TEST(PropertyListFormatTest, WhatXmlCannotHoldBecomesTheReplacementCharacter) {
  const std::string kMark = "\uFFFD";
  const std::pair<std::string, std::string> texts[] = {
      {std::string("a\0b", 3), "a" + kMark + "b"},
      {"\x01\x1f", kMark + kMark},
      {"\uFFFE\uFFFF", kMark + kMark},
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

TEST(PropertyListFormatTest, RealsKeepEveryBit) {
  using Limits = std::numeric_limits<double>;
  std::vector<double> reals{0.0,
                            -0.0,
                            1.0 / 3,
                            1e300,
                            Limits::max(),
                            Limits::denorm_min(),
                            Limits::infinity(),
                            -Limits::infinity(),
                            9007199254740993.0};
  std::mt19937_64 random(20011);
  for (int i = 0; i < 20000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value)) reals.push_back(value);
  }
  for (const double value : reals) {
    const PropertyList read = throughXml(value);
    const auto* number = read.get<double>();
    ASSERT_NE(number, nullptr) << value;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(*number), std::bit_cast<std::uint64_t>(value)) << value;
  }
  const PropertyList read = throughXml(Limits::quiet_NaN());
  ASSERT_NE(read.get<double>(), nullptr);
  EXPECT_TRUE(std::isnan(*read.get<double>()));
}

TEST(PropertyListFormatTest, DatesAreHeldWithinWhatTheFormCanName) {
  const std::pair<double, double> dates[] = {
      {0.75, 0}, {-0.25, -1}, {1e300, 252423993599}, {-1e300, -63145526400}, {std::nan(""), 0}};
  for (const auto& [seconds, kept] : dates) {
    EXPECT_EQ(throughXml(Value(PropertyList::Date{seconds})),
              PropertyList(Value(PropertyList::Date{kept})))
        << seconds;
  }
}

TEST(PropertyListFormatTest, FormsOfOtherWritersAreUnderstood) {
  const std::pair<std::string, PropertyList> documents[] = {
      {"\xEF\xBB\xBF" + document("<true/>"), true},
      {"<dict><key>a</key><true></true></dict>", Dictionary{{"a", true}}},
      {document("<!-- c --><integer> +5\n</integer>"), 5},
      {document("<integer>0x1F</integer>"), 31},
      {document("<integer>18446744073709551615</integer>"),
       std::numeric_limits<std::uint64_t>::max()},
      {document("<real> 1e5 </real>"), 1e5},
      {document("<real>+Infinity</real>"), std::numeric_limits<double>::infinity()},
      {document("<string>a<![CDATA[<&]]>b<!-- c -->&#x1F697;</string>"), "a<&b🚗"},
      {document("<data>\n\tAQID\n\tBA==\n</data>"), Value(PropertyList::Data{{1, 2, 3, 4}})},
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
      " ",
      "x",
      "<",
      "plist",
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
  for (const std::string& bytes : documents) {
    const ParsedPropertyList parsed = parsePropertyList(bytes);
    EXPECT_FALSE(parsed.value) << bytes;
    EXPECT_NE(parsed.damage, "") << bytes;
  }
}

TEST(PropertyListFormatTest, EveryTruncationIsDamaged) {
  const std::string bytes = xml(Dictionary{{"points", Array{Dictionary{{"lat", 1.5}}, "x"}}});
  for (std::size_t length = 0; length + 1 < bytes.size(); ++length) {
    EXPECT_FALSE(parsePropertyList(bytes.substr(0, length)).value) << length;
  }
}

TEST(PropertyListFormatTest, NestingIsLimitedAlikeForReadingAndWriting) {
  PropertyList value = Array{};
  for (std::size_t depth = 1; depth < kMaximumPropertyListDepth; ++depth) {
    value = Array{value};
  }
  EXPECT_EQ(throughXml(value), value);
  EXPECT_FALSE(serializePropertyList(Array{value}).bytes);

  std::string open;
  for (std::size_t depth = 0; depth < 1'000'000; ++depth) {
    open += "<array>";
  }
  const ParsedPropertyList parsed = parsePropertyList(document(open));
  EXPECT_THAT(parsed.damage, testing::HasSubstr("deep"));
}

TEST(PropertyListFormatTest, NumberOfValuesAndBytesIsLimited) {
  const Array many(kMaximumPropertyListValues, PropertyList(true));
  EXPECT_THAT(serializePropertyList(many).problem, testing::HasSubstr("large"));
  std::string elements = "<array>";
  for (std::size_t i = 0; i < kMaximumPropertyListValues; ++i) {
    elements += "<true/>";
  }
  EXPECT_THAT(parsePropertyList(document(elements + "</array>")).damage,
              testing::HasSubstr("many"));

  const std::string large(kMaximumPropertyListBytes, 'x');
  EXPECT_THAT(serializePropertyList(large).problem, testing::HasSubstr("large"));
  EXPECT_THAT(parsePropertyList(document("<string>" + large + "</string>")).damage,
              testing::HasSubstr("large"));
}

}  // namespace
}  // namespace wayloom
