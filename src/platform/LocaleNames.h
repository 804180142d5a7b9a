#pragma once

#include <string>
#include <vector>

#include "settings/SettingsRoot.h"

namespace wayloom {

/// The names under which texts in the user's languages may stand, the most preferred first: for
/// sr_RS.UTF-8@latin "sr_RS@latin", "sr_RS", "sr@latin" and "sr". The languages are those of
/// LANGUAGE, else that of LC_ALL, LC_MESSAGES or LANG; none for the locale C.
std::vector<std::string> localeNames(const EnvironmentLookup& lookup);

}  // namespace wayloom
