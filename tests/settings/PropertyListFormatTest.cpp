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
  const Dictionary inner{{"", "empty key"}, {"a", Array{}}, {"d", Dictionary{}}};
  const PropertyList values[] = {true,
                                 false,
                                 0,
                                 -1,
                                 std::numeric_limits<std::int64_t>::min(),
                                 std::numeric_limits<std::int64_t>::max(),
                                 std::numeric_limits<std::uint64_t>::max(),
                                 48.85837,
                                 "",
                                 "text",
                                 Array{},
                                 Dictionary{},
                                 Array{1, "x", inner, Array{Array{}}},
                                 inner,
                                 Value(PropertyList::Data{{}}),
                                 Value(PropertyList::Data{{0}}),
                                 Value(PropertyList::Data{{0, 255}}),
                                 Value(PropertyList::Data{{1, 2, 3}}),
                                 Value(PropertyList::Data{std::vector<std::uint8_t>(1000, 0xA5)}),
                                 Value(PropertyList::Date{0}),
                                 Value(PropertyList::Date{-1}),
                                 Value(PropertyList::Date{789012345}),
                                 Value(PropertyList::Date{-63113904000}),
                                 Value(PropertyList::Date{252423993599}),
                                 Value(PropertyList::Uid{7})};
  for (const PropertyList& value : values) {
    EXPECT_EQ(throughXml(value), value) << xml(value);
    const PropertyList nested = Dictionary{{"key", Array{value, value}}};
    EXPECT_EQ(throughXml(nested), nested) << xml(nested);
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

void expectSameBits(double value) {
  const PropertyList read = throughXml(value);
  const auto* number = read.get<double>();
  ASSERT_NE(number, nullptr) << value;
  EXPECT_EQ(std::bit_cast<std::uint64_t>(*number), std::bit_cast<std::uint64_t>(value)) << value;
}

TEST(PropertyListFormatTest, RealsKeepEveryBit) {
  using Limits = std::numeric_limits<double>;
  for (const double value : {0.0, -0.0, 0.1, 1.0 / 3, 1e300, -1e-300, Limits::max(), Limits::min(),
                             Limits::denorm_min(), -Limits::denorm_min(), Limits::epsilon(),
                             Limits::infinity(), -Limits::infinity(), 9007199254740993.0}) {
    expectSameBits(value);
  }
  std::mt19937_64 random(20011);
  for (int i = 0; i < 20000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value)) {
      expectSameBits(value);
    }
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
  const std::string documents[] = {
      "",
      " ",
      "x",
      "<",
      "plist",
      document(""),
      document("<string>a"),
      document("<true/><false/>"),
      document("<true/>") + "junk",
      document("<true/>") + document("<true/>"),
      document("<foo/>"),
      document("<array><foo/></array>"),
      document("<array>junk</array>"),
      document("junk<true/>"),
      document("<plist><true/></plist>"),
      document("<key>a</key>"),
      document("<array><key>a</key></array>"),
      document("<dict><true/></dict>"),
      document("<dict><key>a</key></dict>"),
      document("<dict><key>a</key><key>b</key></dict>"),
      document("<array></dict>"),
      document("<string><true/></string>"),
      document("<integer></integer>"),
      document("<integer>1x</integer>"),
      document("<integer>1.5</integer>"),
      document("<integer>0x</integer>"),
      document("<integer>18446744073709551616</integer>"),
      document("<integer>--1</integer>"),
      document("<integer>-9223372036854775809</integer>"),
      document("<real></real>"),
      document("<real>1,5</real>"),
      document("<real>abc</real>"),
      document("<true>x</true>"),
      document("<data>!!</data>"),
      document("<data>AAA</data>"),
      document("<data>A===</data>"),
      document("<data>AA==AAAA</data>"),
      document("<date>2020-01-02</date>"),
      document("<date>2020-02-30T00:00:00Z</date>"),
      document("<date>2020-01-02T24:00:00Z</date>"),
      document("<string>\xff</string>"),
      document("<string>\x01</string>"),
      document("<string>&#0;</string>"),
      document("<string>&bogus;</string>"),
      "<!DOCTYPE plist PUBLIC \"x\" \"file:///etc/passwd\">" +
          document("<string>&x;</string>").substr(38),
      "<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><string>&a;</string></plist>",
      "<!DOCTYPE plist [<!ENTITY a SYSTEM "
      "\"file:///etc/passwd\">]><plist><string>&a;</string></plist>"};
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
