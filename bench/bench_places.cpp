// How long the place index takes over all default regions: a person types, and a map comes to rest.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <string>
#include <vector>

#include "regions/PlaceIndex.h"

namespace wayloom {
namespace {

// What people look for, in the forms in which they write it.
const std::vector<std::string> kWanted = {
    "Paris",
    "Paris, Texas",
    "London",
    "New York",
    "San Francisco",
    "São Paulo",
    "sao paulo brazil",
    "Springfield Illinois",
    "Saint Petersburg",
    "Santiago de Chile",
    "Mexico City",
    "Los Angeles, California",
    "Göteborg",
    "gothenburg sweden",
    "drottninggatan göteborg",
    "Göteborg Vasagatan",
    "Kungsportsavenyn",
    "Drottninggatan 5, 411 14 Göteborg",
    "Första Långgatan, Göteborg",
    "Tønder",
    "Łódź",
    "Reykjavík",
    "Zürich, Switzerland",
    "Frankfurt am Main",
    "United States",
    "Western Australia",
    "Île-de-France",
    "Vaduz Liechtenstein",
    "La Paz",
    "El Salvador",
    "Санкт-Петербург",
    "東京",
};

// Every text that stands in the search field while a wanted one is typed, with and without a slip
// of the finger that finds nothing.
std::vector<std::string> typedTexts() {
  std::vector<std::string> texts;
  for (const std::string& wanted : kWanted) {
    for (std::size_t size = 1; size <= wanted.size(); ++size) {
      texts.push_back(wanted.substr(0, size));
    }
    std::string slip = wanted;
    std::swap(slip[slip.size() / 2], slip[slip.size() / 2 - 1]);
    texts.push_back(slip);
    texts.push_back(wanted + " xq");
  }
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    for (const char* next : {"", "a", "e", "o", "an", "ar"}) {
      texts.push_back(std::string(1, letter).append(next));
    }
  }
  return texts;
}

std::vector<Coordinate> positions() {
  std::vector<Coordinate> positions;
  for (double latitude = 57.62; latitude < 57.76; latitude += 0.01) {
    for (double longitude = 11.85; longitude < 12.06; longitude += 0.01) {
      positions.push_back({latitude, longitude});
    }
  }
  for (double latitude = -89; latitude < 90; latitude += 7.3) {
    for (double longitude = -180; longitude < 180; longitude += 11.7) {
      positions.push_back({latitude, longitude});
    }
  }
  for (const Coordinate city : {Coordinate{35.68, 139.69}, {52.37, 4.9}, {23.81, 90.41}}) {
    for (int step = 0; step < 30; ++step) {
      positions.push_back({city.latitude + step * 0.01, city.longitude + step * 0.013});
    }
  }
  return positions;
}

// Asks once for everything and tells the median and the slowest hundredth in milliseconds.
template <typename Questions, typename Ask>
void measure(benchmark::State& state, const Questions& questions, const Ask& ask) {
  auto index = PlaceIndex::open(RegionStore({WAYLOOM_REGION_DIR}));
  if (!index || index->search("Paris", std::nullopt).empty()) {
    state.SkipWithError("no default regions in " WAYLOOM_REGION_DIR);
    return;
  }
  std::vector<double> milliseconds;
  for (auto _ : state) {
    for (const auto& question : questions) {
      const auto start = std::chrono::steady_clock::now();
      benchmark::DoNotOptimize(ask(*index, question));
      const std::chrono::duration<double, std::milli> taken =
          std::chrono::steady_clock::now() - start;
      milliseconds.push_back(taken.count());
    }
  }
  std::sort(milliseconds.begin(), milliseconds.end());
  state.counters["questions"] = static_cast<double>(questions.size());
  state.counters["p50_ms"] = milliseconds[milliseconds.size() / 2];
  state.counters["p99_ms"] = milliseconds[milliseconds.size() * 99 / 100];
  state.counters["max_ms"] = milliseconds.back();
}

void search(benchmark::State& state) {
  measure(state, typedTexts(), [](PlaceIndex& index, const std::string& text) {
    return index.search(text, std::nullopt);
  });
}
BENCHMARK(search)->Unit(benchmark::kMillisecond);

void searchNearby(benchmark::State& state) {
  measure(state, typedTexts(), [](PlaceIndex& index, const std::string& text) {
    return index.search(text, Coordinate{57.7, 11.97});
  });
}
BENCHMARK(searchNearby)->Unit(benchmark::kMillisecond);

void suggest(benchmark::State& state) {
  measure(state, typedTexts(), [](PlaceIndex& index, const std::string& text) {
    return index.suggest(text, Coordinate{57.7, 11.97}, 8);
  });
}
BENCHMARK(suggest)->Unit(benchmark::kMillisecond);

void placeAt(benchmark::State& state) {
  measure(state, positions(),
          [](PlaceIndex& index, Coordinate position) { return index.placeAt(position); });
}
BENCHMARK(placeAt)->Unit(benchmark::kMillisecond);

void openIndex(benchmark::State& state) {
  for (auto _ : state) {
    auto index = PlaceIndex::open(RegionStore({WAYLOOM_REGION_DIR}));
    benchmark::DoNotOptimize(index);
  }
}
BENCHMARK(openIndex)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace wayloom

BENCHMARK_MAIN();
