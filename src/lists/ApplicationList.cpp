#include "lists/ApplicationList.h"

namespace wayloom {

std::optional<std::vector<std::string>> ApplicationList::installedAppBundle(
    const HomeScreen& homeScreen) {
  return homeScreen.identifiers({.onlyActive = false, .debuggable = false});
}

std::optional<std::vector<std::string>> ApplicationList::currentRunningAppBundle(
    const HomeScreen& homeScreen) {
  return homeScreen.identifiers({.onlyActive = true, .debuggable = false});
}

std::optional<std::vector<ApplicationModel>> ApplicationList::installedAppModel(
    const HomeScreen& homeScreen) {
  const auto bundles = installedAppBundle(homeScreen);
  if (!bundles) return std::nullopt;
  return ApplicationModel::appModelListWithAppList(homeScreen, *bundles);
}

std::vector<std::string> ApplicationList::desktopAppsFromDictionary(
    const PropertyList::Dictionary& dictionary) {
  std::vector<std::string> bundles;
  bundles.reserve(dictionary.size());
  for (const auto& [bundle, value] : dictionary) bundles.push_back(bundle);
  return bundles;
}

}  // namespace wayloom
