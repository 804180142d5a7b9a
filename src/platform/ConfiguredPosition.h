#pragma once

#include <memory>

#include "platform/MainQueue.h"
#include "platform/PositionSource.h"

namespace wayloom {

/// A position source for a machine without one: each request is answered with the same position,
/// as a platform would answer it, on the main thread and a little later; with no fix when there is
/// no position to give.
class ConfiguredPosition : public PositionSource {
 public:
  /// `queue` must outlive this object.
  ConfiguredPosition(MainQueue& queue, std::optional<Coordinate> position)
      : mQueue(queue), mPosition(position) {}

  void setDelegate(PositionSourceDelegate* delegate) override { mDelegate = delegate; }
  void setDesiredAccuracyBest() override {}
  void setDistanceFilter(double /*metres*/) override {}
  void requestWhenInUseAuthorization() override {}
  void requestAlwaysAuthorization() override {}
  void startUpdatingLocation() override;
  void stopUpdatingLocation() override;

 private:
  MainQueue& mQueue;
  std::optional<Coordinate> mPosition;
  PositionSourceDelegate* mDelegate = nullptr;
  std::unique_ptr<MainQueue::Timer> mAnswer;
};

}  // namespace wayloom
