#include "map/TileScene.h"

#include <cmath>

#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRendererInterface>

namespace wayloom {

namespace {
// Copying an image to the graphics card takes a millisecond or two; what more there is can wait for
// the next frame, as long as something else stands in its place.
constexpr int kTexturesPerFrame = 2;
// The software renderer hands a scaled image of over 95 rows to a pool of threads in parts, and
// waits until the last one had its turn: where other programs keep the processors busy, for long.
constexpr int kBandRows = 80;
}  // namespace

bool TileScene::show(QQuickWindow& window, TileLoader& loader, const std::vector<PlacedTile>& tiles,
                     double scale) {
  begin(window);
  bool isComplete = true;
  for (const PlacedTile& tile : tiles) {
    if (placeItself(window, loader, tile, scale, mCreated < kTexturesPerFrame)) continue;
    const bool isWaiting = loader.has({tile.key, scale});
    if (!placeAncestor(window, loader, tile, scale, !isWaiting)) {
      // Nothing stands in: the frame takes the time.
      if (placeItself(window, loader, tile, scale, true)) continue;
    }
    placeChildren(tile, scale);
    isComplete = false;
    mNeedsAnotherFrame = mNeedsAnotherFrame || isWaiting;
  }
  dropUnused();
  return isComplete;
}

void TileScene::begin(QQuickWindow& window) {
  mWindow = &window;
  mUsedNodes = 0;
  mCreated = 0;
  mNeedsAnotherFrame = false;
  for (auto& [tile, texture] : mTextures) texture.isUsed = false;
}

void TileScene::clear() {
  mUsedNodes = 0;
  for (auto& [tile, texture] : mTextures) texture.isUsed = false;
  dropUnused();
}

QSGTexture* TileScene::existing(const TileRequest& tile) {
  const auto found = mTextures.find(tile);
  if (found == mTextures.end()) return nullptr;
  found->second.isUsed = true;
  return found->second.texture.get();
}

QSGTexture* TileScene::create(QQuickWindow& window, TileLoader& loader, const TileRequest& tile) {
  const QImage image = loader.image(tile);
  if (image.isNull()) return nullptr;
  const auto options = image.hasAlphaChannel() ? QQuickWindow::TextureHasAlphaChannel
                                               : QQuickWindow::TextureIsOpaque;
  std::unique_ptr<QSGTexture> texture(window.createTextureFromImage(image, options));
  if (!texture) return nullptr;
  ++mCreated;
  return (mTextures[tile] = {std::move(texture), true}).texture.get();
}

bool TileScene::placeItself(QQuickWindow& window, TileLoader& loader, const PlacedTile& tile,
                            double scale, bool mayCreate) {
  const TileRequest request{tile.key, scale};
  QSGTexture* texture = existing(request);
  if (!texture && loader.has(request)) {
    if (loader.image(request).isNull()) return true;  // There is no such tile.
    if (mayCreate) texture = create(window, loader, request);
  }
  if (texture) place(texture, {0, 0, 1, 1}, tile.rect);
  return texture != nullptr;
}

bool TileScene::placeAncestor(QQuickWindow& window, TileLoader& loader, const PlacedTile& tile,
                              double scale, bool mayCreate) {
  for (int levels = 1; levels <= tile.key.zoom; ++levels) {
    const TileRequest ancestor{ancestorOf(tile.key, levels), scale};
    QSGTexture* texture = existing(ancestor);
    if (!texture && mayCreate) texture = create(window, loader, ancestor);
    if (!texture) continue;
    place(texture, partOfAncestor(tile.key, levels), tile.rect);
    return true;
  }
  return false;
}

void TileScene::placeChildren(const PlacedTile& tile, double scale) {
  const QSizeF half = tile.rect.size() / 2;
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 2; ++column) {
      const TileKey child{tile.key.zoom + 1, tile.key.x * 2 + column, tile.key.y * 2 + row};
      // Only those on screen a moment ago: they are what zooming out leaves.
      if (QSGTexture* texture = existing({child, scale})) {
        const QPointF corner =
            tile.rect.topLeft() + QPointF(column * half.width(), row * half.height());
        place(texture, {0, 0, 1, 1}, QRectF(corner, half));
      }
    }
  }
}

void TileScene::place(QSGTexture* texture, const QRectF& part, const QRectF& rect) {
  const QSizeF pixels = rect.size() * mWindow->effectiveDevicePixelRatio();
  const bool isScaled = part.width() * texture->textureSize().width() != pixels.width();
  const bool isInBands =
      isScaled && mWindow->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
  const int bands = isInBands ? static_cast<int>(std::ceil(pixels.height() / kBandRows)) : 1;
  // Whole pixels, so that bands touch.
  const auto edge = [&](int band) { return std::round(pixels.height() * band / bands); };
  for (int band = 0; band < bands; ++band) {
    const double top = edge(band) / pixels.height();
    const double height = edge(band + 1) / pixels.height() - top;
    placeBand(texture,
              {part.x(), part.y() + part.height() * top, part.width(), part.height() * height},
              {rect.x(), rect.y() + rect.height() * top, rect.width(), rect.height() * height});
  }
}

void TileScene::placeBand(QSGTexture* texture, const QRectF& part, const QRectF& rect) {
  const bool isNew = mUsedNodes == mNodes.size();
  if (isNew) mNodes.push_back(mWindow->createImageNode());
  QSGImageNode* node = mNodes[mUsedNodes++];
  const QSizeF size = texture->textureSize();
  node->setTexture(texture);
  node->setSourceRect(part.x() * size.width(), part.y() * size.height(),
                      part.width() * size.width(), part.height() * size.height());
  node->setRect(rect);
  if (!isNew) return;
  node->setOwnsTexture(false);
  node->setFiltering(QSGTexture::Linear);
  appendChildNode(node);  // Last: a renderer looks at the texture at once.
}

void TileScene::dropUnused() {
  while (mNodes.size() > mUsedNodes) {
    removeChildNode(mNodes.back());
    delete mNodes.back();
    mNodes.pop_back();
  }
  std::erase_if(mTextures, [](const auto& entry) { return !entry.second.isUsed; });
}

}  // namespace wayloom
