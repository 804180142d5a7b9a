#include "app/Tour.h"

#include <cstdio>
#include <ctime>
#include <optional>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtQuick/QQuickItem>

namespace wayloom {

namespace {

constexpr std::chrono::seconds kPatience{30};

/// How long this process has run, as the system counts it; none where it does not tell.
std::optional<double> secondsSinceStart() {
  QFile stat(QStringLiteral("/proc/self/stat"));
  timespec now{};
  if (!stat.open(QIODevice::ReadOnly) || clock_gettime(CLOCK_BOOTTIME, &now) != 0) return {};
  const QByteArray line = stat.readAll();
  // Behind the name, which may hold blanks, the start is the 20th field, in clock ticks since boot.
  const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
  if (fields.size() < 20) return {};
  const double started = fields[19].toDouble() / static_cast<double>(sysconf(_SC_CLK_TCK));
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9 - started;
}

/// Screens that lie over one another name some controls alike; the upper one comes last.
QQuickItem* uppermost(const QQuickItem* within, const QString& objectName) {
  const QList<QQuickItem*> children = within->childItems();
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    if (QQuickItem* found = uppermost(*child, objectName)) return found;
    if ((*child)->objectName() == objectName) return *child;
  }
  return nullptr;
}

}  // namespace

Tour::Tour(QQuickView& window, SettingsFiles& files, const QString& directory)
    : mWindow(window), mFiles(files), mDirectory(directory) {}

bool Tour::run() {
  if (!QDir().mkpath(mDirectory)) {
    std::fprintf(stderr, "wayloom: cannot make the folder %s\n", qPrintable(mDirectory));
    return false;
  }
  if (!pinPlace() || !saveFavorite() || !seeFavorites()) return false;
  for (const SettingsFile name : {SettingsFile::Location, SettingsFile::Favorites}) printFile(name);
  return true;
}

bool Tour::pinPlace() {
  const bool drawn = waitUntil(
      "the first map", [this] { return find("mainMapView")->property("complete").toBool(); });
  if (!drawn) return false;
  if (const auto seconds = secondsSinceStart()) {
    std::printf("The first complete map stood %.2f s after the start.\n", *seconds);
  }
  if (!waitForMap() || !savePicture("start")) return false;

  if (!click("searchField")) return false;
  type(QStringLiteral("kungsportsavenyn göteborg"));
  press(Qt::Key_Return);
  const bool found = waitUntil("the searched address", [this] {
    return !find("HUD")->property("shown").toBool() && !find("spinner")->isVisible() &&
           !find("addressLabel")->property("text").toString().isEmpty();
  });
  if (!found || !waitForMap() || !savePicture("search")) return false;

  // Where no file was yet, the switch springs back once.
  if (!click("enableSwitch")) return false;
  if (!find("v_auto")->isVisible() && !click("enableSwitch")) return false;
  return click("s_auto") && click("sd_auto") && waitForMap() && savePicture("pinned");
}

bool Tour::saveFavorite() {
  if (!click("addButton")) return false;
  const bool asked =
      waitUntil("the name panel", [this] { return find("alertView")->opacity() == 1.0; });
  if (!asked || !savePicture("favourite") || !click("okButton")) return false;
  return waitUntil("the name panel's end", [this] { return !find("alertView")->isVisible(); });
}

bool Tour::seeFavorites() {
  return click("favoritesButton") && waitForScreen("mainTableView") && savePicture("favourites") &&
         click("editButton") && savePicture("favourites-edit") && click("editButton") &&
         clickRow(0) && waitForScreen("mainMapView") && waitForMap() && savePicture("chosen");
}

QQuickItem* Tour::find(const char* objectName) const {
  return uppermost(mWindow.rootObject(), QString::fromLatin1(objectName));
}

bool Tour::click(const char* objectName) {
  return click(find(objectName), objectName);
}

bool Tour::clickRow(int row) {
  QQuickItem* item = nullptr;
  QMetaObject::invokeMethod(find("mainTableView"), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                            Q_ARG(int, row));
  return click(item, "row");
}

bool Tour::click(const QQuickItem* item, const char* name) {
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

void Tour::type(const QString& text) {
  for (const QChar character : text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, 0, Qt::NoModifier, character);
      QCoreApplication::sendEvent(&mWindow, &event);
    }
  }
}

void Tour::press(Qt::Key key) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&mWindow, &event);
  }
}

bool Tour::waitUntil(const char* what, const Condition& condition) {
  const QDeadlineTimer deadline(kPatience);
  while (!condition()) {
    if (deadline.hasExpired()) {
      std::fprintf(stderr, "wayloom: %s did not come about\n", what);
      return false;
    }
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  return true;
}

bool Tour::waitForScreen(const char* objectName) {
  return waitUntil(objectName, [&] {
    const QQuickItem* item = find(objectName);
    if (!item || !item->isVisible() || !item->isEnabled()) return false;
    // It has come in when it is as wide as the window and nothing moves it any more.
    const QRectF shown = item->mapRectToScene(item->boundingRect());
    return shown.width() == mWindow.width() && shown.bottom() == mWindow.height();
  });
}

bool Tour::waitForMap() {
  // The map stands still and complete for a moment, so that no animation is caught half way.
  QDeadlineTimer still(std::chrono::milliseconds(400));
  return waitUntil("the map", [&] {
    const QQuickItem* map = find("mainMapView");
    const bool settled = map->property("complete").toBool() && !map->property("moving").toBool();
    if (!settled) still.setRemainingTime(400);
    return settled && still.hasExpired();
  });
}

bool Tour::savePicture(const char* name) {
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

void Tour::printFile(SettingsFile name) const {
  const std::filesystem::path& path = mFiles.path(name);
  QFile file(QString::fromStdString(path.string()));
  if (!file.open(QIODevice::ReadOnly)) return;
  std::printf("\n%s\n%s", path.c_str(), file.readAll().constData());
}

}  // namespace wayloom
