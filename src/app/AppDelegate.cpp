#include "app/AppDelegate.h"

#include <cstdio>

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlEngine>

#include "info/InfoViewController.h"
#include "lists/ApplicationIcons.h"
#include "lists/FavoritesViewController.h"
#include "places/SelectAddressViewController.h"
#include "platform/PreferredLanguages.h"

namespace wayloom {

namespace {
constexpr QSize kPhoneSize(375, 667);
constexpr QSize kSmallestSize(320, 480);
}  // namespace

AppDelegate::AppDelegate(AppServices& services)
    : mServices(services),
      locationController({.files = services.files,
                          .notice = services.notice,
                          .location = services.location,
                          .alerts = services.alerts,
                          .screens = *this,
                          .tiles = services.tiles,
                          .drive = [this] { return wayloomController.statusOfDrive(); },
                          .offers = &services.offers}),
      wayloomController({.files = services.files,
                         .clock = services.clock,
                         .background = {services.saves, services.mainQueue},
                         .directions = services.directions,
                         .location = services.location,
                         .alerts = services.alerts,
                         .screens = *this,
                         .tiles = services.tiles}),
      mWatch(services.files.path(SettingsFile::Master).parent_path()) {
  mWindow.setTitle(QStringLiteral("Wayloom"));
  mWindow.setMinimumSize(kSmallestSize);
  mWindow.resize(kPhoneSize);
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive) didBecomeActive();
          });
  connect(&mModals, &ModalPresenter::countChanged, this, [this] {
    if (mModals.count() > 0) return;
    viewWillAppear(mShown);
    followFiles();
  });
  connect(&mWatch, &SettingsWatch::changed, this, &AppDelegate::followFiles);
}

bool AppDelegate::didFinishLaunching() {
  mShown = currentMode();
  mWindow.setResizeMode(QQuickView::SizeRootObjectToView);
  mWindow.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
  mWindow.engine()->addImageProvider(ApplicationIcons::providerName(),
                                     new ApplicationIcons(*mServices.homeScreen));
  mWindow.setInitialProperties(
      {{QStringLiteral("locationShown"), mShown == Mode::FixedLocation},
       {QStringLiteral("locationController"), QVariant::fromValue(&locationController)},
       {QStringLiteral("wayloomController"), QVariant::fromValue(&wayloomController)},
       {QStringLiteral("modals"), QVariant::fromValue(&mModals)},
       {QStringLiteral("alerts"), QVariant::fromValue(&mServices.alerts)}});
  mWindow.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Wayloom/Layouts/AppWindow.qml")));
  if (mWindow.status() != QQuickView::Ready) {
    std::fprintf(stderr, "wayloom: the screens cannot be loaded; is the installation complete?\n");
    return false;
  }
  viewWillAppear(mShown);
  for (const RefusedRegion& refused : mServices.regions.refused()) {
    std::fprintf(stderr, "wayloom: region %s is left out: %s\n", refused.path.c_str(),
                 refused.reason.c_str());
  }
  mWindow.show();
  return true;
}

Mode AppDelegate::currentMode() const {
  const auto mode = mServices.files.readMasterMode();
  return mode ? *mode : mShown;
}

void AppDelegate::comeToTheFront() {
  if (mWindow.windowStates() & Qt::WindowMinimized) mWindow.showNormal();
  mWindow.raise();
  mWindow.requestActivate();
}

void AppDelegate::didBecomeActive() {
  // The file decides, not the screen that is shown. The two agree, since every switch of screens
  // writes the file first, unless another program has switched the mode meanwhile.
  const Mode mode = currentMode();
  if (mode != mShown && mModals.count() == 0) {
    show(mode);
  } else {
    viewWillAppear(mode);
  }
}

void AppDelegate::followFiles() {
  mModals.followFiles();
  if (mModals.count() > 0) return;
  if (const Mode mode = currentMode(); mode != mShown) show(mode);
  if (mShown == Mode::FixedLocation) {
    locationController.followFiles();
  } else {
    wayloomController.followFiles();
  }
}

void AppDelegate::changeToLocation() {
  show(Mode::FixedLocation);
}

void AppDelegate::changeToRouter() {
  show(Mode::Route);
}

void AppDelegate::show(Mode mode) {
  mShown = mode;
  mWindow.rootObject()->setProperty("locationShown", mode == Mode::FixedLocation);
  viewWillAppear(mode);
}

void AppDelegate::viewWillAppear(Mode mode) {
  // A screen that was never shown has not been loaded, and will read its file when it is.
  if (mode == Mode::FixedLocation) {
    if (locationController.isViewLoaded()) locationController.viewWillAppear();
  } else {
    if (wayloomController.isViewLoaded()) wayloomController.viewWillAppear();
  }
}

void AppDelegate::presentFavorites(FavoritesDelegate& delegate) {
  mModals.present(std::make_unique<FavoritesViewController>(mServices.files, delegate),
                  ModalPresenter::Transition::Flip);
}

void AppDelegate::presentInfo() {
  mModals.present(std::make_unique<InfoViewController>(
                      InfoViewController::Services{.files = mServices.files,
                                                   .homeScreen = *mServices.homeScreen,
                                                   .addresses = mServices.addresses,
                                                   .modals = mModals,
                                                   .version = QGuiApplication::applicationVersion(),
                                                   .preferredLanguage = preferredLanguage(),
                                                   .maker = configuredMakerAddresses()}),
                  ModalPresenter::Transition::Flip);
}

void AppDelegate::presentSelectAddress(
    std::function<void(double latitude, double longitude, const QString& address)> block) {
  mModals.present(std::make_unique<SelectAddressViewController>(
                      SelectAddressViewController::Services{.location = mServices.location,
                                                            .alerts = mServices.alerts,
                                                            .tiles = mServices.tiles,
                                                            .offers = &mServices.offers},
                      std::move(block)),
                  ModalPresenter::Transition::Slide);
}

}  // namespace wayloom
