#include "route/DriveStatus.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace wayloom {

namespace {

/// Of what is left of a drive, so that it is no less than what was given when it begins.
double wholeMinutes(double seconds) {
  return std::ceil(seconds / 60);
}

int dayOf(std::time_t seconds) {
  std::tm parts{};
  return localtime_r(&seconds, &parts) ? parts.tm_year * 366 + parts.tm_yday : 0;
}

Phrase::Moment moment(double seconds, std::int32_t now) {
  return {seconds, dayOf(static_cast<std::time_t>(seconds)) != dayOf(now)};
}

}  // namespace

std::optional<double> progressAt(std::int32_t now, const RoutePreferences& preferences) {
  if (!preferences.enabled() || !preferences.points || preferences.points->isEmpty()) return {};
  const double start = preferences.start(), end = preferences.end();
  if (now < start) return 0;
  return now >= end ? 1 : (now - start) / (end - start);
}

Phrase driveStatus(std::int32_t now, const RoutePreferences& preferences) {
  if (!preferences.enabled()) return Phrase{"Off"};
  const auto progress = progressAt(now, preferences);
  if (!progress) return Phrase{"The drive has no path"};
  const double start = preferences.writtenStart(), end = preferences.writtenEnd();
  const Phrase::Moment arrival = moment(end, now);
  if (now < preferences.start()) {
    if (end < start) return Phrase{"The drive ends before it starts"};
    return Phrase{"Starts %1, arrives %2", {moment(start, now), arrival}};
  }
  if (*progress == 1) return Phrase{"Arrived"};
  return Phrase{"Driving: %1 %, %2 left, arrives %3",
                {Phrase::Number{std::floor(100 * *progress)},
                 durationPhrase(wholeMinutes(end - now)), arrival}};
}

std::optional<Phrase> statusWhileOn(std::int32_t now, const RoutePreferences& preferences) {
  return preferences.enabled() ? std::optional(driveStatus(now, preferences)) : std::nullopt;
}

Phrase choiceStatus(std::int32_t now, const RouteChoices& choices,
                    const std::optional<PlannedDrive>& planned) {
  if (!planned) return Phrase{"Off"};
  if (planned->hasFailed) {
    return Phrase{"No roads lead from %1 to %2", {choices.startText, choices.endText}};
  }
  const Phrase distance = distancePhrase(planned->metres);
  const Phrase duration = durationPhrase(std::max(1.0, std::round(planned->seconds / 60)));
  if (!(choices.startTime > 0) || !(choices.endTime > choices.startTime)) {
    return Phrase{"Drive: %1, %2", {distance, duration}};
  }
  const double given = choices.endTime - startTimeFrom(choices, now);
  const auto speed = Phrase{"%1 km/h", {Phrase::Number{planned->metres / given * 3.6}}};
  return Phrase{"Drive: %1, %2; you gave %3, %4",
                {distance, duration, durationPhrase(wholeMinutes(given)), speed}};
}

}  // namespace wayloom
