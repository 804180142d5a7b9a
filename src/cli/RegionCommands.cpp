#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <system_error>
#include <unistd.h>

#include "cli/Commands.h"
#include "cli/TextForms.h"
#include "import/RegionImport.h"
#include "regions/RegionDirectories.h"

namespace wayloom {

namespace {

namespace fs = std::filesystem;

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

// Where this user's regions stand; those that come with the program stand elsewhere.
fs::path ownFolder(const CommandLine& line) {
  return regionDirectories(line.options().regions).front();
}

double megabytes(const fs::path& path) {
  std::error_code error;
  const auto bytes = fs::file_size(path, error);
  return error ? 0 : static_cast<double>(bytes) / 1e6;
}

std::string sizeText(const fs::path& path) {
  const long tenths = std::lround(megabytes(path) * 10);
  return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " MB";
}

Answer answerOf(const Region& region) {
  const RegionBounds& bounds = region.info.bounds;
  return {region.path.stem().string() + '\t' + sizeText(region.path) + '\t' +
              oneLine(region.info.name) + '\t' + region.path.string(),
          {{"name", region.info.name},
           {"path", region.path.string()},
           {"megabytes", megabytes(region.path)},
           {"attribution", region.info.attribution},
           {"west", bounds.west},
           {"south", bounds.south},
           {"east", bounds.east},
           {"north", bounds.north}}};
}

}  // namespace

ExitStatus listRegions(CommandLine& line) {
  Answer all{"", nlohmann::json::array()};
  for (const Region& region : line.regions().regions()) {
    const Answer one = answerOf(region);
    all.text += (all.text.empty() ? "" : "\n") + one.text;
    all.json.push_back(one.json);
  }
  if (all.text.empty()) all.text = "No regions in " + ownFolder(line).string();
  return line.answer(all);
}

ExitStatus importRegionFile(CommandLine& line, const std::string& file,
                            const std::optional<std::string>& givenName) {
  const std::string name = givenName.value_or(extractStem(file));
  const RegionStore& installed = line.regions();
  const bool hides = std::any_of(
      installed.regions().begin(), installed.regions().end(), [&](const Region& region) {
        return region.path.stem() == name && region.path.parent_path() != ownFolder(line);
      });
  if (hides) {
    return line.fail(
        "the region " + name +
        " comes with the program and would be hidden: choose another name with --name");
  }
  const auto region = [&] {
    const InterruptionGuard guard;
    ProgressLine shown;
    return importRegion(file, ownFolder(line), name, installed,
                        [&](std::string_view step, double share) {
                          shown.show(step, share);
                          return isInterrupted == 0;
                        });
  }();
  if (!region) return line.fail(file + " is not imported: " + region.message());
  return line.answer(answerOf(*region));
}

ExitStatus removeRegion(CommandLine& line, const std::string& name) {
  if (const auto status = checkRegionName(name); !status) return line.fail(status.message());
  const fs::path path = ownFolder(line) / (name + kRegionExtension);
  std::error_code error;
  if (fs::remove(path, error))
    return line.answer({"Removed " + path.string(), {{"removed", path.string()}}});
  if (error) return line.fail(path.string() + " cannot be removed: " + error.message());
  const auto& regions = line.regions().regions();
  const bool isGiven = std::any_of(regions.begin(), regions.end(), [&](const Region& region) {
    return region.path.stem() == name;
  });
  return line.fail(isGiven ? "the region " + name + " comes with the program and stays"
                           : "there is no region " + name + "; see 'wayloomctl region list'");
}

}  // namespace wayloom
