#pragma once

#include <algorithm>
#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>
#include <vector>

#include <QtGui/QColor>
#include <QtTest/QTest>

#include "map/TileSource.h"

namespace wayloom {

/// Draws each tile in one colour told by its zoom, place and nothing else; keeps tiles back for as
/// long as the test wants.
class FakeTileSource : public TileSource {
 public:
  static QColor colourOf(const TileKey& key) {
    return QColor((key.zoom * 11 + 40) % 256, (key.x * 37 + 60) % 256, (key.y * 53 + 80) % 256);
  }

  ~FakeTileSource() override { EXPECT_EQ(mDrawing, 0); }

  QImage draw(const TileKey& key, double scale) override {
    std::unique_lock lock(mMutex);
    mDrawn.push_back(key);
    mMostAtOnce = std::max(mMostAtOnce, ++mDrawing);
    mChanged.wait(lock, [&] { return mHeldZoom != kEverything && mHeldZoom != key.zoom; });
    --mDrawing;
    const int pixels = static_cast<int>(512 * scale);
    QImage image(pixels, pixels, QImage::Format_RGB32);
    image.fill(colourOf(key));
    return image;
  }
  int concurrency() const override { return 2; }
  int maximumZoom() const override { return 18; }
  QStringList attributions(double west, double, double east, double) const override {
    return {QString::number(west < 0) + QString::number(east > 0)};
  }

  /// Keeps back what is asked for of this zoom, or everything.
  void hold(int zoom = kEverything) { setHeld(zoom); }
  void release() { setHeld(kNothing); }
  bool waitUntilDrawing(int count) {
    return QTest::qWaitFor([&] { return drawing() >= count; });
  }
  int drawing() const { return locked(mDrawing); }
  std::vector<TileKey> drawn() const { return locked(mDrawn); }
  int mostAtOnce() const { return locked(mMostAtOnce); }

 private:
  static constexpr int kNothing = -1, kEverything = -2;

  template <typename Value>
  Value locked(const Value& value) const {
    const std::lock_guard lock(mMutex);
    return value;
  }
  void setHeld(int zoom) {
    {
      const std::lock_guard lock(mMutex);
      mHeldZoom = zoom;
    }
    mChanged.notify_all();
  }

  mutable std::mutex mMutex;
  std::condition_variable mChanged;
  std::vector<TileKey> mDrawn;
  int mHeldZoom = kNothing;
  int mDrawing = 0;
  int mMostAtOnce = 0;
};

}  // namespace wayloom
