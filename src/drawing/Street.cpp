#include "drawing/Street.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <string_view>
#include <utility>

namespace wayloom {

namespace {

using Kind = Street::Kind;

constexpr std::array<std::pair<std::string_view, Kind>, 19> kKinds = {{
    {"motorway", Kind::kMotorway},
    {"trunk", Kind::kTrunk},
    {"primary", Kind::kPrimary},
    {"secondary", Kind::kSecondary},
    {"tertiary", Kind::kTertiary},
    {"unclassified", Kind::kResidential},
    {"residential", Kind::kResidential},
    {"living_street", Kind::kResidential},
    {"road", Kind::kResidential},
    {"pedestrian", Kind::kPedestrian},
    {"service", Kind::kService},
    {"platform", Kind::kPlatform},
    {"track", Kind::kTrack},
    {"cycleway", Kind::kCycleway},
    {"steps", Kind::kSteps},
    {"footway", Kind::kPath},
    {"path", Kind::kPath},
    {"bridleway", Kind::kPath},
    {"corridor", Kind::kPath},
}};

using Ends = std::multimap<std::pair<double, double>, std::size_t>;

std::pair<double, double> keyOf(const MapPoint& point) {
  return {point.x, point.y};
}

// The one line not yet used that continues from `point`, if the joint is not a junction.
std::optional<std::size_t> continuation(const Ends& ends, const std::vector<bool>& used,
                                        const MapPoint& point) {
  const auto [first, last] = ends.equal_range(keyOf(point));
  // Counting all ends would take long where thousands meet.
  if (first == last || std::next(first) == last || std::next(first, 2) != last) return {};
  for (auto end = first; end != last; ++end) {
    if (!used[end->second]) return end->second;
  }
  return {};
}

void extend(MapPath& path, const std::vector<MapPath>& lines, const Ends& ends,
            std::vector<bool>& used) {
  while (const auto next = continuation(ends, used, path.back())) {
    used[*next] = true;
    MapPath line = lines[*next];
    if (!(line.front() == path.back())) std::reverse(line.begin(), line.end());
    path.insert(path.end(), line.begin() + 1, line.end());
  }
}

}  // namespace

const char* kindName(Street::Kind kind) {
  constexpr std::array kNames = {"path",    "steps",      "cycleway",    "track",    "platform",
                                 "service", "pedestrian", "residential", "tertiary", "secondary",
                                 "primary", "trunk",      "motorway"};
  return kNames.at(static_cast<std::size_t>(kind));
}

int levelOf(const OsmTags& tags) {
  const int layer = std::clamp(std::atoi(std::string(tagOf(tags, "layer")).c_str()), -5, 5);
  const std::string_view tunnel = tagOf(tags, "tunnel");
  if (!tunnel.empty() && tunnel != "no" && tunnel != "building_passage") {
    return std::min(layer, -1);
  }
  const std::string_view bridge = tagOf(tags, "bridge");
  return bridge.empty() || bridge == "no" ? 0 : std::max(layer, 1);
}

std::optional<Street> streetOf(const OsmTags& tags, DrawingShape shape) {
  std::string highway(tagOf(tags, "highway"));
  Street street;
  if (const auto ending = highway.rfind("_link"); ending != std::string::npos) {
    street.isLink = true;
    highway.resize(ending);
  }
  const auto* const found = std::find_if(kKinds.begin(), kKinds.end(),
                                         [&](const auto& entry) { return entry.first == highway; });
  if (found == kKinds.end()) return {};
  street.kind = found->second;
  street.isArea = shape.kind == DrawingShape::Kind::kPolygon && tagOf(tags, "area") != "no";
  street.level = levelOf(tags);
  // Platforms are called A, B, C: noise on a map of this scale.
  if (street.kind != Kind::kPlatform) {
    street.name = tagOf(tags, "name");
    street.ref = tagOf(tags, "ref");
  }
  street.paths = std::move(shape.paths);
  return street;
}

std::vector<MapPath> joined(const std::vector<MapPath>& lines) {
  Ends ends;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    ends.emplace(keyOf(lines[i].front()), i);
    ends.emplace(keyOf(lines[i].back()), i);
  }
  std::vector<bool> used(lines.size(), false);
  std::vector<MapPath> result;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (used[i]) continue;
    used[i] = true;
    MapPath path = lines[i];
    extend(path, lines, ends, used);
    std::reverse(path.begin(), path.end());
    extend(path, lines, ends, used);
    result.push_back(std::move(path));
  }
  return result;
}

}  // namespace wayloom
