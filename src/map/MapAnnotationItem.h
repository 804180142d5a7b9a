#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QtQuick/QQuickItem>

#include "map/MapCamera.h"
#include "map/MapPointAnnotation.h"

namespace wayloom {

/// Draws a map's annotations and the user's position over it. Child of its MapView; main thread.
class MapAnnotationItem : public QQuickItem {
  Q_OBJECT

 public:
  using Annotations = std::vector<std::shared_ptr<const MapPointAnnotation>>;

  explicit MapAnnotationItem(QQuickItem* parent);

  const Annotations& annotations() const { return mAnnotations; }
  void setAnnotations(Annotations annotations);
  void setUserLocation(std::optional<Coordinate> location);
  void setCamera(const MapCamera& camera);

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

 private:
  struct Mark {
    WorldPoint point;
    QImage image;
    QPointF anchor;
  };

  void rebuildMarks();

  Annotations mAnnotations;
  std::optional<Coordinate> mUserLocation;
  MapCamera mCamera;
  std::vector<Mark> mMarks;
  bool mAreMarksNew = false;
};

}  // namespace wayloom
