#pragma once

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace wayloom {

/// One edge in one direction.
struct RoadArc {
  /// The junction it leads to.
  std::uint32_t target = 0;
  std::uint32_t edge = 0;
  float seconds = 0;
  bool isForward = true;
  /// As the edge says; here because a search asks for every arc.
  bool destinationOnly = false;
};

/// The arcs of a graph by the junction that they leave.
struct RoadArcs {
  std::vector<RoadArc> all;
  /// For each junction the number of its first arc; one more at the end.
  std::vector<std::uint32_t> first;

  std::span<const RoadArc> from(std::uint32_t junction) const {
    return std::span(all).subspan(first[junction], first[junction + 1] - first[junction]);
  }
};

/// The parts of a graph within which every junction reaches every other (its strongly connected
/// components), and which part leads to which. Immutable, so any thread may ask.
class RoadGraphComponents {
 public:
  RoadGraphComponents() = default;
  explicit RoadGraphComponents(const RoadArcs& arcs);

  std::uint32_t of(std::uint32_t junction) const { return mOf[junction]; }
  /// Whether a way leads from one component to another; always from one to itself.
  bool leads(std::uint32_t from, std::uint32_t to) const;

 private:
  std::vector<std::uint32_t> mOf;
  /// Pairs of components with an arc from the first to the second, in order.
  std::vector<std::pair<std::uint32_t, std::uint32_t>> mSteps;
};

}  // namespace wayloom
