#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace wayloom {

/// A folder that is gone with everything in it at the end of the test.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "wayloom-XXXXXX").string();
    mPath = ::mkdtemp(pattern.data());
  }
  ~TemporaryFolder() { std::filesystem::remove_all(mPath); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return mPath; }

 private:
  std::filesystem::path mPath;
};

}  // namespace wayloom
