#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <system_error>
#include <unistd.h>

#include "cli/Commands.h"
#include "cli/Table.h"
#include "import/RegionImport.h"
#include "regions/OwnRegions.h"
#include "regions/RegionDirectories.h"

namespace wayloom {

namespace {

namespace fs = std::filesystem;

constexpr char kNoFolder[] =
    "there is no folder for regions of your own: set HOME, or name one with --regions";

volatile std::sig_atomic_t isInterrupted = 0;

void interrupt(int) {
  isInterrupted = 1;
}

/// While it lives, an interruption is noted and does not end the program.
class InterruptionGuard {
 public:
  InterruptionGuard() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, interrupt);
  }
  ~InterruptionGuard() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, SIG_DFL);
  }
  InterruptionGuard(const InterruptionGuard&) = delete;
  InterruptionGuard& operator=(const InterruptionGuard&) = delete;
};

/// One line on a terminal that says how far the work has come, and is gone with it.
class ProgressLine {
 public:
  ~ProgressLine() {
    if (mIsShown) std::fputs("\r\033[K", stderr);
  }

  void show(std::string_view step, double share) {
    const int percent = static_cast<int>(100 * std::clamp(share, 0.0, 1.0));
    if (!mIsTerminal || (step == mStep && percent == mPercent)) return;
    mIsShown = true;
    mStep = step;
    mPercent = percent;
    std::fprintf(stderr, "\r\033[K%s %d %%", mStep.c_str(), percent);
    std::fflush(stderr);
  }

 private:
  const bool mIsTerminal = ::isatty(STDERR_FILENO) == 1;
  bool mIsShown = false;
  std::string mStep;
  int mPercent = -1;
};

double megabytes(const fs::path& path) {
  std::error_code error;
  const auto bytes = fs::file_size(path, error);
  return error ? 0 : static_cast<double>(bytes) / 1e6;
}

std::string sizeText(const fs::path& path) {
  const long tenths = std::lround(megabytes(path) * 10);
  return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " MB";
}

std::vector<std::string> cellsOf(const Region& region) {
  return {region.path.stem().string(), sizeText(region.path), region.info.name,
          region.path.string()};
}

nlohmann::json toJson(const Region& region) {
  const RegionBounds& bounds = region.info.bounds;
  return {{"name", region.info.name},
          {"path", region.path.string()},
          {"megabytes", megabytes(region.path)},
          {"attribution", region.info.attribution},
          {"west", bounds.west},
          {"south", bounds.south},
          {"east", bounds.east},
          {"north", bounds.north}};
}

}  // namespace

ExitStatus listRegions(CommandLine& line) {
  Table table;
  for (const Region& region : line.regions().regions()) table.add(cellsOf(region), toJson(region));
  return line.answer(
      std::move(table).orNote("no regions are installed; add one with 'region import FILE'"));
}

ExitStatus importRegionFile(CommandLine& line, const std::string& file,
                            const std::optional<std::string>& name) {
  const auto folder = ownRegionDirectory(line.options().regions);
  if (!folder) return line.fail(kNoFolder);
  const auto region = [&] {
    const InterruptionGuard guard;
    ProgressLine shown;
    return importRegion(file, *folder, name.value_or(extractStem(file)), line.regions(),
                        [&](std::string_view step, double share) {
                          shown.show(step, share);
                          return isInterrupted == 0;
                        });
  }();
  if (!region) return line.fail(file + " is not imported: " + region.message());
  return line.answer({tableRow(cellsOf(*region)), toJson(*region)});
}

ExitStatus removeRegion(CommandLine& line, const std::string& name) {
  const auto folder = ownRegionDirectory(line.options().regions);
  if (!folder) return line.fail(kNoFolder);
  const auto removed = removeRegion(*folder, name, line.regions());
  if (!removed) return line.fail(removed.message() + "; see 'wayloomctl region list'");
  return line.answer({"Removed " + removed->string(), {{"removed", removed->string()}}});
}

}  // namespace wayloom
