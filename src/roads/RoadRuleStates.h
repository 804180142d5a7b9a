#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "roads/RoadNetwork.h"

namespace wayloom {

/// What a driver must know of the roads behind to obey every rule: the longest run of arcs, up to
/// the one being driven, with which a rule begins (an automaton after Aho and Corasick, 1975). A
/// driver of whom no rule asks more than the arc itself is in the state of that arc's number.
/// Immutable, so any thread may ask.
class RoadRuleStates {
 public:
  using State = std::uint32_t;
  /// By the number of each rule, whether it holds now.
  using Holding = std::vector<bool>;

  RoadRuleStates() = default;
  RoadRuleStates(const std::vector<RoadRule>& rules, std::size_t arcCount);

  /// One more than the highest state.
  std::size_t count() const { return mArcCount + mLongRuns.size(); }
  RoadArc arcOf(State state) const {
    return state < mArcCount ? state : mRuns[mLongRuns[state - mArcCount]].arc;
  }
  /// Whether any rule has a say in what is driven next.
  bool isBound(State state) const { return state >= mArcCount || mSingleRuns.contains(state); }
  /// The state of who goes on to an arc; nothing where a rule that holds forbids it.
  std::optional<State> next(State state, RoadArc arc, const Holding& holding) const;
  /// Which rules hold at a time; all, where it is not known.
  Holding holdingAt(const std::optional<RoadTime>& time) const;

 private:
  using RunNumber = std::uint32_t;
  static constexpr RunNumber kNoRun = ~RunNumber{0};

  /// What a rule says about the arc after a run.
  struct Word {
    RoadArc next;
    std::uint32_t rule;
    bool isOnly;
  };
  /// Arcs with which a rule begins, by their last.
  struct Run {
    RoadArc arc = 0;
    /// The longest run that this one ends with.
    RunNumber shorter = kNoRun;
    State state = 0;
    std::vector<Word> words;
  };

  void add(const RoadRule& rule, std::uint32_t number);
  RunNumber longer(RunNumber run, RoadArc arc);
  void findShorter();
  RunNumber runOf(State state) const;
  RunNumber after(RunNumber run, RoadArc arc) const;
  bool forbids(const Run& run, RoadArc arc, const Holding& holding) const;

  std::size_t mArcCount = 0;
  std::vector<Run> mRuns;
  std::map<RoadArc, RunNumber> mSingleRuns;
  std::map<std::pair<RunNumber, RoadArc>, RunNumber> mLonger;
  /// The runs of more than one arc, which have states of their own.
  std::vector<RunNumber> mLongRuns;
  std::size_t mRuleCount = 0;
  /// Of the rules that do not always hold.
  std::vector<std::pair<std::uint32_t, std::vector<RoadHours>>> mHours;
};

}  // namespace wayloom
