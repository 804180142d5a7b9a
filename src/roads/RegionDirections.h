#pragma once

#include "platform/Directions.h"
#include "platform/MainQueue.h"
#include "regions/RegionQuestions.h"
#include "regions/RegionStore.h"
#include "roads/Router.h"

namespace wayloom {

/// Directions on the roads of the installed regions: needs no network. Requests are answered one
/// after the other on a thread of its own. Made, asked and destroyed on the main thread, where the
/// completions run; requests still open on destruction are dropped.
class RegionDirections : public Directions {
 public:
  /// `mainQueue` must outlive the directions.
  RegionDirections(const RegionStore& store, MainQueue& mainQueue);

  void calculate(const DirectionsRequest& request, Completion completion) override;

 private:
  /// Used on the thread of the questions only.
  Router mRouter;
  RegionQuestions mQuestions;
};

}  // namespace wayloom
