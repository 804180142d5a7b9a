#pragma once

#include <deque>
#include <filesystem>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace wayloom {

/// Finds icons by name as desktops do: in the theme "hicolor", to which every
/// application installs its own, then in the other themes found, then in the folders without a
/// theme. A PNG of the right size comes before an SVG, that before other sizes. What was listed
/// once is remembered. Any thread may call it.
class IconFolders {
 public:
  /// `bases` hold themes, the more important first; `loose` hold icons without any theme.
  IconFolders(std::vector<std::filesystem::path> bases, std::vector<std::filesystem::path> loose);

  /// The icon file with one of these endings (".png"), the preferred first; empty when there is
  /// none. A name may be an absolute path, and may carry an ending of its own.
  std::filesystem::path find(const std::string& icon, const std::vector<std::string>& endings);

 private:
  struct Folder {
    std::filesystem::path path;
    /// The files in it; nothing until they are asked for.
    std::optional<std::set<std::string>> names = std::nullopt;
  };

  void addTheme(const std::string& theme);
  std::filesystem::path findNamed(const std::string& icon, const std::vector<std::string>& endings);

  std::vector<std::filesystem::path> mBases;
  std::mutex mMutex;
  std::deque<Folder> mFolders;
};

}  // namespace wayloom
