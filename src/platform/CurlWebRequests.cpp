#include "platform/CurlWebRequests.h"

#include <limits>
#include <map>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "platform/CurlTransfer.h"

namespace wayloom {

/// The curl thread and what it shares with the main thread. Owned by CurlWebRequests alone.
class CurlWebRequests::Worker {
 public:
  Worker() = default;
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;
  ~Worker();

  /// Starts the thread unless it runs; false when the machine cannot. Main thread.
  bool begin();
  void add(std::shared_ptr<CurlTransfer> transfer);
  void wake();

 private:
  void run();
  /// Takes in what came from the main thread; false when it is time to stop.
  bool takeOrders();
  void fly(std::shared_ptr<CurlTransfer> transfer);
  void endFinished();
  void dropCancelled();

  const CurlLibrary* mCurl = nullptr;
  CURLM* mMulti = nullptr;
  std::thread mThread;
  std::mutex mMutex;
  std::vector<std::shared_ptr<CurlTransfer>> mIncoming;    // under mMutex
  bool mStopping = false;                                  // under mMutex
  std::map<CURL*, std::shared_ptr<CurlTransfer>> mFlying;  // curl thread only, while it runs
};

CurlWebRequests::Worker::~Worker() {
  if (mThread.joinable()) {
    {
      std::lock_guard lock(mMutex);
      mStopping = true;
    }
    wake();
    mThread.join();
  }
  for (const auto& [easy, transfer] : mFlying) mCurl->multiRemoveHandle(mMulti, easy);
  mFlying.clear();
  if (mMulti) mCurl->multiCleanup(mMulti);
}

bool CurlWebRequests::Worker::begin() {
  if (mThread.joinable()) return true;
  mCurl = CurlLibrary::load();
  if (mCurl && !mMulti) mMulti = mCurl->multiInit();
  if (!mMulti) return false;
  try {
    mThread = std::thread([this] { run(); });
  } catch (const std::system_error&) {
    return false;
  }
  return true;
}

void CurlWebRequests::Worker::add(std::shared_ptr<CurlTransfer> transfer) {
  {
    std::lock_guard lock(mMutex);
    mIncoming.push_back(std::move(transfer));
  }
  wake();
}

void CurlWebRequests::Worker::wake() {
  if (mMulti) mCurl->multiWakeup(mMulti);
}

void CurlWebRequests::Worker::run() {
  // libcurl's own timers and the wake call end the wait; without either there is nothing to do.
  constexpr int kNoTimeLimitMs = std::numeric_limits<int>::max();
  while (takeOrders()) {
    dropCancelled();
    int running = 0;
    mCurl->multiPerform(mMulti, &running);
    endFinished();
    mCurl->multiPoll(mMulti, nullptr, 0, kNoTimeLimitMs, nullptr);
  }
}

bool CurlWebRequests::Worker::takeOrders() {
  std::vector<std::shared_ptr<CurlTransfer>> incoming;
  {
    std::lock_guard lock(mMutex);
    if (mStopping) return false;
    incoming.swap(mIncoming);
  }
  for (auto& transfer : incoming) fly(std::move(transfer));
  return true;
}

void CurlWebRequests::Worker::fly(std::shared_ptr<CurlTransfer> transfer) {
  CURL* easy = transfer->open(*mCurl);
  if (!easy || mCurl->multiAddHandle(mMulti, easy) != CURLM_OK) {
    transfer->fail(kUrlErrorUnknown, "The request could not be started.");
    return;
  }
  mFlying.emplace(easy, std::move(transfer));
}

void CurlWebRequests::Worker::endFinished() {
  int left = 0;
  while (const CURLMsg* message = mCurl->multiInfoRead(mMulti, &left)) {
    // Removing the handle frees the message.
    CURL* easy = message->easy_handle;
    const CURLcode result = message->data.result;
    mCurl->multiRemoveHandle(mMulti, easy);
    const auto flying = mFlying.extract(easy);
    flying.mapped()->end(result);
  }
}

void CurlWebRequests::Worker::dropCancelled() {
  std::erase_if(mFlying, [this](const auto& flying) {
    if (!flying.second->isCancelled()) return false;
    mCurl->multiRemoveHandle(mMulti, flying.first);
    return true;
  });
}

class CurlWebRequests::CancelledOnDestruction : public WebRequests::Connection {
 public:
  CancelledOnDestruction(std::weak_ptr<CurlTransfer> transfer, std::weak_ptr<Worker> worker)
      : mTransfer(std::move(transfer)), mWorker(std::move(worker)) {}
  ~CancelledOnDestruction() override {
    const auto transfer = mTransfer.lock();
    if (!transfer) return;
    transfer->cancel();
    if (const auto worker = mWorker.lock()) worker->wake();
  }

 private:
  const std::weak_ptr<CurlTransfer> mTransfer;
  const std::weak_ptr<Worker> mWorker;
};

CurlWebRequests::CurlWebRequests(MainQueue& queue)
    : mQueue(queue), mWorker(std::make_shared<Worker>()) {}

CurlWebRequests::~CurlWebRequests() = default;

std::unique_ptr<WebRequests::Connection> CurlWebRequests::start(
    const WebRequest& request, std::shared_ptr<WebRequestDelegate> delegate) {
  auto transfer = std::make_shared<CurlTransfer>(mQueue, mWorker, request, std::move(delegate));
  auto connection = std::make_unique<CancelledOnDestruction>(transfer, mWorker);
  if (mWorker->begin()) {
    mWorker->add(std::move(transfer));
  } else {
    transfer->fail(kUrlErrorUnknown, "The library for web requests, libcurl, cannot be used.");
  }
  return connection;
}

}  // namespace wayloom
