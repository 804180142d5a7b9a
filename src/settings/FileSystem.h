#pragma once

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <sys/types.h>

#include "settings/Result.h"

namespace wayloom {

/// The system's calls that settings files are read and replaced with, one function each. They
/// answer as the system's own functions do: negative, with the reason in errno, when they fail.
/// Everything else asks for files through here, so that a test can let each call fail. Any thread
/// may call it.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// The machine's own.
  static FileSystem& machine();

  virtual int open(const std::filesystem::path& path, int flags, mode_t mode = 0);
  virtual ssize_t read(int descriptor, void* bytes, std::size_t count);
  virtual ssize_t write(int descriptor, const void* bytes, std::size_t count);
  /// Returns when a file, or a folder's list of names, is on disk.
  virtual int sync(int descriptor);
  /// Takes the exclusive lock on an open file; EWOULDBLOCK while someone else has it.
  virtual int lock(int descriptor);
  virtual int rename(const std::filesystem::path& from, const std::filesystem::path& to);
  virtual int link(const std::filesystem::path& from, const std::filesystem::path& to);
  virtual int unlink(const std::filesystem::path& path);
  virtual int makeFolder(const std::filesystem::path& path, mode_t mode);
};

/// Calls again for as long as a signal cuts the call short.
template <typename Call>
auto uninterrupted(Call&& call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// The failure of a call just made: "cannot replace PATH: No space left on device".
Failure systemFailure(std::string_view what, const std::filesystem::path& path);

/// Puts a folder's list of names on disk, so that new names in it survive a power cut. File systems
/// that cannot do so count as having done it.
bool syncFolder(const std::filesystem::path& folder, FileSystem& system);

/// Makes a folder and those above it that are missing, each open to all readers whatever the
/// process's umask, and on disk.
Status createFolder(const std::filesystem::path& folder, FileSystem& system);

}  // namespace wayloom
