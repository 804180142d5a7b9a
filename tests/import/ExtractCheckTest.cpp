#include <bzlib.h>
#include <fstream>
#include <limits>
#include <protozero/pbf_writer.hpp>
#include <zlib.h>

#include "import/RegionImport.h"
#include "tests/support/TemporaryFolder.h"

#if defined(__clang__)
#if __has_feature(address_sanitizer)
#define KEEPS_WHAT_WAS_FREED
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define KEEPS_WHAT_WAS_FREED
#endif

namespace wayloom {
namespace {

using protozero::pbf_writer;
using testing::HasSubstr;

constexpr std::int64_t kFarthest = std::numeric_limits<std::int64_t>::max();
const std::string kHead = "<?xml version='1.0'?><osm version='0.6'>";

std::string importFault(const std::string& name, const std::string& bytes) {
  const TemporaryFolder folder;
  const auto extract = folder.path() / name;
  std::ofstream(extract, std::ios::binary) << bytes;
  const auto goOn = [](std::string_view, double) { return true; };
  return importRegion(extract, folder.path(), "small", RegionStore({}), goOn).message();
}

std::string blob(const std::string& type, const std::string& content) {
  std::string blob, header;
  pbf_writer(blob).add_bytes(1, content);
  pbf_writer writer(header);
  writer.add_string(1, type);
  writer.add_int32(3, static_cast<std::int32_t>(blob.size()));
  return {std::string(3, '\0') + static_cast<char>(header.size()) + header + blob};
}

// An extract of one town, at a position in units of a ten-millionth of a degree.
struct Town {
  std::vector<std::int64_t> ids = {1};
  std::vector<std::int64_t> latitudes = {470000000};
  std::vector<std::int64_t> longitudes = {90000000};
  std::int32_t granularity = 100;
  std::int64_t offset = 0;
  std::string name = "Dorf";
};

std::string pbf(const Town& town) {
  std::string header, strings, nodes, group, block;
  pbf_writer(header).add_string(4, "OsmSchema-V0.6");
  pbf_writer texts(strings);
  for (const char* text : {"", "place", "town", "name"}) texts.add_bytes(1, text);
  texts.add_bytes(1, town.name);
  pbf_writer dense(nodes);
  dense.add_packed_sint64(1, town.ids.begin(), town.ids.end());
  dense.add_packed_sint64(8, town.latitudes.begin(), town.latitudes.end());
  dense.add_packed_sint64(9, town.longitudes.begin(), town.longitudes.end());
  const std::int32_t tags[] = {1, 2, 3, 4, 0};
  dense.add_packed_int32(10, std::begin(tags), std::end(tags));
  pbf_writer(group).add_message(2, nodes);
  pbf_writer writer(block);
  writer.add_message(1, strings);
  writer.add_message(2, group);
  writer.add_int32(17, town.granularity);
  writer.add_int64(20, town.offset);
  return blob("OSMHeader", header) + blob("OSMData", block);
}

TEST(ExtractCheckTest, RefusesWhatLibosmiumTripsOver) {
  const struct {
    const char* what;
    Town town;
    const char* fault;
  } cases[] = {
      {"sound", {}, ""},
      {"2^32 further east", {{1}, {0}, {90000000 + (std::int64_t{1} << 32)}}, "outside the world"},
      {"too far east in one unit", {{1}, {0}, {kFarthest}, 100}, "outside the world"},
      {"with the offset", {{1}, {0}, {1}, 100, kFarthest}, "outside the world"},
      {"with the granularity", {{1}, {0}, {1LL << 40}, INT32_MAX}, "outside the world"},
      {"too high", {{1LL << 41}}, "an id is beyond all bounds"},
      {"a zero byte", {{1}, {0}, {0}, 100, 0, std::string("Do\0f", 4)}, "holds a zero byte"},
      {"sums", {{1, kFarthest}, {0, 0}, {0, 0}}, "its numbers overflow"},
  };
  for (const auto& test : cases) {
    EXPECT_THAT(importFault("a.osm.pbf", pbf(test.town)), HasSubstr(test.fault)) << test.what;
    EXPECT_EQ(importFault("a.osm.pbf", pbf(test.town)).empty(), *test.fault == 0) << test.what;
  }
}

TEST(ExtractCheckTest, LeavesOutAreasAroundHalfTheWorld) {
  std::string text = kHead;
  int id = 0;
  for (const char* corner : {"lat='-89' lon='-179'", "lat='-89' lon='179'", "lat='89' lon='179'",
                             "lat='89' lon='-179'", "lat='1' lon='-170'"}) {
    text += "<node id='" + std::to_string(++id) + "' " + corner + "/>";
  }
  text +=
      "<way id='1'><nd ref='1'/><nd ref='2'/><nd ref='3'/><nd ref='4'/><nd ref='5'/>"
      "<nd ref='1'/><tag k='natural' v='water'/></way></osm>";
  EXPECT_EQ(importFault("a.osm", text), "it holds no roads, places or land");
}

std::string gzipped(const std::string& text) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "packed";
  gzFile file = ::gzopen(path.c_str(), "wb6");
  ::gzwrite(file, text.data(), static_cast<unsigned>(text.size()));
  ::gzclose(file);
  return bytesOf(path);
}

std::string bzipped(std::string text) {
  std::string packed(text.size() + 1024, '\0');
  auto size = static_cast<unsigned>(packed.size());
  ::BZ2_bzBuffToBuffCompress(packed.data(), &size, text.data(), static_cast<unsigned>(text.size()),
                             9, 0, 0);
  packed.resize(size);
  return packed;
}

std::string repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

// A line of /proc/self/status in bytes.
std::int64_t memory(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name)) return std::atoll(line.c_str() + name.size()) * 1024;
  }
  return -1;
}

TEST(ExtractCheckTest, RefusesWhatUnfoldsTooFarInLittleMemory) {
  const std::string node = "<node id='1' lat='1' lon='1'/>";
  const std::string way = kHead + node + "<way id='1'>";
  const std::string nodes = repeated("<nd ref='1'/>", 100'000);
  const std::string letters(1'000'000, 'a');
  const struct {
    const char* file;
    std::string bytes;
    const char* fault;
  } cases[] = {
      {"a.osm.gz", gzipped(way) + repeated(gzipped(nodes), 150), "over a hundred times its size"},
      {"a.osm.bz2", bzipped(way) + repeated(bzipped(nodes), 150), "over a hundred times its size"},
      {"a.osm.gz", gzipped(way + "<tag k='") + repeated(gzipped(letters), 150), "a million"},
      {"a.osm", way + "<!--" + repeated(letters, 50), "a million"},
  };
  for (const auto& test : cases) {
    std::ofstream("/proc/self/clear_refs") << 5;  // What was used at most counts from here.
    [[maybe_unused]] const std::int64_t before = memory("VmHWM:");
    EXPECT_THAT(importFault(test.file, test.bytes), HasSubstr(test.fault)) << test.file;
#ifndef KEEPS_WHAT_WAS_FREED
    EXPECT_LT(memory("VmHWM:") - before, 64 << 20) << test.file;
#endif
  }
}

}  // namespace
}  // namespace wayloom
