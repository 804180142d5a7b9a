#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "places/Coordinate.h"
#include "settings/PropertyList.h"
#include "settings/Result.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// The favourites file: named places in the order of adding. Main thread only.
class Favorites {
 public:
  /// `files` must outlive this object.
  explicit Favorites(SettingsFiles& files) : mFiles(files) {}

  /// Reads the file; a missing, unreadable or empty one gives an empty list.
  void load();

  const PropertyList::Array& entries() const { return mEntries; }

  /// Appends a place to what the file holds now. A name of blanks only becomes `unnamed`.
  [[nodiscard]] Status add(std::string_view name, Coordinate coordinate, std::string_view unnamed);

 private:
  SettingsFiles& mFiles;
  PropertyList::Array mEntries;
};

}  // namespace wayloom
