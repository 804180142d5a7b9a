#include "lists/ApplicationList.h"
#include "tests/support/FakeHomeScreen.h"

namespace wayloom {
namespace {

using testing::ElementsAre;

TEST(ApplicationListTest, KeepsOrderTwinsAndWhatHasNeitherNameNorIcon) {
  FakeHomeScreen home;
  home.installed = {"z", "com.example.Maps", "com.example.maps", "z"};
  home.running = {"z"};
  home.names = {{"com.example.Maps", "Maps"}, {"z", "Zoo"}};
  home.icons = {{"com.example.Maps", "png"}};
  EXPECT_THAT(*ApplicationList::currentRunningAppBundle(home), ElementsAre("z"));
  const auto models = ApplicationList::installedAppModel(home);
  ASSERT_TRUE(models);
  std::vector<std::string> seen;
  for (const ApplicationModel& model : *models) {
    const auto png = [](const auto& icon) { return icon ? icon->png : std::string("none"); };
    seen.push_back(model.appBundle + "|" + model.appName + "|" + png(model.appIcon) + "|" +
                   png(model.appIconBig));
  }
  EXPECT_THAT(seen, ElementsAre("z|Zoo|none|none", "com.example.Maps|Maps|png|png",
                                "com.example.maps||none|none", "z|Zoo|none|none"));
  EXPECT_EQ(ApplicationModel::appIconWithBundle(home, "com.example.Maps", 2)->scale, 2);
}

TEST(ApplicationListTest, WithoutAListThereAreNoModels) {
  const FakeHomeScreen home;
  EXPECT_EQ(ApplicationList::installedAppModel(home).has_value(), false);
  EXPECT_THAT(ApplicationList::desktopAppsFromDictionary({{"b", 1}, {"a", false}}),
              ElementsAre("a", "b"));
}

}  // namespace
}  // namespace wayloom
