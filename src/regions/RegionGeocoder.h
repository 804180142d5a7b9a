#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "platform/Geocoder.h"
#include "platform/MainQueue.h"
#include "regions/PlaceIndex.h"
#include "regions/RegionStore.h"

namespace wayloom {

/// The geocoder on the installed regions: needs no network. Requests are answered one after the
/// other on a thread of its own. Made, asked and destroyed on the main thread, where the
/// completions run; requests still open on destruction are dropped.
class RegionGeocoder : public Geocoder {
 public:
  /// `mainQueue` must outlive the geocoder.
  RegionGeocoder(RegionStore store, MainQueue& mainQueue);
  ~RegionGeocoder() override;

  void geocodeAddress(const std::string& address, std::optional<Coordinate> near,
                      Completion completion) override;
  void reverseGeocode(Coordinate coordinate, Completion completion) override;

 private:
  struct Request {
    std::function<GeocoderAnswer(PlaceIndex&)> question;
    Completion completion;
  };

  void ask(Request request);
  void answerRequests(const std::stop_token& stop);
  std::optional<Request> nextRequest(const std::stop_token& stop);
  void complete(Completion completion, GeocoderAnswer answer);

  const RegionStore mStore;
  MainQueue& mMainQueue;
  /// Gone with the geocoder, so that answers on their way know that nobody waits for them.
  std::shared_ptr<const bool> mAlive = std::make_shared<const bool>(true);
  std::mutex mMutex;
  std::condition_variable_any mWakeUp;
  std::deque<Request> mRequests;
  /// Last, so that it ends before what it uses.
  std::jthread mWorker;
};

}  // namespace wayloom
