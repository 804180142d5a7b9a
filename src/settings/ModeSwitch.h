#pragma once

#include "settings/Result.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// The message that refuses to leave the fixed-location mode while the position is on.
inline constexpr char kSpotloomIsWorking[] =
    "Spotloom is working,please turn off the Spotloom first!";
/// The message that refuses to leave the route mode while a route is on.
inline constexpr char kWayloomIsWorking[] = "Wayloom is working,please turn off the Wayloom first!";

/// The message that refuses to leave `mode` when `settings`, the mode's own file as last read, say
/// that its simulation is on; null when nothing stands in the way.
const char* refusalToLeave(Mode mode, const PropertyList::Dictionary& settings);

/// What a mode button does: makes the other mode current, unless refusalToLeave(mode, settings).
Status leaveMode(SettingsFiles& files, Mode mode, const PropertyList::Dictionary& settings);
/// Whether a mode is left, by what came of leaving it or, after a failure, by what the file says.
bool isLeft(const SettingsFiles& files, Mode mode, const Status& left);

/// The same by the files as they are now, for `mode` to come. Already being there is a success that
/// writes nothing.
Status switchToMode(SettingsFiles& files, Mode mode);

// Before the simulation of a mode is turned on, within the same turn:

/// Refuses while the other mode's simulation is on, whichever mode is current.
Status checkOtherIsOff(const SettingsFiles& files, Mode mode);
/// The same, and makes the mode current.
Status enterMode(SettingsFiles& files, Mode mode);

}  // namespace wayloom
