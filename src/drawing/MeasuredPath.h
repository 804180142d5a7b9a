#pragma once

#include <vector>

#include "regions/DrawingShape.h"

namespace wayloom {

/// A path of at least one point that knows how far along it each point lies, so that a long one can
/// be asked often.
class MeasuredPath {
 public:
  explicit MeasuredPath(MapPath path);

  const MapPath& points() const { return mPoints; }
  double length() const { return mDistances.back(); }

  /// The point `distance` metres along the path, brought into it.
  MapPoint at(double distance) const;
  /// The part of the path between two distances along it.
  MapPath part(double from, double to) const;

 private:
  MapPath mPoints;
  std::vector<double> mDistances;
};

}  // namespace wayloom
