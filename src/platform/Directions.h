#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "geo/Coordinate.h"
#include "geo/Route.h"

namespace wayloom {

/// What a directions service is asked.
struct DirectionsRequest {
  Coordinate source;
  Coordinate destination;
  bool requestsAlternateRoutes = false;
  /// When the drive starts, in seconds since 1970; what the service does not need it may ignore.
  std::optional<double> startTime = std::nullopt;
};

/// What a directions service answers: routes, the best first, or an error text. Without an error
/// there is at least one route.
struct DirectionsAnswer {
  std::vector<Route> routes;
  std::optional<std::string> error;
};

/// Plans drives from place to place. Completions run on the main thread, later; they do not run any
/// more once the service is destroyed.
class Directions {
 public:
  using Completion = std::function<void(const DirectionsAnswer&)>;

  virtual ~Directions() = default;

  virtual void calculate(const DirectionsRequest& request, Completion completion) = 0;
};

}  // namespace wayloom
