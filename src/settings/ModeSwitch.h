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

/// What a mode button does, on the files as they are now: leaves the other mode for `mode` unless
/// that other mode's simulation is on. Already being there is a success that writes nothing.
Status switchToMode(SettingsFiles& files, Mode mode);

}  // namespace wayloom
