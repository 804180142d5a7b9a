#pragma once

#include <optional>

#include <QtCore/QPointF>
#include <QtCore/QSizeF>

#include "geo/MapRegion.h"
#include "geo/WebMercator.h"

namespace wayloom {

/// What a map looks at: a centre, a zoom and the size of the view in points. A plain value; pure
/// arithmetic. The centre stays in the world (longitudes wrap, latitudes end at the Mercator limit)
/// and the zoom between the one at which the world covers the view and kMaximumZoom, whatever is
/// asked for. At zoom z the world is 512 * 2^z points wide.
class MapCamera {
 public:
  static constexpr double kTileSizePoints = 512;
  static constexpr double kMaximumZoom = 19.5;

  WorldPoint center() const { return mCenter; }
  double zoom() const { return mZoom; }
  QSizeF size() const { return mSize; }
  bool hasSize() const { return mSize.width() > 0 && mSize.height() > 0; }
  double minimumZoom() const;
  /// The width of the world in points.
  double worldSize() const;

  /// Keeps centre and zoom. A region fitted before there was a size is fitted now.
  void setSize(QSizeF size);
  void setCenter(WorldPoint center);
  void setCenter(Coordinate center);
  void setZoom(double zoom);

  /// Shows the smallest view around the region's centre that contains the region. Does nothing if
  /// the region makes no sense (isSensible).
  void fit(const MapRegion& region);
  /// What is in view. Its centre is the centre in map points; fitting the result changes nothing.
  MapRegion region() const;

  /// Where a point of the world is in the view: of its repetitions, the one nearest to the centre.
  QPointF viewPoint(WorldPoint point) const;
  /// The point of the world at a place of the view; x may lie outside [0, 1).
  WorldPoint worldPointAt(QPointF viewPoint) const;

  /// Moves what is in view, as a finger would.
  void panBy(QPointF distance);
  /// Changes the zoom and keeps what is at `viewPoint` there.
  void zoomAbout(QPointF viewPoint, double zoomChange);

  /// The camera at `progress` (0 to 1) of the way from `from` to `to`, the shorter way round the
  /// world. If one point is at the same place in both, it stays there all the way.
  static MapCamera between(const MapCamera& from, const MapCamera& to, double progress);
  /// Whether both show the same, but for rounding.
  bool isSameAs(const MapCamera& other) const;

 private:
  double fittingZoom(const MapRegion& region) const;

  WorldPoint mCenter{0.5, 0.5};
  double mZoom = 0;
  QSizeF mSize;
  std::optional<MapRegion> mRequested{MapRegion{{0, 0}, {180, 360}}};
};

/// Whether both parts are finite.
bool isSensible(Coordinate coordinate);
/// Whether all parts are finite and the span is not negative.
bool isSensible(const MapRegion& region);

}  // namespace wayloom
