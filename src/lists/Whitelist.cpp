#include "lists/Whitelist.h"

#include "settings/TextConversions.h"

namespace wayloom {

Status Whitelist::load() {
  auto entries = mFiles.loadDictionary(SettingsFile::Whitelist);
  if (!entries) return entries.failure();
  mEntries = std::move(*entries).value_or(PropertyList::Dictionary());
  mVersion = mFiles.seenVersion(SettingsFile::Whitelist);
  return done();
}

bool Whitelist::isTicked(std::string_view bundle) const {
  const PropertyList* tick = valueOf(mEntries, bundle);
  return tick && boolValue(tick);
}

Status Whitelist::toggle(const std::string& bundle) {
  return change([&](PropertyList::Dictionary& entries) {
    entries.insert_or_assign(bundle, !isTicked(bundle));
  });
}

std::set<std::string, std::less<>> Whitelist::ticked() const {
  std::set<std::string, std::less<>> bundles;
  for (const auto& [bundle, value] : mEntries) {
    if (boolValue(&value)) bundles.insert(bundle);
  }
  return bundles;
}

Status Whitelist::tickOnly(const std::set<std::string, std::less<>>& bundles) {
  return change([&](PropertyList::Dictionary& entries) {
    for (auto& [bundle, value] : entries) {
      const bool isTicked = bundles.contains(bundle);
      if (boolValue(&value) != isTicked) value = isTicked;
    }
    for (const std::string& bundle : bundles) entries.try_emplace(bundle, true);
  });
}

Status Whitelist::change(const std::function<void(PropertyList::Dictionary&)>& edit) {
  const auto turn = mFiles.takeTurn();
  if (!turn) return turn.failure();
  auto current = mFiles.loadDictionary(SettingsFile::Whitelist);
  if (!current) return current.failure();
  PropertyList::Dictionary entries = std::move(*current).value_or(PropertyList::Dictionary());
  edit(entries);
  Status saved = mFiles.save(SettingsFile::Whitelist, entries);
  if (saved) mEntries = std::move(entries);
  if (saved) mVersion = mFiles.seenVersion(SettingsFile::Whitelist);
  return saved;
}

}  // namespace wayloom
