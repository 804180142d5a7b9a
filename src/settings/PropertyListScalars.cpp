#include "settings/PropertyListScalars.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <system_error>

#include "settings/DecimalNumber.h"

namespace wayloom {
namespace {

namespace chr = std::chrono;

constexpr std::string_view kBase64Digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr chr::sys_days kDateEpoch = chr::year{2001} / chr::January / 1;
// The years that the form YYYY-MM-DD can name.
constexpr chr::sys_seconds kFirstDate = chr::sys_days(chr::year{0} / chr::January / 1);
constexpr chr::sys_seconds kLastDate =
    chr::sys_days(chr::year{10000} / chr::January / 1) - chr::seconds(1);

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isAsciiSpace(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && isAsciiSpace(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase) {
  return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                    [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b; });
}

std::optional<std::uint64_t> magnitudeFromText(std::string_view digits) {
  int base = 10;
  if (digits.size() > 2 && digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X')) {
    base = 16;
    digits.remove_prefix(2);
  }
  std::uint64_t magnitude = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, magnitude, base);
  if (read.ec != std::errc() || read.ptr != end) {
    return std::nullopt;
  }
  return magnitude;
}

/// The number that the digits at a place of a date stand for, or -1.
int digitsAt(std::string_view text, std::size_t position, std::size_t count) {
  int number = 0;
  for (const char c : text.substr(position, count)) {
    if (!isAsciiDigit(c)) {
      return -1;
    }
    number = number * 10 + (c - '0');
  }
  return number;
}

}  // namespace

std::optional<PropertyList> integerFromText(std::string_view text) {
  text = trimmed(text);
  const bool negative = !text.empty() && text.front() == '-';
  if (negative || (!text.empty() && text.front() == '+')) {
    text.remove_prefix(1);
  }
  const std::optional<std::uint64_t> magnitude = magnitudeFromText(text);
  constexpr std::uint64_t kLargest = std::numeric_limits<std::int64_t>::max();
  if (!magnitude || (negative && *magnitude > kLargest + 1)) {
    return std::nullopt;
  }
  if (!negative && *magnitude > kLargest) {
    return PropertyList(*magnitude);
  }
  return PropertyList(static_cast<std::int64_t>(negative ? 0 - *magnitude : *magnitude));
}

std::optional<double> realFromText(std::string_view text) {
  text = trimmed(text);
  const DecimalNumber number = leadingDecimalNumber(text);
  if (number.length > 0) {
    return number.length == text.size() ? std::optional(number.value) : std::nullopt;
  }
  const bool negative = !text.empty() && text.front() == '-';
  if (negative || (!text.empty() && text.front() == '+')) {
    text.remove_prefix(1);
  }
  double value = 0;
  if (equalsIgnoringCase(text, "nan")) {
    value = std::numeric_limits<double>::quiet_NaN();
  } else if (equalsIgnoringCase(text, "inf") || equalsIgnoringCase(text, "infinity")) {
    value = std::numeric_limits<double>::infinity();
  } else {
    return std::nullopt;
  }
  return negative ? -value : value;
}

std::optional<PropertyList::Date> dateFromText(std::string_view text) {
  text = trimmed(text);
  constexpr std::string_view kForm = "0000-00-00T00:00:00Z";
  if (text.size() != kForm.size()) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    if (kForm[i] != '0' && text[i] != kForm[i]) {
      return std::nullopt;
    }
  }
  const int year = digitsAt(text, 0, 4);
  const int month = digitsAt(text, 5, 2);
  const int day = digitsAt(text, 8, 2);
  const int hour = digitsAt(text, 11, 2);
  const int minute = digitsAt(text, 14, 2);
  const int second = digitsAt(text, 17, 2);
  if (std::min({year, month, day, hour, minute, second}) < 0) {
    return std::nullopt;
  }
  const auto date = chr::year{year} / month / day;
  if (!date.ok() || hour > 23 || minute > 59 || second > 59) {
    return std::nullopt;
  }
  const chr::seconds moment = chr::sys_days(date) - kDateEpoch + chr::hours(hour) +
                              chr::minutes(minute) + chr::seconds(second);
  return PropertyList::Date{static_cast<double>(moment.count())};
}

std::optional<PropertyList::Data> dataFromText(std::string_view text) {
  PropertyList::Data data;
  data.bytes.reserve(text.size() / 4 * 3);
  std::uint32_t bits = 0;
  std::size_t digits = 0;
  std::size_t padding = 0;
  for (const char c : text) {
    if (isAsciiSpace(c)) {
      continue;
    }
    const std::size_t digit = kBase64Digits.find(c);
    padding += c == '=' ? 1 : 0;
    if ((digit == kBase64Digits.npos && c != '=') || (padding > 0 && c != '=')) {
      return std::nullopt;
    }
    bits = bits << 6 | static_cast<std::uint32_t>(c == '=' ? 0 : digit);
    if (++digits % 4 == 0) {
      for (const int shift : {16, 8, 0}) {
        data.bytes.push_back(static_cast<std::uint8_t>(bits >> shift));
      }
    }
  }
  if (digits % 4 != 0 || padding > 2) {
    return std::nullopt;
  }
  data.bytes.resize(data.bytes.size() - padding);
  return data;
}

std::string textFromReal(double value) {
  if (std::isnan(value)) {
    return "nan";
  }
  if (std::isinf(value)) {
    return value > 0 ? "+infinity" : "-infinity";
  }
  std::array<char, 32> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return std::string(buffer.data(), written.ptr);
}

std::string textFromDate(PropertyList::Date date) {
  const auto first = static_cast<double>((kFirstDate - kDateEpoch).count());
  const auto last = static_cast<double>((kLastDate - kDateEpoch).count());
  const double seconds =
      std::isnan(date.seconds) ? 0 : std::clamp(std::floor(date.seconds), first, last);
  const chr::sys_seconds moment = kDateEpoch + chr::seconds(static_cast<std::int64_t>(seconds));
  const auto day = chr::floor<chr::days>(moment);
  const chr::year_month_day calendar(day);
  const chr::hh_mm_ss time(moment - day);
  std::array<char, 64> buffer;
  const int length = std::snprintf(
      buffer.data(), buffer.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ",
      static_cast<int>(calendar.year()), static_cast<unsigned>(calendar.month()),
      static_cast<unsigned>(calendar.day()), static_cast<int>(time.hours().count()),
      static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
  return std::string(buffer.data(), static_cast<std::size_t>(length));
}

std::string textFromData(const PropertyList::Data& data) {
  std::string output;
  output.reserve((data.bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < data.bytes.size(); i += 3) {
    const std::size_t count = std::min<std::size_t>(3, data.bytes.size() - i);
    std::uint32_t bits = 0;
    for (std::size_t j = 0; j < 3; ++j) {
      bits = bits << 8 | (j < count ? data.bytes[i + j] : 0u);
    }
    for (std::size_t j = 0; j < 4; ++j) {
      output += j <= count ? kBase64Digits[bits >> (18 - 6 * j) & 0x3F] : '=';
    }
  }
  return output;
}

}  // namespace wayloom
