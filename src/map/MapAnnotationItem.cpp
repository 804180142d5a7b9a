#include "map/MapAnnotationItem.h"

#include <cmath>

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGImageNode>

namespace wayloom {

namespace {

// Drawn finer than most screens, so that they are crisp on all.
constexpr double kMarkScale = 3;

QImage blankMark(double width, double height) {
  QImage image((QSizeF(width, height) * kMarkScale).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(kMarkScale);
  image.fill(Qt::transparent);
  return image;
}

QImage pinImage() {
  QImage image = blankMark(26, 36);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath drop(QPointF(13, 35));
  drop.cubicTo(QPointF(11, 27), QPointF(2, 21), QPointF(2, 13));
  drop.arcTo(QRectF(2, 2, 22, 22), 180, -180);
  drop.cubicTo(QPointF(24, 21), QPointF(15, 27), QPointF(13, 35));
  painter.setPen(QPen(Qt::white, 1.5));
  painter.setBrush(QColor(0xe7, 0x4c, 0x3c));
  painter.drawPath(drop);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawEllipse(QPointF(13, 13), 4.5, 4.5);
  return image;
}

QImage userImage() {
  QImage image = blankMark(44, 44);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  QRadialGradient halo(QPointF(22, 22), 22);
  halo.setColorAt(0, QColor(0x34, 0x98, 0xdb, 120));
  halo.setColorAt(1, QColor(0x34, 0x98, 0xdb, 0));
  painter.setBrush(halo);
  painter.drawEllipse(QPointF(22, 22), 22, 22);
  painter.setPen(QPen(Qt::white, 2.5));
  painter.setBrush(QColor(0x34, 0x98, 0xdb));
  painter.drawEllipse(QPointF(22, 22), 7, 7);
  return image;
}

}  // namespace

MapAnnotationItem::MapAnnotationItem(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
}

void MapAnnotationItem::setAnnotations(Annotations annotations) {
  mAnnotations = std::move(annotations);
  rebuildMarks();
}

void MapAnnotationItem::setUserLocation(std::optional<Coordinate> location) {
  if (location == mUserLocation) return;
  mUserLocation = location;
  rebuildMarks();
}

void MapAnnotationItem::setCamera(const MapCamera& camera) {
  mCamera = camera;
  if (!mMarks.empty()) update();
}

void MapAnnotationItem::rebuildMarks() {
  static const QImage kPin = pinImage();
  static const QImage kUser = userImage();
  mMarks.clear();
  if (mUserLocation && isSensible(*mUserLocation)) {
    mMarks.push_back({worldPoint(*mUserLocation), kUser, {0.5, 0.5}});
  }
  for (const auto& annotation : mAnnotations) {
    if (!isSensible(annotation->coordinate)) continue;
    const bool isPlain = annotation->image.isNull();
    mMarks.push_back({worldPoint(annotation->coordinate), isPlain ? kPin : annotation->image,
                      isPlain ? QPointF(0.5, 1) : annotation->anchor});
  }
  mAreMarksNew = true;
  update();
}

QSGNode* MapAnnotationItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
  if (mMarks.empty()) {
    delete node;
    return nullptr;
  }
  if (mAreMarksNew || !node) {
    delete node;
    node = new QSGTransformNode;  // As for the tiles: a plain node loses the item's place.
    for (const Mark& mark : mMarks) {
      QSGImageNode* image = window()->createImageNode();
      image->setOwnsTexture(true);
      image->setTexture(window()->createTextureFromImage(mark.image));
      image->setFiltering(QSGTexture::Linear);
      node->appendChildNode(image);
    }
    mAreMarksNew = false;
  }
  const double ratio = window()->effectiveDevicePixelRatio();
  QSGNode* child = node->firstChild();
  for (const Mark& mark : mMarks) {
    const QSizeF size = mark.image.deviceIndependentSize();
    const QPointF corner = mCamera.viewPoint(mark.point) -
                           QPointF(mark.anchor.x() * size.width(), mark.anchor.y() * size.height());
    const QPointF onPixel(std::round(corner.x() * ratio) / ratio,
                          std::round(corner.y() * ratio) / ratio);
    static_cast<QSGImageNode*>(child)->setRect(QRectF(onPixel, size));
    child = child->nextSibling();
  }
  return node;
}

}  // namespace wayloom
