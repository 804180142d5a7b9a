#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

#include "regions/GroundGeometry.h"
#include "regions/OsmTags.h"
#include "settings/Result.h"

namespace wayloom {

/// One polygon on the ground: its outline and then its holes, each ring closed.
using GroundPolygon = std::vector<Line>;

/// A relation that forbids a turn, or all turns but one.
struct ExtractTurn {
  std::int64_t fromWay = 0;
  std::int64_t toWay = 0;
  Coordinate via;
  /// Whether the turn is the only one allowed rather than the forbidden one.
  bool isOnly = false;
};

/// Takes what an extract holds. Everything has tags; positions are on the globe. Closed ways come
/// as lines and, where their tags speak of an area, also as areas.
class ExtractVisitor {
 public:
  virtual ~ExtractVisitor() = default;

  virtual void point(const OsmTags& tags, Coordinate position) = 0;
  /// At least two positions.
  virtual void line(std::int64_t way, const OsmTags& tags, Line line) = 0;
  virtual void area(const OsmTags& tags, std::vector<GroundPolygon> polygons) = 0;
  /// After everything else.
  virtual void turn(const ExtractTurn& turn) = 0;
};

/// Hears how far a long work has come: what is being done, and the share that is done. Answers
/// whether to go on.
using WorkProgress = std::function<bool(std::string_view step, double share)>;

/// Reads an OpenStreetMap extract (.osm.pbf, .osm, .osm.gz, .osm.bz2) and gives the bounds of what
/// it holds. Nothing in it is trusted: the failure names what is wrong in one line.
[[nodiscard]] Result<RegionBounds> readExtract(const std::filesystem::path& path,
                                               ExtractVisitor& visitor,
                                               const WorkProgress& progress);

/// The file's name without the ending of a form that readExtract() reads; empty for another ending.
std::string extractStem(const std::filesystem::path& path);

}  // namespace wayloom
