#include "places/AddressQuestion.h"

#include <utility>

#include "places/LocationDelegate.h"

namespace wayloom {

class AddressQuestion::Answer : public LocationDelegate {
 public:
  explicit Answer(Completion completion) : mCompletion(std::move(completion)) {}

  void reverseGeocoderSuccess(Location* /*location*/, const std::string& address) override {
    // It may ask again, which is the end of this.
    const Completion completion = std::move(mCompletion);
    if (completion) completion(address);
  }
  void reverseGeocoderFailed(Location* location,
                             const std::optional<std::string>& /*error*/) override {
    reverseGeocoderSuccess(location, {});
  }

 private:
  Completion mCompletion;
};

AddressQuestion::AddressQuestion() = default;
AddressQuestion::~AddressQuestion() = default;

void AddressQuestion::forget() {
  mAnswer.reset();
}

void AddressQuestion::ask(LocationClass& location, Coordinate place, Completion completion) {
  mAnswer = std::make_unique<Answer>(std::move(completion));
  location.addressWithCoordinate(place, mAnswer.get());
}

}  // namespace wayloom
