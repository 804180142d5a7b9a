#include "cli/TimeArgument.h"

#include <charconv>
#include <cmath>
#include <ctime>
#include <string_view>

namespace wayloom {

namespace {

/// Takes a whole number off the front.
std::optional<std::int64_t> takeNumber(std::string_view& text) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || number < 0) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

/// "1h30m" in seconds.
std::optional<double> duration(std::string_view text) {
  if (text.empty()) return std::nullopt;
  double seconds = 0;
  while (!text.empty()) {
    const auto number = takeNumber(text);
    constexpr std::string_view kUnits = "smhd";
    constexpr double kSeconds[] = {1, 60, 3600, 86400};
    const std::size_t unit = text.empty() ? std::string_view::npos : kUnits.find(text.front());
    if (!number || unit == std::string_view::npos) return std::nullopt;
    seconds += static_cast<double>(*number) * kSeconds[unit];
    text.remove_prefix(1);
  }
  return seconds;
}

/// What may stand behind a date and time: nothing, "Z", or an offset such as "+01:00". None for
/// local time.
struct Zone {
  std::optional<long> offsetSeconds;
};

std::optional<Zone> parseZone(const char* text) {
  if (*text == '\0') return Zone{};
  tm zone{};
  const char* end = strptime(text, "%z", &zone);
  if (!end || *end != '\0') return std::nullopt;
  return Zone{zone.tm_gmtoff};
}

std::optional<double> isoTime(const std::string& text) {
  for (const char* form :
       {"%Y-%m-%dT%H:%M:%S", "%Y-%m-%d %H:%M:%S", "%Y-%m-%dT%H:%M", "%Y-%m-%d %H:%M", "%Y-%m-%d"}) {
    tm parts{};
    parts.tm_isdst = -1;
    const char* end = strptime(text.c_str(), form, &parts);
    const auto zone = end ? parseZone(end) : std::nullopt;
    if (!zone) continue;
    // A day that the month does not have would silently be another one.
    const int day = parts.tm_mday;
    tm utc = parts;
    const time_t seconds = timegm(&utc);
    if (utc.tm_mday != day) return std::nullopt;
    return static_cast<double>(zone->offsetSeconds ? seconds - *zone->offsetSeconds
                                                   : mktime(&parts));
  }
  return std::nullopt;
}

std::optional<double> anyTime(const std::string& text, double now) {
  if (text == "now") return std::trunc(now);
  if (text.starts_with('+')) {
    const auto later = duration(std::string_view(text).substr(1));
    return later ? std::optional(std::trunc(now) + *later) : std::nullopt;
  }
  std::string_view rest = text;
  if (const auto seconds = takeNumber(rest); seconds && rest.empty()) {
    return static_cast<double>(*seconds);
  }
  return isoTime(text);
}

}  // namespace

std::optional<double> parseTime(const std::string& text, double now) {
  const auto time = anyTime(text, now);
  constexpr double kEndOfYear9999 = 253'402'300'799;
  if (!time || *time < 0 || *time > kEndOfYear9999) return std::nullopt;
  return time;
}

std::string timeText(double secondsSince1970) {
  const auto seconds = static_cast<time_t>(secondsSince1970);
  tm parts{};
  char text[40];
  if (!localtime_r(&seconds, &parts) ||
      std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S%z", &parts) == 0) {
    return std::to_string(seconds);
  }
  return text;
}

}  // namespace wayloom
