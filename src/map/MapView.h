#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include "map/MapAnnotationItem.h"
#include "map/MapGestures.h"
#include "map/MapMotion.h"
#include "map/MapOverlayItem.h"
#include "map/TileGrid.h"
#include "map/TileLoader.h"
#include "map/TileSource.h"

namespace wayloom {

/// A map that is dragged, flicked, pinched, wheeled and commanded. Main thread; tiles are drawn on
/// threads of their own and never waited for.
///
/// Every move, however caused, has one regionWillChange and one regionDidChange; what starts while
/// another move runs ends that one first. A drag includes its run-out, a turn of the wheel its
/// single steps. What changes nothing is no move and neither is a change of size, which keeps
/// centre and zoom. Regions and coordinates that are not finite numbers are ignored.
class MapView : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString attribution READ attribution NOTIFY attributionChanged)
  Q_PROPERTY(bool complete READ isComplete NOTIFY completeChanged)
  Q_PROPERTY(bool showsUserLocation READ showsUserLocation WRITE setShowsUserLocation NOTIFY
                 showsUserLocationChanged)
  Q_PROPERTY(bool zoomsAboutCenter READ zoomsAboutCenter WRITE setZoomsAboutCenter NOTIFY
                 zoomsAboutCenterChanged)

 public:
  explicit MapView(QQuickItem* parent = nullptr);
  ~MapView() override;

  /// Maps with the same source share its tiles and threads. Null for none.
  void setTileSource(const std::shared_ptr<TileSource>& source);

  /// What is in view; a region set before the map has a size stands as it was asked for until then.
  MapRegion region() const { return mMotion.camera().region(); }
  /// The region that is in view once `region` is set: the smallest that contains it.
  MapRegion regionThatFits(const MapRegion& region) const { return mMotion.regionThatFits(region); }
  void setRegion(const MapRegion& region, Animated animated) {
    mMotion.setRegion(region, animated);
  }
  void setCenterCoordinate(Coordinate center, Animated animated) {
    mMotion.setCenter(center, animated);
  }
  /// `completion` runs exactly once: when the move has ended or was ended by another, or at once
  /// if there is nothing to move; not if the map is destroyed before.
  void animateCenter(Coordinate center, std::chrono::milliseconds duration,
                     std::function<void()> completion) {
    mMotion.animateCenter(center, duration, std::move(completion));
  }

  /// Overlays and annotations are kept in the order they were added, and known by their addresses.
  void addOverlay(std::shared_ptr<const MapPolyline> overlay);
  void removeOverlay(const std::shared_ptr<const MapPolyline>& overlay);
  MapOverlayItem::Overlays overlays() const;
  void addAnnotation(std::shared_ptr<const MapPointAnnotation> annotation);
  void removeAnnotation(const std::shared_ptr<const MapPointAnnotation>& annotation);
  MapAnnotationItem::Annotations annotations() const;

  bool showsUserLocation() const { return mShowsUserLocation; }
  void setShowsUserLocation(bool shows);
  void setUserLocation(std::optional<Coordinate> location);

  /// Whether no zoom by the user moves the centre, since that is what the map is there to choose.
  bool zoomsAboutCenter() const { return mGestures.zoomsAboutCenter(); }
  void setZoomsAboutCenter(bool does);

  /// Where a coordinate is in the view, in points, also if that is out of sight.
  QPointF viewPoint(Coordinate coordinate) const;
  Coordinate coordinateAtPoint(QPointF viewPoint) const;
  // The same for layouts, to which a place is a point of a longitude and a latitude.
  Q_INVOKABLE QPointF pointOf(QPointF place) const { return viewPoint({place.y(), place.x()}); }
  Q_INVOKABLE QPointF placeAt(QPointF viewPoint) const;

  /// Who is to be credited for what is in view.
  QString attribution() const { return mAttribution; }
  /// Whether the last frame showed every tile of what is in view now, each at its own zoom.
  bool isComplete() const { return mIsComplete; }

 Q_SIGNALS:
  void regionWillChange(bool animated);
  void regionDidChange(bool animated);
  void tapped();
  /// A menu is asked for at a point of the view, by the right button or a long touch.
  void menuAsked(QPointF at);
  /// What is in view has changed, if only by a step of a move.
  void cameraMoved();
  void attributionChanged();
  void completeChanged();
  void showsUserLocationChanged();
  void zoomsAboutCenterChanged();

 protected:
  void componentComplete() override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void releaseResources() override;
  void updatePolish() override;
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseUngrabEvent() override;
  void touchEvent(QTouchEvent* event) override;
  void touchUngrabEvent() override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void refresh();
  void takeSize();
  void setComplete(bool isComplete);
  void updateAttribution();
  double pixelRatio() const;

  MapMotion mMotion;
  MapGestures mGestures;
  MapOverlayItem* mOverlayItem;  // Owned as child items.
  MapAnnotationItem* mAnnotationItem;
  std::shared_ptr<TileLoader> mLoader;
  std::vector<PlacedTile> mVisibleTiles;
  QString mAttribution;
  std::optional<Coordinate> mUserLocation;
  bool mShowsUserLocation = false;
  bool mIsSourceNew = false;
  bool mIsComplete = false;
  unsigned mFrame = 0;
};

}  // namespace wayloom
