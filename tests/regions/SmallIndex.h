#pragma once

#include <optional>
#include <string>
#include <vector>

#include "regions/PlaceIndex.h"
#include "regions/PlaceWriter.h"
#include "regions/RegionWriter.h"
#include "tests/regions/TemporaryFolder.h"

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

inline IndexedPlace settlement(std::string name, std::string division, std::string country,
                               Coordinate coordinate, std::int64_t population) {
  IndexedPlace indexed;
  indexed.place = {PlaceKind::kSettlement, std::move(name), "",        std::move(division),
                   std::move(country),     coordinate,      population};
  return indexed;
}

inline IndexedPlace street(std::string name, std::string locality, std::string country, Line line) {
  IndexedPlace indexed;
  indexed.place = {PlaceKind::kStreet,
                   std::move(name),
                   std::move(locality),
                   "",
                   std::move(country),
                   line.front(),
                   0};
  indexed.lines = {std::move(line)};
  return indexed;
}

inline IndexedPlace address(std::string name, std::string locality, Coordinate coordinate) {
  IndexedPlace indexed;
  indexed.place = {
      PlaceKind::kAddress, std::move(name), std::move(locality), "", "", coordinate, 0};
  return indexed;
}

inline IndexedPlace country(std::string name, Line outline, std::vector<Line> holes = {}) {
  IndexedPlace indexed;
  indexed.place = {PlaceKind::kCountry, std::move(name), "", "", "", outline.front(), 1000000};
  holes.insert(holes.begin(), std::move(outline));
  indexed.areas = {std::move(holes)};
  return indexed;
}

}  // namespace wayloom
