#include "roads/RoadRuleStates.h"

#include <algorithm>

namespace wayloom {

RoadRuleStates::RoadRuleStates(const std::vector<RoadRule>& rules, std::size_t arcCount)
    : mArcCount(arcCount), mRuleCount(rules.size()) {
  for (std::uint32_t number = 0; number < rules.size(); ++number) {
    add(rules[number], number);
    if (!rules[number].hours.empty()) mHours.emplace_back(number, rules[number].hours);
  }
  findShorter();
}

void RoadRuleStates::add(const RoadRule& rule, std::uint32_t number) {
  const auto fresh = static_cast<RunNumber>(mRuns.size());
  const auto [single, isFresh] = mSingleRuns.emplace(rule.arcs.front(), fresh);
  if (isFresh) mRuns.push_back({rule.arcs.front(), kNoRun, rule.arcs.front(), {}});
  RunNumber run = single->second;
  for (std::size_t at = 1; at < rule.arcs.size(); ++at) {
    const bool isLast = at + 1 == rule.arcs.size();
    if (isLast || rule.isOnly) mRuns[run].words.push_back({rule.arcs[at], number, rule.isOnly});
    if (!isLast) run = longer(run, rule.arcs[at]);
  }
}

RoadRuleStates::RunNumber RoadRuleStates::longer(RunNumber run, RoadArc arc) {
  const auto fresh = static_cast<RunNumber>(mRuns.size());
  const auto [found, isFresh] = mLonger.emplace(std::pair(run, arc), fresh);
  if (isFresh) {
    mRuns.push_back({arc, kNoRun, static_cast<State>(count()), {}});
    mLongRuns.push_back(fresh);
  }
  return found->second;
}

// Shorter runs first, since each step asks for those of the one before.
void RoadRuleStates::findShorter() {
  std::vector<RunNumber> open;
  for (const auto& [arc, run] : mSingleRuns) open.push_back(run);
  for (std::size_t at = 0; at < open.size(); ++at) {
    const RunNumber run = open[at];
    auto step = mLonger.lower_bound({run, 0});
    for (; step != mLonger.end() && step->first.first == run; ++step) {
      mRuns[step->second].shorter = after(mRuns[run].shorter, step->first.second);
      open.push_back(step->second);
    }
  }
}

// The longest run that ends with `arc` after `run`.
RoadRuleStates::RunNumber RoadRuleStates::after(RunNumber run, RoadArc arc) const {
  for (; run != kNoRun; run = mRuns[run].shorter) {
    const auto found = mLonger.find({run, arc});
    if (found != mLonger.end()) return found->second;
  }
  const auto single = mSingleRuns.find(arc);
  return single == mSingleRuns.end() ? kNoRun : single->second;
}

RoadRuleStates::RunNumber RoadRuleStates::runOf(State state) const {
  if (state >= mArcCount) return mLongRuns[state - mArcCount];
  const auto single = mSingleRuns.find(state);
  return single == mSingleRuns.end() ? kNoRun : single->second;
}

bool RoadRuleStates::forbids(const Run& run, RoadArc arc, const Holding& holding) const {
  bool isBound = false;
  bool isAllowed = false;
  for (const Word& word : run.words) {
    if (!holding[word.rule]) continue;
    if (!word.isOnly && word.next == arc) return true;
    isBound = isBound || word.isOnly;
    isAllowed = isAllowed || (word.isOnly && word.next == arc);
  }
  return isBound && !isAllowed;
}

std::optional<RoadRuleStates::State> RoadRuleStates::next(State state, RoadArc arc,
                                                          const Holding& holding) const {
  const RunNumber begin = runOf(state);
  for (RunNumber run = begin; run != kNoRun; run = mRuns[run].shorter) {
    if (forbids(mRuns[run], arc, holding)) return std::nullopt;
  }
  const RunNumber reached = after(begin, arc);
  return reached == kNoRun ? arc : mRuns[reached].state;
}

RoadRuleStates::Holding RoadRuleStates::holdingAt(const std::optional<RoadTime>& time) const {
  Holding holding(mRuleCount, true);
  if (!time) return holding;
  for (const auto& [rule, hours] : mHours) {
    holding[rule] = std::any_of(hours.begin(), hours.end(),
                                [&](const RoadHours& each) { return each.contain(*time); });
  }
  return holding;
}

}  // namespace wayloom
