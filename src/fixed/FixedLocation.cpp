#include "fixed/FixedLocation.h"

#include <algorithm>
#include <cmath>

#include "settings/ModeSwitch.h"
#include "settings/TextConversions.h"

namespace wayloom {

namespace {

const PropertyList* find(const PropertyList::Dictionary& dictionary, std::string_view key) {
  const auto found = dictionary.find(key);
  return found == dictionary.end() ? nullptr : &found->second;
}

FixedLocationState stateOf(const PropertyList::Dictionary& settings) {
  const PropertyList* latitude = find(settings, "latitude");
  const PropertyList* longitude = find(settings, "longitude");
  const Coordinate coordinate{doubleValue(latitude), doubleValue(longitude)};
  return {.hasSettings = !settings.empty(),
          .enabled = boolValue(find(settings, "enable")),
          .drifting = boolValue(find(settings, "a")),
          .driftSpeed = doubleValue(find(settings, "s")),
          .coordinate = coordinate,
          .hasCoordinate = latitude && longitude && isOnGlobe(coordinate)};
}

}  // namespace

FixedLocationState readFixedLocation(const SettingsFiles& files) {
  const auto settings = files.loadLocationSettings();
  return settings ? stateOf(*settings) : FixedLocationState();
}

double sliderSpeed(double storedSpeed) {
  if (std::isnan(storedSpeed)) return kDriftSpeedMinimum;
  return std::clamp<double>(storedSpeed, kDriftSpeedMinimum, kDriftSpeedMaximum);
}

FixedLocation::FixedLocation(SettingsFiles& files, ChangeNotice& notice)
    : mFiles(files), mNotice(notice) {}

FixedLocationState FixedLocation::refresh() {
  mPreferences = mFiles.loadLocationSettings();
  if (!mPreferences) mPreferences.emplace();
  return stateOf(*mPreferences);
}

const char* FixedLocation::refusalToLeave() const {
  return mPreferences ? wayloom::refusalToLeave(Mode::FixedLocation, *mPreferences) : nullptr;
}

Status FixedLocation::setEnable(bool on) {
  mNotice.post(kChangeNoticeName);
  set("enable", formatFlag(on));
  set("longitude", formatReal(mCoordinate.longitude));
  set("latitude", formatReal(mCoordinate.latitude));
  return save();
}

Status FixedLocation::setAuto(bool on, float speed) {
  mNotice.post(kChangeNoticeName);
  return autoSlide(on, speed);
}

Status FixedLocation::autoSlide(bool on, float speed) {
  set("a", formatFlag(on));
  set("s", formatReal(speed));
  return save();
}

Status FixedLocation::centerMoved(Coordinate center) {
  mPreferences = mFiles.loadLocationSettings();
  mCoordinate = center;
  set("longitude", formatReal(center.longitude));
  set("latitude", formatReal(center.latitude));
  return save();
}

Status FixedLocation::beginAddressSearch() {
  set("enable", formatFlag(false));
  return save();
}

Status FixedLocation::endAddressSearch(bool switchOn) {
  set("enable", formatFlag(switchOn));
  return save();
}

Status FixedLocation::leaveForRoute() {
  if (const char* refusal = refusalToLeave()) return failed(refusal);
  return mFiles.writeMasterMode(Mode::Route);
}

void FixedLocation::set(const char* key, std::string value) {
  if (mPreferences) mPreferences->insert_or_assign(key, std::move(value));
}

Status FixedLocation::save() {
  return mFiles.saveLocationSettings(mPreferences);
}

}  // namespace wayloom
