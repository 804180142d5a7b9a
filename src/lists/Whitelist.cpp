#include "lists/Whitelist.h"

#include "settings/TextConversions.h"

namespace wayloom {

void Whitelist::load() {
  mEntries = mFiles.loadDictionary(SettingsFile::Whitelist).value_or(PropertyList::Dictionary());
}

bool Whitelist::isTicked(std::string_view bundle) const {
  const auto found = mEntries.find(bundle);
  return found != mEntries.end() && boolValue(&found->second);
}

Status Whitelist::toggle(const std::string& bundle) {
  mEntries.insert_or_assign(bundle, !isTicked(bundle));
  return mFiles.save(SettingsFile::Whitelist, mEntries);
}

}  // namespace wayloom
