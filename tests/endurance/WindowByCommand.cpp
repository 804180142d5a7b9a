// The joined application, off screen, touched as lines on standard input say. Each line is answered
// by one on standard output when what it asked for is over: "done SCREEN SWITCH", with the screen
// that was touched and what the touched switch then shows, "refused TEXT" after an alert, "failed
// TEXT" when the status line says so, "cannot LINE"; "shown" by the screen, its switch and the
// status line, "say LABEL" by its text, "value NAME PROPERTY" by that, "metres" by the lesser side
// of what the map shows, "rows" by how many the list has.
//   window_by_command ROOT REGIONS

#include <algorithm>
#include <cmath>
#include <iostream>
#include <string>

#include <QtCore/QSettings>
#include <QtCore/QSocketNotifier>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeySequence>
#include <QtTest/QTest>

#include "app/AppDelegate.h"
#include "app/WindowDriver.h"
#include "map/MapView.h"

namespace {

using namespace wayloom;

class Commands {
 public:
  explicit Commands(AppDelegate& application) : mWindow(application.window(), {}) {}

  std::string answer(const std::string& line) {
    if (line == "shown") return shown();
    if (line.starts_with("say ")) return text(line.substr(4).c_str());
    if (line.starts_with("value ")) return value(line.substr(6));
    if (line == "metres") return std::to_string(std::lround(metres()));
    if (line == "rows") return std::to_string(mWindow.property("mainTableView", "count").toInt());
    mTouched = screen();
    const bool isRun = run(line);
    QCoreApplication::processEvents();
    return isRun ? outcome() : "cannot " + line;
  }

 private:
  /// False for a line that is no command, or that cannot be done as things are.
  bool run(const std::string& line) {
    const auto blank = line.find(' ');
    const std::string word = line.substr(0, blank);
    const QString rest = QString::fromStdString(blank == line.npos ? "" : line.substr(blank + 1));
    if (word == "add") return add(rest);
    if (word == "find") return find(rest);
    if (word == "enable") return toggle("enableSwitch");
    if (word == "drift") return toggle("s_auto");
    if (word == "exchange") return exchange();
    if (word == "info") return open("btn_info", "InfoViewController");
    if (word == "favorites") return open("favoritesButton", "mainTableView");
    if (word == "choose") return choose();
    if (word == "remove") return pressFirst(Qt::Key_Delete);
    if (word == "undo") return undo();
    if (word == "close") return close();
    if (word == "click") return mWindow.click(rest.toLatin1());
    if (word == "place") return pickPlace(rest.section(' ', 0, 0), rest.section(' ', 1));
    if (word == "accept") return acceptPlace();
    if (word == "turn") return turn(rest.section(' ', 0, 0), rest.section(' ', 1).toInt());
    if (word == "picked") return pickTime();
    if (word == "resize")
      return resize(rest.section(' ', 0, 0).toInt(), rest.section(' ', 1).toInt());
    if (word == "focus") return focus(rest);
    if (word == "keys") return pressKeys(rest);
    if (const QQuickItem* map = mWindow.find(mapName())) return touchMap(*map, word);
    return word == "wait";
  }

  /// Zooms that begin away from the middle.
  bool touchMap(const QQuickItem& map, const std::string& word) {
    const QPoint at = map.mapToScene(QPointF(60, map.height() - 90)).toPoint();
    QQuickWindow* window = map.window();
    if (word == "wheel") {
      QWheelEvent event(at, at, {}, {0, 6 * QWheelEvent::DefaultDeltasPerStep}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(window, &event);
    } else if (word == "double") {
      QTest::mouseDClick(window, Qt::LeftButton, {}, at);
    } else if (word == "pinch") {
      const QPoint step(12, -12);
      QTest::touchEvent(window, mScreen).press(0, at).press(1, at + 3 * step);
      for (int move = 4; move <= 14; ++move) {
        QTest::touchEvent(window, mScreen).stationary(0).move(1, at + move * step);
      }
      QTest::touchEvent(window, mScreen).release(0, at).release(1, at + 14 * step);
    } else if (word != "rest") {
      return word == "wait";
    }
    return mWindow.waitForMap(mapName());
  }

  bool pickPlace(const QString& label, const QString& address) {
    const auto isSettled = [this] {
      return !mWindow.property("HUD", "shown").toBool() && !mWindow.isShown("spinner") &&
             !text("addressLabel").empty();
    };
    const auto waitForAddress = [&] {
      return mWindow.waitUntil("an address", isSettled) && mWindow.waitForMap("mainMapView");
    };
    if (!mWindow.click(label.toLatin1()) || !mWindow.waitForScreen("buttonBar")) return false;
    if (!waitForAddress() || !mWindow.click("searchField")) return false;
    mWindow.type(address);
    mWindow.press(Qt::Key_Return);
    return waitForAddress();
  }

  bool acceptPlace() {
    return mWindow.click("btn_ok") &&
           mWindow.waitUntil("the route screen", [this] { return !mWindow.isShown("buttonBar"); });
  }

  /// A wheel of the date picker, with the keys.
  bool turn(const QString& wheel, int row) {
    if (!focus(wheel)) return false;
    const auto value = [&] { return mWindow.property(wheel.toLatin1(), "value").toInt(); };
    for (int presses = 0; value() != row && presses < 100; ++presses) {
      mWindow.press(value() < row ? Qt::Key_Down : Qt::Key_Up);
    }
    return value() == row;
  }

  bool pickTime() {
    mWindow.press(Qt::Key_Return);
    return mWindow.waitUntil("the date picker's end",
                             [this] { return !mWindow.isShown("v_picker"); });
  }

  bool resize(int width, int height) {
    QQuickWindow* window = mWindow.find(mapName())->window();
    window->resize(width, height);
    return mWindow.waitUntil("the new size",
                             [=] { return window->contentItem()->height() == height; });
  }

  bool focus(const QString& name) {
    QQuickItem* item = mWindow.find(name.toLatin1());
    if (item) item->forceActiveFocus(Qt::TabFocusReason);
    return item && item->hasActiveFocus();
  }

  bool pressKeys(const QString& names) {
    for (const QString& name : names.split(' ')) {
      mWindow.press(QKeySequence::fromString(name)[0].key());
    }
    return true;
  }

  double metres() {
    const MapRegion shown = qobject_cast<MapView*>(mWindow.find(mapName()))->region();
    constexpr double kMetresOfADegree = 111'195;
    return kMetresOfADegree *
           std::min(shown.span.latitudeDelta,
                    shown.span.longitudeDelta * std::cos(shown.center.latitude * M_PI / 180));
  }

  std::string value(const std::string& line) {
    const auto blank = line.find(' ');
    return mWindow.property(line.substr(0, blank).c_str(), line.substr(blank + 1).c_str())
        .toString()
        .toStdString();
  }

  const char* mapName() const { return mWindow.isShown("mainMapView") ? "mainMapView" : "mv_main"; }

  /// What the window has to say about it; an alert is closed.
  std::string outcome() {
    if (mWindow.isShown("alertButton")) {
      const QString message = mWindow.property("alertMessage", "text").toString();
      mWindow.click("alertButton");
      return "refused " + message.toStdString();
    }
    const std::string status = text("statusLine");
    const bool isFailure = mWindow.property("statusLine", "isFailure").toBool();
    return isFailure && !status.empty() ? "failed " + status : "done " + mTouched;
  }

  std::string shown() {
    return screen() + (isChecked("enableSwitch") ? " 1 " : " 0 ") + text("statusLine");
  }

  std::string screen() {
    if (mWindow.isShown("mainMapView")) return "fixed";
    return mWindow.isShown("mv_main") ? "route" : "modal";
  }

  std::string text(const char* name) {
    return mWindow.property(name, "text").toString().toStdString();
  }
  bool isChecked(const char* name) { return mWindow.property(name, "checked").toBool(); }

  bool toggle(const char* name) {
    if (!mWindow.isShown(name) || !mWindow.click(name)) return false;
    mTouched += isChecked(name) ? " 1" : " 0";
    return true;
  }

  bool exchange() {
    if (!mWindow.isShown("btn_exchange")) return false;
    // The button glides while the drift panel comes or goes.
    const bool stands = mWindow.waitUntil("the mode button", [this] {
      const QQuickItem* button = mWindow.find("btn_exchange");
      return button->window()->height() - button->y() == (mWindow.isShown("v_auto") ? 130 : 86);
    });
    mTouched = screen();
    return stands && mWindow.click("btn_exchange");
  }

  bool open(const char* button, const char* screen) {
    return mWindow.isShown(button) && mWindow.click(button) && mWindow.waitForScreen(screen);
  }

  bool isBack() {
    const QQuickItem* map = mWindow.find(mWindow.isShown("mv_main") ? "mv_main" : "mainMapView");
    return screen() != "modal" && map && map->isEnabled();
  }

  bool close() {
    mWindow.press(Qt::Key_Escape);
    return mWindow.waitUntil("the screen below", [this] { return isBack(); });
  }

  bool pressFirst(Qt::Key key) {
    if (screen() != "modal" || mWindow.property("mainTableView", "count").toInt() == 0)
      return false;
    mWindow.press(Qt::Key_Home);
    mWindow.press(key);
    return true;
  }

  bool choose() {
    return pressFirst(Qt::Key_Return) && mWindow.waitUntil("the screen below", [this] {
      return !text("statusLine").empty() && (screen() == "modal" || isBack());
    });
  }

  bool undo() {
    const auto isShown = [this] { return mWindow.isShown("undoButton"); };
    return mWindow.waitUntil("the undo button", isShown) && mWindow.click("undoButton");
  }

  bool find(const QString& position) {
    if (!mWindow.isShown("searchField") || !mWindow.click("searchField")) return false;
    mWindow.type("#:" + position);
    mWindow.press(Qt::Key_Return);
    return true;
  }

  bool add(const QString& name) {
    const auto isOpen = [this] {
      const QQuickItem* field = mWindow.find("favoritesNameField");
      return field && field->hasActiveFocus() && mWindow.isShown("okButton");
    };
    if (!mWindow.click("addButton") || !mWindow.waitUntil("the name panel", isOpen)) return false;
    QMetaObject::invokeMethod(mWindow.find("favoritesNameField"), "selectAll");
    mWindow.type(name);
    if (!mWindow.click("okButton")) return false;
    return mWindow.property("statusLine", "isFailure").toBool() ||
           mWindow.waitUntil("the name panel's end",
                             [this] { return !mWindow.isShown("alertView"); });
  }

  WindowDriver mWindow;
  std::string mTouched;
  QPointingDevice* mScreen = QTest::createTouchDevice();
};

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 3) return 2;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QUICK_BACKEND", "software");
  QGuiApplication application(argc, argv);
  const std::filesystem::path root = argv[1];
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     QString::fromStdString((root / "remembered").string()));
  AppServices services({.root = root, .regions = argv[2], .configuredPositionOnly = true});
  AppDelegate delegate(services);
  if (!delegate.didFinishLaunching()) return 1;
  Commands commands(delegate);
  QSocketNotifier input(0, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
    std::string line;
    if (!std::getline(std::cin, line)) return QGuiApplication::quit();
    input.setEnabled(false);
    std::cout << commands.answer(line) << std::endl;
    input.setEnabled(true);
  });
  std::cout << "ready" << std::endl;
  return QGuiApplication::exec();
}
