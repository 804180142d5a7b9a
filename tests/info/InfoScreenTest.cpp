#include "info/InfoViewController.h"
#include "tests/support/FakeHomeScreen.h"
#include "tests/support/ScreenHarness.h"

namespace wayloom {
namespace {

class RecordedAddresses : public AddressOpener {
 public:
  void open(const std::string& address) override { opened.push_back(address); }
  std::vector<std::string> opened;
};

/// The real layout under real touches.
class InfoScreenTest : public testing::Test {
 protected:
  void open(const QString& version, const std::string& language) {
    controller.emplace(InfoViewController::Services{.files = screen.files,
                                                    .homeScreen = home,
                                                    .addresses = addresses,
                                                    .modals = screen.modals,
                                                    .version = version,
                                                    .preferredLanguage = language,
                                                    .maker = {"mailto:a", "shop:b", "site:c"}});
    QObject::connect(&*controller, &ModalViewController::dismissed, [this] { dismissed = true; });
    ASSERT_TRUE(
        screen.show("InfoViewController", {{"controller", QVariant::fromValue(&*controller)}}));
  }
  void TearDown() override { screen.view.setSource({}); }

  ScreenHarness screen;
  FakeHomeScreen home;
  RecordedAddresses addresses;
  std::optional<InfoViewController> controller;
  bool dismissed = false;
};

TEST_F(InfoScreenTest, ItsButtonsLeadToWhitelistAuthorAndMaker) {
  open("1.2.3", "en");
  EXPECT_EQ(screen.find("titleLabel")->property("text"), "Wayloom 1.2.3");
  screen.click("contactButton");
  screen.click("visitButton");
  EXPECT_EQ(addresses.opened, (std::vector<std::string>{"mailto:a", "site:c"}));
  EXPECT_EQ(screen.modals.count(), 0);
  screen.find("backButton")->forceActiveFocus();
  QTest::keyClick(&screen.view, Qt::Key_Tab);
  QTest::keyClick(&screen.view, Qt::Key_Return);
  ASSERT_EQ(screen.modals.count(), 1);
  const QModelIndex top = screen.modals.index(0);
  const QHash<int, QByteArray> roles = screen.modals.roleNames();
  EXPECT_EQ(screen.modals.data(top, roles.key("layout")), "WhitelistViewController");
  EXPECT_EQ(screen.modals.data(top, roles.key("transition")).value<ModalPresenter::Transition>(),
            ModalPresenter::Transition::Slide);
  EXPECT_FALSE(dismissed);
  screen.click("backButton");
  EXPECT_TRUE(dismissed);
}

TEST_F(InfoScreenTest, OnlyTheExactNameOfSimplifiedChineseLeadsToTheShop) {
  const std::pair<const char*, const char*> cases[] = {
      {"zh-Hans", "shop:b"}, {"zh-Hans-CN", "site:c"}, {"ZH-HANS", "site:c"}, {"", "site:c"}};
  for (const auto& [language, address] : cases) {
    open("1", language);
    addresses.opened.clear();
    screen.click("visitButton");
    EXPECT_EQ(addresses.opened, std::vector<std::string>{address}) << language;
    screen.view.setSource({});
  }
}

}  // namespace
}  // namespace wayloom
