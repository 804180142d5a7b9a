#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace wayloom {

enum class Axis { Unknown, Latitude, Longitude };

/// What positions in degrees are written with.
struct DegreesToken {
  enum class Kind { Number, Mark, Compass, Label, Separator, Point };
  Kind kind = Kind::Separator;
  /// A number's, or the sign that a point of the compass gives.
  double value = 0;
  /// Of a number: whether it has a sign, or digits behind the point.
  bool isSigned = false;
  bool hasFraction = false;
  /// Of a mark: 0 degrees, 1 minutes, 2 seconds.
  std::size_t unit = 0;
  /// Of a point of the compass or a label.
  Axis axis = Axis::Unknown;
};

struct DegreesTokens {
  std::vector<DegreesToken> list;
  /// Colons stand for marks: it may be a time of day.
  bool hasColons = false;
  /// Slashes or bars separate: whole numbers may be a fraction or a day.
  bool hasSlash = false;
};

/// Cuts a plain text into tokens; none when there is anything in it that positions do not have.
std::optional<DegreesTokens> degreesTokens(std::u32string_view plain, std::string_view language,
                                           bool isCommaDecimal);

}  // namespace wayloom
