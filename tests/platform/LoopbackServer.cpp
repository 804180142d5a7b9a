#include "tests/platform/LoopbackServer.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace wayloom {
namespace {

/// Waits for `events` on the socket; false when it is time to stop instead.
bool await(int socket, int stop, short events) {
  std::array<pollfd, 2> watched = {pollfd{socket, events, 0}, pollfd{stop, POLLIN, 0}};
  return poll(watched.data(), watched.size(), -1) > 0 && watched[1].revents == 0;
}

int checked(int result, const char* what) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), what);
  return result;
}

}  // namespace

bool LoopbackServer::Exchange::send(std::string_view bytes) {
  while (!bytes.empty()) {
    if (!await(mSocket, mStop, POLLOUT)) return false;
    const auto sent = ::send(mSocket, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

void LoopbackServer::Exchange::answer(int status, std::string_view contentType,
                                      std::string_view body, std::string_view furtherHeaders) {
  std::string header = "HTTP/1.1 " + std::to_string(status) + " Test\r\n";
  header += "Content-Length: " + std::to_string(body.size()) + "\r\nConnection: close\r\n";
  if (!contentType.empty()) header += "Content-Type: " + std::string(contentType) + "\r\n";
  send(header + std::string(furtherHeaders) + "\r\n" + std::string(body));
}

void LoopbackServer::Exchange::awaitHangUp() {
  char byte = 0;
  while (await(mSocket, mStop, POLLIN) && recv(mSocket, &byte, 1, MSG_DONTWAIT) > 0) {
  }
}

LoopbackServer::LoopbackServer(Handler handler)
    : mHandler(std::move(handler)),
      mListener(checked(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0), "socket")),
      mStop(checked(eventfd(0, EFD_CLOEXEC), "eventfd")) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t length = sizeof address;
  checked(bind(mListener, reinterpret_cast<sockaddr*>(&address), length), "bind");
  checked(listen(mListener, 16), "listen");
  checked(getsockname(mListener, reinterpret_cast<sockaddr*>(&address), &length), "getsockname");
  mAddress = "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port));
  mThread = std::thread([this] { serve(); });
}

LoopbackServer::~LoopbackServer() {
  eventfd_write(mStop, 1);
  mThread.join();
  close(mListener);
  close(mStop);
}

void LoopbackServer::serve() {
  while (await(mListener, mStop, POLLIN)) {
    const int socket = accept4(mListener, nullptr, nullptr, SOCK_CLOEXEC);
    if (socket < 0) continue;
    converse(socket);
    close(socket);
  }
}

void LoopbackServer::converse(int socket) {
  std::string request;
  std::array<char, 4096> buffer;
  while (request.find("\r\n\r\n") == request.npos) {
    if (!await(socket, mStop, POLLIN)) return;
    const auto received = recv(socket, buffer.data(), buffer.size(), 0);
    if (received <= 0) return;
    request.append(buffer.data(), static_cast<std::size_t>(received));
  }
  const auto begin = request.find(' ') + 1;
  Exchange exchange(request.substr(begin, request.find(' ', begin) - begin), socket, mStop);
  ++mRequests;
  mHandler(exchange);
  shutdown(socket, SHUT_WR);
  exchange.awaitHangUp();
}

}  // namespace wayloom
