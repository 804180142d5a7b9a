#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "route/RoutePoints.h"
#include "settings/Result.h"
#include "settings/SettingsFiles.h"
#include "settings/WorkQueue.h"

namespace wayloom {

/// What a route file holds, in memory.
struct RoutePreferences {
  /// Every entry but "points".
  PropertyList::Dictionary entries;
  /// Null when the file has no such entry. After turning on it is the list of the screen that
  /// turned on, which a new plan refills.
  std::shared_ptr<RoutePoints> points;

  bool isEmpty() const { return entries.empty() && !points; }
  bool enabled() const;
  /// Seconds since 1970, as every reader of the file takes them.
  std::int32_t start() const;
  std::int32_t end() const;
  /// An entry that is a text; empty for every other.
  std::string text(const char* key) const;

 private:
  const PropertyList* find(const char* key) const;
};

/// The route file, read and replaced whole. Main thread only.
class RouteFile {
 public:
  /// With `saves` the file is written there, so that a long path holds up nobody; reading waits for
  /// what is still being written. Both must outlive this object.
  explicit RouteFile(SettingsFiles& files, WorkQueue* saves = nullptr)
      : mFiles(files), mSaves(saves) {}

  /// Nothing of a missing or damaged file.
  RoutePreferences load() const;

  /// Written behind the caller's back, it always goes well.
  Status save(const RoutePreferences& preferences);

  void waitUntilSaved() const;

 private:
  SettingsFiles& mFiles;
  WorkQueue* mSaves;
};

}  // namespace wayloom
