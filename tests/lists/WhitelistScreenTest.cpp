#include <QtQml/QQmlEngine>
#include <QtTest/QAbstractItemModelTester>

#include "lists/ApplicationIcons.h"
#include "lists/WhitelistViewController.h"
#include "platform/QtIconRasterizer.h"
#include "tests/support/FakeHomeScreen.h"
#include "tests/support/ScreenHarness.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;
constexpr auto kFatal = QAbstractItemModelTester::FailureReportingMode::Fatal;

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
    controller.emplace(screen.files, home);
    new QAbstractItemModelTester(controller->appArray(), kFatal, controller->appArray());
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
      home.names[home.installed->back()] = "Application " + std::to_string(number);
    }
  }
  std::optional<Dictionary> stored() const {
    return dictionaryIn(screen.files, SettingsFile::Whitelist);
  }
  QQuickItem* row(int index) const { return screen.row(index); }
  QString nameIn(int index) const { return row(index)->property("appName").toString(); }
  bool hasCheckmark(int index) const { return foundItem(row(index), "checkmark")->isVisible(); }
  void clickOn(int index) { screen.click(row(index)); }
  /// The colour in the middle of a row's icon, once it shows what is expected.
  bool showsIcon(int index, QColor expected) {
    const QPoint middle = row(index)->mapToScene({22, 22}).toPoint();
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
  clickOn(0);
  EXPECT_TRUE(hasCheckmark(0));
  EXPECT_EQ(stored(), (Dictionary{{"app0", true}, {"app1", true}, {"app2", "1"}, {"gone", 3}}));
  clickOn(2);
  EXPECT_FALSE(hasCheckmark(2));
  clickOn(0);
  EXPECT_EQ(stored(), (Dictionary{{"app0", false}, {"app1", true}, {"app2", false}, {"gone", 3}}));
  EXPECT_TRUE(screen.notice.posts.empty());
  screen.click("backButton");
  EXPECT_TRUE(dismissed);
}

TEST_F(WhitelistScreenTest, TheKeyboardReachesEveryRow) {
  install(40);
  open();
  QTest::keyClick(&screen.view, Qt::Key_Space);
  EXPECT_EQ(stored(), std::nullopt) << "no row is current yet";
  for (int turn = 0; turn < 40; ++turn) QTest::keyClick(&screen.view, Qt::Key_Down);
  QTest::keyClick(&screen.view, Qt::Key_Return);
  EXPECT_EQ(stored(), (Dictionary{{"app39", true}}));
  EXPECT_TRUE(QTest::qWaitFor([&] { return row(39) != nullptr; })) << "it comes into view";
  QTest::keyClick(&screen.view, Qt::Key_Up);
  QTest::keyClick(&screen.view, Qt::Key_Space);
  QTest::keyClick(&screen.view, Qt::Key_Space);
  EXPECT_EQ(stored(), (Dictionary{{"app38", false}, {"app39", true}}));
  QTest::keyClick(&screen.view, Qt::Key_Tab);
  QTest::keyClick(&screen.view, Qt::Key_Tab);
  EXPECT_TRUE(list->hasActiveFocus()) << "round the title bar and back";
  QTest::keyClick(&screen.view, Qt::Key_Backtab);
  QTest::keyClick(&screen.view, Qt::Key_Return);
  EXPECT_TRUE(dismissed);
}

TEST_F(WhitelistScreenTest, WithoutApplicationsItSaysSo) {
  open();
  EXPECT_TRUE(screen.find("emptyNote")->isVisible());
  for (const auto key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Space}) {
    QTest::keyClick(&screen.view, key);
  }
  EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(WhitelistScreenTest, IconsArriveWhateverTheyAre) {
  install(5);
  home.icons = {{"app0", square("#ff0000")},
                {"app1", square("#00ff00")},
                {"app2", "\x89PNG\r\n\x1a\nbroken"},
                {"app3", "no picture"}};
  open();
  EXPECT_TRUE(showsIcon(0, QColor(255, 0, 0)));
  EXPECT_TRUE(showsIcon(1, QColor(0, 255, 0)));
  for (const int index : {2, 3, 4}) EXPECT_TRUE(showsIcon(index, QColor("#bdc3c7"))) << index;
}

TEST_F(WhitelistScreenTest, NamesOfAnyKindStayWithinTheirRow) {
  const std::string words = "long name ";
  std::string endless;
  while (endless.size() < 10000) endless += words;
  const struct {
    std::string name;
    QString shown;
  } cases[] = {
      {"", "app0"},
      {"\u200b\u200d\u202e", "app1"},
      {"two\nlines\tand \x1b[31m", "two lines and  [31m"},
      {"\u202eדפי", "\u202eדפי"},
      {"<b>bold</b> &amp;", "<b>bold</b> &amp;"},
      {endless, QString::fromStdString(endless).left(400)},
      {"\xff\xfe", "\uFFFD\uFFFD"},
  };
  install(std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i)
    home.names[home.installed->at(i)] = cases[i].name;
  open();
  for (int index = 0; index < static_cast<int>(std::size(cases)); ++index) {
    EXPECT_EQ(nameIn(index), cases[index].shown) << index;
    EXPECT_EQ(row(index)->height(), 44) << index;
    clickOn(index);
    EXPECT_TRUE(hasCheckmark(index)) << index;
  }
  EXPECT_EQ(stored()->size(), std::size(cases));
}

}  // namespace
}  // namespace wayloom
