#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "geo/Coordinate.h"
#include "settings/PropertyList.h"
#include "settings/Result.h"
#include "settings/SettingsFiles.h"
#include "tracks/Waypoint.h"

namespace wayloom {

/// The favourites file: named places in the user's order, which is that of adding at first. The
/// list is a copy of the file; each change is made to the file as it is at that moment, and the
/// copy then shows the result. A change that fails changes neither. Main thread only.
class Favorites {
 public:
  /// `files` must outlive this object.
  explicit Favorites(SettingsFiles& files) : mFiles(files) {}

  /// Reads the list. A missing, damaged or empty file is an empty list; one that cannot be read
  /// leaves the list as it was.
  [[nodiscard]] Status load();
  /// Whether the file is the one that was last read or written here.
  bool isCurrent() const { return mVersion == mFiles.currentVersion(SettingsFile::Favorites); }

  const PropertyList::Array& entries() const { return mEntries; }
  /// What an entry holds under a key; null when it holds nothing. `index` must be in range.
  const PropertyList* value(std::size_t index, std::string_view key) const;
  /// The entry's name; empty when it is missing or no text. `index` must be in range.
  std::string_view name(std::size_t index) const { return nameOf(mEntries[index]); }
  static std::string_view nameOf(const PropertyList& entry);

  /// Appends a place. A name of blanks only becomes `unnamed`.
  [[nodiscard]] Status add(std::string_view name, Coordinate coordinate, std::string_view unnamed);

  /// What became of many places.
  struct Added {
    std::size_t added = 0;
    /// Those that the list had before, with the same name at the same place.
    std::size_t skipped = 0;
  };
  /// Appends places in one writing; nothing is written when the list has them all. One without a
  /// name becomes `unnamed`.
  [[nodiscard]] Result<Added> addAll(const Waypoints& places, std::string_view unnamed);

  // The rest goes by the list as last read; indices must be in range.

  /// Where an entry stands, looked for at `index` first; none when the list has it no more.
  std::optional<std::size_t> find(const PropertyList& entry, std::size_t index) const;

  /// Takes an entry out, wherever the file has it now. One that the file has no more is no failure.
  [[nodiscard]] Status removeAt(std::size_t index);
  /// Puts an entry back, behind the last if the list has become shorter.
  [[nodiscard]] Status insertAt(std::size_t index, PropertyList entry);

  /// Gives an entry another name, wherever the file has it now. It fails when the file has it no
  /// more as it was, and when nothing but blanks is left of the name.
  [[nodiscard]] Status rename(std::size_t index, std::string_view name);
  /// Puts an entry where it is number `to` of the list without it: behind the entry that is before
  /// it then, wherever the file has that now. It fails when the file has the entry no more.
  [[nodiscard]] Status move(std::size_t from, std::size_t to);

  /// Makes an entry the fixed location: turned on, at the entry's coordinates as they are stored.
  /// A coordinate that the entry lacks is taken out of the location file, and while the position
  /// was off, so is everything else. No notice is posted and the mode stays. Refused while a drive
  /// is on.
  [[nodiscard]] Status choose(std::size_t index);

 private:
  [[nodiscard]] Status change(const std::function<Status(PropertyList::Array&)>& edit);

  SettingsFiles& mFiles;
  PropertyList::Array mEntries;
  std::optional<FileVersion> mVersion;
};

}  // namespace wayloom
