#include "settings/SettingsFiles.h"

#include <string>
#include <utility>

#include "settings/TextConversions.h"

namespace wayloom {
namespace {

constexpr const char* kModeKey = "mode";

PropertyListFile fileNamed(const std::filesystem::path& root, const char* name,
                           PropertyListFile::Root type) {
  return PropertyListFile(
      root / "var/mobile/Library/Preferences" / (std::string("com.quorvil.wl.") + name + ".plist"),
      type);
}

template <typename Root>
std::optional<Root> load(const PropertyListFile& file) {
  PropertyListFile::Contents contents = file.read();
  Root* const root = contents.value.get<Root>();
  return root == nullptr ? std::nullopt : std::optional(std::move(*root));
}

}  // namespace

SettingsFiles::SettingsFiles(const std::filesystem::path& root)
    : mFiles{fileNamed(root, "master", PropertyListFile::Root::Dictionary),
             fileNamed(root, "location", PropertyListFile::Root::Dictionary),
             fileNamed(root, "route", PropertyListFile::Root::Dictionary),
             fileNamed(root, "favorites", PropertyListFile::Root::Array),
             fileNamed(root, "whitelist", PropertyListFile::Root::Dictionary)} {}

Mode SettingsFiles::readMasterMode() const {
  const std::optional<PropertyList::Dictionary> master = loadDictionary(SettingsFile::Master);
  if (!master) {
    return Mode::Route;
  }
  const auto mode = master->find(kModeKey);
  return mode != master->end() && intValue(&mode->second) != 0 ? Mode::FixedLocation : Mode::Route;
}

Status SettingsFiles::writeMasterMode(Mode mode) {
  return save(SettingsFile::Master,
              PropertyList::Dictionary{{kModeKey, formatFlag(mode == Mode::FixedLocation)}});
}

std::optional<PropertyList::Dictionary> SettingsFiles::loadLocationSettings() const {
  return loadDictionary(SettingsFile::Location);
}

Status SettingsFiles::saveLocationSettings(
    const std::optional<PropertyList::Dictionary>& settings) {
  return settings ? save(SettingsFile::Location, *settings) : done();
}

std::optional<PropertyList::Dictionary> SettingsFiles::loadDictionary(SettingsFile name) const {
  return load<PropertyList::Dictionary>(file(name));
}

std::optional<PropertyList::Array> SettingsFiles::loadArray(SettingsFile name) const {
  return load<PropertyList::Array>(file(name));
}

Status SettingsFiles::save(SettingsFile name, const PropertyList& value) {
  return file(name).write(value);
}

const PropertyListFile& SettingsFiles::file(SettingsFile name) const {
  return mFiles[static_cast<std::size_t>(name)];
}

PropertyListFile& SettingsFiles::file(SettingsFile name) {
  return mFiles[static_cast<std::size_t>(name)];
}

}  // namespace wayloom
