#pragma once

#include <QtCore/QRect>
#include <QtCore/QTimer>
#include <QtGui/QWindow>

namespace wayloom {

/// Remembers a window's size and place in the application's settings, from one start to the next.
/// Main thread; the window must outlive it.
class WindowPlace {
 public:
  /// Gives the window the size and place it had, if they are known and on a screen. Changes are
  /// remembered a moment after they were made, and at the end.
  explicit WindowPlace(QWindow& window);
  /// Remembers them.
  ~WindowPlace();
  WindowPlace(const WindowPlace&) = delete;
  WindowPlace& operator=(const WindowPlace&) = delete;

  /// What is left of a remembered place on today's screens: none when it cannot be seen there.
  static QRect usable(const QRect& remembered, QSize smallest, const QList<QRect>& screens);

 private:
  void store() const;

  QWindow& mWindow;
  QTimer mChanged;
};

}  // namespace wayloom
