#include "places/OpenLocationCode.h"

#include <algorithm>
#include <cmath>

#include "places/AsciiCapitals.h"

namespace wayloom {

namespace {

constexpr std::string_view kDigits = "23456789CFGHJMPQRVWX";
constexpr std::size_t kPlus = 8;
constexpr std::size_t kPairDigits = 10;
constexpr std::size_t kMostDigits = 15;
constexpr double kBase = 20;
constexpr double kRows = 5;
constexpr double kColumns = 4;

double digit(char character) {
  return static_cast<double>(kDigits.find(character));
}

/// The code's digits, if `plus` of them and only whole pairs stand before the plus.
std::optional<std::string> digitsOf(std::string_view text, std::size_t plus) {
  std::string code = capitals(text);
  if (code.size() <= plus || code[plus] != '+' || code.size() > kMostDigits + 1) return {};
  const bool isPadded = code[plus - 1] == '0';
  code.erase(plus, 1);
  // One digit behind the plus is none, and a short code without any is too short.
  if (code.size() == plus + 1 || (code.size() == plus && plus < kPlus)) return {};
  if (isPadded) {
    if (code.size() != plus || plus != kPlus) return {};
    code.erase(code.find('0'));
    if (code.empty() || code.size() % 2 != 0) return {};
  }
  return code.find_first_not_of(kDigits) == code.npos ? std::optional(code) : std::nullopt;
}

/// The middle of a cell; digits count from the south-west corner of the world.
Coordinate middleOf(const std::string& digits) {
  double latitude = -90;
  double longitude = -180;
  double height = kBase * kBase;
  double width = kBase * kBase;
  for (std::size_t at = 0; at < std::min(digits.size(), kPairDigits); at += 2) {
    height /= kBase;
    width /= kBase;
    latitude += digit(digits[at]) * height;
    longitude += digit(digits[at + 1]) * width;
  }
  for (std::size_t at = kPairDigits; at < digits.size(); ++at) {
    height /= kRows;
    width /= kColumns;
    latitude += std::floor(digit(digits[at]) / kColumns) * height;
    longitude += std::fmod(digit(digits[at]), kColumns) * width;
  }
  return {std::min(latitude + height / 2, 90.0), longitude + width / 2};
}

}  // namespace

std::optional<Coordinate> readFullCode(std::string_view text) {
  const auto digits = digitsOf(text, kPlus);
  // Nine rows reach from pole to pole and eighteen columns around the world.
  if (!digits || digit((*digits)[0]) >= 9 || digit((*digits)[1]) >= 18) return std::nullopt;
  return middleOf(*digits);
}

bool isShortCode(std::string_view text) {
  return digitsOf(text, 4).has_value() || digitsOf(text, 2).has_value();
}

Coordinate nearestOfShortCode(std::string_view code, Coordinate place) {
  const std::size_t plus = code.find('+');
  const std::string digits = *digitsOf(code, plus);
  // The cell that the missing digits name is one of a lattice of this width.
  const double step = plus == 4 ? 1 : 1 / kBase;
  const Coordinate south = middleOf(std::string(kPlus - plus, kDigits.front()) + digits);
  const auto nearest = [step](double value, double middle) {
    return value + std::round((middle - value) / step) * step;
  };
  Coordinate found{nearest(south.latitude, place.latitude),
                   nearest(south.longitude, place.longitude)};
  if (found.latitude > 90) found.latitude -= step;
  if (found.latitude < -90) found.latitude += step;
  found.longitude = std::remainder(found.longitude, 360);
  return found;
}

}  // namespace wayloom
