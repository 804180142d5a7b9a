#pragma once

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>

#include "settings/FileSystem.h"
#include "settings/PropertyList.h"
#include "settings/ReadFile.h"
#include "settings/Result.h"

namespace wayloom {

/// One property-list file whose root is always of one type. It keeps no contents: every read goes
/// to the file. Any thread may call it; writers take turns (WriterTurns).
///
/// A damaged file (read whole, but no property list, beyond the limits, or with another root) is
/// never overwritten: the write that replaces it first gives it a further name, NAME.damaged-1, or
/// the first number up to 999 that is free. When none is free, or that name cannot be given, the
/// write fails and changes nothing. So does a write over a file that cannot be read.
class PropertyListFile {
 public:
  enum class Root { Array, Dictionary };
  enum class State {
    Missing,
    Damaged,
    /// The system did not let it be read; nothing is known of what it holds.
    Unreadable,
    Loaded
  };

  struct [[nodiscard]] Contents {
    State state = State::Missing;
    /// The file's value; an empty text unless loaded.
    PropertyList value;
    /// What is wrong with a damaged or unreadable file.
    std::string problem;
  };

  /// `system` must outlive this object.
  PropertyListFile(std::filesystem::path path, Root root,
                   FileSystem& system = FileSystem::machine());

  const std::filesystem::path& path() const { return mPath; }

  Contents read() const;

  /// Replaces the file as replaceFile does. A value whose root is of the wrong type is refused.
  ///
  /// A file that is still the one last read or written is known to be sound; any other is read once
  /// more here, to learn whether it must be set aside.
  Status write(const PropertyList& value);
  /// The same with the bytes of an XML property list that has the right root.
  Status writeBytes(std::string_view bytes);

  /// How the file was when it was last found damaged, unless somebody else has mended it.
  struct Damage {
    std::string problem;
    /// The further name that it got when it was replaced; empty while it is not.
    std::filesystem::path keptAs;
  };
  std::optional<Damage> damage() const;

  /// The version last read or written, if it was sound.
  std::optional<FileVersion> soundVersion() const;

 private:
  Contents damaged(std::string problem) const;
  bool isRightRoot(const PropertyList& value) const;
  Status setAsideIfDamaged(std::filesystem::path& furtherName) const;
  /// What the last reading found.
  void forget() const;
  void setSound(const std::optional<FileVersion>& version) const;

  std::filesystem::path mPath;
  Root mRoot;
  FileSystem& mSystem;

  mutable std::mutex mMutex;
  mutable std::optional<FileVersion> mSound;
  mutable std::optional<Damage> mDamage;
};

}  // namespace wayloom
