#include "route/DriveStatus.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace wayloom {

namespace {

double minutesBetween(double from, double to) {
  return (to - from) / 60;
}

int dayOf(std::time_t seconds) {
  std::tm parts{};
  return localtime_r(&seconds, &parts) ? parts.tm_year * 366 + parts.tm_yday : 0;
}

Phrase::Moment moment(std::int32_t seconds, std::int32_t now) {
  return {static_cast<double>(seconds), dayOf(seconds) != dayOf(now)};
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
  const Phrase::Moment arrival = moment(preferences.end(), now);
  if (now < preferences.start()) {
    return Phrase{"Starts %1, arrives %2", {moment(preferences.start(), now), arrival}};
  }
  if (*progress == 1) return Phrase{"Arrived"};
  return Phrase{"Driving: %1 %, %2 left, arrives %3",
                {Phrase::Number{std::floor(100 * *progress)},
                 durationPhrase(std::ceil(minutesBetween(now, preferences.end()))), arrival}};
}

Phrase choiceStatus(const RouteChoices& choices, const std::optional<PlannedDrive>& planned) {
  if (!planned) return Phrase{"Off"};
  if (planned->hasFailed) {
    return Phrase{"No roads lead from %1 to %2", {choices.startText, choices.endText}};
  }
  const Phrase distance = distancePhrase(planned->metres);
  const Phrase duration = durationPhrase(std::max(1.0, std::round(planned->seconds / 60)));
  const double given = choices.endTime - choices.startTime;
  if (!(choices.startTime > 0) || !(given > 0))
    return Phrase{"Drive: %1, %2", {distance, duration}};
  const auto speed = Phrase{"%1 km/h", {Phrase::Number{planned->metres / given * 3.6}}};
  return Phrase{"Drive: %1, %2; you gave %3, %4",
                {distance, duration, durationPhrase(std::round(given / 60)), speed}};
}

}  // namespace wayloom
