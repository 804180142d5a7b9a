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

namespace {

/// Refuses while the file, if it is not the known one any more, says that a drive is on.
Status checkNoOtherDrive(SettingsFiles& files, const RoutePreferences& known) {
  if (known.version == files.currentVersion(SettingsFile::Route)) return done();
  const auto current = RouteFile(files).load();
  if (!current) return current.failure();
  return current->enabled() ? Status(refused(kWayloomIsWorking)) : done();
}

}  // namespace

RouteSimulation::RouteSimulation(SettingsFiles& files, const Clock& clock,
                                 std::optional<Background> background)
    : mFiles(files), mClock(clock), mBackground(background) {}

RouteSimulation::~RouteSimulation() {
  // What was begun is finished, and nobody is left to be told.
  if (mBackground) mBackground->work.waitUntilDone();
}

Status RouteSimulation::refresh() {
  if (mIsWriting) return done();
  auto preferences = RouteFile(mFiles).load();
  mIsUnread = !preferences;
  if (!preferences) return preferences.failure();
  mPreferences = std::move(*preferences);
  if (mPreferences.points) prepare(*mPreferences.points);
  return done();
}

void RouteSimulation::turnOn(RouteChoices choices, const std::shared_ptr<RoutePoints>& points,
                             bool isRouteError, const TurnedOn& turnedOn) {
  if (const char* refusal = refusalToTurnOn(choices, *points, isRouteError)) {
    return turnedOn(refused(refusal));
  }
  choices.startTime = startTimeFrom(choices, now());
  RouteChange change{{{"enable", formatFlag(true)},
                      {"start", formatReal(choices.startTime)},
                      {"end", formatReal(choices.endTime)},
                      {"s", choices.startText},
                      {"e", choices.endText}},
                     *points};
  run(
      points->count(),
      [&files = mFiles, known = frozen(), change = std::move(change)] {
        const auto turn = files.takeTurn();
        Status entered = turn ? enterMode(files, Mode::Route) : turn.status();
        if (entered) entered = checkNoOtherDrive(files, known);
        return entered ? RouteFile(files).change(known, change)
                       : Result<RoutePreferences>(entered.failure());
      },
      [this, points, start = choices.startTime, turnedOn](Result<RoutePreferences> changed) {
        if (!changed) {
          // It may be in the file all the same, only not for certain after a power cut.
          (void)refresh();
          return turnedOn(changed.failure());
        }
        mPreferences = std::move(*changed);
        mPreferences.points = points;
        turnedOn(start);
      });
}

void RouteSimulation::turnOff(const TurnedOff& turnedOff) {
  const RouteChange change{{{"enable", formatFlag(false)}}, std::nullopt};
  run(
      mPreferences.points ? mPreferences.points->count() : 0,
      [&files = mFiles, known = frozen(), change] {
        return RouteFile(files).change(known, change);
      },
      [this, turnedOff](Result<RoutePreferences> changed) {
        if (!changed) {
          (void)refresh();
          return turnedOff(changed.failure());
        }
        mPreferences = std::move(*changed);
        turnedOff(done());
      });
}

void RouteSimulation::prepare(const RoutePoints& points) {
  if (mBackground) mBackground->work.post([points] { (void)points.entry(); });
}

void RouteSimulation::run(std::size_t pointCount, Change change, Changed changed) {
  if (mIsWriting) return changed(refused(kWayloomIsWorking));
  if (!mBackground || pointCount <= kMostPointsAtOnce) return changed(change());
  mIsWriting = true;
  mBackground->work.post([this, &main = mBackground->main, alive = std::weak_ptr(mIsAlive),
                          change = std::move(change), changed = std::move(changed)] {
    auto result = std::make_shared<Result<RoutePreferences>>(change());
    main.post([this, alive, result, changed] {
      if (alive.expired()) return;
      mIsWriting = false;
      changed(std::move(*result));
    });
  });
}

RoutePreferences RouteSimulation::frozen() const {
  RoutePreferences preferences = mPreferences;
  if (mPreferences.points) preferences.points = std::make_shared<RoutePoints>(*mPreferences.points);
  return preferences;
}

const char* RouteSimulation::refusalToLeave() const {
  if (mIsWriting) return kWayloomIsWorking;
  return wayloom::refusalToLeave(Mode::Route, mPreferences.entries);
}

Status RouteSimulation::leaveForFixedLocation() {
  if (const char* refusal = refusalToLeave()) return refused(refusal);
  return leaveMode(mFiles, Mode::Route, mPreferences.entries);
}

}  // namespace wayloom
