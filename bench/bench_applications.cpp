// Opens the whitelist screen over applications installed for the purpose, scrolls through all of
// them, and turns a tick over in a large whitelist; prints how long each took.
//
//   bench_applications [COUNT]

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>
#include <random>

#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

#include "lists/ApplicationIcons.h"
#include "lists/ApplicationList.h"
#include "lists/WhitelistViewController.h"
#include "platform/DesktopHomeScreen.h"
#include "platform/QtIconRasterizer.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;

constexpr int kTicks = 100000;

double since(const QElapsedTimer& clock) {
  return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// Every second application has a PNG, the others an SVG, none of them alike.
void install(const fs::path& data, int count) {
  fs::create_directories(data / "applications");
  fs::create_directories(data / "icons/hicolor/64");
  std::ofstream(data / "icons/hicolor/index.theme")
      << "[Icon Theme]\nDirectories=64\n[64]\nSize=64\n";
  std::mt19937 random(1);
  for (int number = 0; number < count; ++number) {
    const std::string name = "application" + std::to_string(number);
    std::ofstream entry(data / "applications" / (name + ".desktop"));
    entry << "[Desktop Entry]\nType=Application\nIcon=" << name << "\nName=" << name << '\n';
    for (int language = 0; language < 60; ++language) {
      entry << "Name[l" << language << "]=" << name << "\nComment[l" << language << "]=A text\n";
    }
    const fs::path icon = data / "icons/hicolor/64" / name;
    if (number % 2 == 0) {
      QImage image(64, 64, QImage::Format_ARGB32);
      for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) image.setPixel(x, y, static_cast<QRgb>(random()));
      }
      image.save(QString::fromStdString(icon.string() + ".png"));
    } else {
      std::ofstream(icon.string() + ".svg")
          << "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='64'>"
          << "<circle cx='32' cy='32' r='" << number % 32 << "' fill='teal'/></svg>";
    }
  }
}

/// Runs the event loop until the window has shown one more frame.
void showFrame(QQuickView& view) {
  bool shown = false;
  const auto connection =
      QObject::connect(&view, &QQuickWindow::frameSwapped, &view, [&] { shown = true; });
  view.update();
  while (!shown) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  QObject::disconnect(connection);
}

void scroll(QQuickView& view) {
  auto* list = view.rootObject()->findChild<QQuickItem*>("mainTableView");
  std::vector<double> frames;
  const double end = list->property("contentHeight").toDouble() - list->height();
  for (double y = 0; y < end; y += 50) {
    QElapsedTimer clock;
    clock.start();
    list->setProperty("contentY", y);
    showFrame(view);
    frames.push_back(since(clock));
  }
  std::sort(frames.begin(), frames.end());
  if (frames.empty()) return;
  std::printf("scrolling, a frame: median %.1f ms, 99 %% %.1f ms, longest %.1f ms\n",
              frames[frames.size() / 2], frames[frames.size() * 99 / 100], frames.back());
}

void turnTickOver(SettingsFiles& files) {
  PropertyList::Dictionary ticks;
  for (int number = 0; number < kTicks; ++number)
    ticks["com.example." + std::to_string(number)] = true;
  if (!files.save(SettingsFile::Whitelist, ticks)) return;
  QElapsedTimer clock;
  clock.start();
  Whitelist whitelist(files);
  if (!whitelist.load()) return;
  const double loaded = since(clock);
  clock.start();
  const bool written = bool(whitelist.toggle("com.example.7"));
  std::printf("a whitelist of %d: read in %.1f ms, a tick %s in %.1f ms\n", kTicks, loaded,
              written ? "written" : "not written", since(clock));
}

int run(int count) {
  const QTemporaryDir folder;
  const std::string data = folder.path().toStdString();
  install(data, count);
  const DesktopHomeScreen home(
      [&](const char* name) {
        return std::string_view(name) == "XDG_DATA_HOME" ? data.c_str() : nullptr;
      },
      rasterizeIcon);
  SettingsFiles files(data);

  QQuickView view;
  view.engine()->addImportPath("qrc:/qt/qml");
  view.engine()->addImageProvider(ApplicationIcons::providerName(), new ApplicationIcons(home));
  view.setResizeMode(QQuickView::SizeRootObjectToView);
  view.resize(375, 667);
  view.show();
  showFrame(view);

  QElapsedTimer clock;
  clock.start();
  WhitelistViewController controller(files, home);
  const double made = since(clock);
  view.setInitialProperties({{"controller", QVariant::fromValue(&controller)}});
  view.setSource(QUrl("qrc:/qt/qml/Wayloom/Layouts/WhitelistViewController.qml"));
  showFrame(view);
  std::printf("%d applications: listed in %.1f ms, on screen in %.1f ms\n",
              controller.appArray()->rowCount(), made, since(clock));
  scroll(view);
  clock.start();
  const auto models = ApplicationList::installedAppModel(home);
  std::printf("all models with both icons: %.1f ms\n", since(clock));
  turnTickOver(files);
  // The layout goes before the controller that it shows.
  view.setSource({});
  return models ? 0 : 1;
}

}  // namespace
}  // namespace wayloom

int main(int argc, char* argv[]) {
  QGuiApplication application(argc, argv);
  return wayloom::run(argc > 1 ? std::max(1, std::atoi(argv[1])) : 500);
}
