#include "settings/ModeSwitch.h"

#include "settings/TextConversions.h"

namespace wayloom {

const char* refusalToLeave(Mode mode, const PropertyList::Dictionary& settings) {
  const auto enable = settings.find("enable");
  if (enable == settings.end() || !boolValue(&enable->second)) return nullptr;
  return mode == Mode::FixedLocation ? kSpotloomIsWorking : kWayloomIsWorking;
}

Status switchToMode(SettingsFiles& files, Mode mode) {
  const Mode current = files.readMasterMode();
  if (current == mode) return done();
  const SettingsFile own =
      current == Mode::FixedLocation ? SettingsFile::Location : SettingsFile::Route;
  const auto settings = files.loadDictionary(own);
  if (const char* refusal = settings ? refusalToLeave(current, *settings) : nullptr) {
    return failed(refusal);
  }
  return files.writeMasterMode(mode);
}

}  // namespace wayloom
