#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "settings/FileSystem.h"
#include "settings/Result.h"

namespace wayloom {

/// What was searched for: as it is shown, and what the search is made with, which for a chosen
/// suggestion is its position. UTF-8, no control characters.
struct RecentSearch {
  std::string text;
  std::string query;

  bool operator==(const RecentSearch&) const = default;
};

/// The searches of last time and before, the latest first, in a file of the application's own: a
/// line for each, its query behind a tab where that is another than its text. Each question reads
/// the file as it is; what is no such line in it is passed over. Main thread only.
class RecentSearches {
 public:
  static constexpr std::size_t kMost = 10;

  /// Nothing is kept without a file.
  explicit RecentSearches(std::optional<std::filesystem::path> file,
                          FileSystem& system = FileSystem::machine());

  /// None, too, where the file cannot be read.
  std::vector<RecentSearch> all() const;
  /// Puts a search first; the one of this text that was there before, and the eleventh, go. Texts
  /// that no line can hold, and those that are too long to be read again, are not kept.
  [[nodiscard]] Status add(const RecentSearch& search);
  /// One that is there no more is no failure.
  [[nodiscard]] Status remove(const RecentSearch& search);
  [[nodiscard]] Status clear();

 private:
  Result<std::vector<RecentSearch>> read() const;
  Status write(const std::vector<RecentSearch>& searches);

  const std::optional<std::filesystem::path> mFile;
  FileSystem& mSystem;
};

}  // namespace wayloom
