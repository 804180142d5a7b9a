#pragma once

#include <QtCore/QRectF>
#include <QtQuick/QQuickItem>

namespace wayloom {

// Where an item lies in its parent, in points. An item's own x, y, width, height and size, and
// their setters, belong to these.

inline QRectF frame(const QQuickItem& item) {
  return {item.position(), item.size()};
}
inline void setFrame(QQuickItem& item, const QRectF& frame) {
  item.setPosition(frame.topLeft());
  item.setSize(frame.size());
}

inline QPointF origin(const QQuickItem& item) {
  return item.position();
}
inline void setOrigin(QQuickItem& item, QPointF origin) {
  item.setPosition(origin);
}

/// The lower edge; setting it moves the item and keeps its size.
inline double tail(const QQuickItem& item) {
  return item.y() + item.height();
}
inline void setTail(QQuickItem& item, double tail) {
  item.setY(tail - item.height());
}
inline double bottom(const QQuickItem& item) {
  return tail(item);
}
inline void setBottom(QQuickItem& item, double bottom) {
  setTail(item, bottom);
}

/// The right edge; setting it moves the item and keeps its size.
inline double right(const QQuickItem& item) {
  return item.x() + item.width();
}
inline void setRight(QQuickItem& item, double right) {
  item.setX(right - item.width());
}

}  // namespace wayloom
