#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "platform/Directions.h"
#include "platform/MainQueue.h"
#include "regions/RegionStore.h"

namespace wayloom {

/// Directions on the roads of the installed regions: needs no network. Requests are answered one
/// after the other on a thread of its own. Made, asked and destroyed on the main thread, where the
/// completions run; requests still open on destruction are dropped.
class RegionDirections : public Directions {
 public:
  /// `mainQueue` must outlive the directions.
  RegionDirections(RegionStore store, MainQueue& mainQueue);
  ~RegionDirections() override;

  void calculate(const DirectionsRequest& request, Completion completion) override;

 private:
  struct Question {
    DirectionsRequest request;
    Completion completion;
  };

  void answerQuestions(const std::stop_token& stop);
  std::optional<Question> nextQuestion(const std::stop_token& stop);
  void complete(Completion completion, DirectionsAnswer answer);

  const RegionStore mStore;
  MainQueue& mMainQueue;
  /// Gone with the directions, so that answers on their way know that nobody waits for them.
  std::shared_ptr<const bool> mAlive = std::make_shared<const bool>(true);
  std::mutex mMutex;
  std::condition_variable_any mWakeUp;
  std::deque<Question> mQuestions;
  /// Last, so that it ends before what it uses.
  std::jthread mWorker;
};

}  // namespace wayloom
