#include "settings/TextConversions.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

#include "settings/DecimalNumber.h"

namespace wayloom {
namespace {

/// The longest text: a sign, the 309 digits of the largest double, a point, six digits.
constexpr std::size_t kLongestReal = 320;

std::string_view withoutLeadingSpace(std::string_view text) {
  while (!text.empty() && isAsciiSpace(text.front())) {
    text.remove_prefix(1);
  }
  return text;
}

std::int32_t heldWithin32Bits(double value) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (std::isnan(value)) {
    return 0;
  }
  if (value <= Limits::min()) {
    return Limits::min();
  }
  return value >= Limits::max() ? Limits::max() : static_cast<std::int32_t>(value);
}

/// Reads texts with `fromText`, booleans and numbers with `fromNumber`, all else as nothing.
template <typename FromText, typename FromNumber>
auto convert(const PropertyList* value, FromText fromText, FromNumber fromNumber) {
  using Answer = std::invoke_result_t<FromText, std::string_view>;
  if (value == nullptr) {
    return Answer{};
  }
  return std::visit(
      [&](const auto& held) -> Answer {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::string>) {
          return fromText(held);
        } else if constexpr (std::is_arithmetic_v<Held>) {
          return fromNumber(held);
        } else {
          return Answer{};
        }
      },
      value->value());
}

}  // namespace

std::string formatFlag(bool on) {
  return on ? "1" : "0";
}

std::string formatReal(double value) {
  std::array<char, kLongestReal> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                     std::chars_format::fixed, 6);
  return std::string(buffer.data(), written.ptr);
}

std::string coordinateText(Coordinate coordinate) {
  return formatReal(coordinate.latitude) + ", " + formatReal(coordinate.longitude);
}

bool boolValue(std::string_view text) {
  text = withoutLeadingSpace(text);
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    text.remove_prefix(1);
  }
  const std::size_t first = text.find_first_not_of('0');
  return first != text.npos && std::string_view("123456789YyTt").find(text[first]) != text.npos;
}

std::int32_t intValue(std::string_view text) {
  text = withoutLeadingSpace(text);
  const bool negative = !text.empty() && text.front() == '-';
  if (negative || (!text.empty() && text.front() == '+')) {
    text.remove_prefix(1);
  }
  std::int64_t magnitude = 0;
  for (const char c : text) {
    if (!isAsciiDigit(c) || magnitude > std::numeric_limits<std::int32_t>::max()) {
      break;
    }
    magnitude = magnitude * 10 + (c - '0');
  }
  return heldWithin32Bits(static_cast<double>(negative ? -magnitude : magnitude));
}

double doubleValue(std::string_view text) {
  return leadingDecimalNumber(withoutLeadingSpace(text)).value;
}

bool boolValue(const PropertyList* value) {
  return convert(
      value, [](std::string_view text) { return boolValue(text); },
      [](auto number) { return number != 0; });
}

std::int32_t intValue(const PropertyList* value) {
  return convert(
      value, [](std::string_view text) { return intValue(text); },
      [](auto number) { return heldWithin32Bits(static_cast<double>(number)); });
}

double doubleValue(const PropertyList* value) {
  return convert(
      value, [](std::string_view text) { return doubleValue(text); },
      [](auto number) { return static_cast<double>(number); });
}

}  // namespace wayloom
