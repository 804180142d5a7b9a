#include <cmath>

#include <QtGui/QColor>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QTest>

namespace wayloom {
namespace {

/// How well one colour is told from another: 1 not at all, 21 black from white.
double contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& colour) {
    const auto part = [](double value) {
      return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
           0.0722 * part(colour.blueF());
  };
  const double a = luminance(one) + 0.05, b = luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

struct FlatPaletteTest : testing::Test {
  FlatPaletteTest() {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine);
    component.setData(
        "import QtQml; import Wayloom.Kit\n"
        "QtObject { property QtObject palette: FlatPalette }",
        {});
    holder.reset(component.create());
    EXPECT_TRUE(holder) << qPrintable(component.errorString());
    palette = holder->property("palette").value<QObject*>();
  }
  ~FlatPaletteTest() override { QGuiApplication::setPalette(before); }

  QColor colour(const char* role) const {
    EXPECT_TRUE(palette->property(role).isValid()) << role;
    return palette->property(role).value<QColor>();
  }

  QPalette before = QGuiApplication::palette();
  QQmlEngine engine;
  std::unique_ptr<QObject> holder;
  QObject* palette = nullptr;
};

TEST_F(FlatPaletteTest, FollowsTheDesktopWhileItRuns) {
  for (const bool dark : {true, false, true}) {
    QGuiApplication::setPalette(QPalette(dark ? QColor(30, 30, 34) : QColor(240, 240, 240)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return palette->property("dark").toBool() == dark; }));
    EXPECT_EQ(colour("surface").lightnessF() < 0.5, dark);
    EXPECT_EQ(colour("text").lightnessF() > 0.5, dark);
  }
}

TEST_F(FlatPaletteTest, TextsCanBeReadOnEveryGround) {
  struct Pair {
    const char *text, *ground;
    double least;
  };
  const Pair pairs[] = {
      {"text", "surface", 7},           {"text", "field", 7},     {"rowText", "surface", 4.5},
      {"rowText", "current", 4.5},      {"text", "current", 4.5}, {"secondaryText", "surface", 4.5},
      {"secondaryText", "field", 4.2},  {"clouds", "bar", 4.5},   {"focus", "surface", 3},
      {"turquoise", "switchGround", 3}, {"text", "pressed", 4.5},
  };
  for (const bool dark : {false, true}) {
    QGuiApplication::setPalette(QPalette(dark ? QColor(30, 30, 34) : QColor(240, 240, 240)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return palette->property("dark").toBool() == dark; }));
    for (const Pair& pair : pairs) {
      EXPECT_GE(contrast(colour(pair.text), colour(pair.ground)), pair.least)
          << pair.text << " on " << pair.ground << (dark ? ", dark" : ", light");
    }
  }
}

}  // namespace
}  // namespace wayloom
