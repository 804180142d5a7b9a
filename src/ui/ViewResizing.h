#pragma once

#include <QtCore/QRectF>
#include <QtQuick/QQuickItem>

namespace wayloom {

// How an item follows the size of its parent. Margins and sizes named in a mask are springs, the
// others are struts. Main thread.

inline constexpr unsigned kFlexibleLeftMargin = 1;
inline constexpr unsigned kFlexibleWidth = 2;
inline constexpr unsigned kFlexibleRightMargin = 4;
inline constexpr unsigned kFlexibleTopMargin = 8;
inline constexpr unsigned kFlexibleHeight = 16;
inline constexpr unsigned kFlexibleBottomMargin = 32;

/// Where `frame` goes when its parent's size changes. Springs share the change in proportion to
/// their lengths; if one is negative or none has a length, in equal parts. Without a spring, the
/// left or upper margin and the size stay. No size becomes negative.
QRectF resizedFrame(const QRectF& frame, QSizeF from, QSizeF to, unsigned mask);

/// Lets the item follow the size of its parent, now and after it has got another. An item squeezed
/// by a small parent finds back when the parent grows, unless something else moved it meanwhile.
void setAutoresizingMask(QQuickItem& item, unsigned mask);
/// 0 if none was set.
unsigned autoresizingMask(const QQuickItem& item);

/// All six.
void frameSetInSuperViewForFull(QQuickItem& item);
/// Left and bottom margin.
void frameSetInSuperViewForLeftTop(QQuickItem& item);
/// Bottom margin.
void frameSetInSuperViewForBottom(QQuickItem& item);
/// None.
void frameSetInSuperViewForCenter(QQuickItem& item);
/// Left, right and bottom margin, and height.
void frameSetInSuperViewForLeftBottmHeightRight(QQuickItem& item);
/// Right, top and bottom margin, and height.
void frameSetInSuperViewForRightBottmHeightTop(QQuickItem& item);

}  // namespace wayloom
