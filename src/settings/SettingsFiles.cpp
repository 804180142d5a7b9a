#include "settings/SettingsFiles.h"

#include <string>
#include <utility>

#include "settings/TextConversions.h"

namespace wayloom {
namespace {

constexpr const char* kModeKey = "mode";

std::filesystem::path folderBelow(const std::filesystem::path& root) {
  return root / "var/mobile/Library/Preferences";
}

template <typename Root>
Loaded<Root> load(const PropertyListFile& file) {
  PropertyListFile::Contents contents = file.read();
  if (contents.state == PropertyListFile::State::Unreadable) {
    return failed("cannot read " + file.path().string() + ": " + contents.problem);
  }
  Root* const root = contents.value.get<Root>();
  return root == nullptr ? std::nullopt : std::optional(std::move(*root));
}

std::array<PropertyListFile, 5> filesIn(const std::filesystem::path& folder, FileSystem& system) {
  const auto named = [&](const char* name, PropertyListFile::Root type) {
    return PropertyListFile(folder / (std::string("com.quorvil.wl.") + name + ".plist"), type,
                            system);
  };
  return {named("master", PropertyListFile::Root::Dictionary),
          named("location", PropertyListFile::Root::Dictionary),
          named("route", PropertyListFile::Root::Dictionary),
          named("favorites", PropertyListFile::Root::Array),
          named("whitelist", PropertyListFile::Root::Dictionary)};
}

}  // namespace

SettingsFiles::SettingsFiles(const std::filesystem::path& root, std::chrono::milliseconds patience,
                             FileSystem& system)
    : mFiles(filesIn(folderBelow(root), system)), mTurns(folderBelow(root), system, patience) {}

Result<Mode> SettingsFiles::readMasterMode() const {
  const auto master = loadDictionary(SettingsFile::Master);
  if (!master) return master.failure();
  const bool isFixed = *master && intValue(valueOf(**master, kModeKey)) != 0;
  return isFixed ? Mode::FixedLocation : Mode::Route;
}

Status SettingsFiles::writeMasterMode(Mode mode) {
  return save(SettingsFile::Master,
              PropertyList::Dictionary{{kModeKey, formatFlag(mode == Mode::FixedLocation)}});
}

Loaded<PropertyList::Dictionary> SettingsFiles::loadLocationSettings() const {
  return loadDictionary(SettingsFile::Location);
}

Status SettingsFiles::saveLocationSettings(
    const std::optional<PropertyList::Dictionary>& settings) {
  return settings ? save(SettingsFile::Location, *settings) : done();
}

Loaded<PropertyList::Dictionary> SettingsFiles::loadDictionary(SettingsFile name) const {
  return load<PropertyList::Dictionary>(file(name));
}

Loaded<PropertyList::Array> SettingsFiles::loadArray(SettingsFile name) const {
  return load<PropertyList::Array>(file(name));
}

Status SettingsFiles::save(SettingsFile name, const PropertyList& value) {
  const auto turn = takeTurn();
  return turn ? changeable(name).write(value) : Status(turn.failure());
}

Status SettingsFiles::saveBytes(SettingsFile name, std::string_view bytes) {
  const auto turn = takeTurn();
  return turn ? changeable(name).writeBytes(bytes) : Status(turn.failure());
}

const PropertyListFile& SettingsFiles::file(SettingsFile name) const {
  return mFiles[static_cast<std::size_t>(name)];
}

PropertyListFile& SettingsFiles::changeable(SettingsFile name) {
  return mFiles[static_cast<std::size_t>(name)];
}

}  // namespace wayloom
