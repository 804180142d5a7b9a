#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Clock.h"
#include "route/RouteFile.h"
#include "route/RoutePosition.h"

namespace wayloom {

/// A place whose latitude or longitude is exactly 0 counts as not chosen.
bool isChosen(Coordinate place);

/// What the user chose for a drive.
struct RouteChoices {
  Coordinate start;
  Coordinate end;
  /// Whole seconds since 1970; 0 when not chosen.
  double startTime = 0;
  double endTime = 0;
  /// The addresses of the two places, as shown.
  std::string startText;
  std::string endText;
};

inline constexpr char kPathPlanningFailure[] = "Path planning failure, rechoose Start/End please";

/// The message that refuses to turn a drive on, the first of several reasons; null when nothing
/// stands in the way. `isRouteError` says that the last plan failed.
const char* refusalToTurnOn(const RouteChoices& choices, const RoutePoints& points,
                            bool isRouteError);

/// The start as it is written: not before `now`, and a second before the end if it would come after
/// it.
double startTimeFrom(const RouteChoices& choices, std::int32_t now);

/// The operations on the route file, for the screen and the command line alike. Main thread only.
class RouteSimulation {
 public:
  /// All must outlive this object; `saves` as for RouteFile.
  RouteSimulation(SettingsFiles& files, const Clock& clock, WorkQueue* saves = nullptr);

  /// Re-reads the file; of a missing or damaged one nothing remains.
  void refresh() { mPreferences = mFile.load(); }
  const RoutePreferences& preferences() const { return mPreferences; }

  std::int32_t now() const { return mClock.wholeSecondsSince1970(); }

  /// Writes the drive along `points`, which are shared from now on. What refuses it was asked and
  /// the start time adjusted before.
  Status turnOn(const RouteChoices& choices, std::shared_ptr<RoutePoints> points);
  /// Marks the drive as off and leaves everything else.
  Status turnOff();

  /// Where the drive is at the moment; none without points.
  std::optional<Coordinate> position() const { return positionAt(now(), mPreferences); }

  /// The message that keeps the screen in its mode, and its choices as they are, while the file as
  /// last read says that the drive is on; null otherwise.
  const char* refusalToLeave() const;
  /// The mode button: makes the fixed location the current mode; refused while refusalToLeave().
  Status leaveForFixedLocation();

 private:
  SettingsFiles& mFiles;
  const Clock& mClock;
  RouteFile mFile;
  RoutePreferences mPreferences;
};

}  // namespace wayloom
