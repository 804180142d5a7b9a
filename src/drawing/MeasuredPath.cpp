#include "drawing/MeasuredPath.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace wayloom {

MeasuredPath::MeasuredPath(MapPath path) : mPoints(std::move(path)) {
  mDistances.reserve(mPoints.size());
  double passed = 0;
  for (std::size_t i = 0; i < mPoints.size(); ++i) {
    if (i > 0)
      passed += std::hypot(mPoints[i].x - mPoints[i - 1].x, mPoints[i].y - mPoints[i - 1].y);
    mDistances.push_back(passed);
  }
}

MapPoint MeasuredPath::at(double distance) const {
  const auto next = std::lower_bound(mDistances.begin(), mDistances.end(), distance);
  if (next == mDistances.begin()) return mPoints.front();
  if (next == mDistances.end()) return mPoints.back();
  const auto index = static_cast<std::size_t>(next - mDistances.begin());
  const MapPoint& from = mPoints[index - 1];
  const MapPoint& to = mPoints[index];
  const double share = (distance - mDistances[index - 1]) / (*next - mDistances[index - 1]);
  return {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
}

MapPath MeasuredPath::part(double from, double to) const {
  MapPath part = {at(from)};
  auto passed = std::upper_bound(mDistances.begin(), mDistances.end(), from);
  for (; passed != mDistances.end() && *passed < to; ++passed) {
    part.push_back(mPoints[static_cast<std::size_t>(passed - mDistances.begin())]);
  }
  part.push_back(at(to));
  return part;
}

}  // namespace wayloom
