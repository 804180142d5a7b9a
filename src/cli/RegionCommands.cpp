#include <algorithm>
#include <atomic>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <system_error>
#include <thread>
#include <unistd.h>

#include "cli/Commands.h"
#include "cli/Table.h"
#include "cli/TextForms.h"
#include "import/RegionImport.h"
#include "regions/OwnRegions.h"
#include "regions/RegionDirectories.h"
#include "regions/RegionWriter.h"

namespace wayloom {

namespace {

namespace fs = std::filesystem;

constexpr char kNoFolder[] =
    "there is no folder for regions of your own: set HOME, or name one with --regions";

/// While it lives, an interruption ends the program at once and leaves nothing of an import that is
/// not finished. It must be there before any other thread, which then leave the signals to it.
class InterruptionWatch {
 public:
  explicit InterruptionWatch(std::string farewell) : mFarewell(std::move(farewell)) {
    sigemptyset(&mSignals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, kOver}) sigaddset(&mSignals, signal);
    pthread_sigmask(SIG_BLOCK, &mSignals, &mBefore);
    mThread = std::thread([this] { watch(); });
  }
  ~InterruptionWatch() {
    mIsOver = true;
    pthread_kill(mThread.native_handle(), kOver);
    mThread.join();
    pthread_sigmask(SIG_SETMASK, &mBefore, nullptr);
  }
  InterruptionWatch(const InterruptionWatch&) = delete;
  InterruptionWatch& operator=(const InterruptionWatch&) = delete;

 private:
  static constexpr int kOver = SIGUSR1;

  void watch() const {
    while (!mIsOver) {
      int signal = 0;
      sigwait(&mSignals, &signal);
      if (signal == kOver || !RegionWriter::abandonAll()) continue;
      std::fputs(mFarewell.c_str(), stderr);
      leaveClearingUp();
      ::_exit(kFirstSignalStatus + signal);
    }
  }

  // Gives back memory and unwritten pages by hundreds of megabytes, for which nobody should wait: a
  // child that holds them as well ends last.
  static void leaveClearingUp() {
    if (::fork() != 0) return;
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) ::close(stream);
    ::_exit(0);
  }

  // As shells count.
  static constexpr int kFirstSignalStatus = 128;

  const std::string mFarewell;
  sigset_t mSignals{};
  sigset_t mBefore{};
  std::atomic<bool> mIsOver{false};
  std::thread mThread;
};

/// One line on a terminal that says how far the work has come, and is gone with it.
class ProgressLine {
 public:
  ~ProgressLine() {
    if (mIsShown) std::fputs(kClear, stderr);
  }

  /// What ends the line.
  std::string end() const { return mIsTerminal ? kClear : ""; }

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
  static constexpr char kClear[] = "\r\033[K";

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

// A line for each thing of the extract that is not in the region.
std::string textOf(const ImportReport& report) {
  std::string text;
  const auto add = [&](std::size_t count, const std::string& what) {
    if (count > 0) text += "\n" + std::to_string(count) + ' ' + what;
  };
  std::string examples;
  for (const std::string& each : report.gaps.examples) {
    examples += (examples.empty() ? "" : ", ") + each;
  }
  add(report.gaps.missingNodes,
      "nodes are not in the file and cut their ways: " + examples +
          (report.gaps.missingNodes > report.gaps.examples.size() ? " and others" : ""));
  add(report.gaps.unclearConditions,
      "restrictions of turns have conditions that are not understood");
  add(report.faults.unfitRestrictions, "restrictions of turns fit no roads and are left out");
  add(report.faults.unjoinedRoads, "ends of roads are not joined, since too many meet");
  return text;
}

nlohmann::json toJson(const ImportReport& report) {
  return {{"missing_nodes", report.gaps.missingNodes},
          {"missing_nodes_examples", report.gaps.examples},
          {"unclear_conditions", report.gaps.unclearConditions},
          {"unfit_restrictions", report.faults.unfitRestrictions},
          {"unjoined_roads", report.faults.unjoinedRoads}};
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
  ImportReport report;
  const std::string refusal = file + " is not imported: ";
  const auto region = [&] {
    ProgressLine shown;
    const InterruptionWatch watch(shown.end() + "wayloomctl: " + oneLine(refusal) +
                                  "interrupted\n");
    return importRegion(
        file, *folder, name.value_or(extractStem(file)), line.regions(),
        [&](std::string_view step, double share) {
          shown.show(step, share);
          return true;
        },
        &report);
  }();
  if (!region) return line.fail(refusal + region.message());
  nlohmann::json json = toJson(*region);
  json["left_out"] = toJson(report);
  return line.answer({tableRow(cellsOf(*region)) + textOf(report), std::move(json)});
}

ExitStatus removeRegion(CommandLine& line, const std::string& name) {
  const auto folder = ownRegionDirectory(line.options().regions);
  if (!folder) return line.fail(kNoFolder);
  const auto removed = removeRegion(*folder, name, line.regions());
  if (!removed) return line.fail(removed.message() + "; see 'wayloomctl region list'");
  return line.answer({"Removed " + removed->string(), {{"removed", removed->string()}}});
}

}  // namespace wayloom
