#pragma once

#include "kit/ModalViewController.h"
#include "lists/ApplicationsModel.h"
#include "lists/Whitelist.h"

namespace wayloom {

/// The whitelist screen: every installed application, each with a tick that a touch turns over. It
/// reads file and applications when it is made and writes the file after each touch. Made for each
/// presentation; main thread only.
class WhitelistViewController : public wayloom::ModalViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(wayloom::ApplicationsModel* appArray READ appArray CONSTANT)

 public:
  /// Both must outlive this object.
  WhitelistViewController(SettingsFiles& files, const HomeScreen& homeScreen,
                          QObject* parent = nullptr);

  Q_INVOKABLE void didSelectRow(int row);

  ApplicationsModel* appArray() { return &mAppArray; }

 private:
  Whitelist mWhiteListPreferences;
  ApplicationsModel mAppArray;
};

}  // namespace wayloom
