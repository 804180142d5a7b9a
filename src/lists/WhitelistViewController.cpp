#include "lists/WhitelistViewController.h"

namespace wayloom {

namespace {

Whitelist loaded(SettingsFiles& files) {
  Whitelist whitelist(files);
  whitelist.load();
  return whitelist;
}

}  // namespace

WhitelistViewController::WhitelistViewController(SettingsFiles& files, const HomeScreen& homeScreen,
                                                 QObject* parent)
    : ModalViewController(parent),
      mWhiteListPreferences(loaded(files)),
      mAppArray(mWhiteListPreferences, homeScreen) {}

void WhitelistViewController::didSelectRow(int row) {
  if (row >= 0 && row < mAppArray.rowCount()) mAppArray.toggle(row);
}

}  // namespace wayloom
