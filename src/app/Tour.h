#pragma once

#include "app/WindowDriver.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// Walks through the real screens with clicks and keys as a person would, saves a picture of each
/// step and prints the files that were written. Main thread only.
class Tour {
 public:
  /// `window` and `files` must outlive the tour; `directory` is made when it is missing.
  Tour(QQuickView& window, SettingsFiles& files, const QString& directory);

  /// Walks to the end; false, with a line on standard error, when a step did not come about.
  [[nodiscard]] bool run();

 private:
  bool start();
  bool pinPlace();
  bool saveFavorite();
  bool seeFavorites();
  bool seeMenu();
  bool seeInformation();
  bool changeToRoute();
  bool planDrive();
  bool choosePlace(const char* label, const QString& address, const char* picture);
  bool chooseTimes();
  bool drive();
  void printFile(SettingsFile name) const;

  WindowDriver mWindow;
  SettingsFiles& mFiles;
  QString mDirectory;
};

}  // namespace wayloom
