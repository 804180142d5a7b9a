#include "settings/ReadFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>

#include "settings/Descriptor.h"

namespace wayloom {

namespace {

using Outcome = FileReading::Outcome;

FileVersion versionFrom(const struct stat& status) {
  return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
          status.st_mtim.tv_nsec};
}

FileReading failure(int error) {
  const char* const kLink = "a symbolic link stands in its place";
  return {Outcome::Failed, {}, {}, error == ELOOP ? kLink : std::generic_category().message(error)};
}

/// Appends what is still to be read, up to a length of `most`; 0, or why it stopped.
int readUpTo(std::size_t most, int descriptor, FileSystem& system, std::string& bytes) {
  std::size_t length = 0;
  bytes.resize(std::min(bytes.capacity(), most));
  while (length < most) {
    if (length == bytes.size()) bytes.resize(std::min(length * 2, most));
    const ssize_t count = uninterrupted(
        [&] { return system.read(descriptor, bytes.data() + length, bytes.size() - length); });
    if (count < 0) return errno;
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
  }
  bytes.resize(length);
  return 0;
}

}  // namespace

std::optional<FileVersion> versionAt(const std::filesystem::path& path) {
  struct stat status = {};
  return ::lstat(path.c_str(), &status) == 0 ? std::optional(versionFrom(status)) : std::nullopt;
}

FileReading readFile(const std::filesystem::path& path, std::size_t maximumBytes,
                     FileSystem& system) {
  const Descriptor descriptor(uninterrupted(
      [&] { return system.open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW); }));
  if (descriptor.get() < 0 && errno == ENOENT) return {Outcome::Missing, {}, {}, {}};
  struct stat status = {};
  if (descriptor.get() < 0 || ::fstat(descriptor.get(), &status) != 0) return failure(errno);
  if (!S_ISREG(status.st_mode)) return {Outcome::Failed, {}, {}, "it is not a regular file"};

  FileReading reading{Outcome::Complete, {}, versionFrom(status), {}};
  // One byte more than is needed tells the end of the file from a limit.
  const std::size_t most = maximumBytes + 1;
  reading.bytes.reserve(std::min(static_cast<std::size_t>(status.st_size) + 1, most));
  if (const int error = readUpTo(most, descriptor.get(), system, reading.bytes)) {
    return failure(error);
  }
  if (reading.bytes.size() > maximumBytes) return {Outcome::TooLarge, {}, reading.version, {}};
  return reading;
}

}  // namespace wayloom
