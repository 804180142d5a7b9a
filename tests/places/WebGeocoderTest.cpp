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
constexpr auto kPatience = 60s;

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

  /// What is answered to an address, over real sockets, when the service says this.
  GeocoderAnswer answerTo(const char* body) {
    LoopbackServer server([body](Exchange& e) { e.answer(200, "application/json", body); });
    WebGeocoder geocoder(environment(server));
    std::vector<GeocoderAnswer> answers;
    geocoder.geocodeAddress("x", std::nullopt,
                            [&](const auto& given) { answers.push_back(given); });
    EXPECT_TRUE(loop.runUntil([&] { return !answers.empty(); }, kPatience));
    answers.resize(1);
    return answers.front();
  }

  RunLoop loop;
  CurlWebRequests requests{loop};
};

TEST_F(WebGeocoderTest, AnswersWithThePlacesThatHaveAPositionOrWithTheError) {
  const GeocoderAnswer answer = answerTo(kTwoPlaces);
  EXPECT_FALSE(answer.error);
  ASSERT_TRUE(answer.places);
  ASSERT_EQ(answer.places->size(), 2u);
  EXPECT_EQ(answer.places->at(0).coordinate, (Coordinate{57.7, 11.97}));
  EXPECT_THAT(answer.places->at(0).formattedAddressLines,
              testing::ElementsAre("Main St 12, Springfield"));
  EXPECT_THAT(answer.places->at(1).formattedAddressLines, testing::ElementsAre("Nowhere"));

  const GeocoderAnswer nothing = answerTo(R"({"status": "ZERO_RESULTS"})");
  EXPECT_FALSE(nothing.places);
  EXPECT_EQ(nothing.error, "Zero results returned");
}

}  // namespace
}  // namespace wayloom
