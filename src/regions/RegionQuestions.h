#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "platform/MainQueue.h"
#include "settings/WorkQueue.h"

namespace wayloom {

/// Answers questions about regions one after the other on a thread of its own. Made, asked and
/// destroyed on the main thread, where the completions run; questions still open on destruction are
/// dropped, after the one that is being answered. To be an owner's last member, so that it ends
/// before what the questions use.
class RegionQuestions {
 public:
  /// `mainQueue` must outlive this object.
  explicit RegionQuestions(MainQueue& mainQueue) : mMainQueue(mainQueue) {}

  /// Runs work on the thread, before the questions that come later.
  void prepare(std::function<void()> work) { mWorker.post(std::move(work)); }

  /// `question` runs on the thread; `completion`, which may be empty, later with its answer.
  template <typename Question, typename Completion>
  void ask(Question question, Completion completion) {
    post(std::weak_ptr(mAlive), std::move(question), std::move(completion));
  }

  /// The same, but the question before that came this way is dropped if it is still open.
  template <typename Question, typename Completion>
  void askLatest(Question question, Completion completion) {
    mLatest = std::make_shared<const bool>(true);
    post(std::weak_ptr(mLatest), std::move(question), std::move(completion));
  }

 private:
  // Nothing more happens once nobody `waits`.
  template <typename Question, typename Completion>
  void post(std::weak_ptr<const bool> waits, Question question, Completion completion) {
    mWorker.post([&mainQueue = mMainQueue, waits = std::move(waits), question = std::move(question),
                  completion = std::move(completion)]() mutable {
      if (waits.expired()) return;
      mainQueue.post([waits, completion = std::move(completion), answer = question()] {
        if (!waits.expired() && completion) completion(answer);
      });
    });
  }

  MainQueue& mMainQueue;
  WorkQueue mWorker;
  /// Last, so that it is gone before the worker finishes what was posted, and answers on their way
  /// know that nobody waits for them.
  std::shared_ptr<const bool> mAlive = std::make_shared<const bool>(true);
  std::shared_ptr<const bool> mLatest;
};

}  // namespace wayloom
