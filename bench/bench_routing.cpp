// How long planning a drive takes in Gothenburg: the first one after the start, when the roads are
// still in the file, and those after it between places all over the city.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <random>
#include <vector>

#include "roads/EvenRecords.h"
#include "roads/Router.h"

namespace wayloom {
namespace {

struct Drive {
  Coordinate from;
  Coordinate to;
};

std::vector<Drive> drives() {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> latitude(57.66, 57.75);
  std::uniform_real_distribution<double> longitude(11.88, 12.04);
  const auto anywhere = [&] { return Coordinate{latitude(random), longitude(random)}; };
  std::vector<Drive> drives;
  for (int count = 0; count < 1000; ++count) {
    const Coordinate from = anywhere();
    drives.push_back({from, anywhere()});
  }
  return drives;
}

void plan(benchmark::State& state) {
  Router router(RegionStore({WAYLOOM_REGION_DIR}));
  if (!router.plan({57.7, 11.97}, {57.71, 11.95})) {
    state.SkipWithError("no roads in " WAYLOOM_REGION_DIR);
    return;
  }
  const auto asked = drives();
  std::vector<double> milliseconds;
  int unanswered = 0;
  for (auto _ : state) {
    unanswered = 0;
    for (const Drive& drive : asked) {
      const auto start = std::chrono::steady_clock::now();
      auto routes = router.plan(drive.from, drive.to, static_cast<int>(state.range(0)));
      if (routes && state.range(1) == 1) std::for_each(routes->begin(), routes->end(), spaceEvenly);
      const std::chrono::duration<double, std::milli> taken =
          std::chrono::steady_clock::now() - start;
      // Refusals are quick and would flatter the figures.
      if (routes) {
        milliseconds.push_back(taken.count());
      } else {
        ++unanswered;
      }
    }
  }
  if (milliseconds.empty()) return;
  std::sort(milliseconds.begin(), milliseconds.end());
  state.counters["p50_ms"] = milliseconds[milliseconds.size() / 2];
  state.counters["p99_ms"] = milliseconds[milliseconds.size() * 99 / 100];
  state.counters["max_ms"] = milliseconds.back();
  state.counters["unanswered"] = unanswered;
}
BENCHMARK(plan)
    ->ArgNames({"alternates", "evenly"})
    ->Args({0, 0})
    ->Args({2, 0})
    ->Args({0, 1})
    ->Args({2, 1})
    ->Unit(benchmark::kMillisecond);

void firstPlan(benchmark::State& state) {
  for (auto _ : state) {
    Router router(RegionStore({WAYLOOM_REGION_DIR}));
    benchmark::DoNotOptimize(router.plan({57.67, 11.9}, {57.74, 12.02}));
  }
}
BENCHMARK(firstPlan)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace wayloom

BENCHMARK_MAIN();
