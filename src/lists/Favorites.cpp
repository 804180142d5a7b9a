#include "lists/Favorites.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <set>

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

Failure goneMeanwhile() {
  return failed("this favourite was changed or deleted elsewhere meanwhile");
}

PropertyList entryFor(std::string_view name, Coordinate coordinate, std::string_view unnamed) {
  const std::string trimmed = trimmedText(name);
  return PropertyList::Dictionary{
      {"latitude", formatReal(coordinate.latitude)},
      {"longitude", formatReal(coordinate.longitude)},
      {"name", std::string(trimmed.empty() ? unnamed : trimmed)},
  };
}

/// What makes two entries the same to a person: their names, and their places as they are written.
using Likeness = std::array<std::string, 3>;

Likeness likeness(const PropertyList& entry) {
  const auto* dictionary = entry.get<PropertyList::Dictionary>();
  const auto degrees = [&](const char* key) {
    const PropertyList* value = dictionary ? valueOf(*dictionary, key) : nullptr;
    return value ? formatReal(doubleValue(value)) : std::string();
  };
  return {std::string(Favorites::nameOf(entry)), degrees("latitude"), degrees("longitude")};
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
  return change([&](Array& entries) {
    entries.push_back(entryFor(name, coordinate, unnamed));
    return done();
  });
}

Result<Favorites::Added> Favorites::addAll(const Waypoints& places, std::string_view unnamed) {
  Added result;
  Status changed = change([&](Array& entries) {
    std::set<Likeness> known;
    for (const PropertyList& entry : entries) known.insert(likeness(entry));
    for (const Waypoint& place : places) {
      PropertyList entry = entryFor(place.name, place.coordinate, unnamed);
      if (known.insert(likeness(entry)).second) {
        entries.push_back(std::move(entry));
        ++result.added;
      } else {
        ++result.skipped;
      }
    }
    return done();
  });
  return changed ? Result<Added>(result) : changed.failure();
}

std::optional<std::size_t> Favorites::find(const PropertyList& entry, std::size_t index) const {
  if (index < mEntries.size() && mEntries[index] == entry) return index;
  const auto found = std::find(mEntries.begin(), mEntries.end(), entry);
  if (found == mEntries.end()) return std::nullopt;
  return static_cast<std::size_t>(found - mEntries.begin());
}

Status Favorites::removeAt(std::size_t index) {
  assert(index < mEntries.size());
  return change([&](Array& entries) {
    const auto found = findAgain(entries, mEntries[index], index);
    if (found != entries.end()) entries.erase(found);
    return done();
  });
}

Status Favorites::insertAt(std::size_t index, PropertyList entry) {
  assert(index <= mEntries.size());
  return change([&](Array& entries) {
    entries.insert(at(entries, index), std::move(entry));
    return done();
  });
}

Status Favorites::rename(std::size_t index, std::string_view name) {
  assert(index < mEntries.size());
  std::string trimmed = trimmedText(name);
  if (trimmed.empty()) return failed("a favourite needs a name");
  return change([&](Array& entries) -> Status {
    const auto found = findAgain(entries, mEntries[index], index);
    auto* entry = found == entries.end() ? nullptr : found->get<PropertyList::Dictionary>();
    if (!entry) return goneMeanwhile();
    entry->insert_or_assign("name", std::move(trimmed));
    return done();
  });
}

Status Favorites::move(std::size_t from, std::size_t to) {
  assert(from < mEntries.size() && to < mEntries.size());
  return change([&](Array& entries) -> Status {
    const auto found = findAgain(entries, mEntries[from], from);
    if (found == entries.end()) return goneMeanwhile();
    PropertyList entry = std::move(*found);
    entries.erase(found);
    // Moved down, the one before it then is the one that stands there now.
    auto place = entries.begin();
    if (to > 0) {
      const std::size_t before = to <= from ? to - 1 : to;
      place = findAgain(entries, mEntries[before], to - 1);
      place = place == entries.end() ? at(entries, to) : place + 1;
    }
    entries.insert(place, std::move(entry));
    return done();
  });
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

Status Favorites::change(const std::function<Status(Array&)>& edit) {
  const auto turn = mFiles.takeTurn();
  if (!turn) return turn.failure();
  auto current = mFiles.loadArray(SettingsFile::Favorites);
  if (!current) return current.failure();
  Array entries = current->value_or(Array());
  const Status edited = edit(entries);
  // What could not be changed is shown as it stands there.
  if (!edited) entries = current->value_or(Array());
  const bool isSame = *current && entries == **current;
  Status saved = isSame || !edited ? edited : mFiles.save(SettingsFile::Favorites, entries);
  if (!edited || saved) {
    mEntries = std::move(entries);
    mVersion = mFiles.seenVersion(SettingsFile::Favorites);
  }
  return saved;
}

}  // namespace wayloom
