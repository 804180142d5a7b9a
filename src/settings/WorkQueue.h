#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace wayloom {

/// Runs pieces of work one after the other on a thread of its own. What was posted is done before
/// the queue is gone. One thread owns, posts and waits.
class WorkQueue {
 public:
  WorkQueue();
  ~WorkQueue();
  WorkQueue(const WorkQueue&) = delete;
  WorkQueue& operator=(const WorkQueue&) = delete;

  void post(std::function<void()> work);

  /// Returns when everything posted so far is done.
  void waitUntilDone();

 private:
  void run(const std::stop_token& stop);

  std::mutex mMutex;
  std::condition_variable_any mChanged;
  std::deque<std::function<void()>> mWaiting;
  bool mIsWorking = false;
  /// Last, so that it ends before what it uses.
  std::jthread mWorker;
};

}  // namespace wayloom
