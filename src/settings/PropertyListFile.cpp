#include "settings/PropertyListFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "settings/Descriptor.h"
#include "settings/PropertyListFormat.h"
#include "settings/ReplaceFile.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;

constexpr int kLastSetAsideNumber = 999;

std::string describe(int error) {
  return std::generic_category().message(error);
}

struct FileBytes {
  std::string bytes;
  struct stat status = {};
  /// 0, or why the bytes could not be read.
  int error = 0;
};

/// Reads a regular file whole. It never waits: a pipe that stands where the file should is refused.
FileBytes readBytes(const fs::path& path) {
  FileBytes file;
  const Descriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (descriptor.get() < 0 || ::fstat(descriptor.get(), &file.status) != 0) {
    file.error = errno;
    return file;
  }
  if (!S_ISREG(file.status.st_mode)) {
    file.error = EINVAL;
    return file;
  }
  // One byte more than may be: enough to know that the file is too large.
  constexpr std::size_t kMost = kMaximumPropertyListBytes + 1;
  const auto size = static_cast<std::size_t>(file.status.st_size);
  file.bytes.resize(std::min(size + 1, kMost));
  std::size_t length = 0;
  while (true) {
    if (length == file.bytes.size()) {
      if (length == kMost) {
        break;
      }
      file.bytes.resize(std::min(length * 2, kMost));
    }
    const ssize_t count =
        ::read(descriptor.get(), file.bytes.data() + length, file.bytes.size() - length);
    if (count == 0) {
      break;
    }
    if (count < 0 && errno != EINTR) {
      file.error = errno;
      break;
    }
    length += count < 0 ? 0 : static_cast<std::size_t>(count);
  }
  file.bytes.resize(length);
  return file;
}

FileVersion versionFrom(const struct stat& status) {
  return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
          status.st_mtim.tv_nsec};
}

std::optional<FileVersion> versionAt(const fs::path& path) {
  struct stat status = {};
  return ::stat(path.c_str(), &status) == 0 ? std::optional(versionFrom(status)) : std::nullopt;
}

/// Gives the file at `path` a further name, under which it outlives its replacement.
Status keepUnderFurtherName(const fs::path& path, fs::path& furtherName) {
  for (int number = 1; number <= kLastSetAsideNumber; ++number) {
    furtherName = path;
    furtherName += ".damaged-" + std::to_string(number);
    if (::link(path.c_str(), furtherName.c_str()) == 0) {
      return done();
    }
    if (errno == EEXIST) {
      continue;
    }
    // A file system without links: a copy keeps the bytes as well.
    std::error_code error;
    if (!fs::exists(fs::symlink_status(furtherName, error)) &&
        fs::copy_file(path, furtherName, error)) {
      return done();
    }
    return failed("cannot set aside the damaged " + path.string() + ": " + error.message());
  }
  return failed("cannot set aside the damaged " + path.string() + ": " +
                std::to_string(kLastSetAsideNumber) + " are kept already, remove some");
}

}  // namespace

PropertyListFile::PropertyListFile(fs::path path, Root root)
    : mPath(std::move(path)), mRoot(root) {}

PropertyListFile::Contents PropertyListFile::read() const {
  mSound.reset();
  const FileBytes file = readBytes(mPath);
  if (file.error == ENOENT || file.error == ENOTDIR) {
    return {};
  }
  if (file.error != 0) {
    const bool isNoFile = file.status.st_mode != 0 && !S_ISREG(file.status.st_mode);
    return {State::Damaged, {}, isNoFile ? "not a regular file" : describe(file.error)};
  }
  ParsedPropertyList parsed = parsePropertyList(file.bytes);
  if (!parsed.value) {
    return {State::Damaged, {}, std::move(parsed.damage)};
  }
  if (!isRightRoot(*parsed.value)) {
    return {State::Damaged,
            {},
            mRoot == Root::Array ? "the root is no array" : "the root is no dictionary"};
  }
  mSound = versionFrom(file.status);
  return {State::Loaded, std::move(*parsed.value), {}};
}

Status PropertyListFile::write(const PropertyList& value) {
  if (!isRightRoot(value)) {
    return failed("a value of the wrong type for " + mPath.string());
  }
  const SerializedPropertyList serialized = serializePropertyList(value);
  if (!serialized.bytes) {
    return failed("cannot write " + mPath.string() + ": " + serialized.problem);
  }
  fs::path setAside;
  if (mustBeSetAside()) {
    Status kept = keepUnderFurtherName(mPath, setAside);
    if (!kept) {
      return kept;
    }
  }
  Status replaced = replaceFile(mPath, *serialized.bytes);
  mSound = replaced ? versionAt(mPath) : std::nullopt;
  if (!replaced && !setAside.empty()) {
    std::error_code error;
    if (fs::equivalent(mPath, setAside, error)) {
      fs::remove(setAside, error);
    }
  }
  return replaced;
}

bool PropertyListFile::isRightRoot(const PropertyList& value) const {
  return mRoot == Root::Array ? value.get<PropertyList::Array>() != nullptr
                              : value.get<PropertyList::Dictionary>() != nullptr;
}

bool PropertyListFile::mustBeSetAside() const {
  if (mSound && mSound == versionAt(mPath)) {
    return false;
  }
  return read().state == State::Damaged;
}

}  // namespace wayloom
