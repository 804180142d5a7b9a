#include "map/MapView.h"

#include <algorithm>
#include <utility>

#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRectangleNode>

#include "map/TileScene.h"

namespace wayloom {

namespace {

constexpr QColor kBackground(0xdf, 0xe5, 0xe8);
// One tile this far above shows eight by eight tiles coarsely, for when the map is moved on.
constexpr int kSpareLevels = 3;

/// The root of the map's picture: its background, then its tiles.
class MapScene : public QSGNode {
 public:
  explicit MapScene(QQuickWindow& window) : mBackground(window.createRectangleNode()) {
    mBackground->setColor(kBackground);
    mBackground->setFlag(OwnedByParent);
    appendChildNode(mBackground);
    mTiles.setFlag(OwnedByParent, false);
    appendChildNode(&mTiles);
  }
  ~MapScene() override { removeChildNode(&mTiles); }

  void setSize(QSizeF size) { mBackground->setRect(QRectF({0, 0}, size)); }
  TileScene& tiles() { return mTiles; }

 private:
  QSGRectangleNode* mBackground;
  TileScene mTiles;
};

}  // namespace

MapView::MapView(QQuickItem* parent)
    : QQuickItem(parent),
      mGestures(
          mMotion, [this] { Q_EMIT tapped(); }, [this](QPointF at) { Q_EMIT menuAsked(at); }),
      mOverlayItem(new MapOverlayItem(this)),
      mAnnotationItem(new MapAnnotationItem(this)) {
  setFlag(ItemHasContents);
  setClip(true);
  setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
  setAcceptTouchEvents(true);
  setActiveFocusOnTab(true);
  connect(&mMotion, &MapMotion::cameraChanged, this, &MapView::refresh);
  connect(&mMotion, &MapMotion::regionWillChange, this, &MapView::regionWillChange);
  connect(&mMotion, &MapMotion::regionDidChange, this, [this](bool animated) {
    updateAttribution();
    Q_EMIT regionDidChange(animated);
  });
}

MapView::~MapView() {
  if (mLoader) mLoader->forget(this);
}

void MapView::setTileSource(const std::shared_ptr<TileSource>& source) {
  if (mLoader) {
    disconnect(mLoader.get(), nullptr, this, nullptr);
    mLoader->forget(this);
  }
  mLoader = TileLoader::of(source);
  mIsSourceNew = true;
  if (mLoader) connect(mLoader.get(), &TileLoader::tilesArrived, this, &QQuickItem::update);
  updateAttribution();
  refresh();
}

void MapView::addOverlay(std::shared_ptr<const MapPolyline> overlay) {
  mOverlayItem->add(std::move(overlay));
}

void MapView::removeOverlay(const std::shared_ptr<const MapPolyline>& overlay) {
  mOverlayItem->remove(overlay);
}

MapOverlayItem::Overlays MapView::overlays() const {
  return mOverlayItem->overlays();
}

void MapView::addAnnotation(std::shared_ptr<const MapPointAnnotation> annotation) {
  if (!annotation) return;
  MapAnnotationItem::Annotations annotations = mAnnotationItem->annotations();
  annotations.push_back(std::move(annotation));
  mAnnotationItem->setAnnotations(std::move(annotations));
}

void MapView::removeAnnotation(const std::shared_ptr<const MapPointAnnotation>& annotation) {
  MapAnnotationItem::Annotations annotations = mAnnotationItem->annotations();
  std::erase(annotations, annotation);
  mAnnotationItem->setAnnotations(std::move(annotations));
}

MapAnnotationItem::Annotations MapView::annotations() const {
  return mAnnotationItem->annotations();
}

void MapView::setShowsUserLocation(bool shows) {
  if (shows == mShowsUserLocation) return;
  mShowsUserLocation = shows;
  mAnnotationItem->setUserLocation(shows ? mUserLocation : std::nullopt);
  Q_EMIT showsUserLocationChanged();
}

void MapView::setUserLocation(std::optional<Coordinate> location) {
  mUserLocation = location;
  if (mShowsUserLocation) mAnnotationItem->setUserLocation(location);
}

void MapView::setZoomsAboutCenter(bool does) {
  if (does == zoomsAboutCenter()) return;
  mGestures.setZoomsAboutCenter(does);
  Q_EMIT zoomsAboutCenterChanged();
}

QPointF MapView::viewPoint(Coordinate coordinate) const {
  return mMotion.camera().viewPoint(worldPoint(coordinate));
}

Coordinate MapView::coordinateAtPoint(QPointF viewPoint) const {
  Coordinate coordinate = coordinateAt(mMotion.camera().worldPointAt(viewPoint));
  coordinate.longitude = wrapLongitude(coordinate.longitude);
  return coordinate;
}

QPointF MapView::placeAt(QPointF viewPoint) const {
  const Coordinate place = coordinateAtPoint(viewPoint);
  return {place.longitude, place.latitude};
}

void MapView::refresh() {
  setComplete(false);
  mOverlayItem->setCamera(mMotion.camera());
  mAnnotationItem->setCamera(mMotion.camera());
  polish();
  update();
  Q_EMIT cameraMoved();
}

void MapView::setComplete(bool isComplete) {
  ++mFrame;
  if (isComplete == mIsComplete) return;
  mIsComplete = isComplete;
  Q_EMIT completeChanged();
}

void MapView::updateAttribution() {
  QStringList names;
  const MapCamera& camera = mMotion.camera();
  if (mLoader && camera.hasSize()) {
    const QSizeF size = camera.size();
    const Coordinate northWest = coordinateAt(camera.worldPointAt({0, 0}));
    const Coordinate southEast = coordinateAt(camera.worldPointAt({size.width(), size.height()}));
    names = mLoader->source().attributions(northWest.longitude, southEast.latitude,
                                           southEast.longitude, northWest.latitude);
  }
  const QString attribution = names.join(QStringLiteral(", "));
  if (attribution == mAttribution) return;
  mAttribution = attribution;
  Q_EMIT attributionChanged();
}

double MapView::pixelRatio() const {
  return window() ? window()->effectiveDevicePixelRatio() : 1;
}

void MapView::componentComplete() {
  QQuickItem::componentComplete();
  takeSize();
}

void MapView::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickItem::geometryChange(newGeometry, oldGeometry);
  if (isComponentComplete() && newGeometry.size() != oldGeometry.size()) takeSize();
}

void MapView::takeSize() {
  mMotion.resize(size());
  mOverlayItem->setSize(size());
  mAnnotationItem->setSize(size());
  updateAttribution();
  refresh();
}

void MapView::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemSceneChange || change == ItemVisibleHasChanged ||
      change == ItemDevicePixelRatioHasChanged) {
    const bool isShown = change == ItemSceneChange ? data.window != nullptr : isVisible();
    if (!isShown && mLoader) mLoader->forget(this);
    if (isComponentComplete()) refresh();
  }
}

void MapView::releaseResources() {
  if (mLoader) mLoader->forget(this);
}

void MapView::updatePolish() {
  mVisibleTiles.clear();
  if (!mLoader || !isVisible()) return;
  const int zoom = tileZoom(mMotion.camera(), mLoader->source().maximumZoom());
  mVisibleTiles = visibleTiles(mMotion.camera(), zoom, pixelRatio());
  std::vector<TileRequest> wanted;
  for (const PlacedTile& tile : mVisibleTiles) wanted.push_back({tile.key, pixelRatio()});
  for (const PlacedTile& tile : mVisibleTiles) {
    wanted.push_back({ancestorOf(tile.key, std::min(kSpareLevels, zoom)), pixelRatio()});
  }
  mLoader->want(this, std::move(wanted));
}

QSGNode* MapView::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
  auto* scene = node ? static_cast<MapScene*>(node) : new MapScene(*window());
  scene->setSize(size());
  if (std::exchange(mIsSourceNew, false)) scene->tiles().clear();
  if (!mLoader || mVisibleTiles.empty()) return scene;
  const bool isComplete = scene->tiles().show(*window(), *mLoader, mVisibleTiles, pixelRatio());
  // The main thread waits while the scene is synchronised; it may be told only afterwards.
  QMetaObject::invokeMethod(
      this,
      [this, isComplete, frame = mFrame, again = scene->tiles().needsAnotherFrame()] {
        if (frame == mFrame) setComplete(isComplete);
        if (again) update();
      },
      Qt::QueuedConnection);
  return scene;
}

void MapView::mousePressEvent(QMouseEvent* event) {
  forceActiveFocus(Qt::MouseFocusReason);
  if (event->button() == Qt::LeftButton) {
    mGestures.setFingers({event->position()}, event->timestamp());
  } else if (!mGestures.hasFingers()) {
    Q_EMIT menuAsked(event->position());
  }
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  mGestures.setFingers({event->position()}, event->timestamp());
  if (mGestures.isDragging()) setKeepMouseGrab(true);
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  setKeepMouseGrab(false);
  mGestures.setFingers({}, event->timestamp());
}

void MapView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) mGestures.doubleClick(event->position());
}

void MapView::mouseUngrabEvent() {
  setKeepMouseGrab(false);
  mGestures.cancel();
}

void MapView::touchEvent(QTouchEvent* event) {
  if (event->type() == QEvent::TouchBegin) forceActiveFocus(Qt::MouseFocusReason);
  mGestures.touch(*event);
  setKeepTouchGrab(mGestures.isDragging());
  event->accept();
}

void MapView::touchUngrabEvent() {
  mGestures.cancel();
}

void MapView::wheelEvent(QWheelEvent* event) {
  mGestures.wheel(*event);
  event->accept();
}

void MapView::keyPressEvent(QKeyEvent* event) {
  event->setAccepted(mGestures.pressKey(*event));
}

void MapView::keyReleaseEvent(QKeyEvent* event) {
  event->setAccepted(mGestures.releaseKey(*event));
}

void MapView::focusOutEvent(QFocusEvent* event) {
  QQuickItem::focusOutEvent(event);
  mGestures.loseFocus();
}

}  // namespace wayloom
