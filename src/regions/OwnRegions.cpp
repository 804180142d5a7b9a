#include "regions/OwnRegions.h"

#include <algorithm>
#include <system_error>

#include "settings/Utf8.h"

namespace wayloom {

namespace {

constexpr std::size_t kLongestNameBytes = 120;

Status checkName(const std::string& name) {
  if (name.empty()) return failed("a region needs a name");
  if (name.size() > kLongestNameBytes) return failed("the region's name is too long");
  if (name.front() == '.') return failed("a region's name cannot begin with a dot");
  for (std::size_t at = 0; at < name.size();) {
    const Utf8Step step = utf8Step(name, at);
    if (!step.valid || step.character < ' ' || step.character == 0x7f || step.character == '/') {
      return failed("a region's name cannot hold slashes or control characters");
    }
    at += step.length;
  }
  return done();
}

bool isInstalledElsewhere(const std::filesystem::path& target, const RegionStore& installed) {
  return std::any_of(installed.regions().begin(), installed.regions().end(),
                     [&](const Region& region) {
                       return region.path.filename() == target.filename() && region.path != target;
                     });
}

}  // namespace

Result<std::filesystem::path> newRegionPath(const std::filesystem::path& folder,
                                            const std::string& name, const RegionStore& installed) {
  if (auto status = checkName(name); !status) return status.failure();
  auto target = folder / (name + kRegionExtension);
  if (isInstalledElsewhere(target, installed)) {
    return failed("the region " + name +
                  " comes with the program and would be hidden: choose another name");
  }
  return target;
}

Result<std::filesystem::path> removeRegion(const std::filesystem::path& folder,
                                           const std::string& name, const RegionStore& installed) {
  if (auto status = checkName(name); !status) return status.failure();
  auto target = folder / (name + kRegionExtension);
  std::error_code error;
  if (std::filesystem::remove(target, error)) return target;
  if (error) return failed(target.string() + " cannot be removed: " + error.message());
  return failed(isInstalledElsewhere(target, installed)
                    ? "the region " + name + " comes with the program and stays"
                    : "there is no region " + name);
}

}  // namespace wayloom
