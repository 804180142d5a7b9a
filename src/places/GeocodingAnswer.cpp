#include "places/GeocodingAnswer.h"

#include <nlohmann/json.hpp>
#include <string>

namespace wayloom {

namespace {

using nlohmann::json;

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

std::optional<ServiceError> refusal(const std::string& status) {
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
  const json document = json::parse(body, nullptr, /*allow_exceptions=*/false);
  if (document.is_discarded()) return unreadable("The answer is not valid JSON.");
  GeocodingAnswer answer;
  if (!document.is_object()) return answer;
  const auto results = document.find("results");
  if (results != document.end() && results->is_array()) {
    answer.placemarks.emplace(results->begin(), results->end());
    if (!results->empty()) return answer;
  }
  const auto status = document.find("status");
  if (status != document.end() && status->is_string()) {
    answer.error = refusal(status->get_ref<const std::string&>());
  }
  return answer;
}

}  // namespace wayloom
