#include "settings/ReplaceFile.h"

#include <cerrno>
#include <fcntl.h>
#include <random>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "settings/Descriptor.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;

constexpr int kNameAttempts = 16;

Status systemFailure(const std::string& what, const fs::path& path, int error) {
  return failed(what + " " + path.string() + ": " + std::generic_category().message(error));
}

/// Sixteen random digits: a temporary's name must not be guessable, or another process could stand
/// a file or link of that name in the way.
std::string randomDigits() {
  std::random_device source;
  std::string digits;
  for (int i = 0; i < 16; ++i) {
    digits += "0123456789abcdef"[source() % 16];
  }
  return digits;
}

/// The new file's contents, under a name of their own until they take the target's.
class Temporary {
 public:
  explicit Temporary(const fs::path& target) : mTarget(target) {}
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (!mPath.empty()) {
      ::unlink(mPath.c_str());
    }
  }

  Status create() {
    for (int attempt = 0; attempt < kNameAttempts; ++attempt) {
      std::string name = mTarget.filename().string();
      name.append(".").append(randomDigits()).append(".tmp");
      fs::path path = mTarget.parent_path() / name;
      mFile.reset(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0644));
      if (mFile.get() >= 0) {
        mPath = std::move(path);
        return done();
      }
      if (errno != EEXIST && errno != EINTR) {
        break;
      }
    }
    return systemFailure("cannot create a file beside", mTarget, errno);
  }

  Status takePermissionsOfTarget() {
    struct stat old = {};
    if (::stat(mTarget.c_str(), &old) != 0 || !S_ISREG(old.st_mode)) {
      return done();
    }
    struct stat fresh = {};
    ::fstat(mFile.get(), &fresh);
    if (old.st_uid != fresh.st_uid || old.st_gid != fresh.st_gid) {
      // Only the superuser may give files away; for others the folder's owner writes, which is
      // fine.
      [[maybe_unused]] const int ignored = ::fchown(mFile.get(), old.st_uid, old.st_gid);
    }
    const mode_t mode = old.st_mode & 0777;
    if (mode != (fresh.st_mode & 0777) && ::fchmod(mFile.get(), mode) != 0) {
      return systemFailure("cannot set the permissions of the new", mTarget, errno);
    }
    return done();
  }

  Status write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = ::write(mFile.get(), bytes.data(), bytes.size());
      if (written < 0 && errno != EINTR) {
        return systemFailure("cannot write the new", mTarget, errno);
      }
      bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    if (::fsync(mFile.get()) != 0 || mFile.close() != 0) {
      return systemFailure("cannot put on disk the new", mTarget, errno);
    }
    return done();
  }

  Status takeNameOfTarget() {
    if (::rename(mPath.c_str(), mTarget.c_str()) != 0) {
      return systemFailure("cannot replace", mTarget, errno);
    }
    mPath.clear();
    return done();
  }

 private:
  const fs::path& mTarget;
  fs::path mPath;
  Descriptor mFile;
};

Status syncFolder(const fs::path& target) {
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // Some file systems cannot sync a folder and say EINVAL; there is nothing more to be done there.
  if (descriptor.get() < 0 || (::fsync(descriptor.get()) != 0 && errno != EINVAL)) {
    return systemFailure("replaced, but a power cut may undo it: cannot sync the folder of", target,
                         errno);
  }
  return done();
}

Status createFolderOf(const fs::path& target) {
  std::error_code error;
  fs::create_directories(target.parent_path(), error);
  if (error) {
    return systemFailure("cannot create the folder of", target, error.value());
  }
  return done();
}

}  // namespace

Status replaceFile(const fs::path& path, std::string_view bytes) {
  Temporary temporary(path);
  Status result = temporary.create();
  if (!result && path.has_parent_path() && ::access(path.parent_path().c_str(), F_OK) != 0) {
    result = createFolderOf(path);
    if (result) {
      result = temporary.create();
    }
  }
  if (result) {
    result = temporary.takePermissionsOfTarget();
  }
  if (result) {
    result = temporary.write(bytes);
  }
  if (result) {
    result = temporary.takeNameOfTarget();
  }
  return result ? syncFolder(path) : result;
}

}  // namespace wayloom
