#include "settings/ExtendedAttributes.h"

#include <cerrno>
#include <cstring>
#include <string>
#include <sys/xattr.h>

#include "settings/FileSystem.h"

namespace wayloom {

namespace {

bool isOutOfReach(int error) {
  return error == ENOTSUP || error == EPERM || error == EACCES || error == ENODATA;
}

/// The list of names, each ended by a zero byte; empty when there are none or none can be had.
std::string namesOf(const std::filesystem::path& path) {
  const ssize_t size = ::llistxattr(path.c_str(), nullptr, 0);
  if (size <= 0) return {};
  std::string names(static_cast<std::size_t>(size), '\0');
  const ssize_t read = ::llistxattr(path.c_str(), names.data(), names.size());
  names.resize(read > 0 ? static_cast<std::size_t>(read) : 0);
  return names;
}

/// 0, or why the attribute cannot be copied.
int copy(const std::filesystem::path& from, const char* name, int descriptor) {
  const ssize_t size = ::lgetxattr(from.c_str(), name, nullptr, 0);
  if (size < 0) return errno;
  std::string value(static_cast<std::size_t>(size), '\0');
  const ssize_t read = ::lgetxattr(from.c_str(), name, value.data(), value.size());
  if (read < 0) return errno;
  return ::fsetxattr(descriptor, name, value.data(), static_cast<std::size_t>(read), 0) == 0
             ? 0
             : errno;
}

}  // namespace

Status copyExtendedAttributes(const std::filesystem::path& from, int descriptor) {
  const std::string names = namesOf(from);
  for (std::size_t at = 0; at < names.size(); at += std::strlen(names.c_str() + at) + 1) {
    errno = copy(from, names.c_str() + at, descriptor);
    if (errno != 0 && !isOutOfReach(errno)) {
      return systemFailure("cannot keep the attributes of", from);
    }
  }
  return done();
}

}  // namespace wayloom
