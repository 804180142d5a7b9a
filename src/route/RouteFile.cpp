#include "route/RouteFile.h"

#include <utility>

#include "settings/TextConversions.h"

namespace wayloom {

namespace {

constexpr const char* kPointsKey = "points";

Status write(SettingsFiles& files, PropertyList::Dictionary entries,
             const std::optional<RoutePoints>& points) {
  if (points) entries.insert_or_assign(kPointsKey, points->records());
  return files.save(SettingsFile::Route, std::move(entries));
}

}  // namespace

const PropertyList* RoutePreferences::find(const char* key) const {
  const auto found = entries.find(key);
  return found == entries.end() ? nullptr : &found->second;
}

bool RoutePreferences::enabled() const {
  return boolValue(find("enable"));
}

std::int32_t RoutePreferences::start() const {
  return intValue(find("start"));
}

std::int32_t RoutePreferences::end() const {
  return intValue(find("end"));
}

std::string RoutePreferences::text(const char* key) const {
  const PropertyList* value = find(key);
  const auto* text = value ? value->get<std::string>() : nullptr;
  return text ? *text : std::string();
}

RoutePreferences RouteFile::load() const {
  waitUntilSaved();
  RoutePreferences preferences;
  auto settings = mFiles.loadDictionary(SettingsFile::Route);
  if (!settings) return preferences;
  preferences.entries = std::move(*settings);
  if (auto points = preferences.entries.extract(kPointsKey)) {
    preferences.points =
        std::make_shared<RoutePoints>(RoutePoints::stored(std::move(points.mapped())));
  }
  return preferences;
}

Status RouteFile::save(const RoutePreferences& preferences) {
  const auto points = preferences.points ? std::optional(*preferences.points) : std::nullopt;
  if (!mSaves) return write(mFiles, preferences.entries, points);
  mSaves->post([&files = mFiles, entries = preferences.entries, points] {
    (void)write(files, entries, points);
  });
  return done();
}

void RouteFile::waitUntilSaved() const {
  if (mSaves) mSaves->waitUntilDone();
}

}  // namespace wayloom
