#include "settings/DecimalNumber.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

namespace wayloom {
namespace {

std::size_t skipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && isAsciiDigit(text[at])) {
    ++at;
  }
  return at;
}

bool isSign(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-');
}

/// Whether an unsigned decimal number that no double can hold is too large rather than too small.
bool isHuge(std::string_view number) {
  const std::size_t exponentMark = std::min(number.find_first_of("eE"), number.size());
  const std::size_t point = std::min(number.find('.'), exponentMark);
  const std::size_t leading = number.find_first_of("123456789");
  std::int64_t exponent = 0;
  if (exponentMark < number.size()) {
    std::string_view digits = number.substr(exponentMark + 1);
    const bool negative = digits.front() == '-';
    digits.remove_prefix(isSign(digits, 0) ? 1 : 0);
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    // Half the range is beyond any text's length, so the sum below can neither overflow nor err.
    constexpr std::int64_t kBeyond = std::numeric_limits<std::int64_t>::max() / 2;
    exponent = read.ec == std::errc() ? std::min(exponent, kBeyond) : kBeyond;
    exponent = negative ? -exponent : exponent;
  }
  return exponent + static_cast<std::int64_t>(point) - static_cast<std::int64_t>(leading) > 0;
}

}  // namespace

DecimalNumber leadingDecimalNumber(std::string_view text) {
  const std::size_t begin = isSign(text, 0) ? 1 : 0;
  std::size_t end = skipDigits(text, begin);
  std::size_t digits = end - begin;
  if (end < text.size() && text[end] == '.') {
    const std::size_t fractionEnd = skipDigits(text, end + 1);
    digits += fractionEnd - (end + 1);
    end = fractionEnd;
  }
  if (digits == 0) {
    return {};
  }
  if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
    const std::size_t exponent = end + (isSign(text, end + 1) ? 2 : 1);
    const std::size_t exponentEnd = skipDigits(text, exponent);
    end = exponentEnd > exponent ? exponentEnd : end;
  }

  DecimalNumber number{0, end};
  const std::string_view unsignedText = text.substr(begin, end - begin);
  const auto read =
      std::from_chars(unsignedText.data(), unsignedText.data() + unsignedText.size(), number.value);
  if (read.ec == std::errc::result_out_of_range) {
    number.value = isHuge(unsignedText) ? std::numeric_limits<double>::infinity() : 0.0;
  }
  if (begin == 1 && text[0] == '-') {
    number.value = -number.value;
  }
  return number;
}

}  // namespace wayloom
