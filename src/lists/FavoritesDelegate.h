#pragma once

namespace wayloom {

/// Told by the favourites screen what happened there. Main thread only.
class FavoritesDelegate {
 public:
  /// A favourite was chosen; the location settings file already says so.
  virtual void favoritesDidSelected() {}

 protected:
  ~FavoritesDelegate() = default;
};

}  // namespace wayloom
