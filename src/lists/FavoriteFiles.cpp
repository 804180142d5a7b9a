#include "lists/FavoriteFiles.h"

#include "settings/ReplaceFile.h"
#include "settings/TextConversions.h"

namespace wayloom {

ExportedFavorites exportedFavorites(const Favorites& favorites) {
  ExportedFavorites exported;
  for (std::size_t index = 0; index < favorites.entries().size(); ++index) {
    const PropertyList* latitude = favorites.value(index, "latitude");
    const PropertyList* longitude = favorites.value(index, "longitude");
    const Coordinate coordinate{doubleValue(latitude), doubleValue(longitude)};
    if (latitude && longitude && isOnGlobe(coordinate)) {
      exported.places.push_back({std::string(favorites.name(index)), coordinate});
    } else {
      ++exported.leftOut;
    }
  }
  return exported;
}

Result<ExportedFavorites> exportFavorites(const Favorites& favorites,
                                          const std::filesystem::path& file,
                                          std::optional<WaypointFormat> format) {
  if (!format) format = waypointFormatOf(file);
  if (!format) return failed("the file's name must end in .gpx, .kml or .geojson");
  ExportedFavorites exported = exportedFavorites(favorites);
  if (exported.places.empty()) return failed("there is no favourite that can be exported");
  std::error_code error;
  const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
  if (!std::filesystem::is_directory(folder, error)) {
    return failed(folder.string() + " is no folder");
  }
  if (std::filesystem::exists(std::filesystem::symlink_status(file, error))) {
    return failed(file.string() + " is there already: choose another name");
  }
  Status written = replaceFile(file, writeWaypoints(exported.places, *format));
  return written ? Result<ExportedFavorites>(std::move(exported)) : written.failure();
}

Result<Favorites::Added> importFavorites(Favorites& favorites, const std::filesystem::path& file,
                                         std::string_view unnamed) {
  const auto places = readWaypointFile(file);
  return places ? favorites.addAll(*places, unnamed) : places.failure();
}

}  // namespace wayloom
