#pragma once

#include <string>
#include <vector>

namespace wayloom {

/// What a stretch of the calling thread's time went on, in milliseconds.
struct ThreadTime {
  double clockMs = 0;   // By the clock on the wall.
  double workMs = 0;    // On a processor, as the kernel counts it.
  double queuedMs = 0;  // Able to run, but the processors were with others.

  static ThreadTime now();

  /// Neither at work nor in the queue: for other threads, locks, files.
  double waitedMs() const { return clockMs - workMs - queuedMs; }
  ThreadTime& operator+=(const ThreadTime& other);
  friend ThreadTime operator-(const ThreadTime& end, const ThreadTime& start);
};

/// Collects stretches in which one thread could answer nobody, and prints the longest of them.
class StallMeter {
 public:
  void add(const ThreadTime& stretch) { mStretches.push_back(stretch); }
  void forget() { mStretches.clear(); }
  void print(const std::string& title) const;

 private:
  std::vector<ThreadTime> mStretches;
};

/// The stretches over a millisecond of a thread that does nothing but look at the clock for so
/// long. What they show, the machine takes from every program. Where that is a virtual one, its
/// host takes time that no counter of the kernel tells from work or from waiting.
StallMeter idleStretches(double milliseconds);

}  // namespace wayloom
