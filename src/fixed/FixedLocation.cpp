#include "fixed/FixedLocation.h"

#include <algorithm>
#include <cmath>

#include "settings/ModeSwitch.h"
#include "settings/TextConversions.h"

namespace wayloom {

namespace {

FixedLocationState stateOf(const PropertyList::Dictionary& settings) {
  const PropertyList* latitude = valueOf(settings, "latitude");
  const PropertyList* longitude = valueOf(settings, "longitude");
  const Coordinate coordinate{doubleValue(latitude), doubleValue(longitude)};
  return {.hasSettings = !settings.empty(),
          .enabled = boolValue(valueOf(settings, "enable")),
          .drifting = boolValue(valueOf(settings, "a")),
          .driftSpeed = doubleValue(valueOf(settings, "s")),
          .coordinate = coordinate,
          .hasCoordinate = latitude && longitude && isOnGlobe(coordinate)};
}

}  // namespace

Result<FixedLocationState> readFixedLocation(const SettingsFiles& files) {
  const auto settings = files.loadLocationSettings();
  if (!settings) return settings.failure();
  return *settings ? stateOf(**settings) : FixedLocationState();
}

bool isSamePosition(Coordinate one, Coordinate other) {
  return formatReal(one.latitude) == formatReal(other.latitude) &&
         formatReal(one.longitude) == formatReal(other.longitude);
}

double sliderSpeed(double storedSpeed) {
  if (std::isnan(storedSpeed)) return kDriftSpeedMinimum;
  return std::clamp<double>(storedSpeed, kDriftSpeedMinimum, kDriftSpeedMaximum);
}

FixedLocation::FixedLocation(SettingsFiles& files, ChangeNotice& notice)
    : mFiles(files), mNotice(notice) {}

Result<FixedLocationState> FixedLocation::refresh() {
  auto settings = mFiles.loadLocationSettings();
  mIsOthers = !settings;  // Once it can be read, it is read, though it be the same again.
  if (!settings) return settings.failure();
  mWasRead = true;
  mPreferences = std::move(*settings).value_or(PropertyList::Dictionary());
  mVersion = mFiles.seenVersion(SettingsFile::Location);
  return stateOf(*mPreferences);
}

Loaded<PropertyList::Dictionary> FixedLocation::load() {
  auto settings = mFiles.loadLocationSettings();
  if (settings && mVersion != mFiles.seenVersion(SettingsFile::Location)) mIsOthers = true;
  return settings;
}

FixedLocationState FixedLocation::known() const {
  return mPreferences ? stateOf(*mPreferences) : FixedLocationState();
}

const char* FixedLocation::refusalToLeave() const {
  return mPreferences ? wayloom::refusalToLeave(Mode::FixedLocation, *mPreferences) : nullptr;
}

void FixedLocation::setCoordinate(Coordinate coordinate) {
  if (std::isfinite(coordinate.latitude) && std::isfinite(coordinate.longitude)) {
    mCoordinate = coordinate;
  }
}

Status FixedLocation::setEnable(bool on, std::optional<Coordinate> shown) {
  mNotice.post(kChangeNoticeName);
  const auto turn = mFiles.takeTurn();
  if (!turn) return turn.failure();
  if (!mCoordinate) {
    const auto stored = readFixedLocation(mFiles);
    if (!stored) return stored.failure();
    if (shown && !stored->hasCoordinate) setCoordinate(*shown);
  }
  if (!mCoordinate) return write({{"enable", formatFlag(on)}});
  return write({{"enable", formatFlag(on)},
                {"longitude", formatReal(mCoordinate->longitude)},
                {"latitude", formatReal(mCoordinate->latitude)}});
}

Status FixedLocation::setAuto(bool on, float speed) {
  mNotice.post(kChangeNoticeName);
  return autoSlide(on, speed);
}

Status FixedLocation::autoSlide(bool on, float speed) {
  return write({{"a", formatFlag(on)}, {"s", formatReal(speed)}});
}

Status FixedLocation::centerMoved(Coordinate center) {
  mCoordinate = center;
  auto settings = load();
  if (!settings) return settings.failure();
  mWasRead = true;
  mPreferences = std::move(*settings);
  mVersion = mFiles.seenVersion(SettingsFile::Location);
  return write(
      {{"longitude", formatReal(center.longitude)}, {"latitude", formatReal(center.latitude)}});
}

Status FixedLocation::beginAddressSearch() {
  return write({{"enable", formatFlag(false)}});
}

Status FixedLocation::endAddressSearch(bool switchOn) {
  return write({{"enable", formatFlag(switchOn)}});
}

Status FixedLocation::leaveForRoute() {
  return leaveMode(mFiles, Mode::FixedLocation, mPreferences.value_or(PropertyList::Dictionary()));
}

Status FixedLocation::write(Entries entries) {
  if (!mPreferences && mWasRead) return load().status();
  const auto turn = mFiles.takeTurn();
  if (!turn) return turn.failure();
  auto current = load();
  if (!current) return current.failure();
  const bool isThere = current->has_value();
  PropertyList::Dictionary changed =
      std::move(*current).value_or(mPreferences.value_or(PropertyList::Dictionary()));
  const bool setsEnable = entries.begin()->first == std::string_view("enable");
  const bool wasOn = isThere && boolValue(valueOf(changed, "enable"));
  for (const auto& [key, value] : entries) changed.insert_or_assign(key, value);
  if (boolValue(valueOf(changed, "enable")) && (setsEnable || !wasOn)) {
    if (Status isOff = checkOtherIsOff(mFiles, Mode::FixedLocation); !isOff) return isOff;
  }
  Status saved = mFiles.saveLocationSettings(changed);
  if (saved) mPreferences = std::move(changed);
  if (saved) mVersion = mFiles.seenVersion(SettingsFile::Location);
  return saved;
}

}  // namespace wayloom
