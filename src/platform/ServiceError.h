#pragma once

#include <string>

namespace wayloom {

inline constexpr const char* kUrlErrorDomain = "NSURLErrorDomain";
inline constexpr const char* kJsonErrorDomain = "JSONErrorDomain";

/// Codes of the URL error domain.
inline constexpr int kUrlErrorUnknown = -1;
inline constexpr int kUrlErrorBadUrl = -1000;
inline constexpr int kUrlErrorTimedOut = -1001;
inline constexpr int kUrlErrorUnsupportedUrl = -1002;
inline constexpr int kUrlErrorCannotFindHost = -1003;
inline constexpr int kUrlErrorCannotConnectToHost = -1004;
inline constexpr int kUrlErrorConnectionLost = -1005;
inline constexpr int kUrlErrorTooManyRedirects = -1007;
inline constexpr int kUrlErrorBadServerResponse = -1011;
inline constexpr int kUrlErrorDataTooLong = -1103;
inline constexpr int kUrlErrorSecureConnectionFailed = -1200;

/// Why a request to a service failed: a domain, a code within it, and a text to show.
struct ServiceError {
  std::string domain;
  int code = 0;
  std::string localizedDescription;
  /// The whole address that failed; empty when the error is not about an address.
  std::string failingUrl;

  bool operator==(const ServiceError&) const = default;
};

}  // namespace wayloom
