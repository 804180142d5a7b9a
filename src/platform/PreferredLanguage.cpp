#include "platform/PreferredLanguage.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace wayloom {

std::string preferredLanguage() {
  for (const char* variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    std::string language = value ? value : "";
    // As in sv_SE.UTF-8@euro; LANGUAGE lists several with colons between them.
    language.resize(std::min(language.find_first_of(":.@"), language.size()));
    if (language.empty() || language == "C" || language == "POSIX") continue;
    std::replace(language.begin(), language.end(), '_', '-');
    return language;
  }
  return "en";
}

}  // namespace wayloom
