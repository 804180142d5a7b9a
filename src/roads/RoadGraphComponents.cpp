#include "roads/RoadGraphComponents.h"

#include <algorithm>
#include <limits>
#include <unordered_set>

namespace wayloom {

namespace {

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

/// Tarjan's algorithm, with a stack of its own because roads are longer than the thread's stack.
/// Components are numbered such that none leads to one with a higher number.
class ComponentSearch {
 public:
  explicit ComponentSearch(const RoadSteps& steps)
      : mRoads(steps), mOrder(steps.first.size() - 1, kNone), mLow(mOrder.size()) {
    mComponent.assign(mOrder.size(), kNone);
  }

  std::vector<std::uint32_t> run() {
    for (std::uint32_t junction = 0; junction < mOrder.size(); ++junction) {
      if (mOrder[junction] == kNone) visit(junction);
    }
    return std::move(mComponent);
  }

 private:
  struct Visit {
    std::uint32_t junction;
    std::uint32_t nextStep;
  };

  void visit(std::uint32_t root) {
    enter(root);
    while (!mVisits.empty()) {
      Visit& visit = mVisits.back();
      const std::uint32_t junction = visit.junction;
      if (visit.nextStep == mRoads.first[junction + 1]) {
        leave(junction);
        continue;
      }
      const std::uint32_t target = mRoads.heads[visit.nextStep++];
      if (mOrder[target] == kNone) {
        enter(target);
      } else if (mComponent[target] == kNone) {
        mLow[junction] = std::min(mLow[junction], mOrder[target]);
      }
    }
  }

  void enter(std::uint32_t junction) {
    mOrder[junction] = mLow[junction] = mEntered++;
    mOpen.push_back(junction);
    mVisits.push_back({junction, mRoads.first[junction]});
  }

  void leave(std::uint32_t junction) {
    mVisits.pop_back();
    if (!mVisits.empty()) {
      std::uint32_t& low = mLow[mVisits.back().junction];
      low = std::min(low, mLow[junction]);
    }
    if (mLow[junction] != mOrder[junction]) return;
    std::uint32_t member = kNone;
    while (member != junction) {
      member = mOpen.back();
      mOpen.pop_back();
      mComponent[member] = mComponents;
    }
    ++mComponents;
  }

  const RoadSteps& mRoads;
  std::vector<std::uint32_t> mOrder;
  std::vector<std::uint32_t> mLow;
  std::vector<std::uint32_t> mComponent;
  std::vector<std::uint32_t> mOpen;
  std::vector<Visit> mVisits;
  std::uint32_t mEntered = 0;
  std::uint32_t mComponents = 0;
};

}  // namespace

RoadGraphComponents::RoadGraphComponents(const RoadSteps& steps)
    : mOf(ComponentSearch(steps).run()) {
  for (std::uint32_t junction = 0; junction < mOf.size(); ++junction) {
    for (std::uint32_t step = steps.first[junction]; step < steps.first[junction + 1]; ++step) {
      const std::uint32_t head = steps.heads[step];
      if (mOf[junction] != mOf[head]) mSteps.emplace_back(mOf[junction], mOf[head]);
    }
  }
  std::sort(mSteps.begin(), mSteps.end());
  mSteps.erase(std::unique(mSteps.begin(), mSteps.end()), mSteps.end());
}

bool RoadGraphComponents::leads(std::uint32_t from, std::uint32_t to) const {
  std::vector<std::uint32_t> open{from};
  std::unordered_set<std::uint32_t> seen{from};
  while (!open.empty()) {
    const std::uint32_t component = open.back();
    open.pop_back();
    if (component == to) return true;
    auto step = std::lower_bound(mSteps.begin(), mSteps.end(), std::pair(component, 0U));
    for (; step != mSteps.end() && step->first == component; ++step) {
      if (step->second >= to && seen.insert(step->second).second) open.push_back(step->second);
    }
  }
  return false;
}

}  // namespace wayloom
