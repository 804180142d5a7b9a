#pragma once

#include <chrono>
#include <functional>

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

namespace wayloom {

/// Uses a window as a person would: clicks, types, waits for what must come about, and takes
/// pictures. What cannot be done is false, with a line on standard error. Main thread only.
class WindowDriver {
 public:
  /// `window` must outlive the driver; pictures go to `directory`, which exists.
  WindowDriver(QQuickView& window, QString directory);

  /// The uppermost item of this name; null when there is none.
  QQuickItem* find(const char* objectName) const;
  bool isShown(const char* objectName) const;
  /// A property of the uppermost item of this name; invalid when there is no such item.
  QVariant property(const char* objectName, const char* name) const;

  bool click(const char* objectName);
  /// Clicks a row of the uppermost list.
  bool clickRow(int row);
  void type(const QString& text);
  void press(Qt::Key key);

  bool waitUntil(const char* what, const std::function<bool()>& condition);
  /// Waits until a screen, known by what fills it to the window's edges, has come in.
  bool waitForScreen(const char* objectName);
  /// Waits until a map stands still and complete.
  bool waitForMap(const char* objectName);

  /// Saves the window's picture under the next number.
  bool savePicture(const char* name);

 private:
  bool click(const QQuickItem* item, const char* name);

  QQuickView& mWindow;
  QString mDirectory;
  int mPictures = 0;
};

}  // namespace wayloom
