#include "fixed/FixedStatus.h"

#include "settings/TextConversions.h"

namespace wayloom {

Phrase fixedStatus(const FixedLocationState& state, const std::string& address,
                   const std::optional<Phrase>& drive, const FixedActivity& activity) {
  using Kind = FixedActivity::Kind;
  if (activity.kind == Kind::Searching) return Phrase{"Searching …"};
  if (drive && state.enabled) {
    return Phrase{"Both are on: turn the position or the drive off"};
  }
  if (drive) return *drive;
  if (state.enabled) {
    if (!isOnGlobe(state.coordinate)) return Phrase{"On at a position that is not on the globe"};
    if (!state.hasCoordinate) return Phrase{"On"};
    return Phrase{"On at %1", {address.empty() ? coordinateText(state.coordinate) : address}};
  }
  if (activity.kind == Kind::NothingFound) {
    return Phrase{"Nothing found for %1: the position is off", {activity.searched}};
  }
  if (activity.kind == Kind::TouchAgain && !state.hasSettings) {
    return Phrase{"Touch again: there was no settings file yet"};
  }
  return Phrase{"Off"};
}

}  // namespace wayloom
