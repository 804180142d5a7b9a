#include <QtTest/QAbstractItemModelTester>

#include "lists/FavoritesViewController.h"
#include "tests/support/ScreenHarness.h"

namespace wayloom {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

PropertyList entry(const std::string& name, const char* latitude, const char* longitude) {
  return Dictionary{{"name", name}, {"latitude", latitude}, {"longitude", longitude}};
}

constexpr auto kFatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
const Array kPlaces{entry("Home", "1.000000", "2.000000"), entry("Work", "3.000000", "4.000000"),
                    entry("Cinema", "5.000000", "6.000000")};

/// The real layout under real touches, and the files after them.
class FavoritesScreenTest : public testing::Test, public FavoritesDelegate {
 protected:
  void open(const Array& places) {
    if (!places.empty()) {
      ASSERT_TRUE(screen.files.save(SettingsFile::Favorites, places));
    }
    controller.emplace(screen.files, *this);
    new QAbstractItemModelTester(controller->favorites(), kFatal, controller->favorites());
    QObject::connect(&*controller, &ModalViewController::dismissed, [this] {
      happened.push_back("dismissed at " + screen.stored(SettingsFile::Location)["latitude"]);
    });
    ASSERT_TRUE(screen.show("FavoritesViewController",
                            {{"controller", QVariant::fromValue(&*controller)}}));
    list = screen.find("mainTableView");
    list->forceActiveFocus();
  }
  void TearDown() override { screen.view.setSource({}); }
  void favoritesDidSelected() override { happened.emplace_back("selected"); }

  Array stored() const { return arrayIn(screen.files, SettingsFile::Favorites).value_or(Array()); }
  QQuickItem* row(int index) const { return screen.row(index); }
  void clickOn(const QQuickItem* item) { screen.click(item); }
  QQuickItem* part(int index, const char* name) const { return foundItem(row(index), name); }
  void swipeLeft(int index) {
    const QPoint from = ScreenHarness::centerOf(row(index));
    QTest::mousePress(&screen.view, Qt::LeftButton, Qt::NoModifier, from);
    for (int x = 10; x <= 120; x += 10) QTest::mouseMove(&screen.view, from - QPoint(x, 0), 5);
    QTest::mouseRelease(&screen.view, Qt::LeftButton, Qt::NoModifier, from - QPoint(120, 0));
    waitForOpen(index);
  }
  void waitForOpen(int index) {
    ASSERT_TRUE(QTest::qWaitFor([&] {
      auto* swipe = row(index)->property("swipe").value<QObject*>();
      return swipe->property("complete").toBool();
    }));
  }
  /// The first row has stood in its place for a while: none is sliding any more.
  void waitUntilSettled() {
    int turns = 0;
    ASSERT_TRUE(QTest::qWaitFor([&] {
      turns = row(0)->y() == 0 ? turns + 1 : 0;
      return turns > 20;
    }));
  }
  int count() const { return list->property("count").toInt(); }
  QString editTitle() const { return screen.find("editButton")->property("text").toString(); }

  ScreenHarness screen;
  std::optional<FavoritesViewController> controller;
  QQuickItem* list = nullptr;
  std::vector<std::string> happened;
};

TEST_F(FavoritesScreenTest, ATouchWritesTheLocationThenDismissesThenTells) {
  open(kPlaces);
  clickOn(row(1));
  EXPECT_EQ(screen.stored(SettingsFile::Location),
            (std::map<std::string, std::string>{
                {"enable", "1"}, {"latitude", "3.000000"}, {"longitude", "4.000000"}}));
  EXPECT_EQ(happened, (std::vector<std::string>{"dismissed at 3.000000", "selected"}));
  EXPECT_TRUE(screen.notice.posts.empty());
  EXPECT_EQ(stored(), kPlaces);
}

TEST_F(FavoritesScreenTest, ASwipeShowsDeleteAndUndoPutsTheEntryBack) {
  open(kPlaces);
  swipeLeft(1);
  EXPECT_EQ(stored(), kPlaces) << "a swipe alone deletes nothing";
  clickOn(part(1, "deleteButton"));
  EXPECT_EQ(stored(), (Array{kPlaces[0], kPlaces[2]}));
  EXPECT_EQ(count(), 2);
  ASSERT_TRUE(QTest::qWaitFor([&] { return screen.find("undoButton")->isVisible(); }));
  screen.click("undoButton");
  EXPECT_EQ(stored(), kPlaces);
  EXPECT_EQ(count(), 3);
  EXPECT_TRUE(happened.empty());
}

TEST_F(FavoritesScreenTest, EditModeDeletesDownToAnEmptyArrayAndStays) {
  open(kPlaces);
  EXPECT_EQ(editTitle(), "Edit");
  screen.click("editButton");
  EXPECT_EQ(editTitle(), "Done");
  clickOn(row(0));
  EXPECT_TRUE(happened.empty()) << "rows are not chosen while editing";
  for (int left = 2; left >= 0; --left) {
    waitUntilSettled();
    clickOn(part(0, "deleteMark"));
    waitForOpen(0);
    clickOn(part(0, "deleteButton"));
    ASSERT_EQ(count(), left);
  }
  EXPECT_EQ(arrayIn(screen.files, SettingsFile::Favorites), Array());
  EXPECT_TRUE(screen.find("editButton")->isEnabled());
  EXPECT_EQ(editTitle(), "Done");
  EXPECT_TRUE(QTest::qWaitFor([&] { return screen.find("emptyNote")->isVisible(); }));
  screen.click("editButton");
  EXPECT_EQ(editTitle(), "Edit");
}

TEST_F(FavoritesScreenTest, WithoutFavouritesEditIsDisabled) {
  open({});
  EXPECT_FALSE(screen.find("editButton")->isEnabled());
  EXPECT_TRUE(screen.find("emptyNote")->isVisible());
  for (const auto key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Delete}) {
    QTest::keyClick(&screen.view, key);
  }
  EXPECT_TRUE(happened.empty());
  screen.click("backButton");
  EXPECT_EQ(happened.size(), 1U);
}

TEST_F(FavoritesScreenTest, TroublesomeNamesStayOnOneShortLine) {
  std::string cars;
  for (int i = 0; i < 10000; ++i) cars += "\U0001F697";
  open({Dictionary{}, true, entry("two\nlines\u2028three", "1", "2"),
        entry("\u05E9\u05DC\u05D5\u05DD \u202Eabc", "1", "2"), entry(cars, "1", "2")});
  const QAbstractItemModel& model = *controller->favorites();
  const auto name = [&](int index) { return model.index(index, 0).data().toString(); };
  EXPECT_EQ(name(0), "");
  EXPECT_EQ(name(1), "");
  EXPECT_EQ(name(2), "two lines three");
  EXPECT_EQ(name(3), QString::fromUtf8("\u05E9\u05DC\u05D5\u05DD \u202Eabc"));
  EXPECT_LE(name(4).size(), 400);
  EXPECT_FALSE(name(4).contains(QChar::ReplacementCharacter));
  for (int index = 0; index < 5; ++index) EXPECT_EQ(row(index)->height(), 44) << index;
}

TEST_F(FavoritesScreenTest, AHundredThousandRowsMakeOnlyTheRowsOnScreen) {
  open(Array(100000, kPlaces[0]));
  EXPECT_EQ(count(), 100000);
  for (const double place : {0.5, 1.0}) {
    list->setProperty("contentY", place * (100000 * 44 - list->height()));
    QTest::qWait(1);
    EXPECT_LT(list->property("contentItem").value<QQuickItem*>()->childItems().size(), 60);
  }
  clickOn(row(99999));
  EXPECT_EQ(happened.size(), 2U);
}

}  // namespace
}  // namespace wayloom
