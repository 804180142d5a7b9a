#include "map/MapMotion.h"

#include <cmath>
#include <utility>

namespace wayloom {

namespace {
using namespace std::chrono_literals;
constexpr auto kRegionDuration = 350ms;
constexpr auto kZoomStepDuration = 250ms;
constexpr auto kSettleTime = 200ms;
}  // namespace

MapMotion::MapMotion(QObject* parent) : QObject(parent) {
  mSettleTimer.setSingleShot(true);
  mSettleTimer.setInterval(kSettleTime);
  connect(&mSettleTimer, &QTimer::timeout, this, &MapMotion::end);
  connect(&mAnimation, &MapAnimation::moved, this, [this](MapCamera camera) {
    camera.setSize(mCamera.size());  // The view may have been resized on the way.
    show(camera);
  });
  connect(&mAnimation, &MapAnimation::finished, this, &MapMotion::end);
}

MapRegion MapMotion::regionThatFits(const MapRegion& region) const {
  if (!isSensible(region)) return region;
  MapCamera camera = mCamera;
  camera.fit(region);
  return camera.region();
}

void MapMotion::resize(QSizeF size) {
  MapCamera camera = mCamera;
  camera.setSize(size);
  show(camera);
}

void MapMotion::setRegion(const MapRegion& region, Animated animated) {
  if (!isSensible(region)) return;
  command([&](MapCamera& camera) { camera.fit(region); },
          animated == Animated::Yes ? kRegionDuration : 0ms, nullptr);
}

void MapMotion::setCenter(Coordinate center, Animated animated) {
  if (!isSensible(center)) return;
  command([&](MapCamera& camera) { camera.setCenter(center); },
          animated == Animated::Yes ? kRegionDuration : 0ms, nullptr);
}

void MapMotion::animateCenter(Coordinate center, std::chrono::milliseconds duration,
                              Completion completion) {
  command([&](MapCamera& camera) { camera.setCenter(center); }, duration, std::move(completion));
}

void MapMotion::command(const Change& change, std::chrono::milliseconds duration,
                        Completion completion) {
  finish();
  MapCamera target = mCamera;
  change(target);
  const Animated animated = duration > 0ms ? Animated::Yes : Animated::No;
  if (target.isSameAs(mCamera) || !begin(Move::Animation, animated)) {
    if (completion) completion();
    return;
  }
  mCompletion = std::move(completion);
  if (animated == Animated::Yes && mCamera.hasSize()) {
    mAnimation.run(mCamera, target, duration, MapAnimation::Pace::Smooth);
  } else {
    show(target);
    end();
  }
}

void MapMotion::panBy(QPointF distance) {
  gestureStep([&](MapCamera& camera) { camera.panBy(distance); });
}

void MapMotion::zoomAbout(QPointF viewPoint, double zoomChange) {
  gestureStep([&](MapCamera& camera) { camera.zoomAbout(viewPoint, zoomChange); });
}

void MapMotion::gestureStep(const Change& change) {
  if (!mCamera.hasSize()) return;
  mSettleTimer.stop();
  if (mMove != Move::Gesture && !begin(Move::Gesture, Animated::No)) return;
  MapCamera camera = mCamera;
  change(camera);
  show(camera);
}

void MapMotion::finishGesture() {
  if (mMove == Move::Gesture) end();
}

void MapMotion::flick(QPointF velocity) {
  if (mMove != Move::Gesture) return;
  const double speed = std::hypot(velocity.x(), velocity.y());
  const double distance = MapAnimation::flickDistance(speed);
  if (!(distance > 0)) return end();
  MapCamera target = mCamera;
  target.panBy(velocity * (distance / speed));
  mMove = Move::Animation;
  mAnimation.run(mCamera, target, MapAnimation::flickDuration(speed), MapAnimation::Pace::Slowing);
}

void MapMotion::settleSoon() {
  if (mMove == Move::Gesture) mSettleTimer.start();
}

void MapMotion::animateZoomAbout(QPointF viewPoint, double zoomChange) {
  if (!mCamera.hasSize()) return;
  command([&](MapCamera& camera) { camera.zoomAbout(viewPoint, zoomChange); }, kZoomStepDuration,
          nullptr);
}

void MapMotion::halt() {
  if (mMove == Move::Animation) finish();
}

bool MapMotion::begin(Move move, Animated animated) {
  finish();
  mMove = move;
  mAnimated = animated;
  const unsigned serial = ++mSerial;
  Q_EMIT regionWillChange(animated == Animated::Yes);
  // A receiver may have commanded a move of its own, which then is the newer one.
  return serial == mSerial;
}

void MapMotion::end() {
  if (mMove == Move::None) return;
  mMove = Move::None;
  ++mSerial;
  mSettleTimer.stop();
  mAnimation.stop();
  const Completion completion = std::exchange(mCompletion, nullptr);
  Q_EMIT regionDidChange(mAnimated == Animated::Yes);
  if (completion) completion();
}

void MapMotion::finish() {
  // A completion may start the next move, which the caller's wish ends as well.
  while (mMove != Move::None) end();
}

void MapMotion::show(const MapCamera& camera) {
  const bool same = camera.isSameAs(mCamera);
  mCamera = camera;
  if (!same) Q_EMIT cameraChanged();
}

}  // namespace wayloom
