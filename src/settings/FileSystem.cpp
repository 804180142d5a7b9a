#include "settings/FileSystem.h"

#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "settings/Descriptor.h"

namespace wayloom {

namespace fs = std::filesystem;

FileSystem& FileSystem::machine() {
  static FileSystem machine;
  return machine;
}

int FileSystem::open(const fs::path& path, int flags, mode_t mode) {
  return ::open(path.c_str(), flags, mode);
}

ssize_t FileSystem::read(int descriptor, void* bytes, std::size_t count) {
  return ::read(descriptor, bytes, count);
}

ssize_t FileSystem::write(int descriptor, const void* bytes, std::size_t count) {
  return ::write(descriptor, bytes, count);
}

int FileSystem::sync(int descriptor) {
  return ::fsync(descriptor);
}

int FileSystem::lock(int descriptor) {
  return ::flock(descriptor, LOCK_EX | LOCK_NB);
}

int FileSystem::rename(const fs::path& from, const fs::path& to) {
  return ::rename(from.c_str(), to.c_str());
}

int FileSystem::link(const fs::path& from, const fs::path& to) {
  return ::link(from.c_str(), to.c_str());
}

int FileSystem::unlink(const fs::path& path) {
  return ::unlink(path.c_str());
}

int FileSystem::makeFolder(const fs::path& path, mode_t mode) {
  return ::mkdir(path.c_str(), mode);
}

Failure systemFailure(std::string_view what, const fs::path& path) {
  const std::string reason = std::generic_category().message(errno);
  return failed(std::string(what) + " " + path.string() + ": " + reason);
}

bool syncFolder(const fs::path& folder, FileSystem& system) {
  const Descriptor descriptor(
      uninterrupted([&] { return system.open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
  return descriptor.get() >= 0 &&
         (uninterrupted([&] { return system.sync(descriptor.get()); }) == 0 || errno == EINVAL);
}

Status createFolder(const fs::path& folder, FileSystem& system) {
  constexpr mode_t kMode = 0755;
  if (folder.empty() || ::access(folder.c_str(), F_OK) == 0) return done();
  const fs::path parent = folder.parent_path();
  if (Status made = createFolder(parent, system); !made) return made;
  if (system.makeFolder(folder, kMode) != 0) {
    if (errno == EEXIST) return done();
    return systemFailure("cannot create the folder", folder);
  }
  if (::chmod(folder.c_str(), kMode) != 0 ||
      !syncFolder(parent.empty() ? fs::path(".") : parent, system)) {
    return systemFailure("cannot put on disk the new folder", folder);
  }
  return done();
}

}  // namespace wayloom
