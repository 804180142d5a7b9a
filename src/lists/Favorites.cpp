#include "lists/Favorites.h"

#include <cassert>

#include "settings/TextConversions.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {

const PropertyList* find(const PropertyList::Dictionary& dictionary, std::string_view key) {
  const auto found = dictionary.find(key);
  return found == dictionary.end() ? nullptr : &found->second;
}

}  // namespace

void Favorites::load() {
  mPreferences = mFiles.loadLocationSettings().value_or(PropertyList::Dictionary());
  if (!boolValue(find(mPreferences, "enable"))) mPreferences.clear();
  loadEntries();
}

void Favorites::loadEntries() {
  mEntries = mFiles.loadArray(SettingsFile::Favorites).value_or(PropertyList::Array());
}

const PropertyList* Favorites::value(std::size_t index, std::string_view key) const {
  assert(index < mEntries.size());
  const auto* entry = mEntries[index].get<PropertyList::Dictionary>();
  return entry ? find(*entry, key) : nullptr;
}

std::string_view Favorites::name(std::size_t index) const {
  const PropertyList* found = value(index, "name");
  const auto* text = found ? found->get<std::string>() : nullptr;
  return text ? std::string_view(*text) : std::string_view();
}

Status Favorites::add(std::string_view name, Coordinate coordinate, std::string_view unnamed) {
  loadEntries();
  std::string trimmed = trimmedText(name);
  if (trimmed.empty()) trimmed = unnamed;
  mEntries.push_back(PropertyList::Dictionary{
      {"latitude", formatReal(coordinate.latitude)},
      {"longitude", formatReal(coordinate.longitude)},
      {"name", std::move(trimmed)},
  });
  return mFiles.save(SettingsFile::Favorites, mEntries);
}

Status Favorites::removeAt(std::size_t index) {
  assert(index < mEntries.size());
  mEntries.erase(mEntries.begin() + static_cast<std::ptrdiff_t>(index));
  return mFiles.save(SettingsFile::Favorites, mEntries);
}

Status Favorites::insertAt(std::size_t index, PropertyList entry) {
  assert(index <= mEntries.size());
  mEntries.insert(mEntries.begin() + static_cast<std::ptrdiff_t>(index), std::move(entry));
  return mFiles.save(SettingsFile::Favorites, mEntries);
}

Status Favorites::choose(std::size_t index) {
  mPreferences.insert_or_assign("enable", formatFlag(true));
  for (const char* key : {"longitude", "latitude"}) {
    if (const PropertyList* coordinate = value(index, key)) {
      mPreferences.insert_or_assign(key, *coordinate);
    } else {
      mPreferences.erase(key);
    }
  }
  return mFiles.saveLocationSettings(mPreferences);
}

}  // namespace wayloom
