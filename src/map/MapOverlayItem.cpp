#include "map/MapOverlayItem.h"

#include <utility>

#include <QtGui/QPainter>

namespace wayloom {

MapOverlayItem::MapOverlayItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setVisible(false);
}

MapOverlayItem::Overlays MapOverlayItem::overlays() const {
  Overlays overlays;
  for (const Line& line : mLines) overlays.push_back(line.overlay);
  return overlays;
}

void MapOverlayItem::add(std::shared_ptr<const MapPolyline> overlay) {
  if (!overlay || !overlay->coordinates) return;
  PolylinePath path(*overlay->coordinates);
  mLines.push_back({std::move(overlay), std::move(path)});
  setVisible(true);
  update();
}

void MapOverlayItem::remove(const std::shared_ptr<const MapPolyline>& overlay) {
  std::erase_if(mLines, [&](const Line& line) { return line.overlay == overlay; });
  setVisible(!mLines.empty());
  update();
}

void MapOverlayItem::setCamera(const MapCamera& camera) {
  mCamera = camera;
  if (!mLines.empty()) update();
}

void MapOverlayItem::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  for (const Line& line : mLines) {
    // Line by line: a path of many points takes ten times as long to outline as a whole.
    painter->setPen(QPen(QColor(line.overlay->color.rgb()), line.overlay->lineWidthPoints,
                         Qt::SolidLine, Qt::SquareCap));
    QList<QLineF> steps;
    for (const QPolygonF& part : line.path.inView(mCamera, line.overlay->lineWidthPoints)) {
      for (qsizetype i = 1; i < part.size(); ++i) steps.append(QLineF(part[i - 1], part[i]));
    }
    painter->drawLines(steps);
  }
}

}  // namespace wayloom
