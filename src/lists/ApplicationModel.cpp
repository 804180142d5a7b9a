#include "lists/ApplicationModel.h"

#include <utility>

namespace wayloom {

std::string ApplicationModel::appNameWithBundle(const HomeScreen& homeScreen,
                                                const std::string& bundle) {
  return homeScreen.localizedName(bundle).value_or(std::string());
}

std::optional<ApplicationIcon> ApplicationModel::appIconWithBundle(const HomeScreen& homeScreen,
                                                                   const std::string& bundle,
                                                                   float scale) {
  auto png = homeScreen.iconPng(bundle);
  if (!png) return std::nullopt;
  return ApplicationIcon{std::move(*png), scale};
}

ApplicationModel ApplicationModel::modelWithBundle(const HomeScreen& homeScreen,
                                                   const std::string& bundle) {
  ApplicationModel model;
  model.appBundle = bundle;
  model.appIcon = appIconWithBundle(homeScreen, bundle);
  model.appIconBig = appIconWithBundle(homeScreen, bundle);
  model.appName = appNameWithBundle(homeScreen, bundle);
  return model;
}

std::vector<ApplicationModel> ApplicationModel::appModelListWithAppList(
    const HomeScreen& homeScreen, const std::vector<std::string>& bundles) {
  std::vector<ApplicationModel> models;
  models.reserve(bundles.size());
  for (const std::string& bundle : bundles) {
    models.push_back(modelWithBundle(homeScreen, bundle));
  }
  return models;
}

}  // namespace wayloom
