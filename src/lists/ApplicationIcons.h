#pragma once

#include <QtCore/QUrl>
#include <QtQuick/QQuickImageProvider>

#include "platform/HomeScreen.h"

namespace wayloom {

/// Gives the layouts the icons of applications, a little after their rows: they are read and
/// decoded on the engine's own thread for pictures. The engine it is added to owns it.
class ApplicationIcons : public QQuickImageProvider {
  Q_OBJECT

 public:
  /// The name under which an engine knows it.
  static QString providerName();
  /// Where a layout finds an application's icon.
  static QUrl address(const std::string& bundle);

  /// The home screen must outlive the engine.
  explicit ApplicationIcons(const HomeScreen& homeScreen);

  /// A neutral picture stands for an icon that is missing or damaged.
  QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

 private:
  const HomeScreen& mHomeScreen;
};

}  // namespace wayloom
