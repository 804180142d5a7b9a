#include "places/GeocodingAnswer.h"

#include <rapidjson/document.h>

namespace wayloom {

namespace {

/// Without recursion; strict about UTF-8. Numbers may be off by their last bits: RapidJSON's exact
/// way shifts by absurd amounts when an exponent is absurd, and the last bits are no distance.
constexpr unsigned kParseFlags =
    rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;

/// Counted on the bytes: a parsed answer of millions of brackets would take hundreds of megabytes
/// before anyone could look at its depth.
bool nestsTooDeep(std::string_view body) {
  int depth = 0;
  bool inString = false;
  for (std::size_t i = 0; i < body.size(); ++i) {
    const char letter = body[i];
    if (inString && letter == '\\') {
      ++i;
    } else if (letter == '"') {
      inString = !inString;
    } else if (!inString && (letter == '[' || letter == '{')) {
      if (++depth > GeocodingAnswer::kDepthLimit) return true;
    } else if (!inString && (letter == ']' || letter == '}')) {
      --depth;
    }
  }
  return false;
}

GeocodingAnswer unreadable(const char* text) {
  return {std::nullopt, ServiceError{kJsonErrorDomain, 1, text, {}}};
}

std::optional<ServiceError> refusal(std::string_view status) {
  static constexpr struct {
    SVGeocoderErrorCode code;
    const char* status;
    const char* text;
  } kRefusals[] = {
      {SVGeocoderZeroResultsError, "ZERO_RESULTS", "Zero results returned"},
      {SVGeocoderOverQueryLimitError, "OVER_QUERY_LIMIT",
       "Currently rate limited. Too many queries in a short time. (Over Quota)"},
      {SVGeocoderRequestDeniedError, "REQUEST_DENIED",
       "Request was denied. Did you remember to add the \"sensor\" parameter?"},
      {SVGeocoderInvalidRequestError, "INVALID_REQUEST",
       "The request was invalid. Was the \"address\" or \"latlng\" missing?"},
  };
  for (const auto& refusal : kRefusals) {
    if (status == refusal.status) {
      return ServiceError{kSVGeocoderErrorDomain, refusal.code, refusal.text, {}};
    }
  }
  return std::nullopt;
}

}  // namespace

GeocodingAnswer readGeocodingAnswer(std::string_view body) {
  if (body.size() > GeocodingAnswer::kBodyLimitBytes) return unreadable("The answer is too large.");
  if (nestsTooDeep(body)) return unreadable("The answer is nested too deeply.");
  rapidjson::Document document;
  document.Parse<kParseFlags>(body.data(), body.size());
  if (document.HasParseError()) return unreadable("The answer is not valid JSON.");
  GeocodingAnswer answer;
  const rapidjson::Value& root = document;
  if (!root.IsObject()) return answer;
  const auto results = root.FindMember("results");
  if (results != root.MemberEnd() && results->value.IsArray()) {
    const auto elements = results->value.GetArray();
    answer.placemarks.emplace(elements.Begin(), elements.End());
    if (!elements.Empty()) return answer;
  }
  const auto status = root.FindMember("status");
  if (status != root.MemberEnd() && status->value.IsString()) {
    answer.error = refusal({status->value.GetString(), status->value.GetStringLength()});
  }
  return answer;
}

}  // namespace wayloom
