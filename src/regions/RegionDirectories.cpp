#include "regions/RegionDirectories.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace wayloom {

namespace {

constexpr char kFolder[] = "wayloom/regions";

std::optional<std::filesystem::path> environmentPath(const char* name) {
  const char* value = std::getenv(name);
  if (!value || !*value) return std::nullopt;
  return std::filesystem::path(value);
}

}  // namespace

std::vector<std::filesystem::path> regionDirectories(
    const std::optional<std::filesystem::path>& chosen) {
  if (chosen) return {*chosen};
  if (const auto named = environmentPath("WAYLOOM_REGIONS")) return {*named};
  std::vector<std::filesystem::path> directories;
  if (const auto data = environmentPath("XDG_DATA_HOME"); data && data->is_absolute()) {
    directories.push_back(*data / kFolder);
  } else if (const auto home = environmentPath("HOME")) {
    directories.push_back(*home / ".local/share" / kFolder);
  }
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) directories.push_back(program.parent_path().parent_path() / "share" / kFolder);
  return directories;
}

}  // namespace wayloom
