#pragma once

#include <memory>
#include <optional>

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include "map/MapView.h"
#include "platform/Directions.h"
#include "route/DriveStatus.h"
#include "route/RoutePoints.h"

namespace wayloom {

/// The planned path of the route screen: asks for directions, keeps the points, and draws the line
/// and its two markers. Owned by the screen; main thread only.
class PathPlan : public QObject {
  Q_OBJECT

 public:
  /// `directions` must outlive this object.
  PathPlan(Directions& directions, QObject* parent);

  void setMapView(MapView* map) { mMapView = map; }

  /// Plans from place to place if both are chosen; the last answer wins.
  void drawMapLine(Coordinate start, Coordinate end);

  void cleanPath();
  void cleanStart();
  void cleanEnd();

  /// The points, start first. The list stays the same one for as long as nobody sets another; a new
  /// plan refills it.
  const std::shared_ptr<RoutePoints>& points() const { return mPoints; }
  void setPoints(RoutePoints points);
  /// The last plan failed; false from the start of the next one.
  bool isRouteError() const { return mIsRouteError; }
  /// What came of the last plan; none while it is asked for.
  const std::optional<PlannedDrive>& drive() const { return mDrive; }

 Q_SIGNALS:
  void started();
  void ended();
  /// There is a new path.
  void planned();
  /// There is a new drive().
  void answered();

 private:
  void findDirectionsFromTo(Coordinate source, Coordinate destination);
  void complete(Coordinate source, Coordinate destination, const DirectionsAnswer& answer);
  void buildStart();
  void buildEnd();
  void removeFirst(std::int32_t tag);

  Directions& mDirections;
  QPointer<MapView> mMapView;
  std::shared_ptr<RoutePoints> mPoints = std::make_shared<RoutePoints>();
  bool mIsRouteError = false;
  std::optional<PlannedDrive> mDrive;
};

}  // namespace wayloom
