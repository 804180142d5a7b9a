#pragma once

#include <functional>

#include <QtCore/QString>

namespace wayloom {

class FavoritesDelegate;

/// What the screens ask of the application: another main screen, or a modal one over themselves.
class ScreenSwitcher {
 public:
  virtual ~ScreenSwitcher() = default;
  virtual void changeToLocation() = 0;
  virtual void changeToRouter() = 0;
  /// Presents the favourites; `delegate` is told when one was chosen.
  virtual void presentFavorites(FavoritesDelegate& delegate) = 0;
  virtual void presentInfo() = 0;
  /// Presents the address picker, which hands the pick to `block` (latitude and longitude in
  /// degrees, and the address); zeros mean that nothing was picked.
  virtual void presentSelectAddress(
      std::function<void(double latitude, double longitude, const QString& address)> block) = 0;
};

}  // namespace wayloom
