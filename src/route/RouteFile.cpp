#include "route/RouteFile.h"

#include <cmath>
#include <limits>
#include <utility>

#include "settings/TextConversions.h"

namespace wayloom {

bool RoutePreferences::enabled() const {
  return boolValue(valueOf(entries, "enable"));
}

std::int32_t RoutePreferences::start() const {
  return intValue(valueOf(entries, "start"));
}

std::int32_t RoutePreferences::end() const {
  return intValue(valueOf(entries, "end"));
}

namespace {

/// What every reader takes, or what is written where 32 bits do not hold it and a calendar does.
double written(const PropertyList* value, std::int32_t taken) {
  constexpr double kEndOfYear9999 = 253'402'300'799;
  const double seconds = std::trunc(doubleValue(value));
  return seconds > taken && taken == std::numeric_limits<std::int32_t>::max() &&
                 seconds <= kEndOfYear9999
             ? seconds
             : taken;
}

}  // namespace

double RoutePreferences::writtenStart() const {
  return written(valueOf(entries, "start"), start());
}

double RoutePreferences::writtenEnd() const {
  return written(valueOf(entries, "end"), end());
}

std::string RoutePreferences::text(const char* key) const {
  const PropertyList* value = valueOf(entries, key);
  const auto* text = value ? value->get<std::string>() : nullptr;
  return text ? *text : std::string();
}

Result<RoutePreferences> RouteFile::load() const {
  auto settings = mFiles.loadDictionary(SettingsFile::Route);
  if (!settings) return settings.failure();
  RoutePreferences preferences;
  if (!*settings) return preferences;
  preferences.entries = std::move(**settings);
  preferences.version = mFiles.seenVersion(SettingsFile::Route);
  if (auto points = preferences.entries.extract("points")) {
    preferences.points =
        std::make_shared<RoutePoints>(RoutePoints::stored(std::move(points.mapped())));
  }
  return preferences;
}

Result<RoutePreferences> RouteFile::change(RoutePreferences known, const RouteChange& change) {
  const auto turn = mFiles.takeTurn();
  if (!turn) return turn.failure();
  if (known.version != mFiles.currentVersion(SettingsFile::Route)) {
    auto current = load();
    if (!current) return current.failure();
    if (!current->isEmpty()) known = std::move(*current);
  }
  for (const auto& [key, value] : change.entries) known.entries.insert_or_assign(key, value);
  if (change.points) known.points = std::make_shared<RoutePoints>(*change.points);
  if (Status saved = save(known); !saved) return saved.failure();
  known.version = mFiles.seenVersion(SettingsFile::Route);
  return known;
}

Status RouteFile::save(const RoutePreferences& preferences) {
  if (!preferences.points) return mFiles.save(SettingsFile::Route, preferences.entries);
  SerializedPropertyList list = serializeWith(preferences.points->entry(), preferences.entries);
  if (list.bytes) return mFiles.saveBytes(SettingsFile::Route, *list.bytes);
  return failed("cannot write " + mFiles.path(SettingsFile::Route).string() + ": " + list.problem);
}

}  // namespace wayloom
