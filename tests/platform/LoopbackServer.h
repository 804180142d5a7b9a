#pragma once

#include <arpa/inet.h>
#include <atomic>
#include <functional>
#include <mutex>
#include <netinet/in.h>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace wayloom {

/// A real HTTP server for tests, on a free port of 127.0.0.1 and a thread of its own. It serves one
/// connection after the other and leaves every byte of the answer to the test.
class LoopbackServer {
 public:
  /// One request being answered; the connection closes when the handler returns. Server thread.
  struct Exchange {
    /// Path and query as they were asked for.
    std::string target;
    int socket;

    /// False once the client is gone or the server stops.
    bool send(std::string_view bytes) const {
      const auto sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
      return sent == static_cast<ssize_t>(bytes.size());
    }
    /// Sends a whole answer with its length.
    void answer(int status, const std::string& contentType, const std::string& body,
                const std::string& furtherHeaders = {}) const {
      const std::string type = contentType.empty() ? "" : "Content-Type: " + contentType + "\r\n";
      send("HTTP/1.1 " + std::to_string(status) + " Test\r\nConnection: close\r\n" + type +
           "Content-Length: " + std::to_string(body.size()) + "\r\n" + furtherHeaders + "\r\n" +
           body);
    }
    /// Returns when the client hangs up or the server stops.
    void awaitHangUp() const {
      for (char byte = 0; recv(socket, &byte, 1, 0) > 0;) {
      }
    }
  };
  using Handler = std::function<void(Exchange&)>;

  explicit LoopbackServer(Handler handler) : mHandler(std::move(handler)) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* const place = reinterpret_cast<sockaddr*>(&address);
    if (bind(mListener, place, length) != 0 || listen(mListener, 16) != 0) std::abort();
    getsockname(mListener, place, &length);
    mAddress = "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    mThread = std::thread([this] { serve(); });
  }
  ~LoopbackServer() {
    {
      const std::lock_guard lock(mMutex);
      mIsStopping = true;
      shutdown(mListener, SHUT_RDWR);
      shutdown(mConnection, SHUT_RDWR);
    }
    mThread.join();
    close(mListener);
  }

  /// "http://127.0.0.1:PORT".
  const std::string& address() const { return mAddress; }
  int requests() const { return mRequests; }

 private:
  void serve() {
    for (int accepted = 0; (accepted = accept(mListener, nullptr, nullptr)) >= 0;) {
      setConnection(accepted);
      std::string request;
      for (char byte = 0; !request.ends_with("\r\n\r\n") && recv(accepted, &byte, 1, 0) > 0;) {
        request += byte;
      }
      if (request.ends_with("\r\n\r\n")) converse(request, accepted);
      setConnection(-1);
      close(accepted);
    }
  }
  void converse(const std::string& request, int socket) {
    const auto begin = request.find(' ') + 1;
    Exchange exchange{request.substr(begin, request.find(' ', begin) - begin), socket};
    ++mRequests;
    mHandler(exchange);
    shutdown(socket, SHUT_WR);
    exchange.awaitHangUp();
  }
  void setConnection(int socket) {
    const std::lock_guard lock(mMutex);
    mConnection = socket;
    if (mIsStopping) shutdown(socket, SHUT_RDWR);
  }

  const Handler mHandler;
  const int mListener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  std::string mAddress;
  std::atomic<int> mRequests = 0;
  std::mutex mMutex;
  int mConnection = -1;
  bool mIsStopping = false;
  std::thread mThread;
};

}  // namespace wayloom
