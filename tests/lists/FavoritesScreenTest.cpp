
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
  bool isClosed(int index) const {
    const auto* swipe = screen.row(index)->property("swipe").value<QObject*>();
    return swipe->property("position").toReal() == 0 && !swipe->property("complete").toBool();
  }
  /// The first row has stood in its place for a while: none is sliding any more.
  void waitUntilSettled() {
    int turns = 0;
    ASSERT_TRUE(QTest::qWaitFor([&] {
      turns = screen.row(0)->y() == 0 && isClosed(0) ? turns + 1 : 0;
      return turns > 20;
    }));
  }
  std::string names() const {
    std::string all;
    const auto entries = arrayIn(screen.files, SettingsFile::Favorites).value_or(Array());
    for (const PropertyList& entry : entries) {
      all.append(Favorites::nameOf(entry)) += ' ';
    }
    return all;
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

PropertyList named(const std::string& name) {
  return Dictionary{{"name", name}, {"latitude", "1.000000"}, {"longitude", "2.000000"}};
}

TEST_F(FavoritesScreenTest, ANameIsTypedInItsRow) {
  open({named("a"), named("b")});
  screen.click("editButton");
  const auto field = [&](int index) { return part(index, "nameField"); };
  const auto begin = [&](int index) {
    screen.click(part(index, "nameLabel"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return field(index)->hasActiveFocus(); }));
  };
  begin(0);
  screen.type("Work");
  QTest::keyClick(&screen.view, Qt::Key_Return);
  EXPECT_EQ(names(), "Work b ");
  EXPECT_TRUE(list->hasActiveFocus());
  begin(0);
  screen.type("X");
  QTest::keyClick(&screen.view, Qt::Key_Escape);
  EXPECT_EQ(names(), "Work b ") << "Escape restores";
  EXPECT_EQ(happened, "") << "and the screen stays";
  begin(0);
  screen.type("Y");
  begin(1);
  EXPECT_EQ(names(), "Y b ") << "another row was touched";
  screen.type(" ");
  screen.click("editButton");
  EXPECT_EQ(names(), "Y b ") << "no name is refused";
  EXPECT_NE(controller->statusText(), "");
  screen.click("editButton");
  begin(1);
  screen.type("Z");
  ASSERT_TRUE(
      screen.files.save(SettingsFile::Favorites, Array{named("new"), named("Y"), named("b")}));
  controller->followFiles();
  EXPECT_EQ(controller->renamedRow(), 2) << "the row moved on";
  ASSERT_TRUE(screen.files.save(SettingsFile::Favorites, Array{named("new"), named("c")}));
  QTest::keyClick(&screen.view, Qt::Key_Return);
  EXPECT_EQ(names(), "new c ") << "what was changed elsewhere is left alone";
  EXPECT_NE(controller->statusText(), "");
  EXPECT_EQ(count(), 2);
}

TEST_F(FavoritesScreenTest, ATouchElsewhereClosesTheOpenRowWhoseNameStays) {
  open({named("a"), named("b")});
  screen.click("editButton");
  const QPointF before = part(0, "nameLabel")->mapToScene({0, 0});
  screen.click(part(0, "deleteMark"));
  waitForOpen(0);
  EXPECT_EQ(part(0, "nameLabel")->mapToScene({0, 0}), before);
  for (const QQuickItem* elsewhere : {screen.row(1), screen.find("editButton")}) {
    screen.click(elsewhere);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isClosed(0); }));
    EXPECT_EQ(editTitle(), "Done") << "the touch did no more";
    EXPECT_EQ(controller->renamedRow(), -1);
    screen.click(part(0, "deleteMark"));
    waitForOpen(0);
  }
  screen.click(part(0, "deleteButton"));
  EXPECT_EQ(names(), "b ");
}

TEST_F(FavoritesScreenTest, RowsAreSortedByGripAndByKeyAndBackAgain) {
  open({named("a"), named("b"), named("c"), named("d")});
  screen.click("editButton");
  const auto dragRow = [&](int from, double rows) {
    const QPoint grip = screen.centerOf(part(from, "grip"));
    QTest::mousePress(&screen.view, Qt::LeftButton, Qt::NoModifier, grip);
    for (int step = 1; step <= 4; ++step) {
      QTest::mouseMove(&screen.view, grip + QPoint(0, static_cast<int>(rows * 44 * step / 4)));
    }
    QTest::mouseRelease(&screen.view, Qt::LeftButton, Qt::NoModifier,
                        grip + QPoint(0, static_cast<int>(rows * 44)));
  };
  dragRow(0, 2.1);
  EXPECT_EQ(names(), "b c a d ");
  dragRow(3, -20);
  EXPECT_EQ(names(), "d b c a ");
  dragRow(1, 0.4);
  EXPECT_EQ(names(), "d b c a ");
  list->forceActiveFocus();
  list->setProperty("currentIndex", 0);
  QTest::keyClick(&screen.view, Qt::Key_Down, Qt::AltModifier);
  QTest::keyClick(&screen.view, Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(names(), "b c d a ");
  EXPECT_EQ(list->property("currentIndex").toInt(), 2) << "the moved row stays current";
  QTest::keyClick(&screen.view, Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(names(), "b d c a ");
  for (int step = 0; step < 5; ++step) controller->undo();
  EXPECT_EQ(names(), "a b c d ");
  EXPECT_FALSE(controller->undoShown());
}

TEST_F(FavoritesScreenTest, FilesComeAndGo) {
  open({});
  const auto file = (screen.root.path() / "places.gpx").string();
  const auto type = [&](const char* button) {
    screen.click(button);
    screen.type(QString::fromStdString(file));
    screen.click("fileOkButton");
  };
  type("importButton");
  EXPECT_TRUE(controller->statusIsFailure()) << "there is no such file";
  writeBytes(file, "<gpx><wpt lat='1' lon='2'><name>a</name></wpt></gpx>");
  type("importButton");
  EXPECT_EQ(names(), "a ");
  EXPECT_EQ(controller->statusText(), "1 added, 0 were there before");
  std::filesystem::remove(file);
  controller->edit();
  screen.view.grabWindow();  // The buttons take their places.
  type("exportButton");
  EXPECT_EQ(controller->statusText(), "1 exported");
  controller->importFile(QUrl::fromLocalFile(QString::fromStdString(file)).toString());
  EXPECT_EQ(controller->statusText(), "0 added, 1 were there before");
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
