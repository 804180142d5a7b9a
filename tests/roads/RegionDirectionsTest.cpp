#include <memory>

#include "platform/RunLoop.h"
#include "regions/RegionWriter.h"
#include "roads/RegionDirections.h"
#include "roads/RoadGraphFile.h"
#include "tests/roads/AsciiRoads.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

using namespace std::chrono_literals;

class DirectionsOnRegionsTest : public testing::Test {
 protected:
  void SetUp() override {
    auto writer = RegionWriter::create(mFolder.path() / "a.region", {"a", "", {0, 0, 2, 2}});
    ASSERT_TRUE(writer && writeRoads(writer->database(), mRoads.network()) && writer->commit());
  }
  RegionStore store() const { return RegionStore({mFolder.path()}); }

  const AsciiRoads mRoads{{"A---B---C", "D-------E"}};
  TemporaryFolder mFolder;
  RunLoop mLoop;
};

TEST_F(DirectionsOnRegionsTest, AnswerInOrderOnTheMainThread) {
  RegionDirections directions(store(), mLoop);
  std::vector<DirectionsAnswer> answers;
  const auto keep = [&](const DirectionsAnswer& answer) {
    EXPECT_TRUE(mLoop.isMainThread());
    answers.push_back(answer);
  };
  directions.calculate({mRoads.at('A'), mRoads.at('C'), false}, keep);
  directions.calculate({mRoads.at('A'), mRoads.at('C'), false}, {});
  directions.calculate({mRoads.at('A'), {50, 50}, true}, keep);
  directions.calculate({mRoads.at('A'), mRoads.at('C'), true}, keep);
  EXPECT_TRUE(answers.empty()) << "completed within the request";
  ASSERT_TRUE(mLoop.runUntil([&] { return answers.size() == 3; }, 30s));
  ASSERT_EQ(answers[0].routes.size(), 1u);
  EXPECT_FALSE(answers[0].error);
  EXPECT_EQ(mRoads.passed(answers[0].routes[0].geometry), "ABC");
  EXPECT_NEAR(answers[0].routes[0].distanceMetres, 8 * 111.2, 1);
  // With 50 km/h, and what it takes to gain and lose them.
  EXPECT_NEAR(answers[0].routes[0].expectedSeconds, 8 * 111.2 / 50 * 3.6 + 9.6, 1);
  EXPECT_TRUE(answers[1].routes.empty());
  EXPECT_FALSE(answers[1].error.value_or("").empty());
  ASSERT_EQ(answers[2].routes.size(), 2u);
  EXPECT_EQ(mRoads.passed(answers[2].routes[1].geometry), "ADEC");
}

// Destroyed at any moment: while a question waits, is being answered, or its answer is on the way.
TEST_F(DirectionsOnRegionsTest, CompleteNothingAfterTheirEnd) {
  for (int round = 0; round < 30; ++round) {
    auto directions = std::make_unique<RegionDirections>(store(), mLoop);
    bool isOver = false;
    int early = 0;
    for (int request = 0; request < 40; ++request) {
      directions->calculate({mRoads.at('A'), mRoads.at('E'), true}, [&](const auto&) {
        EXPECT_FALSE(isOver) << "in round " << round;
        ++early;
      });
    }
    ASSERT_TRUE(mLoop.runUntil([&] { return early >= round; }, 30s));
    isOver = true;
    directions.reset();
    bool isMarkerReached = false;
    mLoop.post([&] { isMarkerReached = true; });
    ASSERT_TRUE(mLoop.runUntil([&] { return isMarkerReached; }, 30s));
  }
}

}  // namespace
}  // namespace wayloom
