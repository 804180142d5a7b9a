#include "platform/ConfiguredPosition.h"

namespace wayloom {

void ConfiguredPosition::startUpdatingLocation() {
  mAnswer = mQueue.schedule(std::chrono::milliseconds(0), [this] {
    if (!mDelegate) return;
    if (mPosition) {
      mDelegate->didUpdateToLocation(PositionFix{*mPosition, 0.0});
    } else {
      mDelegate->didUpdateToLocation(std::nullopt);
    }
  });
}

void ConfiguredPosition::stopUpdatingLocation() {
  mAnswer.reset();
}

}  // namespace wayloom
