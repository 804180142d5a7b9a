#pragma once

#include <vector>

#include "drawing/PlaceLabels.h"
#include "import/Extract.h"
#include "regions/RegionStore.h"

namespace wayloom {

/// The names of towns and villages that the map of an extract shows besides those that other
/// regions show there already. Used by one thread.
class PlaceNames {
 public:
  void addPoint(const OsmTags& tags, Coordinate position);

  /// Chooses the names that there is room for beside `shown`.
  std::vector<PlaceLabel> select(const std::vector<PlaceLabel>& shown);

 private:
  struct Name {
    PlaceLabel label;
    /// Not a part of a place, nor a place without people.
    bool isSettlement = false;
  };

  std::vector<Name> mNames;
};

/// The labels that a region shows within the box at the zooms of streets; none for a region without
/// labels, or whose labels cannot be read.
std::vector<PlaceLabel> labelsOf(const Region& region, const MapBox& box);

}  // namespace wayloom
