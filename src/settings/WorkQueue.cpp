#include "settings/WorkQueue.h"

#include <utility>

namespace wayloom {

WorkQueue::WorkQueue() : mWorker([this](const std::stop_token& stop) { run(stop); }) {}

WorkQueue::~WorkQueue() {
  waitUntilDone();
}

void WorkQueue::post(std::function<void()> work) {
  {
    const std::lock_guard lock(mMutex);
    mWaiting.push_back(std::move(work));
  }
  mChanged.notify_all();
}

void WorkQueue::waitUntilDone() {
  std::unique_lock lock(mMutex);
  mChanged.wait(lock, [this] { return mWaiting.empty() && !mIsWorking; });
}

void WorkQueue::run(const std::stop_token& stop) {
  std::unique_lock lock(mMutex);
  while (mChanged.wait(lock, stop, [this] { return !mWaiting.empty(); })) {
    const std::function<void()> work = std::move(mWaiting.front());
    mWaiting.pop_front();
    mIsWorking = true;
    lock.unlock();
    work();
    lock.lock();
    mIsWorking = false;
    mChanged.notify_all();
  }
}

}  // namespace wayloom
