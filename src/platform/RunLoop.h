#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

#include "platform/MainQueue.h"

namespace wayloom {

/// The main queue where there is no event loop of Qt: in wayloomctl and in tests. The thread that
/// makes it is the main thread and the one that runs it. Work that never got its turn is dropped
/// with the loop; a timer's handle may outlive the loop.
class RunLoop : public MainQueue {
 public:
  using Clock = std::chrono::steady_clock;

  RunLoop() = default;
  RunLoop(const RunLoop&) = delete;
  RunLoop& operator=(const RunLoop&) = delete;

  void post(std::function<void()> work) override;
  bool isMainThread() const override;
  std::unique_ptr<Timer> schedule(std::chrono::milliseconds delay,
                                  std::function<void()> work) override;

  /// Runs posted work and timers until `done` says so; false when `limit` passed first. Main
  /// thread only; calls may nest.
  [[nodiscard]] bool runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit);

  /// As above, without a limit.
  void runUntil(const std::function<bool()>& done);

 private:
  class LoopTimer;
  using Work = std::function<void()>;

  /// Waits until `limit` for work, then runs at most one due timer and one posted piece, so that
  /// neither kind can hold up the other.
  void turn(Clock::time_point limit);
  std::shared_ptr<Work> takeDueTimer();
  void awaitWork(Clock::time_point limit);

  const std::thread::id mMainThread = std::this_thread::get_id();
  std::mutex mMutex;
  std::condition_variable mArrived;
  std::deque<Work> mPosted;
  /// Main thread only. A cancelled timer's work is gone; its entry goes when it is next looked at.
  std::multimap<Clock::time_point, std::weak_ptr<Work>> mTimers;
};

}  // namespace wayloom
