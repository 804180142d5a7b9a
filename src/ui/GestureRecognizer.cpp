#include "ui/GestureRecognizer.h"

#include <cmath>
#include <utility>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QPointerEvent>
#include <QtGui/QStyleHints>

namespace wayloom {

namespace {

class TapRecognizer : public GestureRecognizer {
 public:
  using GestureRecognizer::GestureRecognizer;

 protected:
  void moved(quint64 /*heldMs*/) override { mHasStrayed |= isFarFromStart(); }
  void lifted() override {
    if (!std::exchange(mHasStrayed, false)) enter(State::Ended);
  }
  void cancelled() override { mHasStrayed = false; }

 private:
  bool mHasStrayed = false;
};

class PanRecognizer : public GestureRecognizer {
 public:
  using GestureRecognizer::GestureRecognizer;

 protected:
  void moved(quint64 /*heldMs*/) override {
    if (isPanning()) {
      enter(State::Changed);
    } else if (isFarFromStart()) {
      enter(State::Began);
    }
  }
  void lifted() override {
    if (isPanning()) enter(State::Ended);
  }
  void cancelled() override {
    if (isPanning()) enter(State::Cancelled);
  }

 private:
  bool isPanning() const { return state() == State::Began || state() == State::Changed; }
};

class SwipeRecognizer : public GestureRecognizer {
 public:
  using GestureRecognizer::GestureRecognizer;

 protected:
  void moved(quint64 heldMs) override {
    constexpr double kDistancePoints = 50;
    constexpr double kSteepest = 0.5;
    constexpr quint64 kLongestMs = 500;
    const QPointF way = translation();
    if (state() == State::Possible && heldMs <= kLongestMs && way.x() >= kDistancePoints &&
        std::abs(way.y()) <= kSteepest * way.x()) {
      enter(State::Ended);
    }
  }
  void lifted() override {}
};

template <typename Recognizer>
GestureRecognizer* add(QQuickItem& item, QObject& target, GestureAction action) {
  auto* recognizer = new Recognizer(item);
  QObject::connect(recognizer, &GestureRecognizer::recognized, &target, std::move(action));
  return recognizer;
}

}  // namespace

GestureRecognizer::GestureRecognizer(QQuickItem& item) : QObject(&item), mItem(item) {
  item.setAcceptedMouseButtons(item.acceptedMouseButtons() | Qt::LeftButton);
  item.installEventFilter(this);
}

bool GestureRecognizer::eventFilter(QObject* watched, QEvent* event) {
  // What is offered to the item passes here a second time.
  if (mIsOffering || watched != &mItem) return false;
  const QPointer<GestureRecognizer> self(this);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
      return begin(*static_cast<QPointerEvent*>(event));
    case QEvent::MouseMove:
    case QEvent::TouchUpdate:
      move(*static_cast<QPointerEvent*>(event));
      break;
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
      lift(*static_cast<QPointerEvent*>(event));
      break;
    case QEvent::TouchCancel:
      cancel();
      break;
    default:
      break;
  }
  // An action may have destroyed the item, which then must not get the event.
  return !self;
}

bool GestureRecognizer::begin(QPointerEvent& event) {
  cancel();
  mIsDown = event.pointCount() == 1;
  if (mIsDown) {
    mState = State::Possible;
    mStart = mLocation = event.points().constFirst().scenePosition();
    mStartMs = event.timestamp();
    watchGrab(event);
  }
  // An item that does not care for the press would not be told how it goes on.
  const QPointer<GestureRecognizer> self(this);
  mIsOffering = true;
  QCoreApplication::sendEvent(&mItem, &event);
  if (self) mIsOffering = false;
  event.accept();
  return true;
}

void GestureRecognizer::move(const QPointerEvent& event) {
  if (event.pointCount() != 1) return cancel();
  if (!mIsDown) return;
  mLocation = event.points().constFirst().scenePosition();
  moved(event.timestamp() - mStartMs);
}

void GestureRecognizer::lift(const QPointerEvent& event) {
  if (!mIsDown) return;
  mLocation = event.points().constFirst().scenePosition();
  forget();
  lifted();
}

void GestureRecognizer::cancel() {
  if (!mIsDown) return;
  forget();
  cancelled();
}

void GestureRecognizer::forget() {
  mIsDown = false;
  disconnect(mGrabWatch);
}

void GestureRecognizer::watchGrab(const QPointerEvent& event) {
  mGrabWatch =
      connect(event.pointingDevice(), &QPointingDevice::grabChanged, this,
              [this](QObject* grabber, QPointingDevice::GrabTransition transition) {
                if (grabber == &mItem && (transition == QPointingDevice::UngrabExclusive ||
                                          transition == QPointingDevice::CancelGrabExclusive)) {
                  cancel();
                }
              });
}

void GestureRecognizer::enter(State state) {
  mState = state;
  Q_EMIT recognized(*this);
}

bool GestureRecognizer::isFarFromStart() const {
  const QPointF way = translation();
  return std::hypot(way.x(), way.y()) >= QGuiApplication::styleHints()->startDragDistance();
}

GestureRecognizer* addTapGestureWithTarget(QQuickItem& item, QObject& target,
                                           GestureAction action) {
  return add<TapRecognizer>(item, target, std::move(action));
}

GestureRecognizer* addPanGestureWithTarget(QQuickItem& item, QObject& target,
                                           GestureAction action) {
  return add<PanRecognizer>(item, target, std::move(action));
}

GestureRecognizer* addSwipeGestureWithTarget(QQuickItem& item, QObject& target,
                                             GestureAction action) {
  return add<SwipeRecognizer>(item, target, std::move(action));
}

}  // namespace wayloom
