#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <stdlib.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "settings/PropertyListFormat.h"
#include "settings/SettingsFiles.h"
#include "settings/TextConversions.h"

namespace {

using namespace wayloom;
namespace fs = std::filesystem;

/// A folder of its own, removed when the program ends.
class Folder {
 public:
  Folder() : mPath("wayloom-bench-XXXXXX") {
    if (::mkdtemp(mPath.data()) == nullptr) {
      std::perror("cannot create a folder here");
      std::exit(1);
    }
  }
  ~Folder() { fs::remove_all(mPath); }
  const std::string& path() const { return mPath; }

 private:
  std::string mPath;
};

void require(bool done, const char* what) {
  if (!done) {
    std::perror(what);
    std::exit(1);
  }
}

/// What the user's every move of the map does to the file.
void moveCenter(SettingsFiles& files, double degrees) {
  std::optional<PropertyList::Dictionary> settings = files.loadLocationSettings();
  (*settings)["longitude"] = formatReal(degrees);
  (*settings)["latitude"] = formatReal(degrees / 2);
  require(static_cast<bool>(files.saveLocationSettings(settings)), "saving failed");
}

/// The least that replacing the same bytes durably can cost.
void replaceBare(const std::string& folder, const std::string& bytes) {
  const std::string temporary = folder + "/temporary";
  const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0644);
  require(file >= 0, "open");
  require(::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()), "write");
  require(::fsync(file) == 0 && ::close(file) == 0, "fsync");
  require(::rename(temporary.c_str(), (folder + "/bare").c_str()) == 0, "rename");
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
  require(::fsync(descriptor) == 0 && ::close(descriptor) == 0, "fsync of the folder");
}

template <typename Action>
double microsecondsOf(Action action) {
  const auto begin = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin)
      .count();
}

double medianOf(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// Both operations by turns, so that the disk's moods fall on both alike.
void BM_CenterMovedAgainstBareReplacement(benchmark::State& state) {
  const Folder folder;
  SettingsFiles files(folder.path());
  require(static_cast<bool>(files.saveLocationSettings(PropertyList::Dictionary{
              {"enable", "1"}, {"latitude", "0"}, {"longitude", "0"}, {"a", "1"}, {"s", "0.5"}})),
          "saving failed");
  moveCenter(files, 1);
  const std::string bytes =
      *serializePropertyList(PropertyList(*files.loadLocationSettings())).bytes;
  std::vector<double> moved;
  std::vector<double> bare;
  double degrees = 0;
  for (auto _ : state) {
    degrees = degrees < 179 ? degrees + 0.001 : 0;
    moved.push_back(microsecondsOf([&] { moveCenter(files, degrees); }));
    bare.push_back(microsecondsOf([&] { replaceBare(folder.path(), bytes); }));
  }
  state.counters["moved_us"] = medianOf(moved);
  state.counters["bare_us"] = medianOf(bare);
  state.counters["ratio_of_medians"] = medianOf(moved) / medianOf(bare);
}
BENCHMARK(BM_CenterMovedAgainstBareReplacement)->Iterations(1000)->Unit(benchmark::kMicrosecond);

PropertyList routeOf(std::int64_t points) {
  PropertyList::Array list;
  for (std::int64_t i = 0; i < points; ++i) {
    const auto step = static_cast<double>(i);
    list.push_back(
        PropertyList::Dictionary{{"lat", 57.7 + step * 1e-5}, {"lng", 11.9 - step / 3e5}});
  }
  return PropertyList::Dictionary{{"enable", "1"}, {"points", list}};
}

void BM_ReadRoute(benchmark::State& state) {
  const std::string bytes = *serializePropertyList(routeOf(state.range(0))).bytes;
  for (auto _ : state) {
    benchmark::DoNotOptimize(parsePropertyList(bytes).value);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(BM_ReadRoute)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_WriteRoute(benchmark::State& state) {
  const PropertyList route = routeOf(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(serializePropertyList(route).bytes);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_WriteRoute)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
