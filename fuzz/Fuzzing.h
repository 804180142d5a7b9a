#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace wayloom {

/// What must hold for any input; else the fuzzer keeps the input and stops.
inline void require(bool holds) {
  if (!holds) std::abort();
}

inline std::string_view textOf(const std::uint8_t* bytes, std::size_t count) {
  return {reinterpret_cast<const char*>(bytes), count};
}

/// What stands before the first zero byte, which is then taken out of the text with it.
inline std::string_view takePart(std::string_view& text) {
  const std::size_t end = std::min(text.find('\0'), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

inline void writeFile(const std::filesystem::path& path, std::string_view bytes) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

/// A folder in the machine's memory, gone when the program ends.
class MemoryFolder {
 public:
  MemoryFolder() {
    std::string name = "/dev/shm/wayloom-fuzz-XXXXXX";
    require(::mkdtemp(name.data()) != nullptr);
    mPath = name;
  }
  MemoryFolder(const MemoryFolder&) = delete;
  MemoryFolder& operator=(const MemoryFolder&) = delete;
  ~MemoryFolder() { clear(); }

  const std::filesystem::path& path() const { return mPath; }

  void clear() const {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }

 private:
  std::filesystem::path mPath;
};

}  // namespace wayloom
