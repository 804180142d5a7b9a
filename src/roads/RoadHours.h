#pragma once

#include <compare>
#include <cstdint>
#include <string_view>
#include <vector>

namespace wayloom {

/// A moment by the clocks and calendars of where one is.
struct RoadTime {
  /// From 0, January.
  int month = 0;
  /// From 0, Monday.
  int weekday = 0;
  /// Of the day.
  int minute = 0;
};

/// The moment by this machine's clocks; `secondsSince1970` may be anything finite.
RoadTime roadTime(double secondsSince1970);

/// Hours that come back: on some days of the week in some months, from one minute of the day until
/// before another. Where that is not later the hours end on the day after.
struct RoadHours {
  static constexpr std::uint16_t kAllMonths = 0xFFF;
  static constexpr std::uint8_t kAllDays = 0x7F;
  static constexpr std::uint16_t kDayMinutes = 24 * 60;

  std::uint16_t months = kAllMonths;
  std::uint8_t days = kAllDays;
  std::uint16_t from = 0;
  std::uint16_t to = kDayMinutes;

  bool contain(const RoadTime& time) const;

  auto operator<=>(const RoadHours&) const = default;  // NOLINT(modernize-use-nullptr)
};

struct ParsedHours {
  std::vector<RoadHours> hours;
  /// Whether nothing of the text was passed over.
  bool isWhole = true;
};

/// Reads opening hours as far as conditions on roads use them: months, days of the week and hours
/// ("Oct-Mar Mo-Fr,Su 07:00-09:00,16:00-18:00; Sa 10:00-14:00", "24/7"). What else the text holds,
/// as holidays, dates or the sun, is passed over.
ParsedHours parseHours(std::string_view text);

}  // namespace wayloom
