#pragma once

#include <map>
#include <string>

#include "settings/SettingsFiles.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {

/// A settings root of its own for one test.
using TemporaryRoot = TemporaryFolder;

/// What a settings file holds; nothing when it is missing or damaged. One that cannot be read ends
/// the test.
inline std::optional<PropertyList::Dictionary> dictionaryIn(const SettingsFiles& files,
                                                            SettingsFile name) {
  auto dictionary = files.loadDictionary(name);
  if (!dictionary) throw std::runtime_error(dictionary.message());
  return std::move(*dictionary);
}
inline std::optional<PropertyList::Array> arrayIn(const SettingsFiles& files, SettingsFile name) {
  auto array = files.loadArray(name);
  if (!array) throw std::runtime_error(array.message());
  return std::move(*array);
}

/// A settings file's dictionary with its values as texts: what the injection component sees. Values
/// that are no texts read "(not a text)", a missing file as a single entry "(missing)".
inline std::map<std::string, std::string> textsIn(const SettingsFiles& files, SettingsFile name) {
  const auto dictionary = dictionaryIn(files, name);
  if (!dictionary) return {{"(missing)", ""}};
  std::map<std::string, std::string> texts;
  for (const auto& [key, value] : *dictionary) {
    const auto* text = value.get<std::string>();
    texts[key] = text ? *text : "(not a text)";
  }
  return texts;
}

}  // namespace wayloom
