#include "StallMeter.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace wayloom {

namespace {

constexpr double kStallMs = 16;
constexpr double kWorthNotingMs = 1;

double readClockMs(clockid_t clock) {
  timespec time{};
  clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// The kernel's count of how long this thread stood in the queue for a processor.
double readQueuedMs() {
  thread_local const int file = open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC);
  char text[96];
  const ssize_t size = file < 0 ? -1 : pread(file, text, sizeof text - 1, 0);
  if (size <= 0) return 0;
  text[size] = 0;
  char* second = text;
  std::strtoull(text, &second, 10);
  return static_cast<double>(std::strtoull(second, nullptr, 10)) / 1e6;
}

void printColumn(const char* what, std::vector<double> times) {
  std::sort(times.begin(), times.end());
  const auto over = times.end() - std::upper_bound(times.begin(), times.end(), kStallMs);
  std::printf(
      "  %-22s longest %6.1f  99.9%% %5.1f  99%% %5.1f  median %5.2f  over %g ms: %td of %zu\n",
      what, times.back(), times[times.size() * 999 / 1000], times[times.size() * 99 / 100],
      times[times.size() / 2], kStallMs, over, times.size());
}

}  // namespace

ThreadTime ThreadTime::now() {
  return {readClockMs(CLOCK_MONOTONIC), readClockMs(CLOCK_THREAD_CPUTIME_ID), readQueuedMs()};
}

ThreadTime& ThreadTime::operator+=(const ThreadTime& other) {
  clockMs += other.clockMs;
  workMs += other.workMs;
  queuedMs += other.queuedMs;
  return *this;
}

ThreadTime operator-(const ThreadTime& end, const ThreadTime& start) {
  return {end.clockMs - start.clockMs, end.workMs - start.workMs, end.queuedMs - start.queuedMs};
}

void StallMeter::print(const std::string& title) const {
  std::printf("%s, ms\n", title.c_str());
  if (mStretches.empty()) {
    std::printf("  nothing worth noting\n");
    return;
  }
  std::vector<double> clock, work, queued, waited;
  for (const ThreadTime& stretch : mStretches) {
    clock.push_back(stretch.clockMs);
    work.push_back(stretch.workMs);
    queued.push_back(stretch.queuedMs);
    waited.push_back(stretch.waitedMs());
  }
  printColumn("by the clock", std::move(clock));
  printColumn("of work", std::move(work));
  printColumn("queueing for a CPU", std::move(queued));
  printColumn("waiting", std::move(waited));
}

StallMeter idleStretches(double milliseconds) {
  StallMeter meter;
  ThreadTime last = ThreadTime::now();
  const double endMs = last.clockMs + milliseconds;
  while (last.clockMs < endMs) {
    const ThreadTime now = ThreadTime::now();
    const ThreadTime stretch = now - last;
    if (stretch.clockMs > kWorthNotingMs) meter.add(stretch);
    last = now;
  }
  return meter;
}

}  // namespace wayloom
