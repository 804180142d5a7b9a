#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "regions/GroundGeometry.h"
#include "regions/OsmTags.h"
#include "roads/RoadRestriction.h"
#include "settings/Result.h"

namespace wayloom {

/// One polygon on the ground: its outline and then its holes, each ring closed.
using GroundPolygon = std::vector<Line>;

/// A node of a way.
struct ExtractNode {
  std::int64_t number = 0;
  Coordinate position;
};

/// What an extract lacks, or says in a manner that is not understood.
struct ExtractGaps {
  /// Nodes that ways name and the file does not hold, and the first few of them with their ways.
  std::size_t missingNodes = 0;
  std::vector<std::string> examples;
  /// Restrictions of turns with conditions of which nothing, or not all, is understood.
  std::size_t unclearConditions = 0;
};

/// Takes what an extract holds. Everything has tags; positions are on the globe. Closed ways come
/// as lines and, where their tags speak of an area, also as areas.
class ExtractVisitor {
 public:
  virtual ~ExtractVisitor() = default;

  virtual void point(const OsmTags& tags, const ExtractNode& node) = 0;
  /// At least two different positions, and every node. A way is cut where the file lacks its nodes,
  /// and comes in parts.
  virtual void line(std::int64_t way, const OsmTags& tags, Line line,
                    const std::vector<ExtractNode>& nodes) = 0;
  virtual void area(const OsmTags& tags, std::vector<GroundPolygon> polygons) = 0;
  /// Before everything else.
  virtual void restriction(RoadRestriction restriction) = 0;
};

/// Hears how far a long work has come: what is being done, and the share that is done. Answers
/// whether to go on.
using WorkProgress = std::function<bool(std::string_view step, double share)>;

/// Reads an OpenStreetMap extract (.osm.pbf, .osm, .osm.gz, .osm.bz2) and gives the bounds of what
/// it holds. Nothing in it is trusted: the failure names what is wrong in one line. What it lacks
/// is added to `gaps`.
[[nodiscard]] Result<RegionBounds> readExtract(const std::filesystem::path& path,
                                               ExtractVisitor& visitor,
                                               const WorkProgress& progress, ExtractGaps& gaps);

/// The file's name without the ending of a form that readExtract() reads; empty for another ending.
std::string extractStem(const std::filesystem::path& path);

}  // namespace wayloom
