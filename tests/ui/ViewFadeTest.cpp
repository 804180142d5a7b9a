#include <QtTest/QTest>

#include "ui/ViewFade.h"

namespace wayloom {
namespace {

TEST(ViewFadeTest, EndsWhatItInterrupts) {
  const std::pair<std::string, bool> cases[] = {
      {"sh", false}, {"hs", true}, {"ss", true}, {"hh", false}, {"hshs", true}};
  for (const auto& [fades, isVisible] : cases) {
    QQuickItem item;
    std::string ended;
    for (const char kind : fades) {
      const auto fade = kind == 's' ? fadeShowAnimationDuration : fadeHideAnimationDuration;
      fade(item, 0.03, [&ended, kind] { ended += kind; });
    }
    EXPECT_EQ(ended, "") << fades;
    const std::size_t wanted = fades.size();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended.size() == wanted; })) << fades;
    EXPECT_EQ(ended, fades);
    EXPECT_EQ(item.isVisible(), isVisible) << fades;
    EXPECT_EQ(item.opacity(), 1) << fades;
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
  ASSERT_TRUE(QTest::qWaitFor([&] { return isLater; }));
  EXPECT_EQ(completions, 0);

  auto last = std::make_unique<QQuickItem>();
  fadeHideAnimationDuration(*last, 0.01, [&] { last.reset(); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return !last; })) << "destroyed by its completion";
}

}  // namespace
}  // namespace wayloom
