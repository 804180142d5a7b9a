#pragma once

#include <QtCore/QObject>
#include <QtQuick/QQuickView>

#include "app/AppServices.h"
#include "app/ScreenSwitcher.h"
#include "fixed/SpotloomViewController.h"
#include "kit/ModalPresenter.h"

namespace wayloom {

/// Makes the window and its screens and refreshes the current one whenever the application comes to
/// the front. Lives on the main thread, as long as the application.
class AppDelegate : public QObject, public ScreenSwitcher {
  Q_OBJECT

 public:
  explicit AppDelegate(AppServices& services);

  /// Loads the layouts and shows the window; false when they cannot be loaded.
  [[nodiscard]] bool didFinishLaunching();
  void didBecomeActive();

  void changeToLocation() override;
  void changeToRouter() override;
  void presentFavorites(FavoritesDelegate& delegate) override;
  void presentInfo() override;

  QQuickView& window() { return mWindow; }

 private:
  AppServices& mServices;
  SpotloomViewController mLocationController;
  ModalPresenter mModals;
  QQuickView mWindow;
};

}  // namespace wayloom
