#include <bit>
#include <limits>

#include "settings/PropertyListFormat.h"

namespace wayloom {
namespace {

using namespace std::string_literals;

using Dictionary = PropertyList::Dictionary;
using Value = PropertyList::Value;

std::string bigEndian(std::uint64_t number, std::size_t bytes) {
  std::string text;
  for (std::size_t i = bytes; i > 0; --i) {
    text += i > 8 ? '\0' : static_cast<char>(number >> (8 * (i - 1)));
  }
  return text;
}

/// What a binary file is made of; a test spoils one part.
struct Parts {
  std::vector<std::string> objects;
  std::vector<std::uint64_t> offsets = {};
  unsigned offsetBytes = 4;
  unsigned referenceBytes = 1;
  std::uint64_t root = 0;
  std::uint64_t countError = 0;
  std::uint64_t tableError = 0;
};

std::string binary(Parts parts) {
  std::string bytes = "bplist00";
  for (const std::string& object : parts.objects) {
    parts.offsets.push_back(bytes.size());
    bytes += object;
  }
  const std::uint64_t table = bytes.size() + parts.tableError;
  for (const std::uint64_t offset : parts.offsets) {
    bytes += bigEndian(offset, parts.offsetBytes);
  }
  bytes += std::string(6, '\0') + static_cast<char>(parts.offsetBytes) +
           static_cast<char>(parts.referenceBytes);
  return bytes + bigEndian(parts.offsets.size() + parts.countError, 8) + bigEndian(parts.root, 8) +
         bigEndian(table, 8);
}

TEST(BinaryPropertyListTest, FormsThatOtherWritersSeldomUse) {
  const std::string minusOne(8, '\xFF');
  const std::pair<std::string, PropertyList> objects[] = {
      {"\x22"s + bigEndian(std::bit_cast<std::uint32_t>(1.5f), 4), 1.5},
      {"\x10\xFF", 255},
      {"\x14"s + minusOne + minusOne, -1},
      {"\x14"s + bigEndian(0, 8) + minusOne, std::numeric_limits<std::uint64_t>::max()},
      {"\x14"s + bigEndian(0, 8) + bigEndian(5, 8), 5},
      {"\x62\x00\x41\xD8\x00"s, "A\uFFFD"},
      {"\x62\xDC\x00\x00\x41"s,
       "\uFFFD"
       "A"},
      {"\x62\xD8\x3D\xDE\x97"s, "🚗"},
      {"\x82\x01\x02\x03"s, Value(PropertyList::Uid{0x10203})},
      {"\x5F\x11"s + bigEndian(15, 2) + std::string(15, 'x'), std::string(15, 'x')}};
  for (const auto& [object, value] : objects) {
    for (const unsigned offsetBytes : {1u, 3u, 8u}) {
      const ParsedPropertyList parsed =
          parsePropertyList(binary({.objects = {object}, .offsetBytes = offsetBytes}));
      ASSERT_TRUE(parsed.value) << parsed.damage << testing::PrintToString(object);
      EXPECT_EQ(*parsed.value, value) << testing::PrintToString(object);
    }
  }
}

TEST(BinaryPropertyListTest, DamagedObjectsAreRefused) {
  const std::string eight(8, '\xFF');
  std::vector<std::string> objects = {"\0"s,     "\xA1\x00"s,     "\xD1\x00\x00"s,
                                      "\x23zzz", "\x88"s + eight, "\x32zzzz"};
  objects.push_back("\x14"s + bigEndian(1, 8) + bigEndian(0, 8));
  objects.push_back("\x14"s + eight + bigEndian(0, 8));
  objects.push_back("\x88"s + eight + eight);
  for (const char* const bytes : {"\x0F", "\x15", "\x13", "\x20", "\x4F\x20", "\x4F", "\x51\xFF",
                                  "\x70", "\xA1", "\xA1\x01", "\xD1", "\xC0", "\xE0"}) {
    objects.emplace_back(bytes);
  }
  for (const char* const counted : {"\x4F\x13", "\x5F\x13", "\x6F\x13", "\xAF\x13", "\xDF\x13"}) {
    objects.push_back(counted + eight);
    objects.push_back(std::string(counted) + '\x7F' + eight.substr(1));
  }
  for (const std::string& object : objects) {
    EXPECT_FALSE(parsePropertyList(binary({.objects = {object}})).value)
        << testing::PrintToString(object);
  }
}

TEST(BinaryPropertyListTest, DamagedTablesAreRefused) {
  constexpr std::uint64_t kHuge = std::numeric_limits<std::uint64_t>::max();
  const std::vector<std::string> good{"\xA1\x01", "\x09"};
  ASSERT_TRUE(parsePropertyList(binary({.objects = good})).value);
  std::vector<Parts> spoiled(11, Parts{.objects = good});
  spoiled[0].offsetBytes = 0;
  spoiled[1].offsetBytes = 9;
  spoiled[2].referenceBytes = 0;
  spoiled[3].referenceBytes = 255;
  spoiled[4].root = 2;
  spoiled[5].root = kHuge;
  spoiled[6].countError = 1;
  spoiled[7].countError = kHuge / 2;
  spoiled[8].tableError = 9;
  spoiled[9].tableError = 0 - kHuge / 3;
  spoiled[10].objects.clear();
  for (const std::uint64_t offset : {0u, 7u, 8u, 0xFFFFFFFFu}) {
    spoiled.push_back({.objects = {}, .offsets = {offset}});
  }
  for (std::size_t i = 0; i < std::size(spoiled); ++i) {
    EXPECT_FALSE(parsePropertyList(binary(spoiled[i])).value) << "spoiled " << i;
  }
}

TEST(BinaryPropertyListTest, SharingCannotGrowASmallFileWithoutEnd) {
  EXPECT_FALSE(parsePropertyList(binary({.objects = {"\xA1\x00"s}})).value);
  EXPECT_FALSE(parsePropertyList(binary({.objects = {"\xD1\x01\x00"s, "\x51k"}})).value);

  Parts doubling;
  for (int i = 1; i <= 60; ++i) {
    doubling.objects.push_back("\xA2"s + std::string(2, static_cast<char>(i)));
  }
  doubling.objects.emplace_back("\x09");
  EXPECT_FALSE(parsePropertyList(binary(doubling)).value);

  const std::string manyReferences = "\xAF\x12"s + bigEndian(100'000, 4) + std::string(100'000, 1);
  const std::string longText = "\x5F\x12"s + bigEndian(1'000'000, 4) + std::string(1'000'000, 'x');
  EXPECT_FALSE(parsePropertyList(binary({.objects = {manyReferences, longText}})).value);
}

TEST(BinaryPropertyListTest, ACutFileIsRefused) {
  // {"on": "1", "points": [{"lat": 1.5, "lng": 2}, "к", true]}
  const std::string good = binary(
      {.objects = {"\xD2\x01\x03\x02\x04", "\x52on", "\x51\x31", "\x56points", "\xA3\x05\x0A\x0B",
                   "\xD2\x06\x08\x07\x09", "\x53lat", "\x23\x3F\xF8" + std::string(6, '\0'),
                   "\x53lng", "\x10\x02", "\x61\x04\x3A", "\x09"}});
  ASSERT_TRUE(parsePropertyList(good).value);
  for (std::size_t length = 0; length < good.size(); ++length) {
    EXPECT_FALSE(parsePropertyList(good.substr(0, length)).value) << length;
  }
}

}  // namespace
}  // namespace wayloom
