// Pans and zooms a map across Gothenburg in the event loop and prints how long the main thread was
// busy in one turn of it, and the memory the process took at most. Counted is all the main thread
// does once the window is open: the first frame, moves, taking over tiles and, with the software
// renderer, painting every frame. In the same run a loop that does nothing shows what the machine
// takes from any thread.
//
//   bench_panning [SECONDS] [--line] [--writes] [--picture FILE.png]

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <optional>
#include <random>
#include <sys/resource.h>

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCommandLineParser>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

#include "StallMeter.h"
#include "map/MapView.h"
#include "map/MapnikTileSource.h"
#include "regions/RegionDirectories.h"
#include "route/RouteFile.h"
#include "settings/WorkQueue.h"

namespace wayloom {
namespace {

using namespace std::chrono_literals;

constexpr double kFloorMs = 5000;
constexpr Coordinate kGothenburg{57.705, 11.965};

/// Measures each turn of the event loop: what the main thread does between two looks for new
/// events. Nothing else can be answered meanwhile.
class TimedApplication : public QGuiApplication {
 public:
  TimedApplication(int& argc, char** argv) : QGuiApplication(argc, argv) {
    connect(eventDispatcher(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
      if (mTurn.clockMs > 0) mTurns.add(mTurn);
      mTurn = {};
    });
  }

  bool notify(QObject* receiver, QEvent* event) override {
    // Render threads deliver events of their own; an event within an event is part of it.
    if (QThread::currentThread() != thread() || mIsBusy) {
      return QGuiApplication::notify(receiver, event);
    }
    mIsBusy = true;
    const ThreadTime start = ThreadTime::now();
    const bool result = QGuiApplication::notify(receiver, event);
    mTurn += ThreadTime::now() - start;
    mIsBusy = false;
    return result;
  }

  StallMeter& turns() { return mTurns; }

 private:
  bool mIsBusy = false;
  ThreadTime mTurn;
  StallMeter mTurns;
};

std::shared_ptr<const MapPolyline> longLine() {
  auto points = std::make_shared<std::vector<Coordinate>>();
  for (int i = 0; i < 100'000; ++i) {
    const double turn = i * 0.002;
    points->push_back({kGothenburg.latitude + 1e-6 * i * std::sin(turn) / 3,
                       kGothenburg.longitude + 2e-6 * i * std::cos(turn) / 3});
  }
  auto line = std::make_shared<MapPolyline>();
  line->coordinates = std::move(points);
  return line;
}

/// Goes from place to place for ever, now and then to another zoom.
class Tour {
 public:
  explicit Tour(MapView& map) : mMap(map) {
    QObject::connect(&map, &MapView::regionDidChange, &map, [this] {
      QMetaObject::invokeMethod(
          &mMap, [this] { go(); }, Qt::QueuedConnection);
    });
    mMap.setRegion(regionWithDistance(kGothenburg, 2000, 2000), Animated::No);
  }

 private:
  void go() {
    std::uniform_real_distribution<double> offset(-0.02, 0.02);
    const Coordinate next{kGothenburg.latitude + offset(mRandom),
                          kGothenburg.longitude + 2 * offset(mRandom)};
    const double metres = 800 << (mRandom() % 4);
    if (++mLegs % 4 == 0) {
      mMap.setRegion(regionWithDistance(next, metres, metres), Animated::Yes);
    } else {
      mMap.animateCenter(next, 1200ms, nullptr);
    }
  }

  MapView& mMap;
  std::mt19937 mRandom{1};
  int mLegs = 0;
};

/// Writes a route file of 100,000 points each second, as turning a drive on does.
class RouteWrites {
 public:
  RouteWrites() {
    QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] {
      mSaves.post([this, points = RoutePoints::planned(*longLine()->coordinates)] {
        (void)RouteFile(mFiles).change({}, {{{"enable", "1"}}, points});
      });
    });
    mTimer.start(1s);
  }

 private:
  QTemporaryDir mFolder;
  SettingsFiles mFiles{mFolder.path().toStdString()};
  WorkQueue mSaves;
  QTimer mTimer;
};

int run(TimedApplication& application, int seconds, bool withLine, bool withWrites,
        const QString& picture) {
  QQuickWindow window;
  window.resize(375, 667);
  MapView map(window.contentItem());
  map.setSize({375, 667});
  map.setTileSource(std::make_shared<MapnikTileSource>(RegionStore(regionDirectories()).regions()));
  if (withLine) map.addOverlay(longLine());
  map.addAnnotation(
      std::make_shared<MapPointAnnotation>(MapPointAnnotation{kGothenburg, 1, {}, {}}));
  map.setShowsUserLocation(true);
  map.setUserLocation(Coordinate{57.708, 11.97});
  window.show();
  idleStretches(kFloorMs).print("a loop that does nothing, before");
  application.turns().forget();  // Opening a window is no panning.
  std::optional<RouteWrites> writes;
  if (withWrites) writes.emplace();
  Tour tour(map);
  QTimer::singleShot(std::chrono::seconds(seconds), &window, [&] {
    application.turns().print("the main thread's turns while panning");
    idleStretches(kFloorMs).print("a loop that does nothing, after");
    const bool isSaved = picture.isEmpty() || window.grabWindow().save(picture);
    QCoreApplication::exit(isSaved ? 0 : 1);
  });
  const int status = TimedApplication::exec();
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::printf("most memory: %.1f MB\n", static_cast<double>(usage.ru_maxrss) / 1024);
  return status;
}

}  // namespace
}  // namespace wayloom

int main(int argc, char* argv[]) {
  wayloom::TimedApplication application(argc, argv);
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addPositionalArgument("SECONDS", "How long to pan; 60 if not given.");
  parser.addOption({"line", "Show a line of 100,000 points."});
  parser.addOption({"writes", "Write a route file of 100,000 points each second."});
  parser.addOption({"picture", "Save the last frame.", "FILE"});
  parser.process(application);
  const QStringList arguments = parser.positionalArguments();
  const int seconds = arguments.isEmpty() ? 60 : arguments.first().toInt();
  return wayloom::run(application, std::max(1, seconds), parser.isSet("line"),
                      parser.isSet("writes"), parser.value("picture"));
}
