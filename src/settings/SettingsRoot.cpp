#include "settings/SettingsRoot.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace wayloom {
namespace {

namespace fs = std::filesystem;

fs::path homeFolder(const EnvironmentLookup& lookup) {
  const char* const home = lookup("HOME");
  if (home != nullptr && *home != '\0') {
    return home;
  }
  const passwd* const user = ::getpwuid(::getuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

const char* processLookup(const char* name) {
  return std::getenv(name);
}

}  // namespace

fs::path ownDataFolder(const EnvironmentLookup& lookup) {
  const char* const dataFolder = lookup("XDG_DATA_HOME");
  const bool isAbsolute = dataFolder != nullptr && *dataFolder == '/';
  return (isAbsolute ? fs::path(dataFolder) : homeFolder(lookup) / ".local/share") / "wayloom";
}

fs::path ownDataFolder() {
  return ownDataFolder(processLookup);
}

fs::path settingsRoot(const std::optional<fs::path>& fromArgument,
                      const EnvironmentLookup& lookup) {
  if (fromArgument && !fromArgument->empty()) {
    return *fromArgument;
  }
  const char* const root = lookup("WAYLOOM_ROOT");
  if (root != nullptr && *root != '\0') {
    return root;
  }
  return ownDataFolder(lookup) / "phone";
}

fs::path settingsRoot(const std::optional<fs::path>& fromArgument) {
  return settingsRoot(fromArgument, processLookup);
}

}  // namespace wayloom
