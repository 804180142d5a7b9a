#pragma once

#include <deque>
#include <functional>

#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QTimer>

#include "map/MapMotion.h"

class QKeyEvent;
class QTouchEvent;
class QWheelEvent;

namespace wayloom {

/// Turns what fingers, mouse, wheel and keys do into moves of a map. A mouse is one finger. Owned
/// by MapView, which passes its events on; main thread.
class MapGestures {
 public:
  /// `held` is told where a finger or a mouse button rested for long; nothing else comes of that
  /// touch.
  MapGestures(MapMotion& motion, std::function<void()> tapped, std::function<void(QPointF)> held);

  /// Where the fingers are now; none when the last was lifted. Times are in milliseconds.
  void setFingers(const QList<QPointF>& fingers, quint64 timeMs);
  /// The fingers were taken away by someone else.
  void cancel();
  /// Zooms about the middle of the view from now on, or about where the user points.
  void setZoomsAboutCenter(bool does) { mZoomsAboutCenter = does; }
  bool zoomsAboutCenter() const { return mZoomsAboutCenter; }
  bool isDragging() const { return mIsDragging; }
  bool hasFingers() const { return !mFingers.isEmpty(); }

  void touch(const QTouchEvent& event);
  void doubleClick(QPointF position);
  void wheel(const QWheelEvent& event);
  /// Both say whether the key means something to the map.
  bool pressKey(const QKeyEvent& event);
  bool releaseKey(const QKeyEvent& event);
  /// Keys can no longer be released here.
  void loseFocus();

 private:
  struct Sample {
    QPointF centroid;
    quint64 timeMs;
  };

  void putDown(const QList<QPointF>& fingers, quint64 timeMs);
  void follow(const QList<QPointF>& fingers, quint64 timeMs);
  void lift(quint64 timeMs);
  void tap(quint64 timeMs);
  void hold();
  QPointF velocityAt(quint64 timeMs) const;
  QPointF zoomPoint(QPointF pointedAt) const;

  MapMotion& mMotion;
  std::function<void()> mTapped;
  std::function<void(QPointF)> mHeld;
  QTimer mHoldTimer;
  QList<QPointF> mFingers;
  std::deque<Sample> mSamples;
  Sample mPress{};
  Sample mLastTap{};
  bool mIsDragging = false;
  bool mHadManyFingers = false;
  bool mIsTouch = false;
  /// The fingers that are down have been taken for a long touch.
  bool mIsSpent = false;
  bool mZoomsAboutCenter = false;
};

}  // namespace wayloom
