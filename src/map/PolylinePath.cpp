#include "map/PolylinePath.h"

#include <algorithm>
#include <cmath>

namespace wayloom {

namespace {

constexpr double kFinestStepPoints = 0.75;
constexpr double kCoarsestStepPoints = 48;
constexpr qsizetype kMostPoints = 8000;

/// Collects what of a line lies in or near a rectangle.
class Clipper {
 public:
  Clipper(const QRectF& bounds, double stepPoints) : mBounds(bounds), mStep(stepPoints) {}

  void add(QPointF point, bool isLast) {
    if (mHasPoint && !isLast && std::abs(point.x() - mPrevious.x()) < mStep &&
        std::abs(point.y() - mPrevious.y()) < mStep) {
      return;
    }
    if (mHasPoint && mayTouch(mPrevious, point)) {
      if (mCurrent.isEmpty()) append(mPrevious);
      append(point);
    } else {
      flush();
    }
    mPrevious = point;
    mHasPoint = true;
  }

  void flush() {
    if (!mCurrent.isEmpty()) mParts.push_back(std::exchange(mCurrent, {}));
  }
  void restart() {
    flush();
    mHasPoint = false;
  }
  qsizetype count() const { return mCount; }
  std::vector<QPolygonF> takeParts() { return std::move(mParts); }

 private:
  bool mayTouch(QPointF a, QPointF b) const {
    return std::max(a.x(), b.x()) >= mBounds.left() && std::min(a.x(), b.x()) <= mBounds.right() &&
           std::max(a.y(), b.y()) >= mBounds.top() && std::min(a.y(), b.y()) <= mBounds.bottom();
  }
  void append(QPointF point) {
    mCurrent.append(point);
    ++mCount;
  }

  QRectF mBounds;
  double mStep;
  QPointF mPrevious;
  bool mHasPoint = false;
  QPolygonF mCurrent;
  std::vector<QPolygonF> mParts;
  qsizetype mCount = 0;
};

}  // namespace

PolylinePath::PolylinePath(const std::vector<Coordinate>& coordinates) {
  mPoints.reserve(coordinates.size());
  for (const Coordinate& coordinate : coordinates) {
    if (!isSensible(coordinate)) continue;
    WorldPoint point = worldPoint({coordinate.latitude, wrapLongitude(coordinate.longitude)});
    if (!mPoints.empty()) point.x += std::round(mPoints.back().x - point.x);
    mPoints.push_back(point);
  }
  const auto [west, east] =
      std::minmax_element(mPoints.begin(), mPoints.end(),
                          [](const WorldPoint& a, const WorldPoint& b) { return a.x < b.x; });
  if (mPoints.empty()) return;
  mWest = west->x;
  mEast = east->x;
}

std::vector<QPolygonF> PolylinePath::inView(const MapCamera& camera, double marginPoints) const {
  if (mPoints.size() < 2 || !camera.hasSize()) return {};
  const double scale = camera.worldSize();
  const QRectF bounds = QRectF(QPointF(0, 0), camera.size())
                            .adjusted(-marginPoints, -marginPoints, marginPoints, marginPoints);
  const double left = camera.worldPointAt(bounds.topLeft()).x;
  const double right = camera.worldPointAt(bounds.bottomRight()).x;
  for (double step = kFinestStepPoints;; step *= 2) {
    Clipper clipper(bounds, step);
    // The world repeats itself to the east and west, and the line with it.
    for (double shift = std::ceil(left - mEast); shift <= right - mWest; ++shift) {
      const double originX = (camera.center().x - shift) * scale - camera.size().width() / 2;
      const double originY = camera.center().y * scale - camera.size().height() / 2;
      for (const WorldPoint& point : mPoints) {
        clipper.add({point.x * scale - originX, point.y * scale - originY},
                    &point == &mPoints.back());
        if (clipper.count() > kMostPoints && step < kCoarsestStepPoints) break;
      }
      clipper.restart();
    }
    if (clipper.count() <= kMostPoints || step >= kCoarsestStepPoints) return clipper.takeParts();
  }
}

}  // namespace wayloom
