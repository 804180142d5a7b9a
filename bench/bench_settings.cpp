#include <benchmark/benchmark.h>
#include <chrono>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "Measuring.h"
#include "settings/PropertyListFormat.h"
#include "settings/SettingsFiles.h"
#include "settings/TextConversions.h"

namespace {

using namespace wayloom;

/// What the user's every move of the map does to the file.
void moveCenter(SettingsFiles& files, double degrees) {
  std::optional<PropertyList::Dictionary> settings = *files.loadLocationSettings();
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

/// Both operations by turns, so that the disk's moods fall on both alike.
void BM_CenterMovedAgainstBareReplacement(benchmark::State& state) {
  const Folder folder;
  SettingsFiles files(folder.path());
  require(static_cast<bool>(files.saveLocationSettings(PropertyList::Dictionary{
              {"enable", "1"}, {"latitude", "0"}, {"longitude", "0"}, {"a", "1"}, {"s", "0.5"}})),
          "saving failed");
  moveCenter(files, 1);
  const std::string bytes =
      *serializePropertyList(PropertyList(**files.loadLocationSettings())).bytes;
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

}  // namespace

BENCHMARK_MAIN();
