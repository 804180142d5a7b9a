#include <string>

#include "places/GeocodingAnswer.h"

namespace wayloom {
namespace {

std::string repeated(std::string_view text, std::size_t times) {
  std::string all;
  for (std::size_t i = 0; i < times; ++i) all += text;
  return all;
}

TEST(GeocodingAnswerTest, MakesTheServicesRefusalsErrors) {
  constexpr int kNone = 0;
  const struct {
    const char* status;
    int code;
    const char* text;
  } statuses[] = {
      {"ZERO_RESULTS", 1, "Zero results returned"},
      {"OVER_QUERY_LIMIT", 2, "Currently rate limited."},
      {"REQUEST_DENIED", 3, "Request was denied."},
      {"INVALID_REQUEST", 4, "The request was invalid."},
      {"OK", kNone, ""},
      {"UNKNOWN_ERROR", kNone, ""},
      {"zero_results", kNone, ""},
      {"", kNone, ""},
  };
  for (const auto& test : statuses) {
    SCOPED_TRACE(test.status);
    const std::string status = std::string(R"("status": ")") + test.status + '"';
    const GeocodingAnswer empty = readGeocodingAnswer("{" + status + R"(, "results": []})");
    const GeocodingAnswer missing = readGeocodingAnswer("{" + status + "}");
    const GeocodingAnswer found = readGeocodingAnswer(R"({"results": [{}, 5], )" + status + "}");
    ASSERT_TRUE(empty.placemarks);
    EXPECT_TRUE(empty.placemarks->empty());
    EXPECT_FALSE(missing.placemarks);
    EXPECT_EQ(empty.error, missing.error);
    EXPECT_EQ(empty.error.has_value(), test.code != kNone);
    if (empty.error) {
      EXPECT_EQ(empty.error->code, test.code);
      EXPECT_THAT(empty.error->localizedDescription, testing::StartsWith(test.text));
    }
    ASSERT_TRUE(found.placemarks);
    EXPECT_EQ(found.placemarks->size(), 2u);
    EXPECT_FALSE(found.error);
  }
}

TEST(GeocodingAnswerTest, FindsNothingInOtherJson) {
  for (const char* text : {"null", "5", "\"results\"", "[]", "{}", R"({"results": null})",
                           R"({"results": {"0": {}}})", R"({"results": "x", "status": 5})"}) {
    const GeocodingAnswer answer = readGeocodingAnswer(text);
    EXPECT_FALSE(answer.placemarks) << text;
    EXPECT_FALSE(answer.error) << text;
  }
}

TEST(GeocodingAnswerTest, RefusesDamagedDeepAndHugeAnswers) {
  const std::size_t deep = 1'000'000;
  const std::string cases[] = {
      "",
      " ",
      "{\"results\": [{}",
      "{\"results\": [{}]} more",
      "{\"results\": [NaN]}",
      "{\"results\": [1e999]}",
      "{\"results\": [\"\xc3\x28\"]}",
      std::string("{\"results\"\0: []}", 15),
      "<html></html>",
      repeated("[", deep),
      repeated("[", deep) + repeated("]", deep),
      repeated("{\"a\":", deep) + "1" + repeated("}", deep),
      "{\"results\": \"\\\"\", \"a\": " + repeated("[", 64) + repeated("]", 64) + "}",
      repeated(" ", GeocodingAnswer::kBodyLimitBytes) + "{}",
  };
  for (const std::string& text : cases) {
    const GeocodingAnswer answer = readGeocodingAnswer(text);
    EXPECT_FALSE(answer.placemarks) << text.substr(0, 80);
    ASSERT_TRUE(answer.error) << text.substr(0, 80);
    EXPECT_EQ(answer.error->domain, "JSONErrorDomain") << text.substr(0, 80);
  }
}

}  // namespace
}  // namespace wayloom
