#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace wayloom {

/// Which junctions each junction leads to.
struct RoadSteps {
  /// For each junction the number of its first step; one more at the end.
  const std::vector<std::uint32_t>& first;
  /// The junction to which each step leads.
  const std::vector<std::uint32_t>& heads;
};

/// The parts of a graph within which every junction reaches every other (its strongly connected
/// components), and which part leads to which. Immutable, so any thread may ask.
class RoadGraphComponents {
 public:
  RoadGraphComponents() = default;
  explicit RoadGraphComponents(const RoadSteps& steps);

  std::uint32_t of(std::uint32_t junction) const { return mOf[junction]; }
  /// Whether a way leads from one component to another; always from one to itself.
  bool leads(std::uint32_t from, std::uint32_t to) const;

 private:
  std::vector<std::uint32_t> mOf;
  /// Pairs of components with an arc from the first to the second, in order.
  std::vector<std::pair<std::uint32_t, std::uint32_t>> mSteps;
};

}  // namespace wayloom
