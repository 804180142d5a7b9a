#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "geo/Coordinate.h"
#include "settings/PropertyListFormat.h"

namespace wayloom {

/// The path of a drive: point records in driving order, as a route file held them or as they were
/// just planned. A value that is cheap to copy, since its content is shared and never changes;
/// copies may be used on any thread.
class RoutePoints {
 public:
  /// No records.
  RoutePoints();

  /// What a route file holds under "points"; it is kept as it is, whatever it is.
  static RoutePoints stored(PropertyList records);
  static RoutePoints planned(std::vector<Coordinate> path);

  /// None when what was stored is no list.
  std::size_t count() const;
  bool isEmpty() const { return count() == 0; }

  /// The place of a record, degrees. What a record lacks reads 0, and so does a record out of
  /// range.
  Coordinate at(std::size_t index) const;
  Coordinate first() const { return at(0); }
  Coordinate last() const { return at(count() - 1); }

  /// The route file's entry for the records. It is made when first asked for, which takes about a
  /// second for a million records, and kept; a thread that asks meanwhile waits.
  const PreparedEntry& entry() const;

 private:
  struct Content;

  explicit RoutePoints(std::shared_ptr<const Content> content);

  std::shared_ptr<const Content> mContent;
};

}  // namespace wayloom
