// The joined application, off screen, touched as lines on standard input say. Each line is answered
// by one on standard output when what it asked for is over: "done", "refused TEXT" after an alert,
// "failed TEXT" when the status line says so.
//   window_by_command ROOT

#include <cstdio>
#include <iostream>
#include <string>

#include <QtCore/QSettings>
#include <QtCore/QSocketNotifier>
#include <QtGui/QGuiApplication>

#include "app/AppDelegate.h"
#include "app/WindowDriver.h"

namespace {

using namespace wayloom;

class Commands {
 public:
  explicit Commands(AppDelegate& application) : mWindow(application.window(), {}) {}

  /// False for a line that is no command, or that cannot be done as things are.
  bool run(const std::string& line) {
    const auto blank = line.find(' ');
    const std::string word = line.substr(0, blank);
    if (word == "add") return add(QString::fromStdString(line.substr(blank + 1)));
    if (word == "delete") return deleteFirst();
    if (word == "enable") return mWindow.click("enableSwitch");
    if (word == "drift") return mWindow.click("s_auto");
    if (word == "exchange") return mWindow.click("btn_exchange");
    return word == "wait";
  }

  /// What the window has to say about it; an alert is closed.
  std::string outcome() {
    if (mWindow.isShown("alertButton")) {
      const QString message = mWindow.property("alertMessage", "text").toString();
      mWindow.click("alertButton");
      return "refused " + message.toStdString();
    }
    const std::string status = mWindow.property("statusLine", "text").toString().toStdString();
    const bool isFailure = mWindow.property("statusLine", "isFailure").toBool();
    return isFailure ? "failed " + status : "done";
  }

 private:
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

  bool deleteFirst() {
    if (!mWindow.click("favoritesButton") || !mWindow.waitForScreen("mainTableView")) return false;
    mWindow.press(Qt::Key_Home);
    mWindow.press(Qt::Key_Delete);
    mWindow.press(Qt::Key_Escape);
    return mWindow.waitForScreen("mainMapView");
  }

  WindowDriver mWindow;
};

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 2) return 2;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QUICK_BACKEND", "software");
  QGuiApplication application(argc, argv);
  const std::filesystem::path root = argv[1];
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     QString::fromStdString((root / "remembered").string()));
  AppServices services({.root = root, .regions = root / "regions", .configuredPositionOnly = true});
  AppDelegate delegate(services);
  if (!delegate.didFinishLaunching()) return 1;
  Commands commands(delegate);
  QSocketNotifier input(0, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
    std::string line;
    if (!std::getline(std::cin, line)) return QGuiApplication::quit();
    input.setEnabled(false);
    const bool isRun = commands.run(line);
    QCoreApplication::processEvents();
    std::cout << (isRun ? commands.outcome() : "cannot " + line) << std::endl;
    input.setEnabled(true);
  });
  std::cout << "ready" << std::endl;
  return QGuiApplication::exec();
}
