#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "places/SVPlacemark.h"
#include "platform/ServiceError.h"

namespace wayloom {

inline constexpr const char* kSVGeocoderErrorDomain = "SVGeocoderErrorDomain";

/// Codes of the geocoder's own error domain, one for each refusal the service knows.
enum SVGeocoderErrorCode {
  SVGeocoderZeroResultsError = 1,
  SVGeocoderOverQueryLimitError = 2,
  SVGeocoderRequestDeniedError = 3,
  SVGeocoderInvalidRequestError = 4,
};

/// What a geocoding service's answer says: places in the service's order, an error, or neither.
struct GeocodingAnswer {
  /// Past these an answer is an error: no real one comes near, and a service must not be able to
  /// fill the memory with one request.
  static constexpr std::size_t kBodyLimitBytes = std::size_t{4} << 20;
  static constexpr int kDepthLimit = 64;

  /// Absent when the answer holds no list of results.
  std::optional<std::vector<SVPlacemark>> placemarks;
  std::optional<ServiceError> error;
};

/// Reads the JSON body of an answer.
[[nodiscard]] GeocodingAnswer readGeocodingAnswer(std::string_view body);

}  // namespace wayloom
