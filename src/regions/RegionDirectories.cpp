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

std::optional<std::filesystem::path> ownRegionDirectory(
    const std::optional<std::filesystem::path>& chosen) {
  if (chosen) return chosen;
  if (auto named = environmentPath("WAYLOOM_REGIONS")) return named;
  if (const auto data = environmentPath("XDG_DATA_HOME"); data && data->is_absolute()) {
    return *data / kFolder;
  }
  const auto home = environmentPath("HOME");
  return home ? std::optional(*home / ".local/share" / kFolder) : std::nullopt;
}

std::vector<std::filesystem::path> regionDirectories(
    const std::optional<std::filesystem::path>& chosen) {
  std::vector<std::filesystem::path> directories;
  if (const auto own = ownRegionDirectory(chosen)) directories.push_back(*own);
  if (chosen || environmentPath("WAYLOOM_REGIONS")) return directories;
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) directories.push_back(program.parent_path().parent_path() / "share" / kFolder);
  return directories;
}

}  // namespace wayloom
