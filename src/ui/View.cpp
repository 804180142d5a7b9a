#include "ui/View.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QScreen>

#include "ui/ViewFrame.h"

namespace wayloom {

namespace {

double mainScreenScale() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->devicePixelRatio() : 1;
}

}  // namespace

double onePixel(double screenScale) {
  return screenScale > 1 ? 0.5 : 1;
}

View::View(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
}

std::unique_ptr<View> View::view() {
  return std::make_unique<View>();
}

std::unique_ptr<View> View::viewWithFrame(const QRectF& frame) {
  auto made = view();
  setFrame(*made, frame);
  return made;
}

std::unique_ptr<View> View::clearView() {
  auto made = view();
  made->setClearColor();
  return made;
}

std::unique_ptr<View> View::clearViewWithFrame(const QRectF& frame) {
  auto made = viewWithFrame(frame);
  made->setClearColor();
  return made;
}

std::unique_ptr<View> View::viewWithColor(const QColor& color) {
  auto made = view();
  made->setColor(color);
  return made;
}

std::unique_ptr<View> View::viewWithColor(const QColor& color, const QRectF& frame) {
  auto made = viewWithColor(color);
  setFrame(*made, frame);
  return made;
}

std::unique_ptr<View> View::onePixelHeightViewWithWidth(double width) {
  return viewWithFrame({0, 0, width, onePixel(mainScreenScale())});
}

std::unique_ptr<View> View::onePixelWidthViewWithHeight(double height) {
  return viewWithFrame({0, 0, onePixel(mainScreenScale()), height});
}

void View::setColor(const QColor& color) {
  const QColor visible = color.isValid() ? color : Qt::transparent;
  if (visible == mColor) return;
  mColor = visible;
  update();
}

void View::circle() {
  setClip(true);
  mCornerRadius = width() / 2;
  update();
}

void View::circleWithWhiteBorder() {
  circle();
  mBorderColor = Qt::white;
  mBorderWidth = 2;
}

void View::paint(QPainter* painter) {
  const double half = mBorderWidth / 2;
  painter->setRenderHint(QPainter::Antialiasing, mCornerRadius > 0);
  painter->setPen(mBorderWidth > 0 ? QPen(mBorderColor, mBorderWidth) : QPen(Qt::NoPen));
  painter->setBrush(mColor);
  painter->drawRoundedRect(boundingRect().adjusted(half, half, -half, -half), mCornerRadius - half,
                           mCornerRadius - half);
}

}  // namespace wayloom
