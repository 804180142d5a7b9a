#include "app/AppDelegate.h"

#include <cstdio>

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlEngine>

#include "lists/ApplicationIcons.h"
#include "lists/FavoritesViewController.h"
#include "platform/PreferredLanguage.h"
#include "ui/InfoViewController.h"

namespace wayloom {

namespace {
constexpr QSize kPhoneSize(375, 667);
constexpr QSize kSmallestSize(320, 480);
}  // namespace

AppDelegate::AppDelegate(AppServices& services)
    : mServices(services),
      mLocationController({.files = services.files,
                           .notice = services.notice,
                           .location = services.location,
                           .alerts = services.alerts,
                           .screens = *this,
                           .tiles = services.tiles}) {
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive) didBecomeActive();
          });
}

bool AppDelegate::didFinishLaunching() {
  mWindow.setTitle(QStringLiteral("Wayloom"));
  mWindow.setMinimumSize(kSmallestSize);
  mWindow.setResizeMode(QQuickView::SizeRootObjectToView);
  mWindow.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
  mWindow.engine()->addImageProvider(ApplicationIcons::providerName(),
                                     new ApplicationIcons(*mServices.homeScreen));
  mWindow.setInitialProperties(
      {{QStringLiteral("locationController"), QVariant::fromValue(&mLocationController)},
       {QStringLiteral("modals"), QVariant::fromValue(&mModals)},
       {QStringLiteral("alerts"), QVariant::fromValue(&mServices.alerts)}});
  mWindow.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Wayloom/Layouts/AppWindow.qml")));
  if (mWindow.status() != QQuickView::Ready) return false;
  for (const RefusedRegion& refused : mServices.regions.refused()) {
    std::fprintf(stderr, "wayloom: region %s is left out: %s\n", refused.path.c_str(),
                 refused.reason.c_str());
  }
  mWindow.resize(kPhoneSize);
  mWindow.show();
  return true;
}

void AppDelegate::didBecomeActive() {
  mLocationController.viewWillAppear();
}

void AppDelegate::changeToLocation() {}
void AppDelegate::changeToRouter() {}

void AppDelegate::presentFavorites(FavoritesDelegate& delegate) {
  mModals.present(QStringLiteral("FavoritesViewController"),
                  std::make_unique<FavoritesViewController>(mServices.files, delegate),
                  ModalPresenter::Transition::Flip);
}

void AppDelegate::presentInfo() {
  mModals.present(QStringLiteral("InfoViewController"),
                  std::make_unique<InfoViewController>(
                      InfoViewController::Services{.files = mServices.files,
                                                   .homeScreen = *mServices.homeScreen,
                                                   .addresses = mServices.addresses,
                                                   .modals = mModals,
                                                   .version = QGuiApplication::applicationVersion(),
                                                   .preferredLanguage = preferredLanguage(),
                                                   .maker = configuredMakerAddresses()}),
                  ModalPresenter::Transition::Flip);
}

}  // namespace wayloom
