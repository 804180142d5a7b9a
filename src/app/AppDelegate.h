#pragma once

#include <QtCore/QObject>
#include <QtQuick/QQuickView>

#include "app/AppServices.h"
#include "app/SettingsWatch.h"
#include "fixed/SpotloomViewController.h"
#include "kit/ModalPresenter.h"
#include "kit/ScreenSwitcher.h"
#include "route/WayloomViewController.h"

namespace wayloom {

/// Makes the window and its screens and refreshes the current one whenever the application comes to
/// the front. Lives on the main thread, as long as the application.
class AppDelegate : public QObject, public ScreenSwitcher {
  Q_OBJECT

 public:
  explicit AppDelegate(AppServices& services);

  /// Loads the layouts and shows the window; false, with a line on standard error, when they cannot
  /// be loaded.
  [[nodiscard]] bool didFinishLaunching();
  void didBecomeActive();
  /// Brings what is shown in line with the settings files, whoever changed them.
  void followFiles();
  void comeToTheFront();

  void changeToLocation() override;
  void changeToRouter() override;
  void presentFavorites(FavoritesDelegate& delegate) override;
  void presentInfo() override;
  void presentSelectAddress(
      std::function<void(double latitude, double longitude, const QString& address)> block)
      override;

  QQuickView& window() { return mWindow; }

 private:
  /// What the file says; while it cannot be read, what is shown.
  Mode currentMode() const;
  void show(Mode mode);
  /// The screen of this mode is about to be seen.
  void viewWillAppear(Mode mode);

  AppServices& mServices;
  SpotloomViewController locationController;
  WayloomViewController wayloomController;
  ModalPresenter mModals;
  SettingsWatch mWatch;
  Mode mShown = Mode::Route;
  QQuickView mWindow;
};

}  // namespace wayloom
