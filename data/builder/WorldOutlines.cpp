#include "WorldOutlines.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "geo/WebMercator.h"

namespace wayloom {

namespace {

constexpr double kWorldMetres = 2 * kMercatorHalfWorldMetres;

// Longitudes in a row that never jump by more than half a turn.
void unwrap(std::vector<Coordinate>& path) {
  for (std::size_t i = 1; i < path.size(); ++i) {
    path[i].longitude -= 360 * std::round((path[i].longitude - path[i - 1].longitude) / 360);
  }
}

// A ring that ends a whole turn from its start goes around a pole.
void closeAroundPole(std::vector<Coordinate>& ring) {
  if (std::abs(ring.back().longitude - ring.front().longitude) < 180) return;
  const double pole = ring.front().latitude < 0 ? -90 : 90;
  ring.push_back({pole, ring.back().longitude});
  ring.push_back({pole, ring.front().longitude});
  ring.push_back(ring.front());
}

MapPath project(const std::vector<Coordinate>& path) {
  MapPath result;
  result.reserve(path.size());
  for (const Coordinate& coordinate : path) result.push_back(mapPoint(coordinate));
  return result;
}

MapPath shifted(MapPath path, double by) {
  for (MapPoint& point : path) point.x += by;
  return path;
}

// How many worlds the path must be moved by to show in the map, once for each side.
std::vector<double> shiftsFor(const MapPath& path) {
  const MapBox box = boundsOf({DrawingShape::Kind::kLine, {path}});
  std::vector<double> shifts;
  for (const double shift : {-kWorldMetres, 0.0, kWorldMetres}) {
    if (box.xmax + shift > -kMercatorHalfWorldMetres &&
        box.xmin + shift < kMercatorHalfWorldMetres) {
      shifts.push_back(shift);
    }
  }
  return shifts;
}

bool liesOnEdge(const MapPoint& a, const MapPoint& b) {
  constexpr double kNearMetres = 1500;
  const auto onSeam = [](const MapPoint& p) {
    return std::abs(std::abs(p.x) - kMercatorHalfWorldMetres) < kNearMetres;
  };
  const auto onPole = [](const MapPoint& p) {
    return std::abs(p.y) > kMercatorHalfWorldMetres - kNearMetres;
  };
  return (onSeam(a) && onSeam(b)) || (onPole(a) && onPole(b));
}

void appendVisibleRuns(const MapPath& path, std::vector<MapPath>& lines) {
  MapPath run;
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (i > 0 && liesOnEdge(path[i - 1], path[i])) {
      if (run.size() > 1) lines.push_back(run);
      run.clear();
    }
    run.push_back(path[i]);
  }
  if (run.size() > 1) lines.push_back(run);
}

}  // namespace

Topology simplified(Topology topology, double tolerance) {
  for (auto& arc : topology.arcs) {
    const MapPath path = simplified(project(arc), tolerance);
    arc.clear();
    for (const MapPoint& point : path) arc.push_back(coordinateAt(point));
  }
  return topology;
}

Topology smoothed(Topology topology) {
  for (auto& arc : topology.arcs) {
    unwrap(arc);
    const MapPath path = smoothed(project(arc), 2);
    arc.clear();
    for (const MapPoint& point : path) arc.push_back(coordinateAt(point));
  }
  return topology;
}

std::vector<MapPolygon> mapPolygons(const Topology& topology, const Topology::Area& area) {
  std::vector<MapPolygon> result;
  for (const Topology::Polygon& polygon : area.polygons) {
    MapPolygon rings;
    for (const Topology::Ring& ring : polygon) {
      std::vector<Coordinate> outline = topology.outline(ring);
      if (outline.size() < 4) continue;
      unwrap(outline);
      closeAroundPole(outline);
      const MapPath path = project(outline);
      for (const double shift : shiftsFor(path)) rings.push_back(shifted(path, shift));
    }
    if (!rings.empty()) result.push_back(std::move(rings));
  }
  return result;
}

std::vector<MapPath> mapLines(const Topology& topology, ArcUse use) {
  std::vector<std::set<const Topology::Area*>> areasOf(topology.arcs.size());
  std::vector<int> uses(topology.arcs.size(), 0);
  for (const Topology::Area& area : topology.areas) {
    for (const Topology::Polygon& polygon : area.polygons) {
      for (const Topology::Ring& ring : polygon) {
        for (const int arc : ring) {
          const auto index = static_cast<std::size_t>(arc < 0 ? ~arc : arc);
          areasOf[index].insert(&area);
          ++uses[index];
        }
      }
    }
  }
  std::vector<MapPath> lines;
  for (std::size_t i = 0; i < topology.arcs.size(); ++i) {
    if (use == ArcUse::kCoast ? uses[i] != 1 : areasOf[i].size() < 2) continue;
    std::vector<Coordinate> arc = topology.arcs[i];
    unwrap(arc);
    const MapPath path = project(arc);
    for (const double shift : shiftsFor(path)) appendVisibleRuns(shifted(path, shift), lines);
  }
  return lines;
}

}  // namespace wayloom
