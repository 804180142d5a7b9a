#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "geo/Coordinate.h"
#include "platform/ChangeNotice.h"
#include "settings/PropertyList.h"
#include "settings/Result.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// The slider's own range; its low end is "slow".
inline constexpr float kDriftSpeedMinimum = 0.0F;
inline constexpr float kDriftSpeedMaximum = 1.0F;

/// What the location settings file says, as every reader takes it.
struct FixedLocationState {
  /// The file was there and held at least one entry.
  bool hasSettings = false;
  bool enabled = false;
  bool drifting = false;
  /// As stored; a slider limits it to its own range.
  double driftSpeed = 0;
  Coordinate coordinate;
  /// Both coordinates stand in the file and are on the globe; a missing one reads 0.
  bool hasCoordinate = false;
};

/// Reads the location settings file; a missing, damaged or empty one has no settings.
Result<FixedLocationState> readFixedLocation(const SettingsFiles& files);

/// Whether two positions are the same in a settings file, which holds six digits of a degree.
bool isSamePosition(Coordinate one, Coordinate other);

/// The speed as a slider shows it: limited to the slider's range.
double sliderSpeed(double storedSpeed);

/// The operations on the fixed position: which notice, which keys, in which order. The screen and
/// the command line both act through one of these. It holds an in-memory copy of the location
/// settings file, which is none after the map moved while the file was missing; nothing is written
/// then. Each writer sets its keys in the file as it is at that moment, and in the copy where there
/// is no file any more; one that cannot be read stops it before anything is written. Main thread
/// only.
class FixedLocation {
 public:
  /// Both must outlive this object.
  FixedLocation(SettingsFiles& files, ChangeNotice& notice);

  /// Re-reads the file. A missing, damaged or empty one leaves an empty copy, so that the next
  /// writer creates the file; one that cannot be read leaves the copy as it was.
  Result<FixedLocationState> refresh();

  /// Whether the file is as refresh() last read it, or only changed here since then.
  bool isCurrent() const {
    return !mIsOthers && mVersion == mFiles.currentVersion(SettingsFile::Location);
  }

  /// What the copy says.
  FixedLocationState known() const;

  /// The message that keeps the screen in its mode while the copy, which is not read again, says
  /// that the position is on; null otherwise.
  const char* refusalToLeave() const;

  /// The chosen position: the map's centre after its last move, or what was set; none before that.
  const std::optional<Coordinate>& coordinate() const { return mCoordinate; }
  /// A coordinate of which a number is too large for any is none, and changes nothing.
  void setCoordinate(Coordinate coordinate);

  /// The enable switch: posts the notice, then writes "enable" and the chosen position; refused
  /// while a drive is on. As long as none was chosen, the file's own stays, and where it has none
  /// the position `shown` on the map is chosen by this.
  [[nodiscard]] Status setEnable(bool on, std::optional<Coordinate> shown = std::nullopt);

  /// The drift switch: posts the notice, then writes "a" and "s".
  [[nodiscard]] Status setAuto(bool on, float speed);

  /// The drift slider: writes "a" and "s", without a notice.
  [[nodiscard]] Status autoSlide(bool on, float speed);

  /// The map stopped at `center`: re-reads the file and writes the position into it, without a
  /// notice. With no file there is nothing to write into; hasSettings() then turns false.
  [[nodiscard]] Status centerMoved(Coordinate center);

  /// An address search begins: "enable" reads "0" until it has found something.
  [[nodiscard]] Status beginAddressSearch();

  /// The search found a place while the enable switch showed `switchOn`.
  [[nodiscard]] Status endAddressSearch(bool switchOn);

  /// The mode button: makes the route mode the current one; refused while refusalToLeave().
  [[nodiscard]] Status leaveForRoute();

  /// Whether there is a copy to write back.
  bool hasSettings() const { return mPreferences.has_value(); }

 private:
  using Entries = std::initializer_list<std::pair<const char*, std::string>>;

  /// Reads the file before it is changed, and notes whether somebody else changed it meanwhile.
  Loaded<PropertyList::Dictionary> load();
  /// Sets these entries; refused when the position would thereby be on beside a drive.
  [[nodiscard]] Status write(Entries entries);

  SettingsFiles& mFiles;
  ChangeNotice& mNotice;
  std::optional<PropertyList::Dictionary> mPreferences;
  std::optional<FileVersion> mVersion;
  bool mIsOthers = false;
  /// The file could be read at least once.
  bool mWasRead = false;
  std::optional<Coordinate> mCoordinate;
};

}  // namespace wayloom
