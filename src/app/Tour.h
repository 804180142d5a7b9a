#pragma once

#include <functional>

#include <QtCore/QString>
#include <QtQuick/QQuickView>

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
  using Condition = std::function<bool()>;

  bool pinPlace();
  bool saveFavorite();
  bool seeFavorites();

  QQuickItem* find(const char* objectName) const;
  bool click(const char* objectName);
  bool clickRow(int row);
  bool click(const QQuickItem* item, const char* name);
  void type(const QString& text);
  void press(Qt::Key key);
  bool waitUntil(const char* what, const Condition& condition);
  /// Waits until a screen, known by what fills it to the window's edges, has come in.
  bool waitForScreen(const char* objectName);
  bool waitForMap();
  bool savePicture(const char* name);
  void printFile(SettingsFile name) const;

  QQuickView& mWindow;
  SettingsFiles& mFiles;
  QString mDirectory;
  int mPictures = 0;
};

}  // namespace wayloom
