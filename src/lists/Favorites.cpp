#include "lists/Favorites.h"

#include "settings/TextConversions.h"
#include "settings/TrimmedText.h"

namespace wayloom {

void Favorites::load() {
  mEntries = mFiles.loadArray(SettingsFile::Favorites).value_or(PropertyList::Array());
}

Status Favorites::add(std::string_view name, Coordinate coordinate, std::string_view unnamed) {
  load();
  std::string trimmed = trimmedText(name);
  if (trimmed.empty()) trimmed = unnamed;
  mEntries.push_back(PropertyList::Dictionary{
      {"latitude", formatReal(coordinate.latitude)},
      {"longitude", formatReal(coordinate.longitude)},
      {"name", std::move(trimmed)},
  });
  return mFiles.save(SettingsFile::Favorites, mEntries);
}

}  // namespace wayloom
