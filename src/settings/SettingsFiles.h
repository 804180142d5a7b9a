#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string_view>

#include "settings/PropertyList.h"
#include "settings/PropertyListFile.h"
#include "settings/Result.h"

namespace wayloom {

/// The name of the notice that tells other programs that the fixed location's switches changed.
inline constexpr std::string_view kChangeNoticeName = "com.quorvil.wayloom.auto.changed";

enum class SettingsFile { Master, Location, Route, Favorites, Whitelist };

/// Which of the two simulations, and so which screen, is current.
enum class Mode { Route, FixedLocation };

/// The settings files below one root ("/" on the phone). Nothing is kept in memory: each operation
/// goes to the files, which other programs read at any time. A missing and a damaged file both read
/// as nothing; file() tells the two apart. Owned by the program; its main thread calls it.
class SettingsFiles {
 public:
  explicit SettingsFiles(const std::filesystem::path& root);

  /// Route when the file is missing, damaged or holds no mode.
  Mode readMasterMode() const;
  /// The file then holds the mode and nothing else.
  Status writeMasterMode(Mode mode);

  std::optional<PropertyList::Dictionary> loadLocationSettings() const;
  /// Saving nothing writes nothing, successfully.
  Status saveLocationSettings(const std::optional<PropertyList::Dictionary>& settings);

  /// Nothing also for the favourites, whose root is an array.
  std::optional<PropertyList::Dictionary> loadDictionary(SettingsFile name) const;
  /// Nothing also for every file but the favourites.
  std::optional<PropertyList::Array> loadArray(SettingsFile name) const;
  /// Replaces the whole file; fails when the root's type is not the file's.
  Status save(SettingsFile name, const PropertyList& value);

  const std::filesystem::path& path(SettingsFile name) const { return file(name).path(); }
  const PropertyListFile& file(SettingsFile name) const;

 private:
  PropertyListFile& file(SettingsFile name);

  std::array<PropertyListFile, 5> mFiles;
};

}  // namespace wayloom
