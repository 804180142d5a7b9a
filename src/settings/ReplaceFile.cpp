#include "settings/ReplaceFile.h"

#include <fcntl.h>
#include <random>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "settings/Descriptor.h"
#include "settings/ExtendedAttributes.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;

constexpr int kNameAttempts = 16;
constexpr mode_t kNewFileMode = 0644;
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kDigitCount = 16;
constexpr std::string_view kSuffix = ".tmp";

/// Random digits: a temporary's name must not be guessable, or another process could stand a file
/// or link of that name in the way.
std::string randomDigits() {
  std::random_device source;
  std::string digits;
  while (digits.size() < kDigitCount) digits += kDigits[source() % kDigits.size()];
  return digits;
}

fs::path folderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

/// The new file's contents, under a name of their own until they take the target's.
class Temporary {
 public:
  Temporary(const fs::path& target, FileSystem& system) : mTarget(target), mSystem(system) {}
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    // After it took the target's name there is nothing of this name to remove.
    if (!mPath.empty()) mSystem.unlink(mPath);
  }

  Status create() {
    for (int attempt = 0; attempt < kNameAttempts; ++attempt) {
      std::string name = mTarget.filename().string();
      name.append(".").append(randomDigits()).append(kSuffix);
      fs::path path = mTarget.parent_path() / name;
      mFile.reset(uninterrupted([&] {
        return mSystem.open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW,
                            S_IRUSR | S_IWUSR);
      }));
      if (mFile.get() >= 0) {
        mPath = std::move(path);
        return done();
      }
      if (errno != EEXIST) break;
    }
    return systemFailure("cannot create a file beside", mTarget);
  }

  /// Makes it look to others as the target does, or as a new file of the folder's owner shall.
  Status dress() {
    struct stat old = {};
    const bool isThere = ::lstat(mTarget.c_str(), &old) == 0;
    if (isThere && S_ISLNK(old.st_mode)) {
      return failed("cannot replace " + mTarget.string() + ": a symbolic link stands in its place");
    }
    const bool isReplaced = isThere && S_ISREG(old.st_mode);
    if (!isReplaced && ::stat(folderOf(mTarget).c_str(), &old) != 0) old = {};
    // Only the superuser may give files away; for others the folder's owner writes, which is fine.
    [[maybe_unused]] const int ignored = ::fchown(mFile.get(), old.st_uid, old.st_gid);
    if (!isReplaced) return setMode(kNewFileMode);
    if (Status set = setMode(old.st_mode & 0777); !set) return set;
    return copyExtendedAttributes(mTarget, mFile.get());
  }

  Status write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written =
          uninterrupted([&] { return mSystem.write(mFile.get(), bytes.data(), bytes.size()); });
      if (written < 0) return systemFailure("cannot write the new", mTarget);
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    if (uninterrupted([&] { return mSystem.sync(mFile.get()); }) != 0 || mFile.close() != 0) {
      return systemFailure("cannot put on disk the new", mTarget);
    }
    return done();
  }

  Status takeNameOfTarget() { return putInPlace(mPath, mTarget, mSystem); }

 private:
  Status setMode(mode_t mode) {
    if (::fchmod(mFile.get(), mode) == 0) return done();
    return systemFailure("cannot set the permissions of the new", mTarget);
  }

  const fs::path& mTarget;
  FileSystem& mSystem;
  fs::path mPath;
  Descriptor mFile;
};

}  // namespace

Status putInPlace(const fs::path& finished, const fs::path& path, FileSystem& system) {
  if (system.rename(finished, path) != 0) return systemFailure("cannot replace", path);
  if (syncFolder(folderOf(path), system)) return done();
  return systemFailure("replaced, but a power cut may undo it: cannot sync the folder of", path);
}

bool isTemporaryFor(std::string_view target, std::string_view name) {
  if (!name.starts_with(target) || !name.ends_with(kSuffix)) return false;
  name.remove_prefix(target.size());
  name.remove_suffix(std::min(name.size(), kSuffix.size()));
  return name.size() == kDigitCount + 1 && name.front() == '.' &&
         name.find_first_not_of(kDigits, 1) == std::string_view::npos;
}

Status replaceFile(const fs::path& path, std::string_view bytes, FileSystem& system) {
  if (Status made = createFolder(path.parent_path(), system); !made) return made;
  Temporary temporary(path, system);
  if (Status created = temporary.create(); !created) return created;
  if (Status dressed = temporary.dress(); !dressed) return dressed;
  if (Status written = temporary.write(bytes); !written) return written;
  return temporary.takeNameOfTarget();
}

}  // namespace wayloom
