#pragma once

#include <filesystem>
#include <string_view>

#include "lists/Favorites.h"
#include "tracks/WaypointFile.h"

namespace wayloom {

/// The favourites as other programs can have them.
struct ExportedFavorites {
  Waypoints places;
  /// How many have no position on the globe, which no such file can hold.
  std::size_t leftOut = 0;
};
ExportedFavorites exportedFavorites(const Favorites& favorites);

/// Writes the favourites as last read to a file that is not there yet, in the format of its ending
/// when none is given.
/// None that can be exported is a failure.
Result<ExportedFavorites> exportFavorites(const Favorites& favorites,
                                          const std::filesystem::path& file,
                                          std::optional<WaypointFormat> format = std::nullopt);

/// Adds the places of a file behind the last favourite, without those that the list has. All of
/// the file is read before anything is written.
Result<Favorites::Added> importFavorites(Favorites& favorites, const std::filesystem::path& file,
                                         std::string_view unnamed);

}  // namespace wayloom
