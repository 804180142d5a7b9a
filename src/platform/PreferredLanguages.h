#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace wayloom {

/// Where a phone keeps what holds for all of its user's programs, in a property list.
inline constexpr char kGlobalPreferences[] =
    "/var/mobile/Library/Preferences/.GlobalPreferences.plist";

/// The languages that the user prefers, as in "en" or "zh-Hans", the most preferred first; "en"
/// when none is known. A phone's global preferences list them as AppleLanguages, and then they
/// count as they stand there; where that file does not exist, the variables LANGUAGE, LC_ALL,
/// LC_MESSAGES and LANG name them.
std::vector<std::string> preferredLanguages(
    const std::filesystem::path& globalPreferences = kGlobalPreferences);

/// The first of them.
std::string preferredLanguage();

}  // namespace wayloom
