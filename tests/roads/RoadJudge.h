#pragma once

#include <map>
#include <set>
#include <vector>

#include <queue>

#include "roads/RoadGraphBuilder.h"

namespace wayloom {

/// Says what the quickest drive costs, from ways and restrictions as they were surveyed: Dijkstra
/// from stretch to stretch, each rule followed by itself. Written to be read against
/// docs/region-file.md, not to be fast, and without anything of the graph or its search.
class RoadJudge {
 public:
  /// One stretch of a way between two nodes where ways meet or end, in one direction.
  struct Arc {
    std::int64_t from, to, way;
    Line line;
    double metres, metresPerSecond, residents;
    bool isAllowed, isFerry, keepsLeft, hasSignal;
  };
  static constexpr double kNever = INFINITY;

  RoadJudge(const std::vector<RoadWay>& ways, const RoadRules& rules,
            const std::optional<RoadTime>& time = {}) {
    cut(ways, rules);
    for (const RoadRestriction& each : rules.restrictions) {
      const bool holds = each.hours.empty() || !time ||
                         std::any_of(each.hours.begin(), each.hours.end(),
                                     [&](const RoadHours& hours) { return hours.contain(*time); });
      for (const std::int64_t from : each.from) {
        for (const std::int64_t to : each.to) {
          if (holds) addRule(each, from, to);
        }
      }
    }
  }

  const std::vector<Arc>& arcs() const { return mArcs; }

  /// Drives everywhere from a share of an arc (or back from there); cost() then tells what it took.
  void driveFrom(std::size_t arc, double share) {
    mBegun.assign(mArcs.size(), kNever);
    std::map<State, double> best;
    Queue open;
    const auto reach = [&](const State& state, double cost) {
      const auto [found, isNew] = best.emplace(state, cost);
      if (!isNew && found->second <= cost) return;
      found->second = cost;
      open.emplace(cost, state);
    };
    if (mArcs[arc].isAllowed) reach(after({}, arc), (1 - share) * seconds(arc));
    if (mArcs[arc ^ 1].isAllowed) reach(after({}, arc ^ 1), share * seconds(arc));
    mStart = arc;
    mShare = share;
    while (!open.empty()) {
      const auto [cost, state] = open.top();
      open.pop();
      if (cost > best[state]) continue;
      for (const std::size_t next : mLeaving[mArcs[state.arc].to]) {
        const bool isBack = next == (state.arc ^ 1);
        if (isBack && mLeaving[mArcs[state.arc].to].size() > 1) continue;
        if (!mArcs[next].isAllowed || isForbidden(state, next)) continue;
        const double begun = cost + turn(state.arc, next) + (isBack ? 20 : 0);
        mBegun[next] = std::min(mBegun[next], begun);
        const State there = after(state, next);
        reach(there, begun + seconds(next));
        // Some metres along it, at most to its middle, one may turn round.
        const bool mayTurn = mArcs[next ^ 1].isAllowed && !mArcs[next].isFerry;
        if (!mayTurn || isForbidden(there, next ^ 1)) continue;
        const double part = std::min(20 / mArcs[next].metres, 0.5);
        const double back = mArcs[next].metres > 0 ? 2 * part * seconds(next) : 0;
        reach(after(there, next ^ 1), begun + back + 20);
      }
    }
  }

  /// The cost of going to a share of an arc.
  double cost(std::size_t arc, double share) const {
    double least =
        std::min(mBegun[arc] + share * seconds(arc), mBegun[arc ^ 1] + (1 - share) * seconds(arc));
    if (arc == mStart && mArcs[share >= mShare ? arc : arc ^ 1].isAllowed) {
      least = std::min(least, std::abs(share - mShare) * seconds(arc));
    }
    return least;
  }

 private:
  using Rule = std::vector<std::size_t>;
  /// An arc and how much of which rules lies just behind: pairs of rule and number of arcs.
  struct State {
    std::size_t arc;
    std::set<std::pair<std::size_t, std::size_t>> begun;
    auto operator<=>(const State&) const = default;
  };
  using Queue = std::priority_queue<std::pair<double, State>, std::vector<std::pair<double, State>>,
                                    std::greater<>>;

  void cut(const std::vector<RoadWay>& ways, const RoadRules& rules) {
    const auto nodeOf = [](const RoadWay& way, std::size_t at) {
      return way.nodes.empty() ? roadNodeAt(way.line[at]) : way.nodes[at];
    };
    std::map<std::int64_t, int> uses;
    for (const RoadWay& way : ways) {
      for (std::size_t at = 0; at < way.line.size(); ++at) {
        if (at == 0 || nodeOf(way, at) != nodeOf(way, at - 1)) ++uses[nodeOf(way, at)];
      }
    }
    std::int64_t deadEnd = -(std::int64_t{1} << 62);
    for (const RoadWay& way : ways) {
      Line line{way.line.front()};
      std::int64_t from = nodeOf(way, 0), last = from;
      for (std::size_t at = 1; at < way.line.size(); ++at) {
        const std::int64_t node = nodeOf(way, at);
        if (node == last) continue;
        last = node;
        line.push_back(way.line[at]);
        const bool isCut = uses[node] > 1 || rules.barriers.contains(node) ||
                           rules.signals.contains(node) || at + 1 == way.line.size();
        if (!isCut) continue;
        // Behind a barrier each road ends for itself.
        const auto end = [&](std::int64_t number) {
          return rules.barriers.contains(number) ? deadEnd++ : number;
        };
        add(way, end(from), end(node), line, rules, from, node);
        line = {way.line[at]};
        from = node;
      }
    }
  }

  void add(const RoadWay& way, std::int64_t from, std::int64_t to, Line line,
           const RoadRules& rules, std::int64_t fromNode, std::int64_t toNode) {
    double metres = 0;
    for (std::size_t at = 1; at < line.size(); ++at) metres += distance(line[at - 1], line[at]);
    const auto signal = [&](std::int64_t node, bool RoadSignal::*looks) {
      const auto found = rules.signals.find(node);
      return found != rules.signals.end() && found->second.*looks;
    };
    const RoadUse& use = way.use;
    const Arc arc{from,
                  to,
                  way.number,
                  line,
                  metres,
                  use.kmPerHour / 3.6,
                  use.destinationOnly ? 8.0 : 1.0,
                  use.forward,
                  use.isFerry,
                  use.keepsLeft,
                  signal(toNode, &RoadSignal::forward)};
    Arc back = arc;
    std::swap(back.from, back.to);
    std::reverse(back.line.begin(), back.line.end());
    back.isAllowed = use.backward;
    back.hasSignal = signal(fromNode, &RoadSignal::backward);
    mLeaving[from].push_back(mArcs.size());
    mLeaving[to].push_back(mArcs.size() + 1);
    mArcs.push_back(arc);
    mArcs.push_back(back);
  }

  // Great circles, by the haversine.
  static double distance(Coordinate a, Coordinate b) {
    constexpr double kRadians = M_PI / 180;
    const double y = std::sin((b.latitude - a.latitude) * kRadians / 2);
    const double x = std::sin((b.longitude - a.longitude) * kRadians / 2);
    return 2 * 6371008.8 *
           std::asin(std::sqrt(y * y + std::cos(a.latitude * kRadians) *
                                           std::cos(b.latitude * kRadians) * x * x));
  }

  double seconds(std::size_t arc) const {
    return mArcs[arc].metres / mArcs[arc].metresPerSecond * mArcs[arc].residents;
  }

  double turn(std::size_t from, std::size_t to) const {
    const Arc& arc = mArcs[from];
    const double wait = arc.hasSignal ? 7.5 : 0;
    if (mLeaving.at(arc.to).size() < 3) return wait;
    const Line back(arc.line.rbegin(), arc.line.rend());
    const double before = bearing(back) + M_PI, behind = bearing(mArcs[to].line);
    const double right = std::sin(behind - before) * (arc.keepsLeft ? 1 : -1);
    return wait + 2.5 * (1 - std::cos(behind - before)) + 1.8 * std::max(0.0, right);
  }

  // In radians from north to east, at the line's beginning.
  static double bearing(const Line& line) {
    std::size_t next = 1;
    while (next + 1 < line.size() && line[next] == line[0]) ++next;
    return std::atan2(
        (line[next].longitude - line[0].longitude) * std::cos(line[0].latitude * M_PI / 180),
        line[next].latitude - line[0].latitude);
  }

  // Every drive from one way over the others to the last; a rule is there if it is but one.
  void addRule(const RoadRestriction& restriction, std::int64_t from, std::int64_t to) {
    if (!restriction.viaNode && restriction.viaWays.empty()) return;
    std::vector<Rule> found;
    for (std::size_t arc = 0; arc < mArcs.size(); ++arc) {
      if (mArcs[arc].way == from && mArcs[arc].isAllowed) extend({arc}, restriction, 0, to, found);
    }
    if (found.size() != 1) return;
    mRules.push_back(found.front());
    mIsOnly.push_back(restriction.isOnly);
  }

  void extend(const Rule& drive, const RoadRestriction& restriction, std::size_t viaWay,
              std::int64_t to, std::vector<Rule>& found) const {
    const auto& vias = restriction.viaWays;
    const std::int64_t node = mArcs[drive.back()].to;
    if (restriction.viaNode && node != *restriction.viaNode) return;
    const bool isOver = restriction.viaNode || viaWay == vias.size();
    for (const std::size_t next : mLeaving.at(node)) {
      if (!mArcs[next].isAllowed || mArcs[next].way != (isOver ? to : vias[viaWay])) continue;
      Rule longer = drive;
      longer.push_back(next);
      if (isOver) {
        found.push_back(longer);
      } else if (std::none_of(drive.begin() + 1, drive.end(),
                              [&](std::size_t arc) { return arc / 2 == next / 2; })) {
        const auto driven = std::count_if(longer.begin() + 1, longer.end(), [&](std::size_t arc) {
          return mArcs[arc].way == vias[viaWay];
        });
        const auto all = std::count_if(mArcs.begin(), mArcs.end(),
                                       [&](const Arc& arc) { return arc.way == vias[viaWay]; });
        extend(longer, restriction, viaWay + (2 * driven == all ? 1 : 0), to, found);
      }
    }
  }

  State after(const State& state, std::size_t arc) const {
    State next{arc, {}};
    for (const auto& [rule, count] : state.begun) {
      const bool goesOn = mRules[rule][count] == arc && count + 1 < mRules[rule].size();
      if (goesOn) next.begun.emplace(rule, count + 1);
    }
    for (std::size_t rule = 0; rule < mRules.size(); ++rule) {
      if (mRules[rule].front() == arc) next.begun.emplace(rule, 1);
    }
    return next;
  }

  // Of several only ones that have begun alike, each says what is allowed.
  bool isForbidden(const State& state, std::size_t arc) const {
    for (const auto& each : state.begun) {
      const std::size_t rule = each.first, count = each.second;
      const bool isNext = mRules[rule][count] == arc;
      if (!mIsOnly[rule] && isNext && count + 1 == mRules[rule].size()) return true;
      if (!mIsOnly[rule] || isNext) continue;
      const auto& begin = mRules[rule].begin();
      const Rule behind(begin, begin + static_cast<std::ptrdiff_t>(count));
      const bool isAllowed = std::any_of(state.begun.begin(), state.begun.end(), [&](auto& other) {
        const Rule& way = mRules[other.first];
        return mIsOnly[other.first] && other.second == count && way[count] == arc &&
               std::equal(behind.begin(), behind.end(), way.begin());
      });
      if (!isAllowed) return true;
    }
    return false;
  }

  std::vector<Arc> mArcs;
  std::map<std::int64_t, std::vector<std::size_t>> mLeaving;
  std::vector<Rule> mRules;
  std::vector<bool> mIsOnly;
  std::vector<double> mBegun;
  std::size_t mStart = 0;
  double mShare = 0;
};

}  // namespace wayloom
