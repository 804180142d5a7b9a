#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "settings/PropertyList.h"
#include "settings/Result.h"

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

/// One property-list file whose root is always of one type. It keeps no contents: every read goes
/// to the file. Its owner calls it from one thread.
///
/// A damaged file (unreadable, no property list, another root) is never overwritten: the write that
/// replaces it first gives it a further name, NAME.damaged-1, or the first number up to 999 that is
/// free. When none is free, or that name cannot be given, the write fails and changes nothing.
class PropertyListFile {
 public:
  enum class Root { Array, Dictionary };
  enum class State { Missing, Damaged, Loaded };

  struct [[nodiscard]] Contents {
    State state = State::Missing;
    /// The file's value; an empty text unless loaded.
    PropertyList value;
    /// What is wrong with a damaged file.
    std::string damage;
  };

  PropertyListFile(std::filesystem::path path, Root root);

  const std::filesystem::path& path() const { return mPath; }

  Contents read() const;

  /// Replaces the file as replaceFile does. A value whose root is of the wrong type is refused.
  ///
  /// A file that is still the one last read or written is known to be sound; any other is read once
  /// more here, to learn whether it must be set aside.
  Status write(const PropertyList& value);

 private:
  bool isRightRoot(const PropertyList& value) const;
  bool mustBeSetAside() const;

  std::filesystem::path mPath;
  Root mRoot;
  mutable std::optional<FileVersion> mSound;
};

}  // namespace wayloom
