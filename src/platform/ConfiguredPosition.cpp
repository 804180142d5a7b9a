#include "platform/ConfiguredPosition.h"

namespace wayloom {

void ConfiguredPosition::startUpdatingLocation() {
  mAnswer = mQueue.schedule(std::chrono::milliseconds(0), [this] {
    if (mDelegate) mDelegate->didUpdateToLocation(PositionFix{mPosition, 0.0});
  });
}

void ConfiguredPosition::stopUpdatingLocation() {
  mAnswer.reset();
}

}  // namespace wayloom
