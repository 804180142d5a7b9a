#include "app/AppServices.h"

#include <algorithm>

#include <QtGui/QGuiApplication>

#include "map/MapnikTileSource.h"
#include "platform/ConfiguredPosition.h"
#include "platform/PreferredLanguages.h"
#include "platform/QtIconRasterizer.h"
#include "platform/QtPositionSource.h"
#include "regions/RegionDirectories.h"
#include "settings/SettingsRoot.h"

namespace wayloom {

namespace {

/// Where a device without a position service is said to be: the middle of the smallest region, the
/// one a person installed to look at closely; none without any.
std::optional<Coordinate> defaultPosition(const RegionStore& store) {
  const auto& regions = store.regions();
  const auto width = [](const Region& region) {
    return region.info.bounds.east - region.info.bounds.west;
  };
  const auto smallest =
      std::min_element(regions.begin(), regions.end(),
                       [&](const Region& a, const Region& b) { return width(a) < width(b); });
  if (smallest == regions.end()) return std::nullopt;
  const auto& bounds = smallest->info.bounds;
  return Coordinate{(bounds.south + bounds.north) / 2, (bounds.west + bounds.east) / 2};
}

}  // namespace

AppServices::AppServices(const Options& options)
    : files(settingsRoot(options.root), SettingsFiles::kPatience, options.fileSystem),
      notice(noticeCommand()),
      regions(regionDirectories(options.regions)),
      names(std::make_shared<RegionGeocoder>(regions, mainQueue)),
      geocoder(names, mainQueue, preferredLanguage()),
      recentSearches(options.recentSearches, options.fileSystem),
      offers(geocoder, *names, recentSearches, preferredLanguage()),
      directions(regions, mainQueue),
      location(locationPlatform(options.configuredPositionOnly)),
      tiles(std::make_shared<MapnikTileSource>(regions.regions())),
      homeScreen(systemHomeScreen(rasterizeIcon)),
      mTileLoader(TileLoader::of(tiles)) {
  mTileLoader->want(this, {{TileKey{0, 0, 0}, qGuiApp->devicePixelRatio()}});
}

AppServices::~AppServices() {
  mTileLoader->forget(this);
}

LocationPlatform AppServices::locationPlatform(bool configuredPositionOnly) {
  return {
      .locationServicesEnabled = [] { return true; },
      .makePositionSource = [this, configuredPositionOnly]() -> std::unique_ptr<PositionSource> {
        auto configured = std::make_unique<ConfiguredPosition>(mainQueue, defaultPosition(regions));
        if (configuredPositionOnly) return configured;
        return QtPositionSource::make(std::move(configured));
      },
      .makeUserLocationMap = {},
      .geocoder = geocoder,
      .defaults = defaults,
      .alerts = alerts,
  };
}

}  // namespace wayloom
