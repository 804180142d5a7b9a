#include <chrono>
#include <memory>
#include <string>

#include "platform/RunLoop.h"

namespace wayloom {
namespace {

using namespace std::chrono_literals;
constexpr auto kLoopLimit = 30s;

TEST(RunLoopTest, FiresTimersByDelayOnlyOnceAndNoCancelledOne) {
  RunLoop loop;
  std::string fired;
  auto cancelled = loop.schedule(1ms, [&] { fired += 'x'; });
  const auto late = loop.schedule(20ms, [&] { fired += 'c'; });
  const auto soon = loop.schedule(1ms, [&] { fired += 'a'; });
  const auto equal = loop.schedule(1ms, [&] { fired += 'b'; });
  std::unique_ptr<MainQueue::Timer> own;
  auto witness = std::make_shared<char>('d');
  own = loop.schedule(30ms, [&, witness] {
    own.reset();
    fired += *witness;
  });
  cancelled.reset();
  EXPECT_TRUE(loop.runUntil([&] { return fired.size() > 3; }, kLoopLimit));
  EXPECT_EQ(fired, "abcd");
  EXPECT_EQ(witness.use_count(), 1) << "the loop still holds the work of a timer that fired";
}

TEST(RunLoopTest, AHandleMayOutliveItsLoop) {
  std::unique_ptr<MainQueue::Timer> timer;
  auto witness = std::make_shared<int>();
  {
    RunLoop loop;
    timer = loop.schedule(1h, [witness] {});
    loop.post([witness] { ADD_FAILURE() << "ran after the loop"; });
  }
  timer.reset();
  EXPECT_EQ(witness.use_count(), 1);
}

}  // namespace
}  // namespace wayloom
