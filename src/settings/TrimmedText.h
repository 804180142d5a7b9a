#pragma once

#include <string>
#include <string_view>

namespace wayloom {

/// The text without white space and line ends at both ends: Unicode's space separators, tab and the
/// line breaks U+000A to U+000D, U+0085, U+2028, U+2029. Malformed UTF-8 is left as it stands.
std::string trimmedText(std::string_view text);

}  // namespace wayloom
