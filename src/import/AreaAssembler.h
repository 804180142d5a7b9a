#pragma once

#include <algorithm>
#include <cmath>
#include <osmium/area/assembler.hpp>
#include <vector>

namespace wayloom {

/// Puts areas together as libosmium does, but leaves out those of which the extract lacks nodes,
/// and those around half the world: its whole numbers overflow there.
class AreaAssembler : public osmium::area::Assembler {
 public:
  using osmium::area::Assembler::Assembler;

  bool operator()(const osmium::Way& way, osmium::memory::Buffer& result) {
    return canReckon({&way}) && osmium::area::Assembler::operator()(way, result);
  }

  bool operator()(const osmium::Relation& relation, const std::vector<const osmium::Way*>& ways,
                  osmium::memory::Buffer& result) {
    return canReckon(ways) && osmium::area::Assembler::operator()(relation, ways, result);
  }

 private:
  // It multiplies the extents of pairs of segments, and adds up what the segments sweep as seen
  // from 0°, 0°, in units of a ten-millionth of a degree.
  static bool canReckon(const std::vector<const osmium::Way*>& ways) {
    constexpr double kLongestSegment = 90e7;
    constexpr double kMostSwept = 4e18;
    double swept = 0;
    for (const osmium::Way* way : ways) {
      const auto& nodes = way->nodes();
      const auto isPlaced = [](const osmium::NodeRef& node) { return node.location().valid(); };
      if (!std::all_of(nodes.begin(), nodes.end(), isPlaced)) return false;
      for (std::size_t i = 1; i < nodes.size(); ++i) {
        const double x = nodes[i - 1].x(), y = nodes[i - 1].y();
        const double east = nodes[i].x() - x, north = nodes[i].y() - y;
        if (std::max(std::abs(east), std::abs(north)) > kLongestSegment) return false;
        swept += std::abs(x * north - y * east);
      }
    }
    return swept < kMostSwept;
  }
};

}  // namespace wayloom
