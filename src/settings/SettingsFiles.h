#pragma once

#include <array>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string_view>

#include "settings/PropertyList.h"
#include "settings/PropertyListFile.h"
#include "settings/Result.h"
#include "settings/WriterTurns.h"

namespace wayloom {

/// The name of the notice that tells other programs that the fixed location's switches changed.
inline constexpr std::string_view kChangeNoticeName = "com.quorvil.wayloom.auto.changed";

enum class SettingsFile { Master, Location, Route, Favorites, Whitelist };

/// Which of the two simulations, and so which screen, is current.
enum class Mode { Route, FixedLocation };

/// What a file holds: nothing when it is missing or damaged, a failure when it cannot be read.
template <typename Root>
using Loaded = Result<std::optional<Root>>;

/// The settings files below one root ("/" on the phone). Nothing is kept in memory: each operation
/// goes to the files, which other programs read at any time. A missing and a damaged file both load
/// as nothing; file() tells the two apart. Owned by the program; any thread may call it.
class SettingsFiles {
 public:
  /// How long a writer waits for another.
  static constexpr std::chrono::seconds kPatience{10};

  /// `system` must outlive this object.
  explicit SettingsFiles(const std::filesystem::path& root,
                         std::chrono::milliseconds patience = kPatience,
                         FileSystem& system = FileSystem::machine());

  /// To be held from reading what shall be changed until it is written, and no longer.
  Result<WriterTurns::Turn> takeTurn() { return mTurns.take(); }

  /// Route when the file is missing, damaged or holds no mode.
  Result<Mode> readMasterMode() const;
  /// The file then holds the mode and nothing else.
  Status writeMasterMode(Mode mode);

  Loaded<PropertyList::Dictionary> loadLocationSettings() const;
  /// Saving nothing writes nothing, successfully.
  Status saveLocationSettings(const std::optional<PropertyList::Dictionary>& settings);

  /// Nothing also for the favourites, whose root is an array.
  Loaded<PropertyList::Dictionary> loadDictionary(SettingsFile name) const;
  /// Nothing also for every file but the favourites.
  Loaded<PropertyList::Array> loadArray(SettingsFile name) const;
  /// Replaces the whole file, in a turn of its own unless the caller has one; fails when the root's
  /// type is not the file's.
  Status save(SettingsFile name, const PropertyList& value);
  /// The same with the bytes of an XML property list that has the right root.
  Status saveBytes(SettingsFile name, std::string_view bytes);

  /// The version of a file that was last read or written here, if it was sound; none of a missing
  /// one.
  std::optional<FileVersion> seenVersion(SettingsFile name) const {
    return file(name).soundVersion();
  }
  /// The version that stands there now.
  std::optional<FileVersion> currentVersion(SettingsFile name) const {
    return versionAt(path(name));
  }

  const std::filesystem::path& path(SettingsFile name) const { return file(name).path(); }
  const PropertyListFile& file(SettingsFile name) const;

 private:
  PropertyListFile& changeable(SettingsFile name);

  std::array<PropertyListFile, 5> mFiles;
  WriterTurns mTurns;
};

}  // namespace wayloom
