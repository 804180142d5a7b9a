#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/HomeScreen.h"

namespace wayloom {

/// A picture as its PNG bytes, and how many of its pixels make a point.
struct ApplicationIcon {
  std::string png;
  float scale = 1;
};

/// One installed application, as the home screen describes it. A plain value; the operations ask
/// the home screen each time and wait for its answer, so that any thread may call them.
struct ApplicationModel {
  std::string appName;
  std::optional<ApplicationIcon> appIcon;
  /// The same icon, asked for once more.
  std::optional<ApplicationIcon> appIconBig;
  /// The display identifier.
  std::string appBundle;

  /// Empty when the home screen knows no name.
  static std::string appNameWithBundle(const HomeScreen& homeScreen, const std::string& bundle);
  static std::optional<ApplicationIcon> appIconWithBundle(const HomeScreen& homeScreen,
                                                          const std::string& bundle,
                                                          float scale = 1);
  static ApplicationModel modelWithBundle(const HomeScreen& homeScreen, const std::string& bundle);
  /// One model for each identifier, in the same order.
  static std::vector<ApplicationModel> appModelListWithAppList(
      const HomeScreen& homeScreen, const std::vector<std::string>& bundles);
};

}  // namespace wayloom
