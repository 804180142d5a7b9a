#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace wayloom {

/// Runs work on the main thread: the application's event loop, or a small loop of its own in
/// wayloomctl and in tests.
class MainQueue {
 public:
  /// A delayed call; destroying it before it fires cancels it. Main thread only.
  class Timer {
   public:
    virtual ~Timer() = default;
  };

  virtual ~MainQueue() = default;

  /// Runs `work` on the main thread, later, in the order of posting. Any thread may call this.
  virtual void post(std::function<void()> work) = 0;

  /// Whether the caller is on the main thread.
  virtual bool isMainThread() const = 0;

  /// Runs `work` once on the main thread when `delay` has passed. Main thread only.
  [[nodiscard]] virtual std::unique_ptr<Timer> schedule(std::chrono::milliseconds delay,
                                                        std::function<void()> work) = 0;
};

}  // namespace wayloom
