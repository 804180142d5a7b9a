#pragma once

#include "info/MakerAddresses.h"
#include "kit/ModalPresenter.h"
#include "kit/ModalViewController.h"
#include "platform/AddressOpener.h"
#include "platform/HomeScreen.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// The information screen: name and version, and the ways to the whitelist, the author and the
/// maker. Made for each presentation; main thread only.
class InfoViewController : public wayloom::ModalViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(QString title READ title CONSTANT)

 public:
  struct Services {
    SettingsFiles& files;
    const HomeScreen& homeScreen;
    AddressOpener& addresses;
    ModalPresenter& modals;
    /// The application's version; empty when it has none.
    QString version;
    /// The first of the languages that the user prefers.
    std::string preferredLanguage;
    MakerAddresses maker;
  };

  /// What the services refer to must outlive this object.
  explicit InfoViewController(Services services, QObject* parent = nullptr);

  Q_INVOKABLE void wihteList();
  Q_INVOKABLE void contactTheAuthor();
  Q_INVOKABLE void visitQuorvil();

  /// Only Simplified Chinese under exactly this name counts.
  bool isChinese() const { return mServices.preferredLanguage == "zh-Hans"; }
  QString title() const;

 private:
  Services mServices;
};

}  // namespace wayloom
