#include "ui/ViewResizing.h"

#include <algorithm>
#include <initializer_list>

#include <QtCore/QPointer>

#include "ui/HelperOf.h"
#include "ui/ViewFrame.h"

namespace wayloom {

namespace {

/// One direction: a margin, a length, and the rest of the parent.
struct Extent {
  double margin;
  double length;
};

struct Springs {
  bool margin;
  bool length;
  bool rest;
};

Extent resizedExtent(Extent extent, double from, double to, Springs springs) {
  const double rest = from - extent.margin - extent.length;
  double sum = 0;
  int count = 0;
  bool isProportional = true;
  const auto add = [&](bool isSpring, double length) {
    if (!isSpring) return;
    sum += length;
    ++count;
    isProportional &= length >= 0;
  };
  add(springs.margin, extent.margin);
  add(springs.length, extent.length);
  add(springs.rest, rest);
  isProportional &= sum > 0;
  const auto resized = [&](bool isSpring, double length) {
    if (!isSpring) return length;
    return length + (to - from) * (isProportional ? length / sum : 1.0 / count);
  };
  return {resized(springs.margin, extent.margin),
          std::max(resized(springs.length, extent.length), 0.0)};
}

/// Keeps an item in its place in a parent that changes its size. Owned by the item.
class Resizing : public QObject {
 public:
  explicit Resizing(QQuickItem& item) : QObject(&item), mItem(item) {
    connect(&item, &QQuickItem::parentChanged, this, &Resizing::watchParent);
    watchParent();
  }

  unsigned mask() const { return mMask; }
  void setMask(unsigned mask) {
    mMask = mask;
    startFromHere();
  }

 private:
  void watchParent() {
    if (mParent) mParent->disconnect(this);
    mParent = mItem.parentItem();
    if (mParent) {
      connect(mParent, &QQuickItem::widthChanged, this, &Resizing::resize);
      connect(mParent, &QQuickItem::heightChanged, this, &Resizing::resize);
      mParentSize = mParent->size();
    }
    startFromHere();
  }

  void startFromHere() {
    mStart = mPlaced = frame(mItem);
    mStartParentSize = mParentSize;
  }

  void resize() {
    // A size has two signals.
    if (mParent->size() == mParentSize) return;
    if (frame(mItem) != mPlaced) startFromHere();
    mParentSize = mParent->size();
    // Always from the start, so that what a tiny parent cut off does not add up.
    setFrame(mItem, resizedFrame(mStart, mStartParentSize, mParentSize, mMask));
    mPlaced = frame(mItem);
  }

  QQuickItem& mItem;
  QPointer<QQuickItem> mParent;
  unsigned mMask = 0;
  QRectF mStart;
  QRectF mPlaced;
  QSizeF mStartParentSize;
  QSizeF mParentSize;
};

}  // namespace

QRectF resizedFrame(const QRectF& frame, QSizeF from, QSizeF to, unsigned mask) {
  const auto has = [mask](unsigned flag) { return (mask & flag) != 0; };
  const Extent across =
      resizedExtent({frame.x(), frame.width()}, from.width(), to.width(),
                    {has(kFlexibleLeftMargin), has(kFlexibleWidth), has(kFlexibleRightMargin)});
  const Extent down =
      resizedExtent({frame.y(), frame.height()}, from.height(), to.height(),
                    {has(kFlexibleTopMargin), has(kFlexibleHeight), has(kFlexibleBottomMargin)});
  return {across.margin, down.margin, across.length, down.length};
}

void setAutoresizingMask(QQuickItem& item, unsigned mask) {
  auto* resizing = helperOf<Resizing>(item);
  if (!resizing) resizing = new Resizing(item);
  resizing->setMask(mask);
}

unsigned autoresizingMask(const QQuickItem& item) {
  const auto* resizing = helperOf<Resizing>(item);
  return resizing ? resizing->mask() : 0;
}

void frameSetInSuperViewForFull(QQuickItem& item) {
  setAutoresizingMask(item, kFlexibleLeftMargin | kFlexibleWidth | kFlexibleRightMargin |
                                kFlexibleTopMargin | kFlexibleHeight | kFlexibleBottomMargin);
}

void frameSetInSuperViewForLeftTop(QQuickItem& item) {
  setAutoresizingMask(item, kFlexibleLeftMargin | kFlexibleBottomMargin);
}

void frameSetInSuperViewForBottom(QQuickItem& item) {
  setAutoresizingMask(item, kFlexibleBottomMargin);
}

void frameSetInSuperViewForCenter(QQuickItem& item) {
  setAutoresizingMask(item, 0);
}

void frameSetInSuperViewForLeftBottmHeightRight(QQuickItem& item) {
  setAutoresizingMask(
      item, kFlexibleLeftMargin | kFlexibleRightMargin | kFlexibleHeight | kFlexibleBottomMargin);
}

void frameSetInSuperViewForRightBottmHeightTop(QQuickItem& item) {
  setAutoresizingMask(
      item, kFlexibleRightMargin | kFlexibleTopMargin | kFlexibleHeight | kFlexibleBottomMargin);
}

}  // namespace wayloom
