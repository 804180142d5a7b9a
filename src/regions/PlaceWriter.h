#pragma once

#include <string>
#include <vector>

#include "platform/Place.h"
#include "regions/Database.h"
#include "regions/GroundGeometry.h"
#include "regions/NameFolder.h"

namespace wayloom {

/// A place on its way into an index, with what only the index needs to know.
struct IndexedPlace {
  Place place;
  /// Further names that find the place as its own name does.
  std::vector<std::string> otherNames;
  /// Words that find the place when they stand beside its name, besides those of its locality,
  /// division and country: other spellings and codes of those.
  std::string otherContext;
  /// The lines of a street; for an address its position is enough.
  std::vector<Line> lines;
  /// The polygons of an area that answers "what is here": each an outline and its holes.
  std::vector<std::vector<Line>> areas;
};

/// Writes the place index of a region file. Rows are numbered by importance, so all places are
/// collected before the first is written. Used by one thread, alongside a RegionWriter.
class PlaceWriter {
 public:
  static Result<PlaceWriter> create();

  /// A place without a name or with a position off the globe is left out.
  void add(IndexedPlace place);

  /// Makes the tables and writes every place. The writer is empty afterwards.
  Status write(Database& database);

 private:
  explicit PlaceWriter(NameFolder folder) : mFolder(std::move(folder)) {}

  NameFolder mFolder;
  std::vector<IndexedPlace> mPlaces;
};

}  // namespace wayloom
