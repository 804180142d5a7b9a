#pragma once

#include <string>
#include <string_view>

namespace wayloom {

/// `text` as the value of a URL query: every byte but ASCII letters, digits, "-", "_", "." and "~"
/// becomes "%" and two hexadecimal digits.
std::string encodedURLParameterString(std::string_view text);

}  // namespace wayloom
