#include "settings/ModeSwitch.h"

#include "settings/TextConversions.h"

namespace wayloom {

namespace {

Mode otherThan(Mode mode) {
  return mode == Mode::FixedLocation ? Mode::Route : Mode::FixedLocation;
}

/// What the mode's own file says now; nothing of a missing or damaged one.
Result<PropertyList::Dictionary> settingsOf(const SettingsFiles& files, Mode mode) {
  auto settings = files.loadDictionary(mode == Mode::FixedLocation ? SettingsFile::Location
                                                                   : SettingsFile::Route);
  if (!settings) return settings.failure();
  return std::move(*settings).value_or(PropertyList::Dictionary());
}

}  // namespace

const char* refusalToLeave(Mode mode, const PropertyList::Dictionary& settings) {
  if (!boolValue(valueOf(settings, "enable"))) return nullptr;
  return mode == Mode::FixedLocation ? kSpotloomIsWorking : kWayloomIsWorking;
}

Status leaveMode(SettingsFiles& files, Mode mode, const PropertyList::Dictionary& settings) {
  if (const char* refusal = refusalToLeave(mode, settings)) return refused(refusal);
  return files.writeMasterMode(otherThan(mode));
}

bool isLeft(const SettingsFiles& files, Mode mode, const Status& left) {
  if (left || left.isRefused()) return static_cast<bool>(left);
  const auto current = files.readMasterMode();
  return current && *current != mode;
}

Status switchToMode(SettingsFiles& files, Mode mode) {
  const auto turn = files.takeTurn();
  if (!turn) return turn.failure();
  const auto current = files.readMasterMode();
  if (!current) return current.failure();
  if (*current == mode) return done();
  const auto settings = settingsOf(files, *current);
  return settings ? leaveMode(files, *current, *settings) : Status(settings.failure());
}

Status checkOtherIsOff(const SettingsFiles& files, Mode mode) {
  const auto settings = settingsOf(files, otherThan(mode));
  if (!settings) return settings.failure();
  const char* const refusal = refusalToLeave(otherThan(mode), *settings);
  return refusal ? Status(refused(refusal)) : done();
}

Status enterMode(SettingsFiles& files, Mode mode) {
  const auto turn = files.takeTurn();
  if (!turn) return turn.failure();
  if (Status isOff = checkOtherIsOff(files, mode); !isOff) return isOff;
  const auto current = files.readMasterMode();
  if (!current) return current.failure();
  return *current == mode ? done() : files.writeMasterMode(mode);
}

}  // namespace wayloom
