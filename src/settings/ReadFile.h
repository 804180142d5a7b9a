#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "settings/FileSystem.h"

namespace wayloom {

/// Tells one version of a file from another without reading it.
struct FileVersion {
  std::uint64_t device = 0;
  std::uint64_t number = 0;
  std::int64_t bytes = 0;
  std::int64_t modifiedSeconds = 0;
  std::int64_t modifiedNanoseconds = 0;

  bool operator==(const FileVersion&) const = default;
};

/// The version that stands at `path` now; none when nothing does.
std::optional<FileVersion> versionAt(const std::filesystem::path& path);

/// What became of reading a file whole.
struct [[nodiscard]] FileReading {
  enum class Outcome {
    /// The bytes are the whole file, as it was when it was opened.
    Complete,
    /// There is no file of this name.
    Missing,
    /// It has more bytes than were asked for; they were not read.
    TooLarge,
    /// The system did not let it be read: nothing is known of what it holds.
    Failed,
  };

  Outcome outcome = Outcome::Failed;
  std::string bytes;
  FileVersion version;
  /// Why a reading failed, for a person.
  std::string problem;
};

/// Reads a regular file whole if it has at most `maximumBytes`. It never waits for a pipe and
/// follows no symbolic link at the file's own place. Any thread may call it.
FileReading readFile(const std::filesystem::path& path, std::size_t maximumBytes,
                     FileSystem& system);

}  // namespace wayloom
