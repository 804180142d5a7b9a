#pragma once

#include <memory>

#include <QtGui/QColor>
#include <QtQuick/QQuickPaintedItem>

namespace wayloom {

/// A plain rectangle: a background colour (clear at first), corners that may be round, and a border
/// drawn inside its edge. Made by one of its factories and owned by the caller until it is given a
/// QObject parent. Main thread.
class View : public QQuickPaintedItem {
  Q_OBJECT

 public:
  explicit View(QQuickItem* parent = nullptr);

  static std::unique_ptr<View> view();
  static std::unique_ptr<View> viewWithFrame(const QRectF& frame);
  static std::unique_ptr<View> clearView();
  static std::unique_ptr<View> clearViewWithFrame(const QRectF& frame);
  static std::unique_ptr<View> viewWithColor(const QColor& color);
  static std::unique_ptr<View> viewWithColor(const QColor& color, const QRectF& frame);
  /// Lines as thin as the main screen shows them (see onePixel).
  static std::unique_ptr<View> onePixelHeightViewWithWidth(double width);
  static std::unique_ptr<View> onePixelWidthViewWithHeight(double height);

  QColor color() const { return mColor; }
  void setColor(const QColor& color);
  void setClearColor() { setColor(Qt::transparent); }

  /// Makes the corners round with half the present width as radius and clips to the bounds: the
  /// background to the round shape, what lies within the view to its rectangle.
  void circle();
  void circleWithWhiteBorder();

  double cornerRadius() const { return mCornerRadius; }
  double borderWidth() const { return mBorderWidth; }
  QColor borderColor() const { return mBorderColor; }

  void paint(QPainter* painter) override;

 private:
  QColor mColor = Qt::transparent;
  QColor mBorderColor;
  double mCornerRadius = 0;
  double mBorderWidth = 0;
};

/// The thickness of a thin line in points, on a screen with so many pixels per point.
double onePixel(double screenScale);

}  // namespace wayloom
