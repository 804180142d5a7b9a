#pragma once

#include <memory>

#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>
#include <QtTest/QTest>

#include "kit/AlertPresenter.h"
#include "kit/FoundItem.h"
#include "kit/ModalPresenter.h"
#include "map/TileSource.h"
#include "places/LocationClass.h"
#include "tests/support/FailingFiles.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/RecordedNotice.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {

/// Tiles of one colour, drawn at once.
class PlainTiles : public TileSource {
 public:
  QImage draw(const TileKey& /*key*/, double /*scale*/) override {
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::lightGray);
    return image;
  }
  int concurrency() const override { return 1; }
  int maximumZoom() const override { return 18; }
  QStringList attributions(double, double, double, double) const override { return {"Test"}; }
};

/// What a screen stands on in a test: real files under a root of their own, and fakes that answer
/// when the test says so. Layouts are shown off screen and touched with real events.
class ScreenHarness {
 public:
  TemporaryRoot root;
  FailingFiles system;
  SettingsFiles files{root.path(), SettingsFiles::kPatience, system};
  RecordedNotice notice{files};
  FakeGeocoder geocoder;
  FakeDefaults defaults;
  AlertPresenter alerts;
  ModalPresenter modals;
  FakePositionSource* position = nullptr;
  const bool locationIsOn = true;
  LocationClass location{fakePlatform(locationIsOn, position, geocoder, defaults, alerts)};
  std::shared_ptr<TileSource> tiles = std::make_shared<PlainTiles>();
  QQuickView view;

  /// Shows a layout of the module Wayloom.Layouts with these properties set.
  [[nodiscard]] bool show(const QString& layout, const QVariantMap& properties) {
    view.engine()->addImportPath("qrc:/qt/qml");
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setInitialProperties(properties);
    view.setSource(QUrl("qrc:/qt/qml/Wayloom/Layouts/" + layout + ".qml"));
    view.resize(375, 667);
    view.show();
    return view.status() == QQuickView::Ready && QTest::qWaitForWindowExposed(&view);
  }

  QQuickItem* find(const char* objectName) const {
    return foundItem(view.rootObject(), objectName);
  }

  static QPoint centerOf(const QQuickItem* item) {
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
  }

  void click(const char* objectName) { click(find(objectName)); }

  void click(const QQuickItem* item) {
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, centerOf(item));
  }

  /// A row of the list that fills the screen; null while it is out of sight.
  QQuickItem* row(int index) const {
    QQuickItem* item = nullptr;
    QMetaObject::invokeMethod(find("mainTableView"), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                              Q_ARG(int, index));
    return item;
  }

  void type(const QString& text) {
    for (const QChar character : text)
      QTest::sendKeyEvent(QTest::Click, &view, Qt::Key_unknown, character, Qt::NoModifier);
  }

  /// Drags by `offset` and rests before letting go, so that the map does not run on.
  void drag(const char* objectName, QPoint offset) {
    const QPoint from = centerOf(find(objectName));
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, from);
    constexpr int kSteps = 8;
    for (int step = 1; step <= kSteps; ++step) {
      QTest::mouseMove(&view, from + offset * step / kSteps, 10);
    }
    QTest::mouseMove(&view, from + offset, 300);
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, from + offset);
  }

  /// Turns the mouse wheel over a point of an item, by as many notches.
  void wheel(const char* objectName, QPointF at, int notches) {
    const QPointF point = find(objectName)->mapToScene(at);
    QWheelEvent event(point, point, {}, {0, notches * QWheelEvent::DefaultDeltasPerStep},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view, &event);
  }

  std::map<std::string, std::string> stored(SettingsFile name) const {
    return textsIn(files, name);
  }
};

}  // namespace wayloom
