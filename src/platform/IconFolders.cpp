#include "platform/IconFolders.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <map>
#include <string_view>
#include <utility>

#include "platform/FileHead.h"

namespace wayloom {

namespace {

namespace fs = std::filesystem;

/// A row's icon is 30 points wide, and shows on screens of two pixels to a point.
constexpr int kWantedPixels = 64;
constexpr std::size_t kThemeFileLimitBytes = 1 << 20;

/// The groups of a theme's index file: values by key, by group.
using Groups = std::map<std::string, std::map<std::string, std::string>>;

Groups parseGroups(const std::string& text) {
  Groups groups;
  std::string group;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    std::string line = text.substr(at, end - at);
    at = end + 1;
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with('[') && line.ends_with(']')) {
      group = line.substr(1, line.size() - 2);
    } else if (const std::size_t equals = line.find('='); equals != line.npos) {
      groups[group].try_emplace(line.substr(0, equals), line.substr(equals + 1));
    }
  }
  return groups;
}

int number(const std::map<std::string, std::string>& group, const char* key, int otherwise) {
  const auto found = group.find(key);
  int value = otherwise;
  if (found != group.end()) {
    const std::string& text = found->second;
    std::from_chars(text.data(), text.data() + text.size(), value);
  }
  return std::clamp(value, 0, 4096);
}

/// How far a folder's icons are from the wanted size, and then whether they must be drawn first.
std::pair<int, bool> distance(const std::map<std::string, std::string>& folder) {
  const int size = number(folder, "Size", 0);
  const int scale = std::max(1, number(folder, "Scale", 1));
  const auto type = folder.find("Type");
  if (type != folder.end() && type->second == "Scalable") {
    const int smallest = number(folder, "MinSize", size) * scale;
    const int largest = number(folder, "MaxSize", size) * scale;
    return {std::max({0, smallest - kWantedPixels, kWantedPixels - largest}), true};
  }
  return {std::abs(size * scale - kWantedPixels), false};
}

std::vector<std::string> splitList(std::string_view list) {
  std::vector<std::string> parts;
  while (!list.empty()) {
    const std::size_t end = std::min(list.find(','), list.size());
    if (end > 0) parts.emplace_back(list.substr(0, end));
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return parts;
}

/// The theme's folders below its own, those with the best size first.
std::vector<std::string> foldersInOrder(const Groups& index) {
  const auto theme = index.find("Icon Theme");
  if (theme == index.end()) return {};
  std::vector<std::pair<std::pair<int, bool>, std::string>> folders;
  for (const char* key : {"Directories", "ScaledDirectories"}) {
    const auto list = theme->second.find(key);
    if (list == theme->second.end()) continue;
    for (std::string& name : splitList(list->second)) {
      const auto group = index.find(name);
      const bool leavesTheme = name.find("..") != name.npos || name.starts_with('/');
      if (group == index.end() || leavesTheme) continue;
      folders.emplace_back(distance(group->second), std::move(name));
    }
  }
  std::stable_sort(folders.begin(), folders.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<std::string> names;
  for (auto& folder : folders) names.push_back(std::move(folder.second));
  return names;
}

std::set<std::string> namesIn(const fs::path& folder) {
  std::set<std::string> names;
  std::error_code failure;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    names.insert(entry->path().filename().string());
  }
  return names;
}

}  // namespace

IconFolders::IconFolders(std::vector<fs::path> bases, std::vector<fs::path> loose)
    : mBases(std::move(bases)) {
  std::set<std::string> themes;
  for (const fs::path& base : mBases) themes.merge(namesIn(base));
  addTheme("hicolor");
  themes.erase("hicolor");
  for (const std::string& theme : themes) addTheme(theme);
  for (fs::path& folder : loose) mFolders.push_back({std::move(folder)});
}

void IconFolders::addTheme(const std::string& theme) {
  for (const fs::path& base : mBases) {
    // The first index file speaks for the theme's folders below every base.
    const auto text = readFileHead(base / theme / "index.theme", kThemeFileLimitBytes);
    if (!text) continue;
    for (const std::string& name : foldersInOrder(parseGroups(*text))) {
      for (const fs::path& place : mBases) mFolders.push_back({place / theme / name});
    }
    return;
  }
}

fs::path IconFolders::find(const std::string& icon, const std::vector<std::string>& endings) {
  if (icon.empty()) return {};
  if (icon.front() == '/') return icon;
  const std::lock_guard lock(mMutex);
  fs::path found = findNamed(icon, endings);
  for (const char* ending : {".png", ".svg", ".xpm"}) {
    const std::string_view own(ending);
    if (found.empty() && icon.ends_with(own)) {
      found = findNamed(icon.substr(0, icon.size() - own.size()), endings);
    }
  }
  return found;
}

fs::path IconFolders::findNamed(const std::string& icon, const std::vector<std::string>& endings) {
  for (Folder& folder : mFolders) {
    if (!folder.names) folder.names = namesIn(folder.path);
    for (const std::string& ending : endings) {
      if (folder.names->contains(icon + ending)) return folder.path / (icon + ending);
    }
  }
  return {};
}

}  // namespace wayloom
