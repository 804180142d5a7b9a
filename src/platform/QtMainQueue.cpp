#include "platform/QtMainQueue.h"

#include <QtCore/QThread>
#include <QtCore/QTimer>

namespace wayloom {

namespace {
class QtTimer : public MainQueue::Timer {
 public:
  QTimer timer;
};
}  // namespace

void QtMainQueue::post(std::function<void()> work) {
  QMetaObject::invokeMethod(this, std::move(work), Qt::QueuedConnection);
}

bool QtMainQueue::isMainThread() const {
  return QThread::currentThread() == thread();
}

std::unique_ptr<MainQueue::Timer> QtMainQueue::schedule(std::chrono::milliseconds delay,
                                                        std::function<void()> work) {
  auto handle = std::make_unique<QtTimer>();
  handle->timer.setSingleShot(true);
  // The handle may be destroyed by the work itself, so the timer calls a copy of it.
  connect(&handle->timer, &QTimer::timeout, this, [work = std::move(work)] {
    const auto running = work;
    running();
  });
  handle->timer.start(delay);
  return handle;
}

}  // namespace wayloom
