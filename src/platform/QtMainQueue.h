#pragma once

#include <QtCore/QObject>

#include "platform/MainQueue.h"

namespace wayloom {

/// The main queue on Qt's event loop. Lives on the main thread; created after the application
/// object.
class QtMainQueue : public QObject, public MainQueue {
  Q_OBJECT

 public:
  void post(std::function<void()> work) override;
  bool isMainThread() const override;
  std::unique_ptr<Timer> schedule(std::chrono::milliseconds delay,
                                  std::function<void()> work) override;
};

}  // namespace wayloom
