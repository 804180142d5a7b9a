#pragma once

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "regions/PlaceIndex.h"
#include "regions/PlaceWriter.h"
#include "regions/RegionWriter.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {

/// A place index of a few places, as a file of its own.
class SmallIndex {
 public:
  explicit SmallIndex(std::vector<IndexedPlace> places)
      : SmallIndex(std::vector<std::vector<IndexedPlace>>{std::move(places)}) {}

  /// One file for each list.
  explicit SmallIndex(std::vector<std::vector<IndexedPlace>> regions) {
    for (std::size_t number = 0; number < regions.size(); ++number) {
      write(mFolder.path() / (std::to_string(number) + ".region"), std::move(regions[number]));
    }
    auto index = PlaceIndex::open(store());
    EXPECT_TRUE(index);
    mIndex.emplace(std::move(*index));
  }

  const TemporaryFolder& folder() const { return mFolder; }
  RegionStore store() const { return RegionStore({mFolder.path()}); }
  PlaceIndex& operator*() { return *mIndex; }
  PlaceIndex* operator->() { return &*mIndex; }

  /// The first line of the best place, or "-".
  std::string best(const std::string& text, std::optional<Coordinate> near = std::nullopt) {
    const auto found = mIndex->search(text, near);
    return found.empty() ? "-" : addressLines(found.front()).front();
  }
  std::string at(Coordinate position) {
    const auto found = mIndex->placeAt(position);
    return found ? addressLines(*found).front() : "-";
  }

 private:
  static void write(const std::filesystem::path& path, std::vector<IndexedPlace> places) {
    auto writer = RegionWriter::create(path, {"small", "", {}});
    auto index = PlaceWriter::create();
    ASSERT_TRUE(writer && index);
    for (auto& place : places) index->add(std::move(place));
    const auto written = index->write(writer->database());
    ASSERT_TRUE(written) << written.failure().message;
    const auto committed = writer->commit();
    ASSERT_TRUE(committed) << committed.failure().message;
  }

  TemporaryFolder mFolder;
  std::optional<PlaceIndex> mIndex;
};

inline IndexedPlace indexed(Place place, std::vector<Line> lines = {}) {
  IndexedPlace result;
  result.place = std::move(place);
  result.lines = std::move(lines);
  return result;
}

inline IndexedPlace settlement(const std::string& name, const std::string& division,
                               const std::string& country, Coordinate at, std::int64_t population) {
  return indexed({PlaceKind::kSettlement, name, "", division, country, at, population});
}

inline IndexedPlace street(const std::string& name, const std::string& locality,
                           const std::string& country, const Line& line) {
  return indexed({PlaceKind::kStreet, name, locality, "", country, line.front(), 0}, {line});
}

inline IndexedPlace address(const std::string& name, const std::string& locality, Coordinate at) {
  return indexed({PlaceKind::kAddress, name, locality, "", "", at, 0});
}

inline IndexedPlace country(const std::string& name, const Line& outline,
                            std::vector<Line> holes = {}) {
  auto result = indexed({PlaceKind::kCountry, name, "", "", "", outline.front(), 1000000});
  holes.insert(holes.begin(), outline);
  result.areas = {std::move(holes)};
  return result;
}

}  // namespace wayloom
