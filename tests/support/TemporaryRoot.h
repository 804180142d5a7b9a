#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdlib.h>
#include <string>

#include "settings/SettingsFiles.h"

namespace wayloom {

/// A settings root of its own for one test, gone at its end.
class TemporaryRoot {
 public:
  TemporaryRoot() {
    std::string name = (std::filesystem::temp_directory_path() / "wayloom-test-XXXXXX").string();
    mPath = mkdtemp(name.data());
  }
  ~TemporaryRoot() {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }
  TemporaryRoot(const TemporaryRoot&) = delete;
  TemporaryRoot& operator=(const TemporaryRoot&) = delete;

  const std::filesystem::path& path() const { return mPath; }

 private:
  std::filesystem::path mPath;
};

/// A file's bytes; empty when it is missing.
inline std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void writeBytes(const std::filesystem::path& path, const std::string& bytes) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

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
