#pragma once

#include "kit/ModalViewController.h"
#include "lists/Whitelist.h"
#include "lists/WhitelistModel.h"

namespace wayloom {

/// The whitelist screen: every installed application, each with a tick that a touch turns over. It
/// reads file and applications when it is made and writes the file after each touch. Made for each
/// presentation; main thread only.
class WhitelistViewController : public wayloom::ModalViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(wayloom::WhitelistModel* appArray READ appArray CONSTANT)
  Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged)

 public:
  /// Both must outlive this object.
  WhitelistViewController(SettingsFiles& files, const HomeScreen& homeScreen,
                          QObject* parent = nullptr);

  void followFiles() override;

  Q_INVOKABLE void didSelectRow(int row);

  WhitelistModel* appArray() { return &mAppArray; }
  QString statusText() const { return mStatusText; }

 Q_SIGNALS:
  void statusTextChanged();

 private:
  void report(const Status& status);

  Whitelist mWhiteListPreferences;
  WhitelistModel mAppArray;
  QString mStatusText;
};

}  // namespace wayloom
