#include "lists/WhitelistSets.h"

#include "platform/HomeScreen.h"
#include "settings/SettingsRoot.h"
#include "settings/TrimmedText.h"

namespace wayloom {

namespace {

constexpr std::size_t kMostNameBytes = 200;

Failure noSet(std::string_view name) {
  return failed("there is no set called " + std::string(name));
}

using Identifiers = std::set<std::string, std::less<>>;

/// None when it is no list of texts.
std::optional<Identifiers> identifiersIn(const PropertyList& set) {
  Identifiers identifiers;
  const auto* array = set.get<PropertyList::Array>();
  if (!array) return std::nullopt;
  for (const PropertyList& value : *array) {
    const auto* text = value.get<std::string>();
    if (!text) return std::nullopt;
    identifiers.insert(*text);
  }
  return identifiers;
}

}  // namespace

std::filesystem::path WhitelistSets::defaultFile() {
  return ownDataFolder() / "whitelist-sets.plist";
}

WhitelistSets::WhitelistSets(const std::filesystem::path& file, FileSystem& system)
    : mFile(file, PropertyListFile::Root::Dictionary, system),
      mTurns(file.parent_path(), system, SettingsFiles::kPatience) {}

Result<std::vector<WhitelistSets::Set>> WhitelistSets::all() const {
  const auto sets = load();
  if (!sets) return sets.failure();
  std::vector<Set> all;
  for (const auto& [name, set] : *sets) {
    const auto identifiers = identifiersIn(set);
    if (!identifiers) return failed("the set " + name + " is damaged");
    all.push_back({name, identifiers->size()});
  }
  return all;
}

Status WhitelistSets::save(std::string_view name, const Whitelist& whitelist) {
  const std::string trimmed = trimmedText(name);
  if (trimmed.empty()) return failed("a set needs a name");
  if (trimmed.size() > kMostNameBytes) return failed("the set's name is too long");
  if (storableIdentifier(trimmed) != trimmed) {
    return failed("the set's name must be text without control characters");
  }
  const auto turn = mTurns.take();
  if (!turn) return turn.failure();
  auto sets = load();
  if (!sets) return sets.failure();
  PropertyList::Array identifiers;
  for (const std::string& identifier : whitelist.ticked()) identifiers.emplace_back(identifier);
  sets->insert_or_assign(trimmed, std::move(identifiers));
  return mFile.write(std::move(*sets));
}

Status WhitelistSets::use(std::string_view name, Whitelist& whitelist) const {
  const auto sets = load();
  if (!sets) return sets.failure();
  const PropertyList* set = valueOf(*sets, trimmedText(name));
  if (!set) return noSet(name);
  const auto identifiers = identifiersIn(*set);
  return identifiers ? whitelist.tickOnly(*identifiers) : failed("the set is damaged");
}

Status WhitelistSets::remove(std::string_view name) {
  const auto turn = mTurns.take();
  if (!turn) return turn.failure();
  auto sets = load();
  if (!sets) return sets.failure();
  if (sets->erase(trimmedText(name)) == 0) return noSet(name);
  return mFile.write(std::move(*sets));
}

Result<PropertyList::Dictionary> WhitelistSets::load() const {
  auto contents = mFile.read();
  if (contents.state == PropertyListFile::State::Unreadable) {
    return failed("cannot read " + mFile.path().string() + ": " + contents.problem);
  }
  auto* sets = contents.value.get<PropertyList::Dictionary>();
  return sets ? std::move(*sets) : PropertyList::Dictionary();
}

}  // namespace wayloom
