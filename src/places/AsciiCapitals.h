#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace wayloom {

/// ASCII's small letters as capitals; everything else as it is.
inline char capital(char character) {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                              : character;
}
inline std::string capitals(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), capital);
  return result;
}

}  // namespace wayloom
