#include "platform/PreferredLanguages.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <system_error>

#include "platform/FileHead.h"
#include "settings/PropertyListFormat.h"

namespace wayloom {

namespace {

using Languages = std::vector<std::string>;

constexpr std::size_t kPreferencesLimitBytes = std::size_t{4} << 20;
constexpr std::size_t kLongestTagBytes = 35;

/// Tags go into web addresses as they are, so nothing else may pass for one.
bool isTag(std::string_view text) {
  return !text.empty() && text.size() <= kLongestTagBytes &&
         std::all_of(text.begin(), text.end(), [](char letter) {
           return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
                  (letter >= '0' && letter <= '9') || letter == '-' || letter == '_';
         });
}

/// Chinese is told by its script, as the phone does, not by a place.
std::string withScript(const std::string& language) {
  if (language == "zh" || language == "zh-CN" || language == "zh-SG") return "zh-Hans";
  if (language == "zh-TW" || language == "zh-HK" || language == "zh-MO") return "zh-Hant";
  return language;
}

Languages listedIn(const std::filesystem::path& globalPreferences) {
  const auto bytes = readFileHead(globalPreferences, kPreferencesLimitBytes);
  const auto parsed = parsePropertyList(bytes.value_or(""));
  const auto* root = parsed.value ? parsed.value->get<PropertyList::Dictionary>() : nullptr;
  if (!root) return {};
  const auto entry = root->find("AppleLanguages");
  const auto* list = entry == root->end() ? nullptr : entry->second.get<PropertyList::Array>();
  Languages languages;
  for (const PropertyList& value : list ? *list : PropertyList::Array()) {
    const auto* language = value.get<std::string>();
    if (language && isTag(*language)) languages.push_back(*language);
  }
  return languages;
}

/// From a variable's value, as in sv_SE.UTF-8@euro; LANGUAGE lists several with colons between.
Languages namedIn(std::string_view value) {
  Languages languages;
  while (!value.empty()) {
    const std::string_view entry = value.substr(0, value.find(':'));
    value.remove_prefix(std::min(entry.size() + 1, value.size()));
    std::string language(entry.substr(0, entry.find_first_of(".@")));
    if (!isTag(language) || language == "C" || language == "POSIX") continue;
    std::replace(language.begin(), language.end(), '_', '-');
    languages.push_back(withScript(language));
  }
  return languages;
}

Languages namedByVariables() {
  for (const char* variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (auto languages = namedIn(value ? value : ""); !languages.empty()) return languages;
  }
  return {};
}

}  // namespace

std::vector<std::string> preferredLanguages(const std::filesystem::path& globalPreferences) {
  std::error_code none;
  const bool isPhone = std::filesystem::exists(globalPreferences, none);
  Languages languages = isPhone ? listedIn(globalPreferences) : namedByVariables();
  if (languages.empty()) languages.push_back("en");
  return languages;
}

std::string preferredLanguage() {
  return preferredLanguages().front();
}

}  // namespace wayloom
