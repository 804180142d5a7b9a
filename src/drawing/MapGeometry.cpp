#include "drawing/MapGeometry.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "geo/WebMercator.h"

namespace wayloom {

namespace {

double distanceBetween(const MapPoint& a, const MapPoint& b) {
  return std::hypot(b.x - a.x, b.y - a.y);
}

MapPoint between(const MapPoint& a, const MapPoint& b, double share) {
  return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

double distanceToSegment(const MapPoint& p, const MapPoint& a, const MapPoint& b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double square = dx * dx + dy * dy;
  if (square == 0) return distanceBetween(p, a);
  const double share = std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / square, 0.0, 1.0);
  return distanceBetween(p, between(a, b, share));
}

std::size_t pointCount(const std::vector<MapPolygon>& polygons) {
  std::size_t count = 0;
  for (const MapPolygon& polygon : polygons) {
    for (const MapPath& ring : polygon) count += ring.size();
  }
  return count;
}

// One step of Sutherland and Hodgman's clipping: keeps the side of `axis` where
// sign * coordinate <= sign * limit.
MapPath clippedAt(const MapPath& ring, double MapPoint::*axis, double sign, double limit) {
  const auto beyond = [&](const MapPoint& p) { return sign * (p.*axis - limit); };
  MapPath kept;
  for (std::size_t i = 1; i < ring.size(); ++i) {
    const double from = beyond(ring[i - 1]);
    const double to = beyond(ring[i]);
    if (from <= 0) kept.push_back(ring[i - 1]);
    if ((from < 0 && to > 0) || (from > 0 && to < 0)) {
      kept.push_back(between(ring[i - 1], ring[i], from / (from - to)));
      kept.back().*axis = limit;
    }
  }
  if (!kept.empty()) kept.push_back(kept.front());
  return kept;
}

MapBox grown(const MapBox& box, double by) {
  return {box.xmin - by, box.ymin - by, box.xmax + by, box.ymax + by};
}

// Where a level line crosses the polygon, from west to east.
std::vector<double> crossings(const MapPolygon& polygon, double y) {
  std::vector<double> result;
  for (const MapPath& ring : polygon) {
    for (std::size_t i = 1; i < ring.size(); ++i) {
      const MapPoint& a = ring[i - 1];
      const MapPoint& b = ring[i];
      if ((a.y <= y) != (b.y <= y)) result.push_back(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
    }
  }
  std::sort(result.begin(), result.end());
  return result;
}

double distanceToOutline(const MapPolygon& polygon, const MapPoint& point) {
  double nearest = INFINITY;
  for (const MapPath& ring : polygon) {
    for (std::size_t i = 1; i < ring.size(); ++i) {
      nearest = std::min(nearest, distanceToSegment(point, ring[i - 1], ring[i]));
    }
  }
  return nearest;
}

}  // namespace

double metresPerPixel(int zoom) {
  return 2 * kMercatorHalfWorldMetres / 512 / std::exp2(zoom);
}

double signedArea(const MapPath& ring) {
  double twice = 0;
  for (std::size_t i = 1; i < ring.size(); ++i) {
    twice += ring[i - 1].x * ring[i].y - ring[i].x * ring[i - 1].y;
  }
  return twice / 2;
}

double lengthOf(const MapPath& path) {
  double length = 0;
  for (std::size_t i = 1; i < path.size(); ++i) length += distanceBetween(path[i - 1], path[i]);
  return length;
}

MapPath simplified(const MapPath& path, double tolerance) {
  if (path.size() < 3) return path;
  std::vector<bool> kept(path.size(), false);
  kept.front() = kept.back() = true;
  std::vector<std::pair<std::size_t, std::size_t>> open = {{0, path.size() - 1}};
  while (!open.empty()) {
    const auto [first, last] = open.back();
    open.pop_back();
    double farthest = tolerance;
    std::size_t index = 0;
    for (std::size_t i = first + 1; i < last; ++i) {
      const double distance = distanceToSegment(path[i], path[first], path[last]);
      if (distance > farthest) {
        farthest = distance;
        index = i;
      }
    }
    if (index == 0) continue;
    kept[index] = true;
    open.emplace_back(first, index);
    open.emplace_back(index, last);
  }
  MapPath result;
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (kept[i]) result.push_back(path[i]);
  }
  return result;
}

MapPath smoothed(const MapPath& path, int times) {
  MapPath current = path;
  for (; times > 0 && current.size() > 2; --times) {
    const bool closed = current.front() == current.back();
    MapPath next;
    if (!closed) next.push_back(current.front());
    for (std::size_t i = 1; i < current.size(); ++i) {
      next.push_back(between(current[i - 1], current[i], 0.25));
      next.push_back(between(current[i - 1], current[i], 0.75));
    }
    if (closed) {
      next.push_back(next.front());
    } else {
      next.push_back(current.back());
    }
    current = std::move(next);
  }
  return current;
}

MapPolygon clipped(const MapPolygon& polygon, const MapBox& box) {
  MapPolygon result;
  for (const MapPath& ring : polygon) {
    MapPath kept = clippedAt(ring, &MapPoint::x, 1, box.xmax);
    kept = clippedAt(kept, &MapPoint::x, -1, box.xmin);
    kept = clippedAt(kept, &MapPoint::y, 1, box.ymax);
    kept = clippedAt(kept, &MapPoint::y, -1, box.ymin);
    if (kept.size() >= 4 && signedArea(kept) != 0) result.push_back(std::move(kept));
  }
  return result;
}

std::vector<MapPolygon> cutToPieces(std::vector<MapPolygon> polygons, const MapBox& box,
                                    std::size_t mostPoints, double overlap) {
  for (MapPolygon& polygon : polygons) polygon = clipped(polygon, grown(box, overlap));
  std::erase_if(polygons, [](const MapPolygon& polygon) { return polygon.empty(); });
  const double width = box.xmax - box.xmin;
  const double height = box.ymax - box.ymin;
  if (pointCount(polygons) <= mostPoints || std::min(width, height) < 4 * overlap) return polygons;

  MapBox first = box;
  MapBox second = box;
  if (width >= height) {
    first.xmax = second.xmin = box.xmin + width / 2;
  } else {
    first.ymax = second.ymin = box.ymin + height / 2;
  }
  auto pieces = cutToPieces(polygons, first, mostPoints, overlap);
  auto others = cutToPieces(std::move(polygons), second, mostPoints, overlap);
  pieces.insert(pieces.end(), std::make_move_iterator(others.begin()),
                std::make_move_iterator(others.end()));
  return pieces;
}

std::vector<MapPath> cutToPieces(const MapPath& path, std::size_t mostPoints) {
  std::vector<MapPath> pieces;
  for (std::size_t first = 0; first + 1 < path.size(); first += mostPoints - 1) {
    const std::size_t last = std::min(first + mostPoints, path.size());
    pieces.emplace_back(path.begin() + static_cast<std::ptrdiff_t>(first),
                        path.begin() + static_cast<std::ptrdiff_t>(last));
  }
  return pieces;
}

MapPoint labelPoint(const MapPolygon& polygon) {
  constexpr int kLines = 24;
  const MapBox box = boundsOf({DrawingShape::Kind::kPolygon, polygon});
  MapPoint best = polygon.front().front();
  double bestRoom = -1;
  for (int line = 1; line < kLines; ++line) {
    const double y = box.ymin + (box.ymax - box.ymin) * line / kLines;
    const std::vector<double> xs = crossings(polygon, y);
    for (std::size_t i = 1; i < xs.size(); i += 2) {
      const MapPoint middle{(xs[i - 1] + xs[i]) / 2, y};
      // A label is several times as wide as high.
      const double halfWidth = (xs[i] - xs[i - 1]) / 2;
      const double room = std::min(halfWidth, 3 * distanceToOutline(polygon, middle));
      if (room > bestRoom) {
        best = middle;
        bestRoom = room;
      }
    }
  }
  return best;
}

}  // namespace wayloom
