#include "platform/LocaleNames.h"

#include <algorithm>
#include <string_view>

namespace wayloom {

namespace {

std::string variable(const EnvironmentLookup& lookup, const char* name) {
  const char* value = lookup(name);
  return value ? value : "";
}

/// The locale's parts: lang_COUNTRY.ENCODING@MODIFIER.
void appendNames(std::vector<std::string>& names, std::string_view locale) {
  const std::size_t at = std::min(locale.find('@'), locale.size());
  const std::string modifier(locale.substr(at));
  std::string_view place = locale.substr(0, at);
  place = place.substr(0, place.find('.'));
  const std::string_view language = place.substr(0, place.find('_'));
  for (const std::string_view name : {place, language}) {
    for (std::string full : {std::string(name) + modifier, std::string(name)}) {
      const bool isKnown = std::find(names.begin(), names.end(), full) != names.end();
      if (!name.empty() && !isKnown) names.push_back(std::move(full));
    }
  }
}

bool isUntranslated(std::string_view locale) {
  const std::string_view name = locale.substr(0, locale.find('.'));
  return name.empty() || name == "C" || name == "POSIX";
}

}  // namespace

std::vector<std::string> localeNames(const EnvironmentLookup& lookup) {
  std::string locale;
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    locale = variable(lookup, name);
    if (!locale.empty()) break;
  }
  std::vector<std::string> names;
  // The locale C turns translation off, whatever languages are listed.
  if (isUntranslated(locale)) return names;
  const std::string listed = variable(lookup, "LANGUAGE");
  std::string_view rest = listed.empty() ? std::string_view(locale) : std::string_view(listed);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find(':'), rest.size());
    // English texts are the untranslated ones: what follows C is never reached.
    if (isUntranslated(rest.substr(0, end)) && end > 0) break;
    appendNames(names, rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return names;
}

}  // namespace wayloom
