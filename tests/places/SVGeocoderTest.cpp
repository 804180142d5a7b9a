#include <chrono>
#include <string>
#include <thread>

#include "places/GeocodingAnswer.h"
#include "places/SVGeocoder.h"
#include "platform/RunLoop.h"

namespace wayloom {
namespace {

using namespace std::chrono_literals;
constexpr auto kLimit = 60s;
constexpr const char* kFound = R"({"status": "OK", "results": [{"formatted_address": "found"}]})";

/// Requests that go nowhere; the test plays the service through the delegate.
class FakeRequests : public WebRequests {
 public:
  std::unique_ptr<Connection> start(const WebRequest& request,
                                    std::shared_ptr<WebRequestDelegate> delegate) override {
    sent.push_back(request);
    current = std::move(delegate);
    return std::make_unique<FakeConnection>(*this);
  }

  void answer(int status, const char* mimeType, std::string_view body) {
    const auto delegate = current;
    delegate->connectionDidReceiveResponse({"http://end.example/", status, mimeType});
    delegate->connectionDidReceiveData(body.substr(0, body.size() / 2));
    delegate->connectionDidReceiveData(body.substr(body.size() / 2));
    delegate->connectionDidFinishLoading();
  }

  std::vector<WebRequest> sent;
  std::shared_ptr<WebRequestDelegate> current;

 private:
  struct FakeConnection : Connection {
    explicit FakeConnection(FakeRequests& owner) : requests(owner) {}
    ~FakeConnection() override { requests.current.reset(); }
    FakeRequests& requests;
  };
};

struct Outcome {
  std::optional<std::vector<SVPlacemark>> placemarks;
  std::optional<WebResponse> response;
  std::optional<ServiceError> error;
};

class SVGeocoderTest : public testing::Test, public SVGeocoderObserver {
 protected:
  SVGeocoderCompletionHandler handler() {
    return [this](const auto& placemarks, const auto& response, const auto& error) {
      EXPECT_TRUE(loop.isMainThread());
      outcomes.push_back({placemarks, response, error});
    };
  }

  void willChangeValueForKey(std::string_view key) override { changes.append("<").append(key); }
  void didChangeValueForKey(std::string_view key) override { changes.append(">").append(key); }

  SVGeocoder::Operation make(const std::string& address = "a b&c") {
    auto operation = SVGeocoder::initWithAddress(environment, address, handler());
    operation->setObserver(this);
    return operation;
  }

  /// Everything posted so far has run when this returns.
  void runPosted() {
    bool reached = false;
    loop.post([&] { reached = true; });
    ASSERT_TRUE(loop.runUntil([&] { return reached; }, kLimit));
  }

  std::string queryOf(const SVGeocoder::Operation& operation) {
    const std::string& url = operation->operationRequest().url;
    return url.substr(url.find('?'));
  }

  RunLoop loop;
  FakeRequests requests;
  SVGeocoderEnvironment environment{requests, loop, "http://service.example",
                                    [] { return std::string("zh-Hans"); }};
  std::vector<Outcome> outcomes;
  std::string changes;
};

TEST_F(SVGeocoderTest, AsksForAddressesRegionsAndCoordinates) {
  EXPECT_EQ(make()->operationRequest().url,
            "http://service.example/maps/api/geocode/json"
            "?address=a%20b%26c&language=zh-Hans&sensor=true");
  EXPECT_EQ(queryOf(SVGeocoder::initWithCoordinate(environment, {31.2, 121.5}, handler())),
            "?language=zh-Hans&latlng=31.200000%2C121.500000&sensor=true");
  EXPECT_EQ(queryOf(SVGeocoder::initWithParameters(environment, {{"n", 5}}, handler())),
            "?language=zh-Hans&n=5&sensor=true");
  EXPECT_EQ(queryOf(SVGeocoder::initWithAddress(environment, "x", std::nullopt, handler())),
            "?address=x&bounds=0.000000%2C0.000000%7C0.000000%2C0.000000"
            "&language=zh-Hans&sensor=true");
  // 1000 m are 0.0089932 degrees of latitude, and twice as many of longitude at 60 degrees.
  const CircularRegion region = {{60, 20}, 1000};
  EXPECT_EQ(queryOf(SVGeocoder::initWithAddress(environment, "x", region, handler())),
            "?address=x&bounds=59.995503%2C19.991007%7C60.004497%2C20.008993"
            "&language=zh-Hans&sensor=true");
}

TEST_F(SVGeocoderTest, GoesThroughItsStatesAndAnnouncesThem) {
  const auto operation = make();
  EXPECT_EQ(operation->state(), SVGeocoderStateReady);
  operation->start();
  EXPECT_EQ(changes, "<isExecuting<state>state>isExecuting");
  EXPECT_TRUE(operation->isExecuting());
  operation->start();
  EXPECT_EQ(requests.sent.size(), 1u);
  changes.clear();
  requests.answer(200, "application/json", kFound);
  EXPECT_TRUE(operation->isExecuting()) << "delivered before the delegate call returned";
  EXPECT_TRUE(outcomes.empty());
  runPosted();
  EXPECT_EQ(changes, "<isExecuting<isFinished<state>state>isExecuting>isFinished");
  EXPECT_TRUE(operation->isFinished());
  EXPECT_FALSE(requests.current) << "the connection was kept";
  ASSERT_EQ(outcomes.size(), 1u);
  EXPECT_EQ(outcomes[0].placemarks->at(0).formattedAddress, "found");
  EXPECT_EQ(outcomes[0].response->statusCode, 200);
  EXPECT_FALSE(outcomes[0].error);
}

TEST_F(SVGeocoderTest, TurnsAnswersIntoOutcomes) {
  constexpr const char *kNone = "", *kRefused = "SVGeocoderErrorDomain",
                       *kJson = "application/json", *kDamaged = "JSONErrorDomain";
  std::string deep, huge(GeocodingAnswer::kBodyLimitBytes, ' ');
  for (int i = 0; i < 1'000'000; ++i) deep += "{\"a\":[";
  const struct {
    int status;
    const char* mimeType;
    std::string body;
    bool hasPlacemarks;
    const char* domain;
    int code;
  } cases[] = {
      {200, kJson, kFound, true, kNone, 0},
      {404, kJson, kFound, true, kNone, 0},
      {500, kJson, kFound, true, kUrlErrorDomain, -1011},
      {500, "text/html", "<p>", false, kUrlErrorDomain, -1011},
      {500, kJson, R"({"status": "ZERO_RESULTS"})", false, kRefused, 1},
      {501, "text/html", "<p>", false, kNone, 0},
      {200, "text/json", kFound, false, kNone, 0},
      {200, "", kFound, false, kNone, 0},
      {200, kJson, "{\"results\": [", false, kDamaged, 1},
      {200, kJson, "{\"results\": []} more", false, kDamaged, 1},
      {200, kJson, "{\"results\": [NaN]}", false, kDamaged, 1},
      {200, kJson, "{\"results\": [1e999]}", false, kDamaged, 1},
      {200, kJson, "{\"results\": [\"\xc3\x28\"]}", false, kDamaged, 1},
      {200, kJson, deep, false, kDamaged, 1},
      {200, kJson, huge + "{}", false, kDamaged, 1},
      {200, kJson, "null", false, kNone, 0},
      {200, kJson, R"({"results": {"0": {}}, "status": 5})", false, kNone, 0},
      {200, kJson, R"({"status": "OVER_QUERY_LIMIT", "results": []})", true, kRefused, 2},
      {200, kJson, R"({"status": "OVER_QUERY_LIMIT", "results": [{}, 5]})", true, kNone, 0},
      {200, kJson, R"({"status": "REQUEST_DENIED"})", false, kRefused, 3},
      {200, kJson, R"({"status": "INVALID_REQUEST"})", false, kRefused, 4},
      {200, kJson, R"({"status": "zero_results", "results": []})", true, kNone, 0},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(std::to_string(test.status) + " " + test.mimeType + " " + test.body.substr(0, 60));
    outcomes.clear();
    const auto operation = SVGeocoder::geocode(environment, "x", handler());
    requests.answer(test.status, test.mimeType, test.body);
    runPosted();
    ASSERT_EQ(outcomes.size(), 1u);
    EXPECT_EQ(outcomes[0].placemarks.has_value(), test.hasPlacemarks);
    const ServiceError error = outcomes[0].error.value_or(ServiceError());
    EXPECT_EQ(error.domain, test.domain);
    EXPECT_EQ(error.code, test.code);
  }
}

TEST_F(SVGeocoderTest, TheWatchEndsASilentRequestOnce) {
  environment.timeout = 5ms;
  const auto operation = SVGeocoder::geocode(environment, "x", handler());
  const auto delegate = requests.current;
  ASSERT_TRUE(loop.runUntil([&] { return operation->isFinished(); }, kLimit));
  ASSERT_EQ(outcomes.size(), 1u);
  EXPECT_EQ(outcomes[0].error, (ServiceError{kUrlErrorDomain, -1001, "The operation timed out.",
                                             operation->operationRequest().url}));
  delegate->connectionDidFinishLoading();
  runPosted();
  EXPECT_EQ(outcomes.size(), 1u) << "delivered twice";
}

TEST_F(SVGeocoderTest, ACancelledOperationFinishesWithoutAWord) {
  const auto before = make(), during = make(), answered = make();
  before->cancel();
  before->start();
  during->start();
  during->cancel();
  during->cancel();
  runPosted();
  answered->start();
  requests.answer(200, "application/json", kFound);
  answered->cancel();
  runPosted();
  for (const auto& operation : {before, during, answered}) {
    EXPECT_TRUE(operation->isFinished() && operation->isCancelled());
    EXPECT_EQ(operation.use_count(), 2) << "someone still keeps it";  // this one and the list's
  }
  EXPECT_TRUE(outcomes.empty());
  EXPECT_EQ(requests.sent.size(), 2u);
}

TEST_F(SVGeocoderTest, StartsAndCancelsFromAnyThread) {
  for (int round = 0; round < 200; ++round) {
    const auto operation = make();
    std::thread starter([&] { operation->start(); });
    std::thread canceller([&] {
      while (round % 2 == 0 && operation->state() == SVGeocoderStateReady)
        std::this_thread::yield();
      operation->cancel();
    });
    EXPECT_TRUE(loop.runUntil([&] { return operation->isFinished(); }, kLimit)) << round;
    starter.join();
    canceller.join();
    runPosted();
  }
  EXPECT_TRUE(outcomes.empty());
}

}  // namespace
}  // namespace wayloom
