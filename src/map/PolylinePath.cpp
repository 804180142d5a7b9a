#include "map/PolylinePath.h"

#include <algorithm>
#include <cmath>

namespace wayloom {

namespace {

constexpr double kFinestTolerancePoints = 0.3;
constexpr double kCoarsestTolerancePoints = 40;
constexpr qsizetype kMostPoints = 4000;

/// Collects what of a line lies in or near a rectangle, leaving out points that are no further than
/// a tolerance from the line without them.
class Clipper {
 public:
  Clipper(const QRectF& bounds, double tolerance) : mBounds(bounds), mTolerance(tolerance) {}

  void add(QPointF point) {
    if (mHasPrevious && mayTouch(mPrevious, point)) {
      if (mPart.isEmpty()) start(mPrevious);
      extend(point);
    } else {
      finishPart();
    }
    mPrevious = point;
    mHasPrevious = true;
  }

  void finishLine() {
    finishPart();
    mHasPrevious = false;
  }
  qsizetype count() const { return mCount; }
  std::vector<QPolygonF> takeParts() { return std::move(mParts); }

 private:
  bool mayTouch(QPointF a, QPointF b) const {
    return std::max(a.x(), b.x()) >= mBounds.left() && std::min(a.x(), b.x()) <= mBounds.right() &&
           std::max(a.y(), b.y()) >= mBounds.top() && std::min(a.y(), b.y()) <= mBounds.bottom();
  }

  void append(QPointF point) {
    mPart.append(point);
    ++mCount;
  }

  void start(QPointF point) {
    append(point);
    mHasSector = mHasPending = false;
  }

  void extend(QPointF point) {
    if (!mHasSector || !staysInSector(point)) {
      if (mHasSector) append(mPending);
      openSector(point);
    }
    mPending = point;
    mHasPending = true;
  }

  void finishPart() {
    if (mPart.isEmpty()) return;
    if (mHasPending) append(mPending);
    if (mPart.size() > 1) mParts.push_back(mPart);
    mPart.clear();
  }

  // The sector holds the directions from the last point kept in which a straight line passes all
  // points since closely enough.
  void openSector(QPointF point) {
    const QPointF way = point - mPart.back();
    mReach = std::hypot(way.x(), way.y());
    mHasSector = mReach > mTolerance;
    if (!mHasSector) return;
    const QPointF aside = QPointF(-way.y(), way.x()) * (mTolerance / mReach);
    mFrom = way - aside;
    mTo = way + aside;
  }

  bool staysInSector(QPointF point) {
    const QPointF way = point - mPart.back();
    if (cross(mFrom, way) < 0 || cross(way, mTo) < 0) return false;
    const double distance = std::sqrt(QPointF::dotProduct(way, way));
    if (distance < mReach - mTolerance || distance <= mTolerance) return false;
    const QPointF aside = QPointF(-way.y(), way.x()) * (mTolerance / distance);
    if (cross(mFrom, way - aside) > 0) mFrom = way - aside;
    if (cross(way + aside, mTo) > 0) mTo = way + aside;
    mReach = std::max(mReach, distance);
    return true;
  }

  static double cross(QPointF a, QPointF b) { return a.x() * b.y() - a.y() * b.x(); }

  QRectF mBounds;
  double mTolerance;
  QPointF mPrevious, mPending;
  bool mHasPrevious = false, mHasSector = false, mHasPending = false;
  QPointF mFrom, mTo;
  double mReach = 0;
  QPolygonF mPart;
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
  for (double tolerance = kFinestTolerancePoints;; tolerance *= 3) {
    const bool isCoarsest = tolerance >= kCoarsestTolerancePoints;
    Clipper clipper(bounds, tolerance);
    // The world repeats itself to the east and west, and the line with it.
    for (double shift = std::ceil(left - mEast); shift <= right - mWest; ++shift) {
      const double originX = (camera.center().x - shift) * scale - camera.size().width() / 2;
      const double originY = camera.center().y * scale - camera.size().height() / 2;
      for (const WorldPoint& point : mPoints) {
        clipper.add({point.x * scale - originX, point.y * scale - originY});
        if (clipper.count() > kMostPoints) break;
      }
      clipper.finishLine();
    }
    if (clipper.count() <= kMostPoints || isCoarsest) return clipper.takeParts();
  }
}

}  // namespace wayloom
