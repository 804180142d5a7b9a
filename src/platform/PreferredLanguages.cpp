#include "platform/PreferredLanguage.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace wayloom {

namespace {

/// Chinese is told by its script, as the phone does, not by a place.
std::string withScript(const std::string& language) {
  if (language == "zh" || language == "zh-CN" || language == "zh-SG") return "zh-Hans";
  if (language == "zh-TW" || language == "zh-HK" || language == "zh-MO") return "zh-Hant";
  return language;
}

}  // namespace

std::string preferredLanguage() {
  for (const char* variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    std::string language = value ? value : "";
    // As in sv_SE.UTF-8@euro; LANGUAGE lists several with colons between them.
    language.resize(std::min(language.find_first_of(":.@"), language.size()));
    if (language.empty() || language == "C" || language == "POSIX") continue;
    std::replace(language.begin(), language.end(), '_', '-');
    return withScript(language);
  }
  return "en";
}

}  // namespace wayloom
