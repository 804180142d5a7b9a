#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "platform/ServiceError.h"

namespace wayloom {

/// One GET request over http or https. Answers past a limit end in an error.
struct WebRequest {
  std::string url;
  std::chrono::milliseconds timeout = std::chrono::seconds(20);
  std::size_t bodyLimitBytes = std::size_t{4} << 20;
  int redirectLimit = 5;
};

/// The header of an HTTP answer.
struct WebResponse {
  /// Where the answer came from, after redirects.
  std::string url;
  int statusCode = 0;
  /// Lower case and without parameters; empty when the service named none.
  std::string mimeType;

  bool operator==(const WebResponse&) const = default;
};

/// Told how a request goes, on the main thread: header, body in pieces, then the end or a failure.
/// A redirect reports its own header before that of the answer it leads to.
class WebRequestDelegate {
 public:
  virtual ~WebRequestDelegate() = default;
  virtual void connectionDidReceiveResponse(const WebResponse& response) = 0;
  virtual void connectionDidReceiveData(std::string_view bytes) = 0;
  virtual void connectionDidFinishLoading() = 0;
  virtual void connectionDidFailWithError(const ServiceError& error) = 0;
};

/// Sends requests to the web. Main thread only.
class WebRequests {
 public:
  /// A request on its way; destroying it cancels it, and its delegate hears nothing more.
  class Connection {
   public:
    virtual ~Connection() = default;
  };

  virtual ~WebRequests() = default;

  /// Sends the request. The delegate hears of it after this call has returned and is kept until
  /// the request has ended, was cancelled, or this object is destroyed.
  [[nodiscard]] virtual std::unique_ptr<Connection> start(
      const WebRequest& request, std::shared_ptr<WebRequestDelegate> delegate) = 0;
};

}  // namespace wayloom
