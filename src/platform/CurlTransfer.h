#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/CurlLibrary.h"
#include "platform/MainQueue.h"
#include "platform/WebRequests.h"

namespace wayloom {

/// One request of CurlWebRequests: the curl thread drives it, its delegate belongs to the main
/// thread and what happens crosses over through the main queue. Owned by the curl thread until it
/// ends and by what it has posted, so a delegate that owns its connection makes no cycle.
class CurlTransfer : public std::enable_shared_from_this<CurlTransfer> {
 public:
  /// Nothing reaches the delegate any more once `service` is gone.
  CurlTransfer(MainQueue& queue, std::weak_ptr<const void> service, const WebRequest& request,
               std::shared_ptr<WebRequestDelegate> delegate);
  ~CurlTransfer();

  /// Main thread. The delegate hears nothing more and is let go.
  void cancel();
  /// Curl thread.
  bool isCancelled() const { return mCancelled; }

  /// Curl thread. The handle to drive, or null when libcurl refused it; owned by the transfer.
  CURL* open(const CurlLibrary& curl);
  /// Curl thread. libcurl is done with the handle.
  void end(CURLcode result);
  /// Any thread. Ends the request before it began.
  void fail(int code, std::string text);

 private:
  static std::size_t onHeader(char* line, std::size_t size, std::size_t count, void* transfer);
  static std::size_t onBody(char* bytes, std::size_t size, std::size_t count, void* transfer);
  bool receiveHeader(std::string_view line);
  bool receiveBody(std::string_view bytes);
  WebResponse response() const;
  void tell(std::function<void(WebRequestDelegate&)> event);
  void tellLast(std::function<void(WebRequestDelegate&)> event);

  MainQueue& mQueue;
  const std::weak_ptr<const void> mService;
  const WebRequest mRequest;
  std::atomic<bool> mCancelled = false;
  std::shared_ptr<WebRequestDelegate> mDelegate;  // main thread only; null once it is over

  const CurlLibrary* mCurl = nullptr;  // from here on: curl thread only
  CURL* mEasy = nullptr;
  std::size_t mHeaderBytes = 0;
  std::size_t mBodyBytes = 0;
};

}  // namespace wayloom
