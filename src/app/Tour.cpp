#include "app/Tour.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <optional>
#include <unistd.h>

#include <QtCore/QDir>
#include <QtCore/QFile>

#include "map/MapView.h"

namespace wayloom {

namespace {

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

}  // namespace

Tour::Tour(QQuickView& window, SettingsFiles& files, const QString& directory)
    : mWindow(window, directory), mFiles(files), mDirectory(directory) {}

bool Tour::run() {
  if (!QDir().mkpath(mDirectory)) {
    std::fprintf(stderr, "wayloom: cannot make the folder %s\n", qPrintable(mDirectory));
    return false;
  }
  const bool walked = start() && pinPlace() && saveFavorite() && seeFavorites() &&
                      seeInformation() && changeToRoute() && planDrive() && chooseTimes() &&
                      drive();
  if (!walked) return false;
  for (const SettingsFile name : {SettingsFile::Master, SettingsFile::Location,
                                  SettingsFile::Favorites, SettingsFile::Route}) {
    printFile(name);
  }
  return true;
}

bool Tour::start() {
  const bool drawn = mWindow.waitUntil(
      "the first map", [this] { return mWindow.property("mv_main", "complete").toBool(); });
  if (!drawn) return false;
  if (const auto seconds = secondsSinceStart()) {
    std::printf("The first complete map stood %.2f s after the start.\n", *seconds);
  }
  return mWindow.waitForMap("mv_main") && mWindow.savePicture("start") &&
         mWindow.click("btn_exchange") && mWindow.waitForMap("mainMapView");
}

bool Tour::pinPlace() {
  if (!mWindow.click("searchField")) return false;
  mWindow.type(QStringLiteral("kungsp"));
  const auto isOffered = [this] { return mWindow.isShown("searchList"); };
  if (!mWindow.waitUntil("the suggestions", isOffered)) return false;
  if (!mWindow.savePicture("suggestions")) return false;
  mWindow.type(QStringLiteral("ortsavenyn göteborg"));
  mWindow.press(Qt::Key_Return);
  const bool found = mWindow.waitUntil("the searched address", [this] {
    return !mWindow.property("HUD", "shown").toBool() && !mWindow.isShown("spinner") &&
           !mWindow.property("addressLabel", "text").toString().isEmpty();
  });
  if (!found || !mWindow.waitForMap("mainMapView") || !mWindow.savePicture("search")) return false;

  // Where no file was yet, the switch springs back once.
  if (!mWindow.click("enableSwitch")) return false;
  if (!mWindow.isShown("v_auto") &&
      !(mWindow.savePicture("touch-again") && mWindow.click("enableSwitch"))) {
    return false;
  }
  return mWindow.click("s_auto") && mWindow.click("sd_auto") && mWindow.waitForMap("mainMapView") &&
         mWindow.savePicture("pinned");
}

bool Tour::saveFavorite() {
  if (!mWindow.click("addButton")) return false;
  const bool asked = mWindow.waitUntil(
      "the name panel", [this] { return mWindow.property("alertView", "opacity").toReal() == 1; });
  if (!asked || !mWindow.savePicture("favourite") || !mWindow.click("okButton")) return false;
  return mWindow.waitUntil("the name panel's end",
                           [this] { return !mWindow.isShown("alertView"); });
}

bool Tour::seeFavorites() {
  return mWindow.click("favoritesButton") && mWindow.waitForScreen("mainTableView") &&
         mWindow.savePicture("favourites") && mWindow.click("editButton") &&
         mWindow.savePicture("favourites-edit") && mWindow.click("editButton") &&
         mWindow.clickRow(0) && mWindow.waitForScreen("mainMapView") &&
         mWindow.waitForMap("mainMapView") && mWindow.savePicture("chosen") && seeMenu();
}

bool Tour::seeMenu() {
  mWindow.press(Qt::Key_Menu);
  const bool shown =
      mWindow.waitUntil("the map's menu", [this] { return mWindow.isShown("mapMenu"); });
  if (!shown || !mWindow.savePicture("menu")) return false;
  mWindow.press(Qt::Key_Escape);
  return true;
}

bool Tour::seeInformation() {
  if (!mWindow.click("btn_info") || !mWindow.waitForScreen("InfoViewController")) return false;
  if (!mWindow.savePicture("information") || !mWindow.click("wihteListButton")) return false;
  if (!mWindow.waitForScreen("mainTableView") || !mWindow.savePicture("whitelist")) return false;
  mWindow.press(Qt::Key_Escape);
  if (!mWindow.waitForScreen("InfoViewController")) return false;
  mWindow.press(Qt::Key_Escape);
  return mWindow.waitForScreen("mainMapView");
}

bool Tour::changeToRoute() {
  // With the position on, the mode button only says so.
  if (!mWindow.click("btn_exchange") || !mWindow.savePicture("refusal")) return false;
  return mWindow.click("alertButton") && mWindow.click("enableSwitch") &&
         mWindow.waitUntil("the drift panel's end",
                           [this] { return !mWindow.isShown("v_auto"); }) &&
         mWindow.click("btn_exchange") && mWindow.waitForMap("mv_main");
}

bool Tour::planDrive() {
  if (!choosePlace("lb_start", QStringLiteral("kungsportsavenyn göteborg"), "picker")) return false;
  if (!choosePlace("lb_end", QStringLiteral("lindholmsallén göteborg"), nullptr)) return false;
  const bool planned =
      mWindow.waitUntil("the path", [this] { return !mWindow.property("HUD", "shown").toBool(); });
  return planned && mWindow.waitForMap("mv_main") && mWindow.savePicture("path");
}

bool Tour::choosePlace(const char* label, const QString& address, const char* picture) {
  if (!mWindow.click(label) || !mWindow.waitForScreen("buttonBar")) return false;
  const auto isSettled = [this] {
    return !mWindow.property("HUD", "shown").toBool() && !mWindow.isShown("spinner") &&
           !mWindow.property("addressLabel", "text").toString().isEmpty();
  };
  if (!mWindow.waitUntil("the device's address", isSettled)) return false;
  if (!mWindow.waitForMap("mainMapView") || !mWindow.click("searchField")) return false;
  mWindow.type(address);
  mWindow.press(Qt::Key_Return);
  if (!mWindow.waitUntil("the picked address", isSettled)) return false;
  if (!mWindow.waitForMap("mainMapView")) return false;
  if (picture && !mWindow.savePicture(picture)) return false;
  return mWindow.click("btn_ok") && mWindow.waitForMap("mv_main");
}

bool Tour::chooseTimes() {
  const auto isIn = [this] { return mWindow.property("v_picker", "arrival").toReal() == 1; };
  const auto isOut = [this] { return !mWindow.isShown("v_picker"); };
  if (!mWindow.click("lb_startTime") || !mWindow.waitUntil("the date picker", isIn)) return false;
  if (!mWindow.savePicture("date") || !mWindow.click("btn_picker")) return false;
  if (!mWindow.waitUntil("the date picker's end", isOut)) return false;

  if (!mWindow.click("lb_endTime") || !mWindow.waitUntil("the date picker", isIn)) return false;
  mWindow.press(Qt::Key_Right);
  mWindow.press(Qt::Key_Right);
  // The wheels carry, so this is a moment to come wherever they stand.
  for (int minute = 0; minute < 20; ++minute) mWindow.press(Qt::Key_Down);
  mWindow.press(Qt::Key_Return);
  return mWindow.waitUntil("the date picker's end", isOut) && mWindow.savePicture("times");
}

bool Tour::drive() {
  if (!mWindow.click("enableSwitch")) return false;
  if (!mWindow.property("enableSwitch", "checked").toBool()) {
    std::fprintf(stderr, "wayloom: the drive was not turned on\n");
    return false;
  }
  // The map first fits the whole path, planned once more, and then follows the car.
  const auto follows = [this] {
    const auto* map = qobject_cast<MapView*>(mWindow.find("mv_main"));
    return map && map->showsUserLocation() && map->region().span.latitudeDelta < 0.05 &&
           !mWindow.property("HUD", "shown").toBool();
  };
  return mWindow.waitUntil("the drive", follows) && mWindow.waitForMap("mv_main") &&
         mWindow.savePicture("drive");
}

void Tour::printFile(SettingsFile name) const {
  const std::filesystem::path& path = mFiles.path(name);
  QFile file(QString::fromStdString(path.string()));
  if (!file.open(QIODevice::ReadOnly)) return;
  const QList<QByteArray> lines = file.readAll().split('\n');
  std::printf("\n%s\n", path.c_str());
  // Of a long path, its beginning and its end.
  constexpr qsizetype kHead = 30, kTail = 12;
  for (qsizetype line = 0; line < lines.size(); ++line) {
    if (line == kHead && lines.size() > kHead + kTail) {
      line = lines.size() - kTail;
      std::printf("... %d more lines ...\n", static_cast<int>(line - kHead));
    }
    std::printf("%s\n", lines[line].constData());
  }
}

}  // namespace wayloom
