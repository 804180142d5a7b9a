#include <chrono>
#include <memory>
#include <vector>

#include "platform/RunLoop.h"

namespace wayloom {
namespace {

using namespace std::chrono_literals;
constexpr auto kLimit = 30s;

TEST(RunLoopTest, FiresTimersByDelayAndOnlyOnce) {
  RunLoop loop;
  std::vector<char> fired;
  const auto late = loop.schedule(20ms, [&] { fired.push_back('c'); });
  const auto soon = loop.schedule(1ms, [&] { fired.push_back('a'); });
  const auto equal = loop.schedule(1ms, [&] { fired.push_back('b'); });
  const auto last = loop.schedule(30ms, [&] { fired.push_back('d'); });
  EXPECT_TRUE(loop.runUntil([&] { return fired.size() > 3; }, kLimit));
  EXPECT_THAT(fired, testing::ElementsAre('a', 'b', 'c', 'd'));
}

TEST(RunLoopTest, DropsACancelledTimerAndLetsATimerCancelItself) {
  RunLoop loop;
  int fired = 0;
  auto cancelled = loop.schedule(1ms, [&] { fired += 100; });
  std::unique_ptr<MainQueue::Timer> own;
  auto witness = std::make_shared<int>(7);
  own = loop.schedule(2ms, [&, witness] {
    own.reset();
    fired += *witness;
  });
  cancelled.reset();
  EXPECT_TRUE(loop.runUntil([&] { return fired != 0; }, kLimit));
  EXPECT_EQ(fired, 7);
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
