#include "app/WindowDriver.h"

#include <cstdio>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QThread>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>

#include "kit/FoundItem.h"

namespace wayloom {

namespace {
constexpr std::chrono::seconds kPatience{30};
}

WindowDriver::WindowDriver(QQuickView& window, QString directory)
    : mWindow(window), mDirectory(std::move(directory)) {}

QQuickItem* WindowDriver::find(const char* objectName) const {
  return foundItem(mWindow.rootObject(), QString::fromLatin1(objectName));
}

bool WindowDriver::isShown(const char* objectName) const {
  const QQuickItem* item = find(objectName);
  return item && item->isVisible();
}

QVariant WindowDriver::property(const char* objectName, const char* name) const {
  const QQuickItem* item = find(objectName);
  return item ? item->property(name) : QVariant();
}

bool WindowDriver::click(const char* objectName) {
  return click(find(objectName), objectName);
}

bool WindowDriver::clickRow(int row) {
  QQuickItem* item = nullptr;
  if (QQuickItem* list = find("mainTableView")) {
    QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                              Q_ARG(int, row));
  }
  return click(item, "row");
}

bool WindowDriver::click(const QQuickItem* item, const char* name) {
  if (!item || !item->isVisible() || !item->isEnabled()) {
    std::fprintf(stderr, "wayloom: there is no %s to click\n", name);
    return false;
  }
  const QPointF point = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
  const QPointF global = mWindow.mapToGlobal(point);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, point, point, global, Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&mWindow, &event);
  }
  return true;
}

void WindowDriver::type(const QString& text) {
  for (const QChar character : text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, 0, Qt::NoModifier, character);
      QCoreApplication::sendEvent(&mWindow, &event);
    }
  }
}

void WindowDriver::press(Qt::Key key) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&mWindow, &event);
  }
}

bool WindowDriver::waitUntil(const char* what, const std::function<bool()>& condition) {
  const QDeadlineTimer deadline(kPatience);
  while (!condition()) {
    if (deadline.hasExpired()) {
      std::fprintf(stderr, "wayloom: %s did not come about\n", what);
      return false;
    }
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    // Nothing to do: leave the processor to what is waited for.
    QThread::msleep(2);
  }
  return true;
}

bool WindowDriver::waitForScreen(const char* objectName) {
  return waitUntil(objectName, [&] {
    const QQuickItem* item = find(objectName);
    if (!item || !item->isVisible() || !item->isEnabled()) return false;
    // It has come in when it is as wide as the window and nothing moves it any more.
    const QRectF shown = item->mapRectToScene(item->boundingRect());
    return shown.width() == mWindow.width() && shown.bottom() == mWindow.height();
  });
}

bool WindowDriver::waitForMap(const char* objectName) {
  // For a moment, so that no animation is caught half way.
  QDeadlineTimer still(std::chrono::milliseconds(400));
  return waitUntil(objectName, [&] {
    const QQuickItem* map = find(objectName);
    const bool settled =
        map && map->property("complete").toBool() && !map->property("moving").toBool();
    if (!settled) still.setRemainingTime(400);
    return settled && still.hasExpired();
  });
}

bool WindowDriver::savePicture(const char* name) {
  const QString path =
      QDir(mDirectory)
          .filePath(QStringLiteral("%1-%2.png").arg(++mPictures).arg(QLatin1String(name)));
  if (!mWindow.grabWindow().save(path)) {
    std::fprintf(stderr, "wayloom: cannot save the picture %s\n", qPrintable(path));
    return false;
  }
  std::printf("%s\n", qPrintable(path));
  return true;
}

}  // namespace wayloom
