#pragma once

#include <cstddef>
#include <string_view>

namespace wayloom {

/// A decimal number found at the beginning of a text, and how many bytes of the text it takes.
struct DecimalNumber {
  double value = 0;
  std::size_t length = 0;
};

/// Reads the longest decimal number (sign, digits, fraction, exponent) that `text` begins with,
/// rounded to the nearest double; beyond the doubles' range it is infinite or zero. The length is 0
/// when there is none. Independent of the process's locale. Any thread may call it.
DecimalNumber leadingDecimalNumber(std::string_view text);

inline bool isAsciiSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}
inline bool isAsciiDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace wayloom
