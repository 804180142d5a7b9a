#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "route/RoutePoints.h"
#include "settings/ReadFile.h"
#include "settings/Result.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// What a route file holds, in memory.
struct RoutePreferences {
  /// Every entry but "points".
  PropertyList::Dictionary entries;
  /// Null when the file has no such entry. After turning on it is the list of the screen that
  /// turned on, which a new plan refills.
  std::shared_ptr<RoutePoints> points;
  /// Which file it was read from, or written to.
  std::optional<FileVersion> version = std::nullopt;

  bool isEmpty() const { return entries.empty() && !points; }
  bool enabled() const;
  /// Seconds since 1970, as every reader of the file takes them.
  std::int32_t start() const;
  std::int32_t end() const;
  /// The same as they were written, to be shown: also after 2038.
  double writtenStart() const;
  double writtenEnd() const;
  /// The addresses of both ends; empty when they are missing or no texts.
  std::string startText() const { return text("s"); }
  std::string endText() const { return text("e"); }

 private:
  std::string text(const char* key) const;
};

/// Entries to set in a route file, and the points if they change too.
struct RouteChange {
  PropertyList::Dictionary entries;
  std::optional<RoutePoints> points;
};

/// The route file, read and replaced whole. One thread at a time.
class RouteFile {
 public:
  /// `files` must outlive this object.
  explicit RouteFile(SettingsFiles& files) : mFiles(files) {}

  /// Nothing of a missing or damaged file.
  Result<RoutePreferences> load() const;

  /// Makes a change to the file as it is now, which is only read when it is not the version of
  /// `known`; where there is no file, to `known` itself. Answers what the file then holds.
  Result<RoutePreferences> change(RoutePreferences known, const RouteChange& change);

 private:
  Status save(const RoutePreferences& preferences);

  SettingsFiles& mFiles;
};

}  // namespace wayloom
