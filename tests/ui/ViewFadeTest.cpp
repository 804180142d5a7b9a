#include <memory>
#include <string>
#include <vector>

#include <QtCore/QElapsedTimer>
#include <QtTest/QTest>

#include "ui/ViewFade.h"

namespace wayloom {
namespace {

bool waitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition);
}

TEST(ViewFadeTest, EndsWhatItInterrupts) {
  const struct {
    std::string fades;
    bool isVisible;
  } cases[] = {{"sh", false}, {"hs", true}, {"ss", true}, {"hh", false}, {"hshs", true}};
  for (const auto& test : cases) {
    QQuickItem item;
    std::string ended;
    for (const char kind : test.fades) {
      const auto complete = [&ended, kind] { ended += kind; };
      if (kind == 's') {
        fadeShowAnimationDuration(item, 0.03, complete);
      } else {
        fadeHideAnimationDuration(item, 0.03, complete);
      }
    }
    EXPECT_EQ(ended, "") << test.fades;
    EXPECT_TRUE(waitFor([&] { return ended.size() == test.fades.size(); })) << test.fades;
    EXPECT_EQ(ended, test.fades);
    EXPECT_EQ(item.isVisible(), test.isVisible) << test.fades;
    EXPECT_EQ(item.opacity(), 1) << test.fades;
  }
}

TEST(ViewFadeTest, EndsWithItsItem) {
  int completions = 0;
  auto item = std::make_unique<QQuickItem>();
  fadeShowAnimationDuration(*item, 0.01, [&] { ++completions; });
  fadeHideAnimationDuration(*item, 0.01, [&] { ++completions; });
  item.reset();
  bool isLater = false;
  QQuickItem other;
  fadeShowAnimationDuration(other, 0.03, [&] { isLater = true; });
  ASSERT_TRUE(waitFor([&] { return isLater; }));
  EXPECT_EQ(completions, 0);

  auto last = std::make_unique<QQuickItem>();
  fadeHideAnimationDuration(*last, 0.01, [&] { last.reset(); });
  EXPECT_TRUE(waitFor([&] { return !last; })) << "destroyed by its completion";
}

}  // namespace
}  // namespace wayloom
