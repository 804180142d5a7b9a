#pragma once

#include <memory>
#include <vector>

#include <QtQuick/QQuickPaintedItem>

#include "map/MapCamera.h"
#include "map/MapPolyline.h"
#include "map/PolylinePath.h"

namespace wayloom {

/// Paints a map's overlays over it; invisible while there are none. Child of its MapView; main
/// thread.
class MapOverlayItem : public QQuickPaintedItem {
  Q_OBJECT

 public:
  using Overlays = std::vector<std::shared_ptr<const MapPolyline>>;

  explicit MapOverlayItem(QQuickItem* parent);

  Overlays overlays() const;
  void add(std::shared_ptr<const MapPolyline> overlay);
  void remove(const std::shared_ptr<const MapPolyline>& overlay);
  void setCamera(const MapCamera& camera);

  void paint(QPainter* painter) override;

 private:
  struct Line {
    std::shared_ptr<const MapPolyline> overlay;
    PolylinePath path;
  };

  std::vector<Line> mLines;
  MapCamera mCamera;
};

}  // namespace wayloom
