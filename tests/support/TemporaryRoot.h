#pragma once

#include <map>
#include <string>

#include "settings/SettingsFiles.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {

/// A settings root of its own for one test.
using TemporaryRoot = TemporaryFolder;

/// A settings file's dictionary with its values as texts: what the injection component sees. Values
/// that are no texts read "(not a text)", a missing file as a single entry "(missing)".
inline std::map<std::string, std::string> textsIn(const SettingsFiles& files, SettingsFile name) {
  const auto dictionary = files.loadDictionary(name);
  if (!dictionary) return {{"(missing)", ""}};
  std::map<std::string, std::string> texts;
  for (const auto& [key, value] : *dictionary) {
    const auto* text = value.get<std::string>();
    texts[key] = text ? *text : "(not a text)";
  }
  return texts;
}

}  // namespace wayloom
