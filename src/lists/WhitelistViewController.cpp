#include "lists/WhitelistViewController.h"

#include "kit/FailureText.h"

namespace wayloom {

WhitelistViewController::WhitelistViewController(SettingsFiles& files, const HomeScreen& homeScreen,
                                                 QObject* parent)
    : ModalViewController(parent),
      mWhiteListPreferences(files),
      mAppArray(mWhiteListPreferences, homeScreen) {
  report(mWhiteListPreferences.load());
}

void WhitelistViewController::followFiles() {
  if (mWhiteListPreferences.isCurrent()) return;
  report(mWhiteListPreferences.load());
  mAppArray.update();
}

void WhitelistViewController::didSelectRow(int row) {
  if (row >= 0 && row < mAppArray.rowCount()) report(mAppArray.toggle(row));
}

void WhitelistViewController::report(const Status& status) {
  mStatusText = failureText(status);
  Q_EMIT statusTextChanged();
}

}  // namespace wayloom
