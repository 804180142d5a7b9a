#include "roads/RoadRestriction.h"

#include <algorithm>

namespace wayloom {

namespace {

// More than any honest restriction needs; each is tried with each.
constexpr std::size_t kMostPairs = 64;
constexpr std::size_t kMostRuns = 16;

}  // namespace

// Both directions in which a way can be driven from end to end.
std::vector<RestrictionFitter::Arcs> RestrictionFitter::wholeWays(std::int64_t way) const {
  std::vector<Arcs> runs;
  for (const bool isForward : {true, false}) {
    Arcs run;
    for (const std::uint32_t edge : mWayEdges.at(way)) run.push_back(roadArc(edge, isForward));
    if (!isForward) std::reverse(run.begin(), run.end());
    bool isWhole =
        std::all_of(run.begin(), run.end(), [&](RoadArc arc) { return mNetwork.mayDrive(arc); });
    for (std::size_t at = 1; at < run.size(); ++at) {
      isWhole = isWhole && mNetwork.head(run[at - 1]) == mNetwork.tail(run[at]);
    }
    if (isWhole) runs.push_back(std::move(run));
  }
  return runs;
}

// Every way of driving all `via` ways one after the other.
std::vector<RestrictionFitter::Arcs> RestrictionFitter::viaRuns(
    const RoadRestriction& restriction) const {
  std::vector<Arcs> runs{{}};
  for (const std::int64_t way : restriction.viaWays) {
    std::vector<Arcs> longer;
    for (const Arcs& run : runs) {
      for (const Arcs& more : wholeWays(way)) {
        if (!run.empty() && mNetwork.head(run.back()) != mNetwork.tail(more.front())) continue;
        if (run.size() + more.size() > kMostArcsInARule) continue;
        longer.push_back(run);
        longer.back().insert(longer.back().end(), more.begin(), more.end());
      }
    }
    if (longer.size() > kMostRuns) return {};
    runs = std::move(longer);
  }
  return runs;
}

RestrictionFitter::Arcs RestrictionFitter::leaving(std::int64_t way, std::uint32_t junction) const {
  Arcs arcs;
  for (const std::uint32_t edge : mWayEdges.at(way)) {
    for (const RoadArc arc : {roadArc(edge, true), roadArc(edge, false)}) {
      if (mNetwork.mayDrive(arc) && mNetwork.tail(arc) == junction) arcs.push_back(arc);
    }
  }
  return arcs;
}

RestrictionFitter::Arcs RestrictionFitter::arriving(std::int64_t way,
                                                    std::uint32_t junction) const {
  Arcs arcs;
  for (const std::uint32_t edge : mWayEdges.at(way)) {
    for (const RoadArc arc : {roadArc(edge, true), roadArc(edge, false)}) {
      if (mNetwork.mayDrive(arc) && mNetwork.head(arc) == junction) arcs.push_back(arc);
    }
  }
  return arcs;
}

// What leads from one way over a run of others to a further one, in every manner there is.
std::vector<RestrictionFitter::Arcs> RestrictionFitter::over(
    std::int64_t from, const Arcs& run, std::int64_t to, std::optional<std::uint32_t> via) const {
  std::vector<Arcs> found;
  for (const RoadArc first : arriving(from, via ? *via : mNetwork.tail(run.front()))) {
    for (const RoadArc last : leaving(to, via ? *via : mNetwork.head(run.back()))) {
      Arcs& arcs = found.emplace_back(Arcs{first});
      arcs.insert(arcs.end(), run.begin(), run.end());
      arcs.push_back(last);
    }
  }
  return found;
}

bool RestrictionFitter::fit(const RoadRestriction& restriction, std::optional<std::uint32_t> via,
                            std::vector<RoadRule>& rules) const {
  const auto isRoad = [&](std::int64_t way) { return mWayEdges.contains(way); };
  if (!via && restriction.viaWays.empty()) return false;
  if (restriction.from.size() * restriction.to.size() > kMostPairs) return false;
  if (!std::all_of(restriction.viaWays.begin(), restriction.viaWays.end(), isRoad)) return true;
  const std::vector<Arcs> runs = via ? std::vector<Arcs>{{}} : viaRuns(restriction);
  bool fits = true;
  for (const std::int64_t from : restriction.from) {
    for (const std::int64_t to : restriction.to) {
      if (!isRoad(from) || !isRoad(to)) continue;
      std::vector<Arcs> found;
      for (const Arcs& run : runs) {
        for (Arcs& arcs : over(from, run, to, via)) found.push_back(std::move(arcs));
      }
      const bool isOne = found.size() == 1 && found.front().size() <= kMostArcsInARule;
      if (isOne) rules.push_back({found.front(), restriction.isOnly, restriction.hours});
      fits = fits && isOne;
    }
  }
  return fits;
}

}  // namespace wayloom
