#include <benchmark/benchmark.h>
#include <chrono>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <plist/plist.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "Measuring.h"
#include "route/RouteFile.h"
#include "route/RoutePosition.h"

namespace {

using namespace wayloom;

RoutePreferences routeOf(std::size_t count) {
  std::vector<Coordinate> path(count);
  for (std::size_t i = 0; i < count; ++i) {
    const auto step = static_cast<double>(i);
    path[i] = {57.7 + step * 1e-5, 11.9 - step / 3e5};
  }
  return {{{"enable", "1"}, {"start", "1700000000.000000"}, {"end", "1700003600.000000"}},
          std::make_shared<RoutePoints>(RoutePoints::planned(std::move(path)))};
}

void save(RouteFile& file, const RoutePreferences& route) {
  require(static_cast<bool>(file.change({}, {route.entries, *route.points})), "saving failed");
}

plist_t plistOf(const RoutePreferences& route) {
  plist_t root = plist_new_dict();
  plist_dict_set_item(root, "enable", plist_new_string("1"));
  plist_dict_set_item(root, "start", plist_new_string("1700000000.000000"));
  plist_dict_set_item(root, "end", plist_new_string("1700003600.000000"));
  plist_t points = plist_new_array();
  for (std::size_t i = 0; i < route.points->count(); ++i) {
    const Coordinate point = route.points->at(i);
    plist_t record = plist_new_dict();
    plist_dict_set_item(record, "lat", plist_new_real(point.latitude));
    plist_dict_set_item(record, "lng", plist_new_real(point.longitude));
    plist_array_append_item(points, record);
  }
  plist_dict_set_item(root, "points", points);
  return root;
}

/// Builds the same content and writes it as durably as a settings file is.
void writeWithLibplist(const RoutePreferences& route, const std::string& folder) {
  plist_t root = plistOf(route);
  char* text = nullptr;
  std::uint32_t length = 0;
  plist_to_xml(root, &text, &length);
  const std::string temporary = folder + "/temporary";
  const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  require(file >= 0 && ::write(file, text, length) == static_cast<ssize_t>(length), "write");
  require(::fsync(file) == 0 && ::close(file) == 0, "fsync");
  require(::rename(temporary.c_str(), (folder + "/plist").c_str()) == 0, "rename");
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
  require(::fsync(descriptor) == 0 && ::close(descriptor) == 0, "fsync of the folder");
  plist_to_xml_free(text);
  plist_free(root);
}

void readWithLibplist(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  plist_t root = nullptr;
  plist_from_xml(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
  require(root != nullptr, "libplist cannot read it");
  plist_free(root);
}

template <typename Action>
double millisecondsOf(Action action) {
  const auto begin = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
      .count();
}

/// The processor time of this thread.
double threadMilliseconds() {
  timespec time{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Ours and libplist's by turns, so that the machine's moods fall on both alike.
template <typename Ours, typename Theirs>
void compare(benchmark::State& state, Ours ours, Theirs theirs) {
  std::vector<double> our, their;
  for (auto _ : state) {
    our.push_back(millisecondsOf(ours));
    their.push_back(millisecondsOf(theirs));
  }
  state.counters["ours_ms"] = medianOf(our);
  state.counters["libplist_ms"] = medianOf(their);
  state.counters["ratio_of_medians"] = medianOf(our) / medianOf(their);
}

void BM_WriteAgainstLibplist(benchmark::State& state) {
  const Folder folder;
  SettingsFiles files(folder.path());
  RouteFile file(files);
  const auto count = static_cast<std::size_t>(state.range(0));
  const RoutePreferences route = routeOf(count);
  compare(
      // Points that were never written before: their entry is made here as well.
      state, [&] { save(file, routeOf(count)); }, [&] { writeWithLibplist(route, folder.path()); });
}
BENCHMARK(BM_WriteAgainstLibplist)->Arg(100000)->Iterations(20)->Unit(benchmark::kMillisecond);

void BM_ReadAgainstLibplist(benchmark::State& state) {
  const Folder folder;
  SettingsFiles files(folder.path());
  RouteFile file(files);
  save(file, routeOf(static_cast<std::size_t>(state.range(0))));
  const std::string path = files.path(SettingsFile::Route).string();
  compare(
      state, [&] { require(file.load()->points != nullptr, "reading failed"); },
      [&] { readWithLibplist(path); });
}
BENCHMARK(BM_ReadAgainstLibplist)->Arg(100000)->Iterations(20)->Unit(benchmark::kMillisecond);

/// What turning on and off costs the main thread itself, with points that were made ready when the
/// plan came; waiting for the disk does not count.
void BM_SwitchWithPreparedPoints(benchmark::State& state) {
  const Folder folder;
  SettingsFiles files(folder.path());
  RouteFile file(files);
  RoutePreferences route = routeOf(static_cast<std::size_t>(state.range(0)));
  (void)route.points->entry();
  std::vector<double> work;
  bool on = false;
  for (auto _ : state) {
    on = !on;
    const double begin = threadMilliseconds();
    auto changed = file.change(route, {{{"enable", on ? "1" : "0"}}, std::nullopt});
    work.push_back(threadMilliseconds() - begin);
    require(static_cast<bool>(changed), "saving failed");
    route = std::move(*changed);
  }
  state.counters["own_work_ms"] = medianOf(work);
}
BENCHMARK(BM_SwitchWithPreparedPoints)
    ->Arg(20000)
    ->Arg(100000)
    ->Iterations(40)
    ->Unit(benchmark::kMillisecond);

void BM_PositionLookup(benchmark::State& state) {
  const Folder folder;
  SettingsFiles files(folder.path());
  RouteFile file(files);
  save(file, routeOf(static_cast<std::size_t>(state.range(0))));
  const RoutePreferences route = *file.load();
  std::int32_t now = 0;
  for (auto _ : state) {
    now = (now + 7) % 3600;
    benchmark::DoNotOptimize(positionAt(1'700'000'000 + now, route));
  }
}
BENCHMARK(BM_PositionLookup)->Arg(100)->Arg(10000)->Arg(100000);

}  // namespace

BENCHMARK_MAIN();
