#pragma once

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
};

}  // namespace wayloom
