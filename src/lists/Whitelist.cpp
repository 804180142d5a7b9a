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
  const auto turn = mFiles.takeTurn();
  if (!turn) return turn.failure();
  auto current = mFiles.loadDictionary(SettingsFile::Whitelist);
  if (!current) return current.failure();
  PropertyList::Dictionary entries = std::move(*current).value_or(PropertyList::Dictionary());
  entries.insert_or_assign(bundle, !isTicked(bundle));
  Status saved = mFiles.save(SettingsFile::Whitelist, entries);
  if (saved) mEntries = std::move(entries);
  if (saved) mVersion = mFiles.seenVersion(SettingsFile::Whitelist);
  return saved;
}

}  // namespace wayloom
