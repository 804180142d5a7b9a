#include "platform/RegionGeocoder.h"

#include <utility>

namespace wayloom {

namespace {

GeocodedPlace geocoded(const Place& place) {
  return {place.coordinate, addressLines(place)};
}

GeocoderAnswer noAnswer(std::string error) {
  return {std::nullopt, std::move(error)};
}

}  // namespace

RegionGeocoder::RegionGeocoder(RegionStore store, MainQueue& mainQueue)
    : mStore(std::move(store)),
      mMainQueue(mainQueue),
      mWorker([this](const std::stop_token& stop) { answerRequests(stop); }) {}

RegionGeocoder::~RegionGeocoder() = default;

void RegionGeocoder::geocodeAddress(const std::string& address, std::optional<Coordinate> near,
                                    Completion completion) {
  ask({[address, near](PlaceIndex& index) {
         const auto found = index.search(address, near);
         if (found.empty()) return noAnswer("No place of this name was found");
         std::vector<GeocodedPlace> places;
         for (const Place& place : found) places.push_back(geocoded(place));
         return GeocoderAnswer{std::move(places), std::nullopt};
       },
       std::move(completion)});
}

void RegionGeocoder::reverseGeocode(Coordinate coordinate, Completion completion) {
  ask({[coordinate](PlaceIndex& index) {
         const auto place = index.placeAt(coordinate);
         if (!place) return noAnswer("There is no address here");
         return GeocoderAnswer{{{geocoded(*place)}}, std::nullopt};
       },
       std::move(completion)});
}

void RegionGeocoder::ask(Request request) {
  {
    const std::lock_guard lock(mMutex);
    mRequests.push_back(std::move(request));
  }
  mWakeUp.notify_one();
}

std::optional<RegionGeocoder::Request> RegionGeocoder::nextRequest(const std::stop_token& stop) {
  std::unique_lock lock(mMutex);
  if (!mWakeUp.wait(lock, stop, [this] { return !mRequests.empty(); })) return std::nullopt;
  if (stop.stop_requested()) return std::nullopt;
  Request request = std::move(mRequests.front());
  mRequests.pop_front();
  return request;
}

void RegionGeocoder::answerRequests(const std::stop_token& stop) {
  auto index = PlaceIndex::open(mStore);
  while (auto request = nextRequest(stop)) {
    auto answer = index ? request->question(*index) : noAnswer(index.failure().message);
    complete(std::move(request->completion), std::move(answer));
  }
}

void RegionGeocoder::complete(Completion completion, GeocoderAnswer answer) {
  mMainQueue.post([alive = std::weak_ptr(mAlive), completion = std::move(completion),
                   answer = std::move(answer)] {
    if (!alive.expired() && completion) completion(answer);
  });
}

}  // namespace wayloom
