#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "platform/CurlWebRequests.h"
#include "platform/RunLoop.h"
#include "tests/platform/LoopbackServer.h"

namespace wayloom {
namespace {

using namespace std::chrono_literals;
using Exchange = LoopbackServer::Exchange;
constexpr auto kRequestLimit = 60s;

class Recorder : public WebRequestDelegate {
 public:
  explicit Recorder(const MainQueue& queue) : mQueue(queue) {}

  void connectionDidReceiveResponse(const WebResponse& answer) override {
    EXPECT_TRUE(mQueue.isMainThread());
    responses.push_back(answer);
  }
  void connectionDidReceiveData(std::string_view bytes) override {
    EXPECT_FALSE(responses.empty()) << "body before header";
    body += bytes;
  }
  void connectionDidFinishLoading() override { ++ends; }
  void connectionDidFailWithError(const ServiceError& failure) override {
    EXPECT_TRUE(mQueue.isMainThread());
    ++ends;
    error = failure;
  }

  std::vector<WebResponse> responses;
  std::string body;
  std::optional<ServiceError> error;
  int ends = 0;

 private:
  const MainQueue& mQueue;
};

class CurlWebRequestsTest : public testing::Test {
 protected:
  CurlWebRequestsTest() {
    // The tests' server is on this machine, whatever proxy the environment names.
    setenv("no_proxy", "*", 1);
    recorder = std::make_shared<Recorder>(loop);
  }

  void get(const WebRequest& request) {
    const auto connection = requests.start(request, recorder);
    EXPECT_TRUE(loop.runUntil([this] { return recorder->ends > 0; }, kRequestLimit)) << request.url;
    EXPECT_EQ(recorder.use_count(), 1) << "the delegate is still held after the end";
  }

  int errorOf(const WebRequest& request) {
    get(request);
    return recorder->error ? recorder->error->code : 0;
  }

  RunLoop loop;
  CurlWebRequests requests{loop};
  std::shared_ptr<Recorder> recorder;
};

TEST_F(CurlWebRequestsTest, DeliversHeaderAndChunkedBody) {
  LoopbackServer server([](Exchange& exchange) {
    exchange.send("HTTP/1.1 100 Continue\r\n\r\n");
    exchange.send("HTTP/1.1 203 Fine\r\nContent-Type:  Application/JSON ; charset=utf-8\r\n");
    exchange.send("Transfer-Encoding: chunked\r\n\r\n");
    exchange.send("3\r\n{\"a\r\n");
    exchange.send("4\r\n\":1}\r\n0\r\n\r\n");
  });
  get({.url = server.address() + "/x?y=1"});
  ASSERT_FALSE(recorder->error) << recorder->error->localizedDescription;
  EXPECT_EQ(recorder->body, "{\"a\":1}");
  EXPECT_THAT(recorder->responses, testing::ElementsAre(WebResponse{server.address() + "/x?y=1",
                                                                    203, "application/json"}));
}

TEST_F(CurlWebRequestsTest, FollowsRedirectsWithinTheLimitAndForgetsTheirHeaders) {
  LoopbackServer server([](Exchange& exchange) {
    if (exchange.target == "/end") return exchange.answer(200, "", "there");
    const char* const next = exchange.target == "/1" ? "end" : exchange.target == "/0" ? "1" : "on";
    exchange.answer(302, "application/json", "moved", std::string("Location: /") + next + "\r\n");
  });
  get({.url = server.address() + "/0", .redirectLimit = 2});
  EXPECT_FALSE(recorder->error);
  EXPECT_EQ(recorder->body, "there");
  EXPECT_EQ(recorder->responses.back(), (WebResponse{server.address() + "/end", 200, ""}));
  recorder = std::make_shared<Recorder>(loop);
  EXPECT_EQ(errorOf({.url = server.address() + "/on"}), kUrlErrorTooManyRedirects);
  EXPECT_EQ(server.requests(), 3 + 6);
}

TEST_F(CurlWebRequestsTest, NamesWhatWentWrongAndTakesNoMoreThanTheLimit) {
  const auto endless = [](const char* header, const std::string& piece) {
    return [=](Exchange& e) {
      e.send(std::string("HTTP/1.1 200 Fine\r\n") + header);
      while (e.send(piece)) {
      }
    };
  };
  const std::string chunk = "10000\r\n" + std::string(0x10000, 'x') + "\r\n";
  const std::string line = "X-More: " + std::string(1000, 'x') + "\r\n";
  const struct {
    const char* name;
    LoopbackServer::Handler handler;
    int code;
  } cases[] = {
      {"chunked without end", endless("Transfer-Encoding: chunked\r\n\r\n", chunk),
       kUrlErrorDataTooLong},
      {"header lines without end", endless("", line), kUrlErrorDataTooLong},
      {"closed without a word", [](Exchange&) {}, kUrlErrorConnectionLost},
      {"cut short",
       [](Exchange& e) { e.send("HTTP/1.1 200 Fine\r\nContent-Length: 100\r\n\r\nten bytes."); },
       kUrlErrorConnectionLost},
      {"silent", [](Exchange& e) { e.awaitHangUp(); }, kUrlErrorTimedOut},
      {"not HTTP", [](Exchange& e) { e.send("SSH-2.0-Server\r\n\r\n"); }, kUrlErrorUnsupportedUrl},
      {"led to a file",
       [](Exchange& e) { e.answer(302, "", "", "Location: file:///etc/fstab\r\n"); },
       kUrlErrorUnsupportedUrl},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    recorder = std::make_shared<Recorder>(loop);
    LoopbackServer server(test.handler);
    const bool isSilent = test.code == kUrlErrorTimedOut;
    EXPECT_EQ(errorOf({.url = server.address(),
                       .timeout = isSilent ? 100ms : 60'000ms,
                       .bodyLimitBytes = 1 << 20}),
              test.code);
    EXPECT_LE(recorder->body.size(), std::size_t{1} << 20);
    EXPECT_THAT(recorder->error->failingUrl, testing::HasSubstr("://"));
    EXPECT_NE(recorder->error->localizedDescription, "");
  }
}

TEST_F(CurlWebRequestsTest, RefusesAddressesItCannotAsk) {
  const std::string closedPort = LoopbackServer([](Exchange&) {}).address();
  const std::pair<std::string, int> cases[] = {{closedPort, kUrlErrorCannotConnectToHost},
                                               {"gopher://127.0.0.1/", kUrlErrorUnsupportedUrl},
                                               {"http://127.0.0.1:99999/", kUrlErrorBadUrl},
                                               {"http://a b/", kUrlErrorBadUrl}};
  for (const auto& [url, code] : cases) {
    recorder = std::make_shared<Recorder>(loop);
    EXPECT_EQ(errorOf({.url = url}), code) << url;
  }
}

TEST_F(CurlWebRequestsTest, SaysNothingAfterACancellationOrItsOwnEnd) {
  LoopbackServer server([](Exchange& exchange) {
    exchange.send("HTTP/1.1 200 Fine\r\nContent-Length: 9\r\n\r\nhalf");
    exchange.awaitHangUp();
  });
  auto connection = requests.start({.url = server.address()}, recorder);
  ASSERT_TRUE(loop.runUntil([&] { return recorder->body == "half"; }, kRequestLimit));
  connection.reset();
  EXPECT_EQ(recorder.use_count(), 1);

  // The server serves one after the other, so a second answer shows that the first connection went.
  const auto second = std::make_shared<Recorder>(loop);
  auto shortLived = std::make_unique<CurlWebRequests>(loop);
  connection = shortLived->start({.url = server.address()}, second);
  const auto third = shortLived->start({.url = server.address()}, second);
  ASSERT_TRUE(loop.runUntil([&] { return second->body == "half"; }, kRequestLimit));
  shortLived.reset();
  EXPECT_EQ(recorder->ends + second->ends, 0);
  EXPECT_EQ(second.use_count(), 1);
}

}  // namespace
}  // namespace wayloom
