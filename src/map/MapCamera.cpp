#include "map/MapCamera.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace wayloom {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kRadiansPerDegree = kPi / 180;

double wrappedX(double x) {
  const double wrapped = x - std::floor(x);
  return wrapped < 1 ? wrapped : 0;
}

/// The hyperbolic cosine of the Mercator ordinate at a world y, which is 1 / cos(latitude).
double stretchAt(double worldY) {
  return std::cosh((0.5 - worldY) * 2 * kPi);
}

/// How many degrees of latitude a view shows that reaches `halfHeight` up and down from `worldY`,
/// and the inverse. From tan(gd(a) / 2 - gd(b) / 2) = sinh((a - b) / 2) / cosh((a + b) / 2).
double latitudeDelta(double worldY, double halfHeight) {
  return 2 * std::atan(std::sinh(halfHeight * 2 * kPi) / stretchAt(worldY)) / kRadiansPerDegree;
}
double halfHeight(double worldY, double latitudeDelta) {
  const double half = std::min(latitudeDelta, 180.0) / 2 * kRadiansPerDegree;
  return std::asinh(std::tan(half) * stretchAt(worldY)) / (2 * kPi);
}

/// How far a region reaches from its centre, up or down, whichever is further.
double reach(const MapRegion& region) {
  const double half = region.span.latitudeDelta / 2;
  const double latitude =
      std::clamp(region.center.latitude, -kMercatorLatitudeLimit, kMercatorLatitudeLimit);
  const double y = worldPoint({latitude, 0}).y;
  return std::max(y - worldPoint({latitude + half, 0}).y, worldPoint({latitude - half, 0}).y - y);
}

}  // namespace

bool isSensible(Coordinate coordinate) {
  return std::isfinite(coordinate.latitude) && std::isfinite(coordinate.longitude);
}

bool isSensible(const MapRegion& region) {
  return isSensible(region.center) && std::isfinite(region.span.latitudeDelta) &&
         std::isfinite(region.span.longitudeDelta) && region.span.latitudeDelta >= 0 &&
         region.span.longitudeDelta >= 0;
}

double MapCamera::minimumZoom() const {
  if (!hasSize()) return 0;
  return std::min(std::log2(std::max(mSize.width(), mSize.height()) / kTileSizePoints),
                  kMaximumZoom);
}

double MapCamera::worldSize() const {
  return kTileSizePoints * std::exp2(mZoom);
}

void MapCamera::setSize(QSizeF size) {
  mSize = size;
  if (!hasSize()) return;
  if (mRequested) {
    const MapRegion region = *mRequested;
    fit(region);
  } else {
    setZoom(mZoom);
  }
}

void MapCamera::setCenter(WorldPoint center) {
  if (!std::isfinite(center.x) || !std::isfinite(center.y)) return;
  mCenter = {wrappedX(center.x), std::clamp(center.y, 0.0, 1.0)};
}

void MapCamera::setCenter(Coordinate center) {
  if (!isSensible(center)) return;
  setCenter(worldPoint({center.latitude, wrapLongitude(center.longitude)}));
  if (mRequested) mRequested->center = coordinateAt(mCenter);
}

void MapCamera::setZoom(double zoom) {
  if (!std::isnan(zoom)) mZoom = std::clamp(zoom, minimumZoom(), kMaximumZoom);
}

double MapCamera::fittingZoom(const MapRegion& region) const {
  const auto zoomFor = [](double points, double partOfWorld) {
    return partOfWorld > 0 ? std::log2(points / (kTileSizePoints * partOfWorld))
                           : std::numeric_limits<double>::infinity();
  };
  const double byWidth = zoomFor(mSize.width(), region.span.longitudeDelta / 360);
  const double half = halfHeight(mCenter.y, region.span.latitudeDelta);
  const double byHeight = zoomFor(mSize.height(), 2 * half);
  // A region that a view of this shape shows is taken as that view. The centre of any other is
  // taken as the middle of its latitudes, and it reaches further (in map points) to its pole.
  constexpr double kSameZoom = 1e-6;
  if (std::abs(byWidth - byHeight) < kSameZoom) return byWidth;
  return std::min(byWidth, zoomFor(mSize.height(), 2 * reach(region)));
}

void MapCamera::fit(const MapRegion& region) {
  if (!isSensible(region)) return;
  mRequested.reset();
  setCenter(region.center);
  if (hasSize()) {
    setZoom(fittingZoom(region));
  } else {
    mRequested = MapRegion{coordinateAt(mCenter), region.span};
  }
}

MapRegion MapCamera::region() const {
  if (mRequested) return *mRequested;
  const double size = worldSize();
  return {coordinateAt(mCenter),
          {latitudeDelta(mCenter.y, mSize.height() / 2 / size), mSize.width() / size * 360}};
}

QPointF MapCamera::viewPoint(WorldPoint point) const {
  const double size = worldSize();
  const double dx = point.x - mCenter.x;
  return {(dx - std::round(dx)) * size + mSize.width() / 2,
          (point.y - mCenter.y) * size + mSize.height() / 2};
}

WorldPoint MapCamera::worldPointAt(QPointF viewPoint) const {
  const double size = worldSize();
  return {mCenter.x + (viewPoint.x() - mSize.width() / 2) / size,
          mCenter.y + (viewPoint.y() - mSize.height() / 2) / size};
}

void MapCamera::panBy(QPointF distance) {
  const double size = worldSize();
  setCenter(WorldPoint{mCenter.x - distance.x() / size, mCenter.y - distance.y() / size});
}

void MapCamera::zoomAbout(QPointF viewPoint, double zoomChange) {
  const WorldPoint fixed = worldPointAt(viewPoint);
  setZoom(mZoom + zoomChange);
  const WorldPoint now = worldPointAt(viewPoint);
  setCenter(WorldPoint{mCenter.x + fixed.x - now.x, mCenter.y + fixed.y - now.y});
}

MapCamera MapCamera::between(const MapCamera& from, const MapCamera& to, double progress) {
  if (progress >= 1) return to;
  MapCamera camera = from;
  camera.setZoom(from.mZoom + (to.mZoom - from.mZoom) * progress);
  // The share of the way in map points: as the scale goes, so goes the centre.
  const double start = std::exp2(-from.mZoom), end = std::exp2(-to.mZoom);
  constexpr double kSameZoom = 1e-6;
  const double share = std::abs(from.mZoom - to.mZoom) < kSameZoom
                           ? progress
                           : (std::exp2(-camera.mZoom) - start) / (end - start);
  double dx = to.mCenter.x - from.mCenter.x;
  dx -= std::round(dx);
  const double dy = to.mCenter.y - from.mCenter.y;
  camera.setCenter(WorldPoint{from.mCenter.x + dx * share, from.mCenter.y + dy * share});
  return camera;
}

bool MapCamera::isSameAs(const MapCamera& other) const {
  constexpr double kSamePoint = 1e-12, kSameZoom = 1e-9;
  double dx = mCenter.x - other.mCenter.x;
  dx -= std::round(dx);
  return std::abs(dx) < kSamePoint && std::abs(mCenter.y - other.mCenter.y) < kSamePoint &&
         std::abs(mZoom - other.mZoom) < kSameZoom && mSize == other.mSize &&
         mRequested == other.mRequested;
}

}  // namespace wayloom
