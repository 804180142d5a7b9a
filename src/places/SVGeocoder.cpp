#include "places/SVGeocoder.h"

#include <utility>

#include "geo/MapRegion.h"
#include "places/GeocodingAnswer.h"
#include "places/URLEncoding.h"
#include "settings/TextConversions.h"

namespace wayloom {

namespace {

constexpr const char* kServicePath = "/maps/api/geocode/json";

std::string boundsText(const CircularRegion& region) {
  const CoordinateSpan span =
      regionWithDistance(region.center, region.radiusMetres, region.radiusMetres).span;
  const double south = region.center.latitude - span.latitudeDelta / 2;
  const double west = region.center.longitude - span.longitudeDelta / 2;
  const double north = region.center.latitude + span.latitudeDelta / 2;
  const double east = region.center.longitude + span.longitudeDelta / 2;
  return formatReal(south) + "," + formatReal(west) + "|" + formatReal(north) + "," +
         formatReal(east);
}

std::string queryValue(const SVGeocoder::Value& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text ? encodedURLParameterString(*text) : std::to_string(std::get<long long>(value));
}

}  // namespace

SVGeocoder::Operation SVGeocoder::geocode(const SVGeocoderEnvironment& environment,
                                          const std::string& address,
                                          SVGeocoderCompletionHandler completion) {
  auto operation = initWithAddress(environment, address, std::move(completion));
  operation->start();
  return operation;
}

SVGeocoder::Operation SVGeocoder::geocode(const SVGeocoderEnvironment& environment,
                                          const std::string& address,
                                          const std::optional<CircularRegion>& region,
                                          SVGeocoderCompletionHandler completion) {
  auto operation = initWithAddress(environment, address, region, std::move(completion));
  operation->start();
  return operation;
}

SVGeocoder::Operation SVGeocoder::reverseGeocode(const SVGeocoderEnvironment& environment,
                                                 Coordinate coordinate,
                                                 SVGeocoderCompletionHandler completion) {
  auto operation = initWithCoordinate(environment, coordinate, std::move(completion));
  operation->start();
  return operation;
}

SVGeocoder::Operation SVGeocoder::initWithAddress(const SVGeocoderEnvironment& environment,
                                                  const std::string& address,
                                                  SVGeocoderCompletionHandler completion) {
  return initWithParameters(environment, {{"address", address}}, std::move(completion));
}

SVGeocoder::Operation SVGeocoder::initWithAddress(const SVGeocoderEnvironment& environment,
                                                  const std::string& address,
                                                  const std::optional<CircularRegion>& region,
                                                  SVGeocoderCompletionHandler completion) {
  const std::string bounds = boundsText(region.value_or(CircularRegion()));
  return initWithParameters(environment, {{"address", address}, {"bounds", bounds}},
                            std::move(completion));
}

SVGeocoder::Operation SVGeocoder::initWithCoordinate(const SVGeocoderEnvironment& environment,
                                                     Coordinate coordinate,
                                                     SVGeocoderCompletionHandler completion) {
  const std::string position =
      formatReal(coordinate.latitude) + "," + formatReal(coordinate.longitude);
  return initWithParameters(environment, {{"latlng", position}}, std::move(completion));
}

SVGeocoder::Operation SVGeocoder::initWithParameters(const SVGeocoderEnvironment& environment,
                                                     Parameters parameters,
                                                     SVGeocoderCompletionHandler completion) {
  Operation operation(new SVGeocoder(environment, std::move(completion)));
  parameters["sensor"] = "true";
  parameters["language"] = environment.preferredLanguage();
  operation->addParametersToRequest(parameters);
  return operation;
}

SVGeocoder::SVGeocoder(const SVGeocoderEnvironment& environment,
                       SVGeocoderCompletionHandler completion)
    : mEnvironment(environment), mOperationCompletionBlock(std::move(completion)) {
  mOperationRequest.url = environment.serviceAddress + kServicePath;
  mOperationRequest.timeout = environment.timeout;
  mOperationRequest.bodyLimitBytes = GeocodingAnswer::kBodyLimitBytes;
}

void SVGeocoder::addParametersToRequest(const Parameters& parameters) {
  std::string query;
  for (const auto& [key, value] : parameters) {
    query += (query.empty() ? "?" : "&") + key + "=" + queryValue(value);
  }
  mOperationRequest.url += query;
}

void SVGeocoder::start() {
  // Everything but the cancelled flag changes on the main thread only, so even an operation that
  // was cancelled before its start finishes there.
  if (!mEnvironment.queue.isMainThread()) {
    mEnvironment.queue.post([self = shared_from_this()] { self->start(); });
    return;
  }
  if (isCancelled()) return finish();
  if (state() != SVGeocoderStateReady) return;
  willChange("isExecuting");
  setState(SVGeocoderStateExecuting);
  didChange("isExecuting");
  mOperationData.clear();
  if (mEnvironment.serviceAddress.empty()) {
    connectionDidFailWithError({kUrlErrorDomain,
                                kUrlErrorCannotFindHost,
                                "No online geocoding service is turned on in services.json",
                                {}});
    return;
  }
  // Not kept by its own timer: that would be a circle.
  mTimeoutTimer = mEnvironment.queue.schedule(mEnvironment.timeout, [operation = weak_from_this()] {
    if (const auto self = operation.lock()) self->requestTimeout();
  });
  mOperationConnection = mEnvironment.requests.start(mOperationRequest, shared_from_this());
}

void SVGeocoder::cancel() {
  {
    std::lock_guard lock(mMutex);
    if (mState == SVGeocoderStateFinished) return;
    mIsCancelled = true;
  }
  callCompletionBlockWithResponse(std::nullopt, std::nullopt);
}

bool SVGeocoder::isCancelled() const {
  std::lock_guard lock(mMutex);
  return mIsCancelled;
}

SVGeocoderState SVGeocoder::state() const {
  std::lock_guard lock(mMutex);
  return mState;
}

void SVGeocoder::requestTimeout() {
  connectionDidFailWithError(
      {kUrlErrorDomain, kUrlErrorTimedOut, "The operation timed out.", mOperationRequest.url});
}

void SVGeocoder::connectionDidReceiveResponse(const WebResponse& response) {
  mOperationURLResponse = response;
}

void SVGeocoder::connectionDidReceiveData(std::string_view bytes) {
  mOperationData += bytes;
}

void SVGeocoder::connectionDidFinishLoading() {
  GeocodingAnswer answer;
  const bool isJson =
      mOperationURLResponse && mOperationURLResponse->mimeType == "application/json";
  if (isJson && !mOperationData.empty()) answer = readGeocodingAnswer(mOperationData);
  callCompletionBlockWithResponse(std::move(answer.placemarks), std::move(answer.error));
}

void SVGeocoder::connectionDidFailWithError(const ServiceError& error) {
  callCompletionBlockWithResponse(std::nullopt, error);
}

void SVGeocoder::callCompletionBlockWithResponse(Placemarks placemarks, Error error) {
  {
    std::lock_guard lock(mMutex);
    if (std::exchange(mIsDelivering, true)) return;
  }
  mEnvironment.queue.post([self = shared_from_this(), placemarks = std::move(placemarks),
                           error = std::move(error)] { self->deliver(placemarks, error); });
}

void SVGeocoder::deliver(const Placemarks& placemarks, Error error) {
  mTimeoutTimer.reset();
  if (!error && mOperationURLResponse && mOperationURLResponse->statusCode == 500) {
    error = {kUrlErrorDomain, kUrlErrorBadServerResponse, "Bad Server Response.",
             mOperationRequest.url};
  }
  // Let go of before it is called: what it holds may be the owner of this operation.
  const auto completion = std::exchange(mOperationCompletionBlock, nullptr);
  if (completion && !isCancelled()) completion(placemarks, mOperationURLResponse, error);
  finish();
}

void SVGeocoder::finish() {
  if (isFinished()) return;
  mOperationConnection.reset();
  willChange("isExecuting");
  willChange("isFinished");
  setState(SVGeocoderStateFinished);
  didChange("isExecuting");
  didChange("isFinished");
}

void SVGeocoder::setState(SVGeocoderState state) {
  willChange("state");
  {
    std::lock_guard lock(mMutex);
    mState = state;
  }
  didChange("state");
}

void SVGeocoder::willChange(std::string_view key) {
  if (mObserver) mObserver->willChangeValueForKey(key);
}

void SVGeocoder::didChange(std::string_view key) {
  if (mObserver) mObserver->didChangeValueForKey(key);
}

}  // namespace wayloom
