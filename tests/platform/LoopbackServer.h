#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

namespace wayloom {

/// A real HTTP server for tests, on a free port of 127.0.0.1 and a thread of its own. It serves one
/// connection after the other and leaves every byte of the answer to the test.
class LoopbackServer {
 public:
  /// One request being answered; the connection closes when the handler returns. Server thread.
  class Exchange {
   public:
    /// Path and query as they were asked for.
    const std::string target;

    /// False once the client is gone or the server stops.
    bool send(std::string_view bytes);
    /// Sends a whole answer with its length.
    void answer(int status, std::string_view contentType, std::string_view body,
                std::string_view furtherHeaders = {});
    /// Returns when the client hangs up or the server stops.
    void awaitHangUp();

   private:
    friend class LoopbackServer;
    Exchange(std::string asked, int socket, int stop)
        : target(std::move(asked)), mSocket(socket), mStop(stop) {}

    int mSocket;
    int mStop;
  };

  using Handler = std::function<void(Exchange&)>;

  explicit LoopbackServer(Handler handler);
  ~LoopbackServer();

  /// "http://127.0.0.1:PORT".
  const std::string& address() const { return mAddress; }
  int requests() const { return mRequests; }

 private:
  void serve();
  void converse(int socket);

  const Handler mHandler;
  int mListener = -1;
  int mStop = -1;  // readable from when the server is to stop
  std::string mAddress;
  std::atomic<int> mRequests = 0;
  std::thread mThread;
};

}  // namespace wayloom
