#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawing/MapGeometry.h"
#include "regions/OsmTags.h"

namespace wayloom {

/// A way or square as the map draws it.
struct Street {
  /// From the least to the most important, which is the order of drawing.
  enum class Kind {
    kPath,
    kSteps,
    kCycleway,
    kTrack,
    kPlatform,
    kService,
    kPedestrian,
    kResidential,
    kTertiary,
    kSecondary,
    kPrimary,
    kTrunk,
    kMotorway,
  };

  Kind kind = Kind::kPath;
  /// Slip roads are drawn narrower than what they lead to.
  bool isLink = false;
  bool isArea = false;
  /// 0 on the ground, below it in a tunnel, above it on a bridge.
  int level = 0;
  std::string name;
  std::string ref;
  /// One line, or the rings of an area.
  std::vector<MapPath> paths;
};

const char* kindName(Street::Kind kind);

/// The street that the tags of an OpenStreetMap way of this shape describe; nothing for what is not
/// drawn, such as a road under construction.
std::optional<Street> streetOf(const OsmTags& tags, DrawingShape shape);

/// Where the tags of a way say that it runs: 0 on the ground, below it in a tunnel, above it on a
/// bridge.
int levelOf(const OsmTags& tags);

/// Lines joined end to end where exactly two ends meet, so that each is as long as can be.
std::vector<MapPath> joined(const std::vector<MapPath>& lines);

}  // namespace wayloom
