#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/import/OsmText.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

// Whatever the import is at, it ends at once, says so and leaves nothing.
TEST(InterruptionTest, EndsAnImportAtOnce) {
  const TemporaryFolder sources, regions;
  OsmText town;
  for (int row = 0; row < 1500; ++row) {
    for (int column = 0; column < 10; ++column) town.node(row * 10 + column);
  }
  for (int way = 0; way < 14900; ++way) {
    town.way(way, {way, way + 1, way + 11}, {{"highway", "primary"}, {"name", "Weg"}});
  }
  const std::string extract = sources.path() / "town.osm";
  town.write(extract);
  std::mt19937 random(5);
  for (int round = 0; round < 8; ++round) {
    const int signal = round % 2 == 0 ? SIGINT : SIGTERM;
    const pid_t child = ::fork();
    if (child == 0) {
      std::freopen("/dev/null", "w", stderr);
      ::execl(WAYLOOMCTL, "wayloomctl", "--regions", regions.path().c_str(), "region", "import",
              extract.c_str(), nullptr);
      ::_exit(99);
    }
    // Until the program has begun, a signal ends it as any other.
    ::usleep(100000 + random() % 900000);
    const auto begin = std::chrono::steady_clock::now();
    ::kill(child, signal);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    if (std::filesystem::exists(regions.path() / "town.region")) {
      EXPECT_EQ(WEXITSTATUS(status), 0) << "it was finished before";
      std::filesystem::remove(regions.path() / "town.region");
    } else {
      const int ended = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
      EXPECT_EQ(ended, 128 + signal);
    }
    EXPECT_TRUE(std::filesystem::is_empty(regions.path())) << "round " << round;
    EXPECT_LT(taken.count(), 2) << "on the busiest machine";
  }
}

}  // namespace
}  // namespace wayloom
