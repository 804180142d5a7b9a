// How long a tile takes that was never drawn before, zoom by zoom, on the way from the whole world
// over Europe into Gothenburg. Prints one line for each zoom:
//   bench_tiles REGION_DIRECTORY [TILES_PER_ZOOM]

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include <QtGui/QGuiApplication>

#include "geo/WebMercator.h"
#include "map/MapnikTileSource.h"

namespace {

using namespace wayloom;
using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Of this thread; other programs on the machine do not count.
double processorMilliseconds() {
  timespec time = {};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// The tiles around a place, nearest first.
std::vector<TileKey> tilesAround(Coordinate place, int zoom, std::size_t count) {
  const int across = 1 << zoom;
  const WorldPoint centre = worldPoint(place);
  const double x = centre.x * across;
  const double y = centre.y * across;
  std::vector<TileKey> keys;
  for (int dy = -4; dy <= 4; ++dy) {
    for (int dx = -4; dx <= 4; ++dx) {
      const TileKey key{zoom, static_cast<int>(x) + dx, static_cast<int>(y) + dy};
      if (key.x >= 0 && key.y >= 0 && key.x < across && key.y < across) keys.push_back(key);
    }
  }
  const auto distance = [&](const TileKey& key) {
    return std::hypot(key.x + 0.5 - x, key.y + 0.5 - y);
  };
  std::stable_sort(keys.begin(), keys.end(),
                   [&](const TileKey& a, const TileKey& b) { return distance(a) < distance(b); });
  keys.resize(std::min(count, keys.size()));
  return keys;
}

Coordinate placeAt(int zoom) {
  if (zoom < 6) return {50, 10};
  return {57.7053, 11.9681};
}

double percentile(const std::vector<double>& sorted, double share) {
  return sorted[static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1))];
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 2) {
    std::fputs("usage: bench_tiles REGION_DIRECTORY [TILES_PER_ZOOM]\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  const std::size_t count = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 30;
  const RegionStore store({argv[1]});

  auto start = Clock::now();
  MapnikTileSource source(store.regions());
  const double opened = millisecondsSince(start);
  start = Clock::now();
  if (source.draw({1, 0, 0}, 1).isNull()) return 1;
  std::printf("opened in %.1f ms, first tile in %.1f ms\n", opened, millisecondsSince(start));

  for (int zoom = 0; zoom <= source.maximumZoom(); ++zoom) {
    std::vector<double> times;
    std::vector<double> busy;
    for (const TileKey& key : tilesAround(placeAt(zoom), zoom, count)) {
      const double before = processorMilliseconds();
      start = Clock::now();
      if (source.draw(key, 1).isNull()) return 1;
      times.push_back(millisecondsSince(start));
      busy.push_back(processorMilliseconds() - before);
    }
    std::sort(times.begin(), times.end());
    std::sort(busy.begin(), busy.end());
    std::printf(
        "zoom %2d  tiles %2zu  p50 %6.1f ms  p95 %6.1f ms  processor p50 %6.1f ms  p95 %6.1f ms\n",
        zoom, times.size(), percentile(times, 0.5), percentile(times, 0.95), percentile(busy, 0.5),
        percentile(busy, 0.95));
  }
  return 0;
}
