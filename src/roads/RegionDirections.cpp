#include "roads/RegionDirections.h"

#include <utility>

#include "roads/EvenRecords.h"

namespace wayloom {

namespace {

// A driver who asks for other ways gets a choice, not a catalogue.
constexpr int kAlternates = 2;

DirectionsAnswer answerTo(const DirectionsRequest& request, Router& router) {
  const int alternates = request.requestsAlternateRoutes ? kAlternates : 0;
  std::optional<RoadTime> start;
  if (request.startTime) start = roadTime(*request.startTime);
  auto routes = router.plan(request.source, request.destination, alternates, start);
  if (!routes) return {{}, routes.message()};
  for (Route& route : *routes) spaceEvenly(route);
  return {std::move(*routes), std::nullopt};
}

}  // namespace

RegionDirections::RegionDirections(const RegionStore& store, MainQueue& mainQueue)
    : mRouter(store), mQuestions(mainQueue) {}

void RegionDirections::calculate(const DirectionsRequest& request, Completion completion) {
  mQuestions.ask([this, request] { return answerTo(request, mRouter); }, std::move(completion));
}

}  // namespace wayloom
