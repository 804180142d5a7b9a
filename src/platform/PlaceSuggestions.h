#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "geo/Coordinate.h"
#include "platform/Place.h"

namespace wayloom {

/// Says what somebody who is typing may come to mean. Completions run on the main thread, later;
/// they do not run any more once this is destroyed.
class PlaceSuggestions {
 public:
  static constexpr std::size_t kMostSuggestions = 8;
  using Completion = std::function<void(const std::vector<Place>&)>;

  virtual ~PlaceSuggestions() = default;

  /// Places for an unfinished text, likeliest first, those close to `near` before others. A
  /// question that is not answered yet when the next one comes is dropped, and its completion with
  /// it.
  virtual void suggest(const std::string& text, std::optional<Coordinate> near,
                       Completion completion) = 0;
};

}  // namespace wayloom
