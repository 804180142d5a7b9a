#include <string>

#include "places/GeocodingAnswer.h"

namespace wayloom {
namespace {

std::string repeated(std::string_view text, std::size_t times) {
  std::string all;
  for (std::size_t i = 0; i < times; ++i) all += text;
  return all;
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
      "{\"results\": [{}",
      "{\"results\": [{}]} more",
      "{\"results\": [NaN]}",
      "{\"results\": [1e999]}",
      "{\"results\": [\"\xc3\x28\"]}",
      std::string("{\"results\"\0: []}", 15),
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
