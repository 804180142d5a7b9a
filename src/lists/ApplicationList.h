#pragma once

#include <optional>
#include <string>
#include <vector>

#include "lists/ApplicationModel.h"
#include "platform/HomeScreen.h"
#include "settings/PropertyList.h"

namespace wayloom {

/// Asks the home screen for all its applications. Nothing is filtered, sorted or remembered. Any
/// thread may call the operations; they wait for the answer.
class ApplicationList {
 public:
  ApplicationList() = delete;

  /// The display identifiers of all applications; nothing when the home screen gives no list.
  static std::optional<std::vector<std::string>> installedAppBundle(const HomeScreen& homeScreen);
  /// The same for the running ones.
  static std::optional<std::vector<std::string>> currentRunningAppBundle(
      const HomeScreen& homeScreen);
  /// All applications with names and icons; nothing when the home screen gives no list.
  static std::optional<std::vector<ApplicationModel>> installedAppModel(
      const HomeScreen& homeScreen);
  /// The dictionary's keys.
  static std::vector<std::string> desktopAppsFromDictionary(
      const PropertyList::Dictionary& dictionary);
};

}  // namespace wayloom
