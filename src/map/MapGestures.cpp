#include "map/MapGestures.h"

#include <algorithm>
#include <cmath>

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QStyleHints>
#include <QtGui/QTouchEvent>
#include <QtGui/QWheelEvent>

namespace wayloom {

namespace {

constexpr double kZoomPerWheelStep = 0.5;
constexpr double kZoomPerKey = 0.5;
constexpr double kPartOfViewPerKey = 0.2;
// Velocity is that of the last moments; who holds still before letting go does not flick.
constexpr quint64 kSampleTimeMs = 100;
constexpr quint64 kShortestSampleTimeMs = 10;
constexpr quint64 kHoldTimeMs = 60;
constexpr double kFastestPointsPerSecond = 5000;
constexpr quint64 kLongestTapMs = 500;

QPointF centroidOf(const QList<QPointF>& fingers) {
  QPointF sum;
  for (const QPointF& finger : fingers) sum += finger;
  return sum / static_cast<double>(std::max<qsizetype>(1, fingers.size()));
}

/// The mean distance of the fingers from their middle.
double spreadOf(const QList<QPointF>& fingers) {
  const QPointF middle = centroidOf(fingers);
  double sum = 0;
  for (const QPointF& finger : fingers)
    sum += std::hypot((finger - middle).x(), (finger - middle).y());
  return sum / static_cast<double>(std::max<qsizetype>(1, fingers.size()));
}

bool isNear(QPointF a, QPointF b, double distance) {
  return std::hypot((a - b).x(), (a - b).y()) < distance;
}

double dragDistance() {
  return QGuiApplication::styleHints()->startDragDistance();
}

}  // namespace

MapGestures::MapGestures(MapMotion& motion, std::function<void()> tapped,
                         std::function<void(QPointF)> held)
    : mMotion(motion), mTapped(std::move(tapped)), mHeld(std::move(held)) {
  mHoldTimer.setSingleShot(true);
  QObject::connect(&mHoldTimer, &QTimer::timeout, [this] { hold(); });
}

void MapGestures::setFingers(const QList<QPointF>& fingers, quint64 timeMs) {
  if (mIsSpent) {
    mIsSpent = !fingers.isEmpty();
  } else if (fingers.isEmpty()) {
    if (!mFingers.isEmpty()) lift(timeMs);
  } else if (fingers.size() != mFingers.size()) {
    putDown(fingers, timeMs);
  } else {
    follow(fingers, timeMs);
  }
}

void MapGestures::putDown(const QList<QPointF>& fingers, quint64 timeMs) {
  if (mFingers.isEmpty()) {
    mPress = {centroidOf(fingers), timeMs};
    mIsDragging = mHadManyFingers = false;
    mMotion.halt();
    mHoldTimer.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
  }
  if (fingers.size() > 1) mHoldTimer.stop();
  // Of a pinch that must not move the map, the last finger moves it only by a drag of its own.
  if (mZoomsAboutCenter && mHadManyFingers && fingers.size() == 1) {
    mPress = {centroidOf(fingers), timeMs};
    mIsDragging = false;
  }
  mHadManyFingers = mHadManyFingers || fingers.size() > 1;
  mFingers = fingers;
  mSamples.clear();
}

void MapGestures::follow(const QList<QPointF>& fingers, quint64 timeMs) {
  const QPointF before = centroidOf(mFingers), now = centroidOf(fingers);
  if (!mIsDragging && fingers.size() == 1 && isNear(now, mPress.centroid, dragDistance())) return;
  if (now == before && fingers == mFingers) return;
  mIsDragging = true;
  mHoldTimer.stop();
  const bool pans = !mZoomsAboutCenter || fingers.size() == 1;
  if (pans) mMotion.panBy(now - before);
  const double spreadBefore = spreadOf(mFingers), spread = spreadOf(fingers);
  if (spreadBefore > 1 && spread > 1) {
    mMotion.zoomAbout(zoomPoint(now), std::log2(spread / spreadBefore));
  }
  mFingers = fingers;
  if (!pans) return;
  mSamples.push_back({now, timeMs});
  while (mSamples.front().timeMs + kSampleTimeMs < timeMs) mSamples.pop_front();
}

void MapGestures::hold() {
  mIsSpent = true;
  mFingers.clear();
  mMotion.finishGesture();
  if (mHeld) mHeld(mPress.centroid);
}

void MapGestures::lift(quint64 timeMs) {
  mHoldTimer.stop();
  mFingers.clear();
  if (!mIsDragging) {
    if (!mHadManyFingers) tap(timeMs);
    return mMotion.finishGesture();
  }
  mIsDragging = false;
  mMotion.flick(velocityAt(timeMs));
}

QPointF MapGestures::velocityAt(quint64 timeMs) const {
  if (mSamples.empty() || mSamples.back().timeMs + kHoldTimeMs < timeMs) return {};
  const Sample& first = mSamples.front();
  const Sample& last = mSamples.back();
  if (last.timeMs < first.timeMs + kShortestSampleTimeMs) return {};
  const QPointF velocity =
      (last.centroid - first.centroid) * 1000.0 / static_cast<double>(last.timeMs - first.timeMs);
  const double speed = std::hypot(velocity.x(), velocity.y());
  return speed > kFastestPointsPerSecond ? velocity * (kFastestPointsPerSecond / speed) : velocity;
}

void MapGestures::tap(quint64 timeMs) {
  if (timeMs > mPress.timeMs + kLongestTapMs) return;
  const auto interval =
      static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
  // A mouse's second click arrives as a double click of its own.
  if (mIsTouch && mLastTap.timeMs > 0 && timeMs < mLastTap.timeMs + interval &&
      isNear(mPress.centroid, mLastTap.centroid, 4 * dragDistance())) {
    mLastTap = {};
    return mMotion.animateZoomAbout(zoomPoint(mPress.centroid), 1);
  }
  mLastTap = {mPress.centroid, timeMs};
  if (mTapped) mTapped();
}

QPointF MapGestures::zoomPoint(QPointF pointedAt) const {
  const QSizeF size = mMotion.camera().size();
  return mZoomsAboutCenter ? QPointF(size.width() / 2, size.height() / 2) : pointedAt;
}

void MapGestures::cancel() {
  mHoldTimer.stop();
  mIsSpent = false;
  mFingers.clear();
  mIsDragging = false;
  mMotion.finishGesture();
}

void MapGestures::touch(const QTouchEvent& event) {
  if (event.type() == QEvent::TouchCancel) return cancel();
  QList<QPointF> fingers;
  for (const QEventPoint& point : event.points()) {
    if (point.state() != QEventPoint::Released) fingers.append(point.position());
  }
  mIsTouch = true;
  setFingers(fingers, event.timestamp());
  mIsTouch = false;
}

void MapGestures::doubleClick(QPointF position) {
  mHoldTimer.stop();
  mFingers.clear();
  mIsDragging = false;
  mMotion.animateZoomAbout(zoomPoint(position), 1);
}

void MapGestures::wheel(const QWheelEvent& event) {
  const double steps = event.angleDelta().y() / double{QWheelEvent::DefaultDeltasPerStep};
  if (steps == 0) return;
  mMotion.zoomAbout(zoomPoint(event.position()), steps * kZoomPerWheelStep);
  mMotion.settleSoon();
}

bool MapGestures::pressKey(const QKeyEvent& event) {
  const QSizeF size = mMotion.camera().size();
  const double step = std::min(size.width(), size.height()) * kPartOfViewPerKey;
  const QPointF middle(size.width() / 2, size.height() / 2);
  switch (event.key()) {
    case Qt::Key_Left:
      mMotion.panBy({step, 0});
      return true;
    case Qt::Key_Right:
      mMotion.panBy({-step, 0});
      return true;
    case Qt::Key_Up:
      mMotion.panBy({0, step});
      return true;
    case Qt::Key_Down:
      mMotion.panBy({0, -step});
      return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      mMotion.zoomAbout(middle, kZoomPerKey);
      return true;
    case Qt::Key_Minus:
      mMotion.zoomAbout(middle, -kZoomPerKey);
      return true;
    default:
      return false;
  }
}

bool MapGestures::releaseKey(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Plus:
    case Qt::Key_Equal:
    case Qt::Key_Minus:
      // A held key repeats: its move lasts until it is let go.
      if (!event.isAutoRepeat()) mMotion.settleSoon();
      return true;
    default:
      return false;
  }
}

void MapGestures::loseFocus() {
  mMotion.settleSoon();
}

}  // namespace wayloom
