#pragma once

#include <memory>

#include "platform/MainQueue.h"
#include "platform/WebRequests.h"

namespace wayloom {

/// Web requests through libcurl, all on one thread of its own that starts with the first request.
/// Made, used and destroyed on the main thread; outlived by the queue. Destroying it cancels what
/// is under way.
class CurlWebRequests : public WebRequests {
 public:
  explicit CurlWebRequests(MainQueue& queue);
  ~CurlWebRequests() override;

  std::unique_ptr<Connection> start(const WebRequest& request,
                                    std::shared_ptr<WebRequestDelegate> delegate) override;

 private:
  class CancelledOnDestruction;
  class Worker;

  MainQueue& mQueue;
  std::shared_ptr<Worker> mWorker;
};

}  // namespace wayloom
