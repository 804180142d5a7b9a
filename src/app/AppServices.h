#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "kit/AlertPresenter.h"
#include "map/TileLoader.h"
#include "map/TileSource.h"
#include "places/LocationClass.h"
#include "places/PlaceTextGeocoder.h"
#include "places/SearchOffers.h"
#include "platform/Clock.h"
#include "platform/HomeScreen.h"
#include "platform/QtAddressOpener.h"
#include "platform/QtMainQueue.h"
#include "platform/SettingsDefaults.h"
#include "platform/SystemNotices.h"
#include "regions/RegionGeocoder.h"
#include "regions/RegionStore.h"
#include "roads/RegionDirections.h"
#include "settings/SettingsFiles.h"
#include "settings/WorkQueue.h"

namespace wayloom {

/// Everything the platform gives the application, made once at start from what the command line
/// says. Lives on the main thread, longer than any screen.
class AppServices {
 public:
  struct Options {
    std::optional<std::filesystem::path> root;
    std::optional<std::filesystem::path> regions;
    /// Ask nobody where the device is: the configured position answers.
    bool configuredPositionOnly = false;
    /// Where settings files are read and written.
    FileSystem& fileSystem = FileSystem::machine();
    /// Where what was searched for is kept; nowhere without it.
    std::optional<std::filesystem::path> recentSearches = {};
  };

  explicit AppServices(const Options& options);
  ~AppServices();
  AppServices(const AppServices&) = delete;
  AppServices& operator=(const AppServices&) = delete;

  SettingsFiles files;
  WorkQueue saves;
  SystemNotices notice;
  SystemClock clock;
  RegionStore regions;
  QtMainQueue mainQueue;
  /// Knows places by their names.
  const std::shared_ptr<RegionGeocoder> names;
  PlaceTextGeocoder geocoder;
  RecentSearches recentSearches;
  SearchOffers offers;
  RegionDirections directions;
  SettingsDefaults defaults;
  AlertPresenter alerts;
  LocationClass location;
  std::shared_ptr<TileSource> tiles;
  std::unique_ptr<HomeScreen> homeScreen;
  QtAddressOpener addresses;

 private:
  LocationPlatform locationPlatform(bool configuredPositionOnly);

  /// Draws the world's tile while the screens are still being loaded: the map then starts with its
  /// style and fonts read.
  std::shared_ptr<TileLoader> mTileLoader;
};

}  // namespace wayloom
