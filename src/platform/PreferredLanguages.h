#pragma once

#include <string>

namespace wayloom {

/// The first language the user prefers, as in "en" or "zh-Hans", from the variables LANGUAGE,
/// LC_ALL, LC_MESSAGES and LANG; "en" when they name none.
std::string preferredLanguage();

}  // namespace wayloom
