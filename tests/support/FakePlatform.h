#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "places/LocationPlatform.h"
#include "platform/Clock.h"
#include "platform/Directions.h"
#include "platform/PlaceSuggestions.h"

namespace wayloom {

/// A position service that answers when the test says so.
class FakePositionSource : public PositionSource {
 public:
  void setDelegate(PositionSourceDelegate* to) override { delegate = to; }
  void setDesiredAccuracyBest() override { calls.emplace_back("best accuracy"); }
  void setDistanceFilter(double metres) override { distanceFilterMetres = metres; }
  void requestWhenInUseAuthorization() override { calls.emplace_back("when in use"); }
  void requestAlwaysAuthorization() override { calls.emplace_back("always"); }
  void startUpdatingLocation() override { isUpdating = true; }
  void stopUpdatingLocation() override { isUpdating = false; }

  PositionSourceDelegate* delegate = nullptr;
  std::vector<std::string> calls;
  double distanceFilterMetres = 0;
  bool isUpdating = false;
};

/// A geocoder that keeps the questions until the test answers them.
class FakeGeocoder : public Geocoder {
 public:
  void geocodeAddress(const std::string& address, std::optional<Coordinate> /*near*/,
                      Completion completion) override {
    addresses.emplace_back(address, std::move(completion));
  }
  void reverseGeocode(Coordinate coordinate, Completion completion) override {
    coordinates.emplace_back(coordinate, std::move(completion));
  }

  std::vector<std::pair<std::string, Completion>> addresses;
  std::vector<std::pair<Coordinate, Completion>> coordinates;
};

/// Suggestions that keep the questions until the test answers them.
class FakeSuggestions : public PlaceSuggestions {
 public:
  void suggest(const std::string& text, std::optional<Coordinate> /*near*/,
               Completion completion) override {
    questions.emplace_back(text, std::move(completion));
  }

  std::vector<std::pair<std::string, Completion>> questions;
};

/// A platform of fakes; the position source that it made last is left in `source`.
inline LocationPlatform fakePlatform(const bool& isOn, FakePositionSource*& source,
                                     Geocoder& geocoder, UserDefaults& defaults, Alerts& alerts) {
  const auto make = [&source] {
    auto made = std::make_unique<FakePositionSource>();
    source = made.get();
    return made;
  };
  return {[&isOn] { return isOn; }, make, {}, geocoder, defaults, alerts};
}

/// Directions that keep the requests until the test answers them.
class FakeDirections : public Directions {
 public:
  void calculate(const DirectionsRequest& request, Completion completion) override {
    requests.emplace_back(request, std::move(completion));
  }

  std::vector<std::pair<DirectionsRequest, Completion>> requests;
};

/// A clock that stands where the test puts it.
class FakeClock : public Clock {
 public:
  double secondsSince1970() const override { return seconds; }

  double seconds = 1'700'000'000.75;
};

class FakeDefaults : public UserDefaults {
 public:
  std::optional<double> number(const std::string& key) const override {
    const auto found = lasting.find(key);
    return found == lasting.end() ? std::nullopt : std::optional(found->second);
  }
  void setNumber(const std::string& key, double value) override { pending[key] = value; }
  void synchronize() override { lasting = pending; }

  std::map<std::string, double> pending, lasting;
};

class FakeAlerts : public Alerts {
 public:
  void show(const std::string& title, const std::string& message,
            const std::string& button) override {
    shown.push_back(title + "|" + message + "|" + button);
  }

  std::vector<std::string> shown;
};

}  // namespace wayloom
