#include "lists/Favorites.h"

#include <algorithm>
#include <cassert>

#include "settings/ModeSwitch.h"
#include "settings/TextConversions.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {

using Array = PropertyList::Array;

Array::iterator at(Array& entries, std::size_t index) {
  return entries.begin() + static_cast<std::ptrdiff_t>(std::min(index, entries.size()));
}

/// Where `entries` hold an entry that stood at `index` once.
Array::iterator findAgain(Array& entries, const PropertyList& entry, std::size_t index) {
  const auto there = at(entries, index);
  return there != entries.end() && *there == entry
             ? there
             : std::find(entries.begin(), entries.end(), entry);
}

}  // namespace

Status Favorites::load() {
  auto entries = mFiles.loadArray(SettingsFile::Favorites);
  if (!entries) return entries.failure();
  mEntries = std::move(*entries).value_or(Array());
  mVersion = mFiles.seenVersion(SettingsFile::Favorites);
  return done();
}

const PropertyList* Favorites::value(std::size_t index, std::string_view key) const {
  assert(index < mEntries.size());
  const auto* entry = mEntries[index].get<PropertyList::Dictionary>();
  return entry ? valueOf(*entry, key) : nullptr;
}

std::string_view Favorites::nameOf(const PropertyList& entry) {
  const auto* dictionary = entry.get<PropertyList::Dictionary>();
  const PropertyList* found = dictionary ? valueOf(*dictionary, "name") : nullptr;
  const auto* text = found ? found->get<std::string>() : nullptr;
  return text ? std::string_view(*text) : std::string_view();
}

Status Favorites::add(std::string_view name, Coordinate coordinate, std::string_view unnamed) {
  std::string trimmed = trimmedText(name);
  if (trimmed.empty()) trimmed = unnamed;
  return change([&](Array& entries) {
    entries.push_back(PropertyList::Dictionary{
        {"latitude", formatReal(coordinate.latitude)},
        {"longitude", formatReal(coordinate.longitude)},
        {"name", std::move(trimmed)},
    });
  });
}

Status Favorites::removeAt(std::size_t index) {
  assert(index < mEntries.size());
  return change([&](Array& entries) {
    const auto found = findAgain(entries, mEntries[index], index);
    if (found != entries.end()) entries.erase(found);
  });
}

Status Favorites::insertAt(std::size_t index, PropertyList entry) {
  assert(index <= mEntries.size());
  return change([&](Array& entries) { entries.insert(at(entries, index), std::move(entry)); });
}

Status Favorites::choose(std::size_t index) {
  const auto turn = mFiles.takeTurn();
  if (!turn) return turn.failure();
  if (Status isOff = checkOtherIsOff(mFiles, Mode::FixedLocation); !isOff) return isOff;
  auto current = mFiles.loadLocationSettings();
  if (!current) return current.failure();
  PropertyList::Dictionary settings = std::move(*current).value_or(PropertyList::Dictionary());
  if (!boolValue(valueOf(settings, "enable"))) settings.clear();
  settings.insert_or_assign("enable", formatFlag(true));
  for (const char* key : {"longitude", "latitude"}) {
    if (const PropertyList* coordinate = value(index, key)) {
      settings.insert_or_assign(key, *coordinate);
    } else {
      settings.erase(key);
    }
  }
  return mFiles.saveLocationSettings(settings);
}

Status Favorites::change(const std::function<void(Array&)>& edit) {
  const auto turn = mFiles.takeTurn();
  if (!turn) return turn.failure();
  auto current = mFiles.loadArray(SettingsFile::Favorites);
  if (!current) return current.failure();
  Array entries = std::move(*current).value_or(Array());
  edit(entries);
  Status saved = mFiles.save(SettingsFile::Favorites, entries);
  if (saved) mEntries = std::move(entries);
  if (saved) mVersion = mFiles.seenVersion(SettingsFile::Favorites);
  return saved;
}

}  // namespace wayloom
