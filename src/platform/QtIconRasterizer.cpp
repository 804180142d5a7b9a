#include "platform/QtIconRasterizer.h"

#include <QtCore/QBuffer>
#include <QtGui/QImage>
#include <QtGui/QImageReader>

namespace wayloom {

namespace {
/// Enough for a row's icon on screens of two pixels to a point.
constexpr int kPixels = 64;
/// An icon that claims to be larger is none.
constexpr int kMostPixels = 4096;
}  // namespace

std::string rasterizeIcon(const std::string& bytes) {
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer source(&data);
  if (!source.open(QIODevice::ReadOnly)) return {};
  QImageReader reader(&source);
  const QSize size = reader.size();
  if (size.isEmpty() || size.width() > kMostPixels || size.height() > kMostPixels) return {};
  reader.setScaledSize(size.scaled(kPixels, kPixels, Qt::KeepAspectRatio));
  QByteArray png;
  QBuffer target(&png);
  const bool drawn = target.open(QIODevice::WriteOnly) && reader.read().save(&target, "PNG");
  return drawn ? png.toStdString() : std::string();
}

}  // namespace wayloom
