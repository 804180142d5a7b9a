#include "platform/RegionDirections.h"

#include <utility>

#include "regions/Router.h"

namespace wayloom {

namespace {

// A driver who asks for other ways gets a choice, not a catalogue.
constexpr int kAlternates = 2;

DirectionsAnswer answerTo(const DirectionsRequest& request, Router& router) {
  const int alternates = request.requestsAlternateRoutes ? kAlternates : 0;
  auto routes = router.plan(request.source, request.destination, alternates);
  if (!routes) return {{}, routes.message()};
  DirectionsAnswer answer;
  for (Route& route : *routes) {
    answer.routes.push_back({std::move(route.line), route.metres, route.seconds});
  }
  return answer;
}

}  // namespace

RegionDirections::RegionDirections(RegionStore store, MainQueue& mainQueue)
    : mStore(std::move(store)),
      mMainQueue(mainQueue),
      mWorker([this](const std::stop_token& stop) { answerQuestions(stop); }) {}

RegionDirections::~RegionDirections() = default;

void RegionDirections::calculate(const DirectionsRequest& request, Completion completion) {
  {
    const std::lock_guard lock(mMutex);
    mQuestions.push_back({request, std::move(completion)});
  }
  mWakeUp.notify_one();
}

std::optional<RegionDirections::Question> RegionDirections::nextQuestion(
    const std::stop_token& stop) {
  std::unique_lock lock(mMutex);
  if (!mWakeUp.wait(lock, stop, [this] { return !mQuestions.empty(); })) return std::nullopt;
  if (stop.stop_requested()) return std::nullopt;
  Question question = std::move(mQuestions.front());
  mQuestions.pop_front();
  return question;
}

void RegionDirections::answerQuestions(const std::stop_token& stop) {
  Router router(mStore);
  while (auto question = nextQuestion(stop)) {
    auto answer = answerTo(question->request, router);
    complete(std::move(question->completion), std::move(answer));
  }
}

void RegionDirections::complete(Completion completion, DirectionsAnswer answer) {
  mMainQueue.post([alive = std::weak_ptr(mAlive), completion = std::move(completion),
                   answer = std::move(answer)] {
    if (!alive.expired() && completion) completion(answer);
  });
}

}  // namespace wayloom
