#include "ui/ViewFade.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <QtCore/QEasingCurve>
#include <QtCore/QPointer>
#include <QtCore/QPropertyAnimation>

#include "ui/HelperOf.h"

namespace wayloom {

namespace {

using Completion = std::function<void()>;

int millisecondsOf(double seconds) {
  constexpr double kLongest = std::numeric_limits<int>::max();
  const double milliseconds = std::round(seconds * 1000);
  // An animation of no length would end before its start returns.
  return milliseconds >= 1 ? static_cast<int>(std::min(milliseconds, kLongest)) : 1;
}

/// One running fade. Owned by its item until it ends, then by the event loop, since it may end
/// while it sets the opacity.
class Fade : public QPropertyAnimation {
 public:
  enum class Goal { Shown, Hidden };

  Fade(QQuickItem& item, Goal goal, double seconds, Completion complete)
      : QPropertyAnimation(&item, "opacity", &item),
        mItem(&item),
        mGoal(goal),
        mComplete(std::move(complete)) {
    setEndValue(goal == Goal::Shown ? 1.0 : 0.0);
    setDuration(millisecondsOf(seconds));
    setEasingCurve(QEasingCurve::InOutQuad);
  }

  void interrupt() {
    QQuickItem* item = mItem;
    Completion complete = std::exchange(mComplete, nullptr);
    stop();
    if (complete) QMetaObject::invokeMethod(item, std::move(complete), Qt::QueuedConnection);
  }

 protected:
  // Not the signal "finished": whoever else animates the opacity stops this fade without it.
  void updateState(State newState, State oldState) override {
    QPropertyAnimation::updateState(newState, oldState);
    if (newState == Stopped) end();
  }

 private:
  void end() {
    // The destruction of the item stops the animation too.
    if (!mItem) return;
    // No longer found by what the changes below or the completion may start.
    setParent(nullptr);
    deleteLater();
    const Completion complete = std::exchange(mComplete, nullptr);
    if (mGoal == Goal::Hidden) {
      mItem->setVisible(false);
      mItem->setOpacity(1);
    }
    if (complete) complete();
  }

  QPointer<QQuickItem> mItem;
  Goal mGoal;
  Completion mComplete;
};

void fade(QQuickItem& item, Fade::Goal goal, double seconds, Completion complete) {
  if (auto* running = helperOf<Fade>(item)) running->interrupt();
  if (goal == Fade::Goal::Shown) {
    item.setVisible(true);
    item.setOpacity(0);
  }
  (new Fade(item, goal, seconds, std::move(complete)))->start();
}

}  // namespace

void fadeShowAnimation(QQuickItem& item) {
  fadeShowAnimationComplete(item, {});
}

void fadeShowAnimationComplete(QQuickItem& item, Completion complete) {
  fadeShowAnimationDuration(item, kFadeSeconds, std::move(complete));
}

void fadeShowAnimationDuration(QQuickItem& item, double seconds, Completion complete) {
  fade(item, Fade::Goal::Shown, seconds, std::move(complete));
}

void fadeHideAnimation(QQuickItem& item) {
  fadeHideAnimationComplete(item, {});
}

void fadeHideAnimationComplete(QQuickItem& item, Completion complete) {
  fadeHideAnimationDuration(item, kFadeSeconds, std::move(complete));
}

void fadeHideAnimationDuration(QQuickItem& item, double seconds, Completion complete) {
  fade(item, Fade::Goal::Hidden, seconds, std::move(complete));
}

}  // namespace wayloom
