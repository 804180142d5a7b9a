#include <QtQml/QQmlEngine>

#include "lists/ApplicationIcons.h"
#include "lists/WhitelistViewController.h"
#include "platform/QtIconRasterizer.h"
#include "tests/support/CheckedModel.h"
#include "tests/support/FakeHomeScreen.h"
#include "tests/support/ScreenHarness.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;
/// A picture of one colour, as the home screen gives it.
std::string square(const char* colour) {
  return rasterizeIcon(std::string("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                                   "<rect width='9' height='9' fill='") +
                       colour + "'/></svg>");
}

/// The real layout under real touches and keys, and the file after them.
class WhitelistScreenTest : public testing::Test {
 protected:
  void open() {
    screen.view.engine()->addImageProvider(ApplicationIcons::providerName(),
                                           new ApplicationIcons(home));
    controller.emplace(screen.files, home, screen.root.path() / "own/sets.plist");
    checkModel(controller->appArray());
    QObject::connect(&*controller, &ModalViewController::dismissed, [this] { dismissed = true; });
    ASSERT_TRUE(screen.show("WhitelistViewController",
                            {{"controller", QVariant::fromValue(&*controller)}}));
    list = screen.find("mainTableView");
    list->forceActiveFocus();
  }
  void TearDown() override { screen.view.setSource({}); }

  void install(int count) {
    home.installed.emplace();
    for (int number = 0; number < count; ++number) {
      home.installed->push_back("app" + std::to_string(number));
    }
  }
  std::optional<Dictionary> stored() const {
    return dictionaryIn(screen.files, SettingsFile::Whitelist);
  }
  bool hasCheckmark(int index) const {
    return foundItem(screen.row(index), "checkmark")->isVisible();
  }
  /// The colour in the middle of a row's icon, once it shows what is expected.
  bool showsIcon(int index, QColor expected) {
    const QPoint middle = screen.row(index)->mapToScene({22, 22}).toPoint();
    return QTest::qWaitFor([&] { return screen.view.grabWindow().pixelColor(middle) == expected; });
  }

  ScreenHarness screen;
  FakeHomeScreen home;
  std::optional<WhitelistViewController> controller;
  QQuickItem* list = nullptr;
  bool dismissed = false;
};

TEST_F(WhitelistScreenTest, EachTouchTurnsATickOverAndIsWrittenAtOnce) {
  install(5);
  ASSERT_TRUE(screen.files.save(SettingsFile::Whitelist,
                                Dictionary{{"app1", true}, {"app2", "1"}, {"gone", 3}}));
  open();
  EXPECT_FALSE(hasCheckmark(0));
  EXPECT_TRUE(hasCheckmark(1));
  EXPECT_TRUE(hasCheckmark(2));
  screen.click(screen.row(0));
  EXPECT_TRUE(hasCheckmark(0));
  EXPECT_EQ(stored(), (Dictionary{{"app0", true}, {"app1", true}, {"app2", "1"}, {"gone", 3}}));
  screen.click(screen.row(2));
  EXPECT_FALSE(hasCheckmark(2));
  screen.click(screen.row(0));
  EXPECT_EQ(stored(), (Dictionary{{"app0", false}, {"app1", true}, {"app2", false}, {"gone", 3}}));
  EXPECT_TRUE(screen.notice.posts.empty());
  screen.click("backButton");
  EXPECT_TRUE(dismissed);
}

TEST_F(WhitelistScreenTest, TheKeyboardReachesEveryRow) {
  install(40);
  open();
  const auto press = [this](Qt::Key key) { QTest::keyClick(&screen.view, key); };
  press(Qt::Key_Space);
  EXPECT_EQ(stored(), std::nullopt) << "no row is current yet";
  for (int turn = 0; turn < 40; ++turn) press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(stored(), (Dictionary{{"app39", true}}));
  EXPECT_TRUE(QTest::qWaitFor([&] { return screen.row(39) != nullptr; })) << "it comes into view";
  for (const auto key : {Qt::Key_Up, Qt::Key_Space, Qt::Key_Space}) press(key);
  EXPECT_EQ(stored(), (Dictionary{{"app38", false}, {"app39", true}}));
  for (int turn = 0; turn < 5; ++turn) press(Qt::Key_Tab);
  EXPECT_TRUE(list->hasActiveFocus()) << "round the title bar and back";
  for (int turn = 0; turn < 4; ++turn) press(Qt::Key_Backtab);
  press(Qt::Key_Return);
  EXPECT_TRUE(dismissed);
}

TEST_F(WhitelistScreenTest, SeekingAndTickedOnlyKeepTheOrder) {
  install(12);
  home.names = {{"app3", "Maps"}, {"app7", "Road map"}};
  ASSERT_TRUE(screen.files.save(SettingsFile::Whitelist,
                                Dictionary{{"app7", true}, {"app9", true}, {"gone", true}}));
  open();
  EXPECT_EQ(controller->countText(), "2 of 12 ticked") << "of those that are installed";
  const auto shown = [&] {
    std::string all;
    for (int row = 0; row < list->property("count").toInt(); ++row) {
      all += screen.row(row)->property("appName").toString().toStdString() + ' ';
    }
    return all;
  };
  screen.click("soughtField");
  screen.type("MAP");
  EXPECT_EQ(shown(), "Maps Road map ");
  screen.click(screen.row(0));
  EXPECT_EQ(stored()->count("app3"), 1U) << "a touch means the row that is seen";
  screen.click("soughtField");
  QTest::keyClick(&screen.view, Qt::Key_Escape);
  EXPECT_EQ(list->property("count"), 12);
  EXPECT_FALSE(dismissed);
  screen.click("tickedOnlyButton");
  EXPECT_EQ(shown(), "Maps Road map app9 ");
  screen.click(screen.row(2));
  EXPECT_EQ(shown(), "Maps Road map app9 ") << "it stays in reach";
  EXPECT_EQ(controller->countText(), "2 of 12 ticked");
  screen.click("tickedOnlyButton");
  screen.click("soughtField");
  screen.type("app9");
  EXPECT_EQ(shown(), "app9 ");
  screen.type("nothing");
  EXPECT_TRUE(screen.find("emptyNote")->isVisible());
}

TEST_F(WhitelistScreenTest, SetsBringTheirTicksBack) {
  install(3);
  ASSERT_TRUE(screen.files.save(SettingsFile::Whitelist, Dictionary{{"app0", true}}));
  open();
  screen.click("setsButton");
  screen.type("Work");
  screen.click("saveSetButton");
  screen.click("setsCloseButton");
  for (const int row : {0, 1}) screen.click(screen.row(row));
  screen.click("setsButton");
  screen.click("useButton");
  EXPECT_EQ(stored(), (Dictionary{{"app0", true}, {"app1", false}}));
  EXPECT_TRUE(hasCheckmark(0));
  EXPECT_FALSE(hasCheckmark(1));
  EXPECT_FALSE(screen.find("setsPanel")->isVisible());
  screen.click("setsButton");
  screen.click("removeButton");
  EXPECT_TRUE(controller->setNames().isEmpty());
}

TEST_F(WhitelistScreenTest, NamesStayWithinTheirRowAndStandForThemselves) {
  const std::pair<std::string, std::string> cases[] = {
      {"", "app0"},
      {"two\nlines\tand \x1b[31m", "two lines and  [31m"},
      {"<b>bold</b> &amp;", "<b>bold</b> &amp;"},
      {std::string(10000, 'l'), std::string(400, 'l')},
  };
  install(std::size(cases));
  for (int i = 0; i < 4; ++i) home.names[home.installed->at(i)] = cases[i].first;
  open();
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(screen.row(i)->property("appName").toString().toStdString(), cases[i].second);
    EXPECT_EQ(screen.row(i)->height(), 44) << i;
  }
}

TEST_F(WhitelistScreenTest, IconsArriveWhateverTheyAre) {
  install(5);
  home.icons = {{"app0", square("#ff0000")},
                {"app1", square("#00ff00")},
                {"app2", "\x89PNG\r\n\x1a\nbroken"}};
  open();
  EXPECT_TRUE(showsIcon(0, QColor(255, 0, 0)));
  EXPECT_TRUE(showsIcon(1, QColor(0, 255, 0)));
  for (const int index : {2, 3, 4}) EXPECT_TRUE(showsIcon(index, QColor("#bdc3c7"))) << index;
}

}  // namespace
}  // namespace wayloom
