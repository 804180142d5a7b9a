#pragma once

#include <optional>
#include <string>

namespace wayloom {

/// Understands TIME: "now", a time from now such as "+30m" or "+1h30m" (d, h, m, s), seconds since
/// 1970, or ISO 8601 ("2026-11-23T08:30", local unless it ends in Z or an offset). Gives seconds
/// since 1970; none when it is none of these or lies outside the years 1970 to 9999.
std::optional<double> parseTime(const std::string& text, double now);

/// A moment as ISO 8601 in local time, with its offset.
std::string timeText(double secondsSince1970);

}  // namespace wayloom
