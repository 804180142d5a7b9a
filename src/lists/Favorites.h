#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "places/Coordinate.h"
#include "settings/PropertyList.h"
#include "settings/Result.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// The favourites file: named places in the order of adding. The list is a copy of the file that is
/// read again only by load() and add(). Main thread only.
class Favorites {
 public:
  /// `files` must outlive this object.
  explicit Favorites(SettingsFiles& files) : mFiles(files) {}

  /// Reads the list, and the location settings that choose() writes into. A missing, unreadable or
  /// empty list is an empty one; location settings that are not on are forgotten, all keys of them.
  void load();

  const PropertyList::Array& entries() const { return mEntries; }
  /// What an entry holds under a key; null when it holds nothing. `index` must be in range.
  const PropertyList* value(std::size_t index, std::string_view key) const;
  /// The entry's name; empty when it is missing or no text. `index` must be in range.
  std::string_view name(std::size_t index) const;

  /// Appends a place to what the file holds now. A name of blanks only becomes `unnamed`.
  [[nodiscard]] Status add(std::string_view name, Coordinate coordinate, std::string_view unnamed);

  // The rest works on the list as last read; indices must be in range.

  /// Takes an entry out of the list and writes the rest, an empty list too.
  [[nodiscard]] Status removeAt(std::size_t index);
  /// Puts an entry back, at most one behind the last, and writes the list.
  [[nodiscard]] Status insertAt(std::size_t index, PropertyList entry);

  /// Makes an entry the fixed location: turned on, at the entry's coordinates as they are stored.
  /// A coordinate that the entry lacks is taken out of the location file. No notice is posted and
  /// the mode stays.
  [[nodiscard]] Status choose(std::size_t index);

 private:
  void loadEntries();

  SettingsFiles& mFiles;
  PropertyList::Array mEntries;
  PropertyList::Dictionary mPreferences;
};

}  // namespace wayloom
