// How long making an extract into a region takes, step by step, and how much memory:
//   bench_import EXTRACT [REGION_DIRECTORY]
// The regions of the directory are taken for those that are installed.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/resource.h>

#include "import/RegionImport.h"

int main(int argc, char* argv[]) {
  using namespace wayloom;
  using Clock = std::chrono::steady_clock;
  if (argc < 2) {
    std::fputs("usage: bench_import EXTRACT [REGION_DIRECTORY]\n", stderr);
    return 2;
  }
  std::string folder = (std::filesystem::temp_directory_path() / "bench-import-XXXXXX").string();
  if (!::mkdtemp(folder.data())) return 1;
  const RegionStore installed({argc > 2 ? argv[2] : folder});
  std::string step;
  const auto begin = Clock::now();
  auto stepBegin = begin;
  const auto seconds = [](Clock::time_point since) {
    return std::chrono::duration<double>(Clock::now() - since).count();
  };
  const auto region =
      importRegion(argv[1], folder, "bench", installed, [&](std::string_view name, double) {
        if (name == step) return true;
        if (!step.empty()) std::printf("%-18s %6.2f s\n", step.c_str(), seconds(stepBegin));
        step = name;
        stepBegin = Clock::now();
        return true;
      });
  const double all = seconds(begin);
  std::filesystem::remove_all(folder);
  if (!region) {
    std::fprintf(stderr, "%s\n", region.message().c_str());
    return 1;
  }
  rusage usage = {};
  ::getrusage(RUSAGE_SELF, &usage);
  std::printf("%-18s %6.2f s, %ld MB at most\n", "all", all, usage.ru_maxrss / 1024);
  return 0;
}
