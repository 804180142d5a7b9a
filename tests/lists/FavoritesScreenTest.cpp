
#include "lists/FavoritesViewController.h"
#include "tests/support/CheckedModel.h"
#include "tests/support/ScreenHarness.h"

namespace wayloom {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

const PropertyList kPlace =
    Dictionary{{"name", "Home"}, {"latitude", "1.000000"}, {"longitude", "2.000000"}};

/// The real layout under real touches, and the files after them.
class FavoritesScreenTest : public testing::Test, public FavoritesDelegate {
 protected:
  void open(const Array& places) {
    if (!places.empty()) {
      ASSERT_TRUE(screen.files.save(SettingsFile::Favorites, places));
    }
    controller.emplace(screen.files, *this);
    checkModel(controller->favorites());
    QObject::connect(&*controller, &ModalViewController::dismissed,
                     [this] { happened += "dismissed at " + latitude() + ' '; });
    ASSERT_TRUE(screen.show("FavoritesViewController",
                            {{"controller", QVariant::fromValue(&*controller)}}));
    list = screen.find("mainTableView");
    list->forceActiveFocus();
  }
  void TearDown() override { screen.view.setSource({}); }
  void favoritesDidSelected() override { happened += "selected"; }
  std::string latitude() const { return screen.stored(SettingsFile::Location)["latitude"]; }

  QQuickItem* part(int index, const char* name) const { return foundItem(screen.row(index), name); }
  void waitForOpen(int index) {
    ASSERT_TRUE(QTest::qWaitFor([&] {
      auto* swipe = screen.row(index)->property("swipe").value<QObject*>();
      return swipe->property("complete").toBool();
    }));
  }
  /// The first row has stood in its place for a while: none is sliding any more.
  void waitUntilSettled() {
    int turns = 0;
    ASSERT_TRUE(QTest::qWaitFor([&] {
      turns = screen.row(0)->y() == 0 ? turns + 1 : 0;
      return turns > 20;
    }));
  }
  int count() const { return list->property("count").toInt(); }
  QString editTitle() const { return screen.find("editButton")->property("text").toString(); }

  ScreenHarness screen;
  std::optional<FavoritesViewController> controller;
  QQuickItem* list = nullptr;
  std::string happened;
};

TEST_F(FavoritesScreenTest, EditModeDeletesDownToAnEmptyArrayAndStays) {
  open(Array(3, kPlace));
  EXPECT_EQ(editTitle(), "Edit");
  screen.click("editButton");
  EXPECT_EQ(editTitle(), "Done");
  screen.click(screen.row(0));
  EXPECT_EQ(happened, "") << "rows are not chosen while editing";
  for (int left = 2; left >= 0; --left) {
    waitUntilSettled();
    screen.click(part(0, "deleteMark"));
    waitForOpen(0);
    screen.click(part(0, "deleteButton"));
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
  EXPECT_EQ(happened, "");
  screen.click("backButton");
  EXPECT_EQ(happened, "dismissed at  ");
}

TEST_F(FavoritesScreenTest, AHundredThousandRowsMakeOnlyTheRowsOnScreen) {
  open(Array(100000, kPlace));
  EXPECT_EQ(count(), 100000);
  for (const double place : {0.5, 1.0}) {
    list->setProperty("contentY", place * (100000 * 44 - list->height()));
    QTest::qWait(1);
    EXPECT_LT(list->property("contentItem").value<QQuickItem*>()->childItems().size(), 60);
  }
  screen.click(screen.row(99999));
  EXPECT_EQ(happened, "dismissed at 1.000000 selected") << "written, then dismissed, then told";
}

}  // namespace
}  // namespace wayloom
