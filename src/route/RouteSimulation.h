#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Clock.h"
#include "platform/MainQueue.h"
#include "route/RouteFile.h"
#include "route/RoutePosition.h"
#include "settings/WorkQueue.h"

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

/// The operations on the route file, for the screen and the command line alike. After a failed one
/// the preferences are what the file says. Main thread only.
class RouteSimulation {
 public:
  /// Long paths are written on another thread, so that nobody is held up.
  struct Background {
    WorkQueue& work;
    MainQueue& main;
  };
  /// Up to so many points are written before the operation returns, whatever else there is.
  static constexpr std::size_t kMostPointsAtOnce = 20'000;

  /// Gets the start of the drive as it was written, or why nothing was.
  using TurnedOn = std::function<void(const Result<double>& startTime)>;
  using TurnedOff = std::function<void(const Status&)>;

  /// All must outlive this object. Without a background everything is written at once.
  RouteSimulation(SettingsFiles& files, const Clock& clock,
                  std::optional<Background> background = std::nullopt);
  ~RouteSimulation();
  RouteSimulation(const RouteSimulation&) = delete;
  RouteSimulation& operator=(const RouteSimulation&) = delete;

  /// Re-reads the file; of a missing or damaged one nothing remains, and of one that cannot be read
  /// what was known before.
  Status refresh();
  const RoutePreferences& preferences() const { return mPreferences; }
  /// Whether the file is the one that was last read or written here.
  bool isCurrent() const {
    return mIsWriting ||
           (!mIsUnread && mPreferences.version == mFiles.currentVersion(SettingsFile::Route));
  }

  std::int32_t now() const { return mClock.wholeSecondsSince1970(); }

  /// Turns a drive on along `points`, which are shared from then on, or refuses. The answer comes
  /// when the file is written.
  void turnOn(RouteChoices choices, const std::shared_ptr<RoutePoints>& points, bool isRouteError,
              const TurnedOn& turnedOn);
  /// Marks the drive as off and leaves everything else. The answer comes when the file is written.
  void turnOff(const TurnedOff& turnedOff);
  /// Whether an answer is still to come.
  bool isWriting() const { return mIsWriting; }

  /// Makes ready what turning on along these points will write.
  void prepare(const RoutePoints& points);

  /// Where the drive is at the moment; none without points.
  std::optional<Coordinate> position() const { return positionAt(now(), mPreferences); }

  /// The message that keeps the screen in its mode, and its choices as they are, while the file as
  /// last read says that the drive is on, or is being written; null otherwise.
  const char* refusalToLeave() const;
  /// The mode button: makes the fixed location the current mode; refused while refusalToLeave().
  Status leaveForFixedLocation();

 private:
  using Change = std::function<Result<RoutePreferences>()>;
  using Changed = std::function<void(Result<RoutePreferences>)>;

  void run(std::size_t pointCount, Change change, Changed changed);
  /// The preferences with a list of points that nobody refills.
  RoutePreferences frozen() const;

  SettingsFiles& mFiles;
  const Clock& mClock;
  std::optional<Background> mBackground;
  RoutePreferences mPreferences;
  /// The last reading failed.
  bool mIsUnread = false;
  bool mIsWriting = false;
  /// Gone with this object, for answers that come later.
  std::shared_ptr<bool> mIsAlive = std::make_shared<bool>(true);
};

}  // namespace wayloom
