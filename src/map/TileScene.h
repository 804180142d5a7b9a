#pragma once

#include <map>
#include <memory>
#include <vector>

#include <QtQuick/QSGImageNode>
#include <QtQuick/QSGNode>
#include <QtQuick/QSGTexture>

#include "map/TileGrid.h"
#include "map/TileLoader.h"

class QQuickWindow;

namespace wayloom {

/// The map's picture in the scene graph: what there is of each visible tile. Belongs to the scene
/// graph, which deletes it with its textures; used while the scene is synchronised. A transform
/// node, because the software renderer places children that come later only under one of those.
class TileScene : public QSGTransformNode {
 public:
  /// Shows the tiles as far as the loader has them. Returns whether every one is shown as itself;
  /// if not, `needsAnotherFrame` says whether images wait that one frame had no time for.
  bool show(QQuickWindow& window, TileLoader& loader, const std::vector<PlacedTile>& tiles,
            double scale);
  void clear();
  bool needsAnotherFrame() const { return mNeedsAnotherFrame; }

 private:
  struct Texture {
    std::unique_ptr<QSGTexture> texture;
    bool isUsed = false;
  };

  void begin(QQuickWindow& window);
  QSGTexture* existing(const TileRequest& tile);
  QSGTexture* create(QQuickWindow& window, TileLoader& loader, const TileRequest& tile);
  bool placeItself(QQuickWindow& window, TileLoader& loader, const PlacedTile& tile, double scale,
                   bool mayCreate);
  bool placeAncestor(QQuickWindow& window, TileLoader& loader, const PlacedTile& tile, double scale,
                     bool mayCreate);
  void placeChildren(const PlacedTile& tile, double scale);
  void place(QSGTexture* texture, const QRectF& part, const QRectF& rect);
  void placeBand(QSGTexture* texture, const QRectF& part, const QRectF& rect);
  void dropUnused();

  QQuickWindow* mWindow = nullptr;
  std::map<TileRequest, Texture> mTextures;
  std::vector<QSGImageNode*> mNodes;  // Children of this node.
  std::size_t mUsedNodes = 0;
  int mCreated = 0;
  bool mNeedsAnotherFrame = false;
};

}  // namespace wayloom
