#pragma once

#include <deque>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Place.h"

namespace wayloom {

/// The cities, towns and villages of an extract, to find out which of them a street belongs to.
/// Used by one thread.
class Settlements {
 public:
  /// `kind` is the value of OpenStreetMap's `place`; smaller ones than villages own no streets.
  void add(const Place& place, std::string_view kind);

  /// The settlement that a position most likely belongs to: a city reaches further than a village.
  /// Null when none is near. Lives as long as this.
  const Place* nearest(Coordinate position) const;

  /// Says of a place that it lies in the settlement.
  static void locate(const Place& settlement, Place& place);

 private:
  struct Entry {
    Place place;
    double reachMetres = 0;
  };
  using Cell = std::pair<int, int>;

  static Cell cellOf(Coordinate position);

  std::deque<Entry> mEntries;
  std::map<Cell, std::vector<const Entry*>> mCells;
};

}  // namespace wayloom
