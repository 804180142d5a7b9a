#include "platform/RunLoop.h"

#include <algorithm>
#include <utility>

namespace wayloom {

namespace {
/// Far enough to mean "no limit", near enough that clock arithmetic on it cannot overflow.
constexpr std::chrono::hours kForever{24 * 365};
}  // namespace

/// Owns the work, so that cancelling is nothing but dropping the handle.
class RunLoop::LoopTimer : public MainQueue::Timer {
 public:
  explicit LoopTimer(std::shared_ptr<Work> work) : mWork(std::move(work)) {}

 private:
  std::shared_ptr<Work> mWork;
};

void RunLoop::post(std::function<void()> work) {
  // Told under the lock: the main thread may destroy the loop as soon as it has run the work.
  std::lock_guard lock(mMutex);
  mPosted.push_back(std::move(work));
  mArrived.notify_one();
}

bool RunLoop::isMainThread() const {
  return std::this_thread::get_id() == mMainThread;
}

std::unique_ptr<MainQueue::Timer> RunLoop::schedule(std::chrono::milliseconds delay,
                                                    std::function<void()> work) {
  const auto bounded = std::min<std::chrono::milliseconds>(delay, kForever);
  auto owned = std::make_shared<Work>(std::move(work));
  mTimers.emplace(Clock::now() + bounded, owned);
  return std::make_unique<LoopTimer>(std::move(owned));
}

bool RunLoop::runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
  const auto end = Clock::now() + std::min<std::chrono::milliseconds>(limit, kForever);
  while (!done()) {
    if (Clock::now() >= end) return false;
    turn(end);
  }
  return true;
}

void RunLoop::runUntil(const std::function<bool()>& done) {
  while (!runUntil(done, kForever)) {
  }
}

void RunLoop::turn(Clock::time_point limit) {
  awaitWork(limit);
  // The handle may be destroyed by the work itself, so the work is held while it runs.
  if (const auto timer = takeDueTimer()) (*timer)();
  Work work;
  {
    std::lock_guard lock(mMutex);
    if (mPosted.empty()) return;
    work = std::move(mPosted.front());
    mPosted.pop_front();
  }
  work();
}

std::shared_ptr<RunLoop::Work> RunLoop::takeDueTimer() {
  const auto now = Clock::now();
  while (!mTimers.empty() && mTimers.begin()->first <= now) {
    auto work = mTimers.begin()->second.lock();
    mTimers.erase(mTimers.begin());
    if (work) return work;
  }
  return nullptr;
}

void RunLoop::awaitWork(Clock::time_point limit) {
  while (!mTimers.empty() && mTimers.begin()->second.expired()) mTimers.erase(mTimers.begin());
  if (!mTimers.empty()) limit = std::min(limit, mTimers.begin()->first);
  std::unique_lock lock(mMutex);
  mArrived.wait_until(lock, limit, [this] { return !mPosted.empty(); });
}

}  // namespace wayloom
