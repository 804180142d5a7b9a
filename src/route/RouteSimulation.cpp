#include "route/RouteSimulation.h"

#include <utility>

#include "settings/ModeSwitch.h"
#include "settings/TextConversions.h"

namespace wayloom {

bool isChosen(Coordinate place) {
  return place.latitude != 0 && place.longitude != 0;
}

const char* refusalToTurnOn(const RouteChoices& choices, const RoutePoints& points,
                            bool isRouteError) {
  if (!isChosen(choices.start)) return "Please choose Start";
  if (!isChosen(choices.end)) return "Please choose End";
  if (!(choices.startTime > 0)) return "Please choose Start Time";
  if (!(choices.endTime > 0)) return "Please choose End Time";
  if (choices.startTime > choices.endTime) return "End Time must later than Start Time";
  return points.isEmpty() || isRouteError ? kPathPlanningFailure : nullptr;
}

double startTimeFrom(const RouteChoices& choices, std::int32_t now) {
  const double start = choices.startTime < now ? now : choices.startTime;
  return start > choices.endTime ? choices.endTime - 1 : start;
}

RouteSimulation::RouteSimulation(SettingsFiles& files, const Clock& clock, WorkQueue* saves)
    : mFiles(files), mClock(clock), mFile(files, saves) {}

Status RouteSimulation::turnOn(const RouteChoices& choices, std::shared_ptr<RoutePoints> points) {
  auto& entries = mPreferences.entries;
  entries.insert_or_assign("enable", formatFlag(true));
  entries.insert_or_assign("start", formatReal(choices.startTime));
  entries.insert_or_assign("end", formatReal(choices.endTime));
  entries.insert_or_assign("s", choices.startText);
  entries.insert_or_assign("e", choices.endText);
  mPreferences.points = std::move(points);
  return mFile.save(mPreferences);
}

Status RouteSimulation::turnOff() {
  mPreferences.entries.insert_or_assign("enable", formatFlag(false));
  return mFile.save(mPreferences);
}

const char* RouteSimulation::refusalToLeave() const {
  return wayloom::refusalToLeave(Mode::Route, mPreferences.entries);
}

Status RouteSimulation::leaveForFixedLocation() {
  if (const char* refusal = refusalToLeave()) return failed(refusal);
  // The drive is off in its file before the other mode can begin.
  mFile.waitUntilSaved();
  return mFiles.writeMasterMode(Mode::FixedLocation);
}

}  // namespace wayloom
