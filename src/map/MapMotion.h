#pragma once

#include <chrono>
#include <functional>

#include <QtCore/QTimer>

#include "map/MapAnimation.h"
#include "map/MapCamera.h"

namespace wayloom {

enum class Animated { No, Yes };

/// Moves a map's camera and says when: every move, however caused, has one regionWillChange and
/// one regionDidChange. A move that starts while another runs ends that one first. Owned by
/// MapView; main thread.
class MapMotion : public QObject {
  Q_OBJECT

 public:
  using Completion = std::function<void()>;

  explicit MapMotion(QObject* parent = nullptr);

  const MapCamera& camera() const { return mCamera; }
  MapRegion regionThatFits(const MapRegion& region) const;
  /// Not a move.
  void resize(QSizeF size);

  // Commands. One that changes nothing is no move.
  void setRegion(const MapRegion& region, Animated animated);
  void setCenter(Coordinate center, Animated animated);
  /// `completion` runs once: when the move has ended or was ended by another, or at once if there
  /// was none; not if the map is destroyed before.
  void animateCenter(Coordinate center, std::chrono::milliseconds duration, Completion completion);

  // Gestures. Steps join into one move that ends with finish(), flick() or settleSoon().
  void panBy(QPointF distance);
  void zoomAbout(QPointF viewPoint, double zoomChange);
  void finishGesture();
  /// Lets the map run on after a drag; `velocity` is in points per second.
  void flick(QPointF velocity);
  /// Ends the gesture's move unless another step follows soon.
  void settleSoon();
  void animateZoomAbout(QPointF viewPoint, double zoomChange);
  /// Stops what moves by itself, as a finger put on the map does.
  void halt();

 Q_SIGNALS:
  void cameraChanged();
  void regionWillChange(bool animated);
  void regionDidChange(bool animated);

 private:
  enum class Move { None, Gesture, Animation };
  using Change = std::function<void(MapCamera&)>;

  void command(const Change& change, std::chrono::milliseconds duration, Completion completion);
  void gestureStep(const Change& change);
  bool begin(Move move, Animated animated);
  void end();
  void finish();
  void show(const MapCamera& camera);

  MapCamera mCamera;
  MapAnimation mAnimation;
  QTimer mSettleTimer;
  Move mMove = Move::None;
  Animated mAnimated = Animated::No;
  Completion mCompletion;
  unsigned mSerial = 0;
};

}  // namespace wayloom
