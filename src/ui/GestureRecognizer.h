#pragma once

#include <functional>

#include <QtCore/QPointF>
#include <QtQuick/QQuickItem>

class QEventPoint;
class QPointerEvent;

namespace wayloom {

/// Watches the mouse, or one finger, on an item and says when its gesture is recognised. The item
/// still gets its events. Owned by the item; deleting the recogniser ends the watch. Main thread.
class GestureRecognizer : public QObject {
  Q_OBJECT

 public:
  /// Tap and swipe are Ended when recognised. A pan has Began, Changed with every further move, and
  /// Ended, or Cancelled if someone else takes the finger.
  enum class State { Possible, Began, Changed, Ended, Cancelled };

  explicit GestureRecognizer(QQuickItem& item);

  State state() const { return mState; }
  /// Where the finger is, in the scene.
  QPointF location() const { return mLocation; }
  /// How far it is from where it was put down.
  QPointF translation() const { return mLocation - mStart; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void recognized(const wayloom::GestureRecognizer& recognizer);

 protected:
  virtual void moved(quint64 heldMs) = 0;
  virtual void lifted() = 0;
  virtual void cancelled() {}
  void enter(State state);
  bool isFarFromStart() const;

 private:
  bool begin(QPointerEvent& event);
  void move(const QPointerEvent& event);
  void lift(const QPointerEvent& event);
  void cancel();
  void forget();
  void watchGrab(const QPointerEvent& event);

  QQuickItem& mItem;
  State mState = State::Possible;
  QPointF mStart;
  QPointF mLocation;
  quint64 mStartMs = 0;
  bool mIsDown = false;
  bool mIsOffering = false;
  QMetaObject::Connection mGrabWatch;
};

/// What is called when a gesture is recognised, as long as its target exists.
using GestureAction = std::function<void(const GestureRecognizer&)>;

/// These add a recogniser to the item and return it. A swipe is one to the right.
GestureRecognizer* addTapGestureWithTarget(QQuickItem& item, QObject& target, GestureAction action);
GestureRecognizer* addPanGestureWithTarget(QQuickItem& item, QObject& target, GestureAction action);
GestureRecognizer* addSwipeGestureWithTarget(QQuickItem& item, QObject& target,
                                             GestureAction action);

}  // namespace wayloom
