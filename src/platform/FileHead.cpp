#include "platform/FileHead.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

#include "settings/Descriptor.h"

namespace wayloom {

std::optional<std::string> readFileHead(const std::filesystem::path& path, std::size_t limit) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status = {};
  if (file.get() < 0 || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return std::nullopt;
  }
  std::string bytes(std::min(static_cast<std::size_t>(status.st_size), limit), '\0');
  std::size_t length = 0;
  while (length < bytes.size()) {
    const ssize_t count = ::read(file.get(), bytes.data() + length, bytes.size() - length);
    if (count < 0 && errno != EINTR) return std::nullopt;
    if (count == 0) break;
    length += count < 0 ? 0 : static_cast<std::size_t>(count);
  }
  bytes.resize(length);
  return bytes;
}

}  // namespace wayloom
