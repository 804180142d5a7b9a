#pragma once

#include <filesystem>
#include <functional>
#include <optional>

namespace wayloom {

/// Looks up a variable of the environment; null when it is not set.
using EnvironmentLookup = std::function<const char*(const char* name)>;

/// The application's own folder: wayloom in the user's data folder (XDG_DATA_HOME when absolute, or
/// ~/.local/share). What the application keeps for itself stands there.
std::filesystem::path ownDataFolder(const EnvironmentLookup& lookup);
/// The same with the process's own environment.
std::filesystem::path ownDataFolder();

/// The folder below which the settings files stand: the argument (--root), else WAYLOOM_ROOT, else
/// phone in the application's own folder. Empty values count as absent. The folder need not exist;
/// the first write creates it.
std::filesystem::path settingsRoot(const std::optional<std::filesystem::path>& fromArgument,
                                   const EnvironmentLookup& lookup);
/// The same with the process's own environment.
std::filesystem::path settingsRoot(const std::optional<std::filesystem::path>& fromArgument);

}  // namespace wayloom
