#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "geo/CircularRegion.h"
#include "places/SVPlacemark.h"
#include "platform/MainQueue.h"
#include "platform/WebRequests.h"

namespace wayloom {

enum SVGeocoderState {
  SVGeocoderStateReady = 0,
  SVGeocoderStateExecuting = 1,
  SVGeocoderStateFinished = 2,
};

/// Told around each change of "state", "isExecuting" and "isFinished". Main thread.
class SVGeocoderObserver {
 public:
  virtual ~SVGeocoderObserver() = default;
  virtual void willChangeValueForKey(std::string_view key) = 0;
  virtual void didChangeValueForKey(std::string_view key) = 0;
};

/// Told the outcome once, on the main thread, and not at all when the operation was cancelled.
/// Places, header and error are each absent when there is none.
using SVGeocoderCompletionHandler = std::function<void(
    const std::optional<std::vector<SVPlacemark>>& placemarks,
    const std::optional<WebResponse>& urlResponse, const std::optional<ServiceError>& error)>;

/// What the operations need from around them.
struct SVGeocoderEnvironment {
  WebRequests& requests;
  MainQueue& queue;
  /// Scheme and host of the service, as in "http://geocode.example.org"; empty when none is set.
  std::string serviceAddress;
  /// The first of the user's preferred languages, as in "en".
  std::function<std::string()> preferredLanguage;
  std::chrono::milliseconds timeout = std::chrono::seconds(20);
};

/// One request to the geocoding service: an operation that is made, started, and either delivers
/// once or is cancelled. It lives on the main thread: `start` moves there by itself; `cancel` and
/// the questions about its state may come from any thread. The caller may let go of it at once; a
/// started operation is kept by its connection until it has finished. The environment's services
/// outlive it.
class SVGeocoder : public WebRequestDelegate, public std::enable_shared_from_this<SVGeocoder> {
 public:
  using Value = std::variant<std::string, long long>;
  using Parameters = std::map<std::string, Value>;
  using Operation = std::shared_ptr<SVGeocoder>;

  /// Make an operation and start it.
  static Operation geocode(const SVGeocoderEnvironment& environment, const std::string& address,
                           SVGeocoderCompletionHandler completion);
  static Operation geocode(const SVGeocoderEnvironment& environment, const std::string& address,
                           const std::optional<CircularRegion>& region,
                           SVGeocoderCompletionHandler completion);
  static Operation reverseGeocode(const SVGeocoderEnvironment& environment, Coordinate coordinate,
                                  SVGeocoderCompletionHandler completion);

  /// Make an operation without starting it.
  static Operation initWithAddress(const SVGeocoderEnvironment& environment,
                                   const std::string& address,
                                   SVGeocoderCompletionHandler completion);
  /// Asks for places in a box around the region's centre that measures the radius, not twice the
  /// radius, from side to side.
  static Operation initWithAddress(const SVGeocoderEnvironment& environment,
                                   const std::string& address,
                                   const std::optional<CircularRegion>& region,
                                   SVGeocoderCompletionHandler completion);
  static Operation initWithCoordinate(const SVGeocoderEnvironment& environment,
                                      Coordinate coordinate,
                                      SVGeocoderCompletionHandler completion);
  static Operation initWithParameters(const SVGeocoderEnvironment& environment,
                                      Parameters parameters,
                                      SVGeocoderCompletionHandler completion);

  /// Any thread.
  void start();
  void cancel();
  bool isCancelled() const;
  bool isConcurrent() const { return true; }
  bool isExecuting() const { return state() == SVGeocoderStateExecuting; }
  bool isFinished() const { return state() == SVGeocoderStateFinished; }
  SVGeocoderState state() const;

  /// The observer is not owned; null for none. Set before the start.
  void setObserver(SVGeocoderObserver* observer) { mObserver = observer; }

  /// What is asked of the service, with its query.
  const WebRequest& operationRequest() const { return mOperationRequest; }

  void connectionDidReceiveResponse(const WebResponse& response) override;
  void connectionDidReceiveData(std::string_view bytes) override;
  void connectionDidFinishLoading() override;
  void connectionDidFailWithError(const ServiceError& error) override;

 private:
  using Placemarks = std::optional<std::vector<SVPlacemark>>;
  using Error = std::optional<ServiceError>;

  SVGeocoder(const SVGeocoderEnvironment& environment, SVGeocoderCompletionHandler completion);

  void addParametersToRequest(const Parameters& parameters);
  void requestTimeout();
  void callCompletionBlockWithResponse(Placemarks placemarks, Error error);
  void deliver(const Placemarks& placemarks, Error error);
  void finish();
  void setState(SVGeocoderState state);
  void willChange(std::string_view key);
  void didChange(std::string_view key);

  const SVGeocoderEnvironment mEnvironment;
  WebRequest mOperationRequest;
  SVGeocoderCompletionHandler mOperationCompletionBlock;
  SVGeocoderObserver* mObserver = nullptr;

  std::string mOperationData;
  std::unique_ptr<WebRequests::Connection> mOperationConnection;
  std::optional<WebResponse> mOperationURLResponse;
  std::unique_ptr<MainQueue::Timer> mTimeoutTimer;

  mutable std::mutex mMutex;  // guards what follows
  SVGeocoderState mState = SVGeocoderStateReady;
  bool mIsCancelled = false;
  bool mIsDelivering = false;
};

}  // namespace wayloom
