#include "regions/RegionStore.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <set>
#include <system_error>

namespace wayloom {

namespace {

constexpr std::size_t kLongestTextBytes = 1000;

// The region files of one directory by name, with whatever else carries such a name.
std::vector<std::filesystem::path> regionPaths(const std::filesystem::path& directory) {
  std::vector<std::filesystem::path> paths;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(directory, error), end; !error && entry != end;
       entry.increment(error)) {
    if (entry->path().extension() == kRegionExtension) paths.push_back(entry->path());
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::optional<double> degrees(const std::map<std::string, std::string, std::less<>>& meta,
                              std::string_view key) {
  const auto found = meta.find(key);
  if (found == meta.end()) return std::nullopt;
  const char* const begin = found->second.data();
  const char* const end = begin + found->second.size();
  double value = 0;
  const auto parsed = std::from_chars(begin, end, value);
  if (parsed.ec != std::errc() || parsed.ptr != end) return std::nullopt;
  return value;
}

Result<Region> readRegion(const std::filesystem::path& path) {
  auto database = openRegion(path);
  if (!database) return database.failure();
  auto info = readRegionInfo(*database);
  if (!info) return info.failure();
  return Region{path, std::move(*info)};
}

}  // namespace

RegionStore::RegionStore(const std::vector<std::filesystem::path>& directories) {
  std::set<std::filesystem::path> names;
  for (const auto& directory : directories) {
    for (const auto& path : regionPaths(directory)) {
      if (!names.insert(path.filename()).second) continue;
      auto region = readRegion(path);
      if (region) {
        mRegions.push_back(std::move(*region));
      } else {
        mRefused.push_back({path, region.failure().message});
      }
    }
  }
}

RegionStore RegionStore::without(const std::filesystem::path& path) const {
  RegionStore rest = *this;
  std::erase_if(rest.mRegions, [&](const Region& region) { return region.path == path; });
  return rest;
}

Result<Database> openRegion(const std::filesystem::path& path) {
  std::error_code error;
  // Opening a pipe would wait for ever.
  const auto kind = std::filesystem::status(path, error).type();
  if (kind == std::filesystem::file_type::not_found) return Failure{"the file is missing"};
  if (kind != std::filesystem::file_type::regular) return Failure{"not a file"};
  auto database = Database::openImmutable(path);
  if (!database) return Failure{"the file cannot be read: " + database.failure().message};
  const auto application = database->number("PRAGMA application_id");
  if (!application) return Failure{"the file is damaged: " + application.failure().message};
  if (*application != kRegionApplicationId) return Failure{"not a region file"};
  const auto version = database->number("PRAGMA user_version");
  if (!version) return Failure{"the file is damaged: " + version.failure().message};
  if (*version != kRegionVersion) {
    return Failure{"the file is of version " + std::to_string(*version) +
                   ", this program reads version " + std::to_string(kRegionVersion) +
                   "; make it anew with 'wayloomctl region import'"};
  }
  // Such code in a file could keep a query going for ever; no region needs it.
  const auto code =
      database->number("SELECT count(*) FROM sqlite_schema WHERE type IN ('view', 'trigger')");
  if (!code) return Failure{"the file is damaged: " + code.failure().message};
  if (*code != 0) return Failure{"the file holds views or triggers, which no region does"};
  return database;
}

Result<RegionInfo> readRegionInfo(Database& database) {
  auto statement = database.prepare(
      "SELECT key, value FROM meta WHERE key IN ('name', 'attribution', 'west', 'south', 'east', "
      "'north')");
  if (!statement) return Failure{"the file is damaged: " + statement.failure().message};
  std::map<std::string, std::string, std::less<>> meta;
  for (;;) {
    const auto row = statement->step();
    if (!row) return Failure{"the file is damaged: " + row.failure().message};
    if (!*row || meta.size() > 6) break;
    if (statement->text(1).size() > kLongestTextBytes) {
      return Failure{"the file is damaged: its description is too long"};
    }
    meta.insert_or_assign(std::string(statement->text(0)), std::string(statement->text(1)));
  }
  RegionInfo info{meta["name"], meta["attribution"], {}};
  if (info.name.empty()) return Failure{"the file is damaged: the region has no name"};
  const auto west = degrees(meta, "west");
  const auto south = degrees(meta, "south");
  const auto east = degrees(meta, "east");
  const auto north = degrees(meta, "north");
  if (west && south && east && north) info.bounds = {*west, *south, *east, *north};
  if (!(west && south && east && north) || !isValid(info.bounds)) {
    return Failure{"the file is damaged: the region's bounds make no sense"};
  }
  return info;
}

}  // namespace wayloom
