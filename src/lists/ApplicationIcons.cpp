#include "lists/ApplicationIcons.h"

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>

#include "lists/ApplicationModel.h"

namespace wayloom {

namespace {

/// Larger than any icon; what claims more would fill the memory.
constexpr int kMostPixels = 4096;

// An identifier may hold what an address must not.
constexpr auto kEncoding = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;

QImage readScaled(QImageReader& reader, const QSize& wanted) {
  const QSize size = reader.size();
  if (size.isEmpty() || size.width() > kMostPixels || size.height() > kMostPixels) return {};
  const QSize whole = wanted.isEmpty() ? size : wanted;
  return reader.read().scaled(whole, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

QString ApplicationIcons::providerName() {
  return QStringLiteral("application");
}

QUrl ApplicationIcons::address(const std::string& bundle) {
  const QByteArray encoded = QByteArray::fromStdString(bundle).toBase64(kEncoding);
  return {QStringLiteral("image://application/") + QString::fromLatin1(encoded)};
}

ApplicationIcons::ApplicationIcons(const HomeScreen& homeScreen)
    : QQuickImageProvider(Image, ForceAsynchronousImageLoading), mHomeScreen(homeScreen) {}

QImage ApplicationIcons::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
  const QByteArray bundle = QByteArray::fromBase64(id.toLatin1(), kEncoding);
  QImage image;
  if (const auto icon = ApplicationModel::appIconWithBundle(mHomeScreen, bundle.toStdString())) {
    QByteArray png = QByteArray::fromStdString(icon->png);
    QBuffer buffer(&png);
    QImageReader reader(&buffer, "png");
    image = readScaled(reader, requestedSize);
  }
  if (image.isNull()) {
    QImageReader reader(QStringLiteral(":/icons/application.svg"));
    image = readScaled(reader, requestedSize);
  }
  *size = image.size();
  return image;
}

}  // namespace wayloom
