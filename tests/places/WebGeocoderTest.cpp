#include <chrono>
#include <string>

#include "places/WebGeocoder.h"
#include "platform/CurlWebRequests.h"
#include "platform/RunLoop.h"
#include "tests/platform/LoopbackServer.h"

namespace wayloom {
namespace {

using namespace std::chrono_literals;
using Exchange = LoopbackServer::Exchange;
constexpr auto kLimit = 60s;

constexpr const char* kTwoPlaces = R"({"status": "OK", "results": [
  {"formatted_address": "Main St 12, Springfield",
   "geometry": {"location": {"lat": 57.7, "lng": 11.97}}},
  {"address_components": [{"types": ["country"], "long_name": "Nowhere"}],
   "geometry": {"location": {"lat": 1, "lng": 2}}},
  {"formatted_address": "beyond the pole", "geometry": {"location": {"lat": 91, "lng": 0}}},
  {"formatted_address": "beyond numbers", "geometry": {"location": {"lat": "1e999", "lng": 0}}},
  {"formatted_address": "without a position"}]})";

class WebGeocoderTest : public testing::Test {
 protected:
  WebGeocoderTest() { setenv("no_proxy", "*", 1); }

  SVGeocoderEnvironment environment(const LoopbackServer& server) {
    return {requests, loop, server.address(), [] { return std::string("en"); }};
  }

  /// The answer to an address, over real sockets.
  GeocoderAnswer answerOf(const LoopbackServer& server,
                          std::chrono::milliseconds timeout = kLimit) {
    auto shortened = environment(server);
    shortened.timeout = timeout;
    WebGeocoder geocoder(shortened);
    std::vector<GeocoderAnswer> answers;
    geocoder.geocodeAddress("x", std::nullopt,
                            [&](const auto& given) { answers.push_back(given); });
    EXPECT_TRUE(loop.runUntil([&] { return !answers.empty(); }, kLimit));
    answers.resize(1);
    return answers.front();
  }

  RunLoop loop;
  CurlWebRequests requests{loop};
};

TEST_F(WebGeocoderTest, AnswersWithThePlacesThatHaveAPosition) {
  LoopbackServer server([](Exchange& e) { e.answer(200, "application/json", kTwoPlaces); });
  const GeocoderAnswer answer = answerOf(server);
  EXPECT_FALSE(answer.error);
  ASSERT_TRUE(answer.places);
  ASSERT_EQ(answer.places->size(), 2u);
  EXPECT_EQ(answer.places->at(0).coordinate, (Coordinate{57.7, 11.97}));
  EXPECT_THAT(answer.places->at(0).formattedAddressLines,
              testing::ElementsAre("Main St 12, Springfield"));
  EXPECT_THAT(answer.places->at(1).formattedAddressLines, testing::ElementsAre("Nowhere"));
}

TEST_F(WebGeocoderTest, HasNoPlacesWhenTheServiceFails) {
  const std::string huge(50 << 20, ' ');
  const struct {
    const char* name;
    LoopbackServer::Handler handler;
    std::optional<std::string> error;
    std::chrono::milliseconds timeout = kLimit;
  } cases[] = {
      {"nothing found",
       [](Exchange& e) { e.answer(200, "application/json", R"({"status": "ZERO_RESULTS"})"); },
       "Zero results returned"},
      {"huge", [&](Exchange& e) { e.answer(200, "application/json", huge); },
       "The answer is larger than this program accepts."},
      {"stuck half way",
       [](Exchange& e) {
         e.send("HTTP/1.1 200 Fine\r\nContent-Type: application/json\r\n");
         e.send("Content-Length: 9\r\n\r\n{");
         e.awaitHangUp();
       },
       "The operation timed out.", 200ms},
  };
  for (const auto& test : cases) {
    LoopbackServer server(test.handler);
    const GeocoderAnswer answer = answerOf(server, test.timeout);
    EXPECT_FALSE(answer.places) << test.name;
    EXPECT_EQ(answer.error, test.error) << test.name;
  }
}

TEST_F(WebGeocoderTest, SaysNothingOnceDestroyed) {
  LoopbackServer server([](Exchange& e) { e.awaitHangUp(); });
  auto witness = std::make_shared<int>();
  {
    WebGeocoder geocoder(environment(server));
    geocoder.reverseGeocode({1, 2}, [witness](const auto&) { ADD_FAILURE() << "answered"; });
  }
  EXPECT_TRUE(loop.runUntil([&] { return witness.use_count() == 1; }, kLimit));
}

}  // namespace
}  // namespace wayloom
