#include "settings/WriterTurns.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "settings/ReplaceFile.h"
#include "settings/TextConversions.h"

namespace wayloom {

namespace {

namespace fs = std::filesystem;
using SteadyClock = std::chrono::steady_clock;

// A file that is being written is renewed within seconds; older ones nobody writes any more.
constexpr std::chrono::seconds kLeftoverAge{60};
// The same for all who wait, however long already: who asks less often than others comes last.
constexpr std::chrono::milliseconds kPause{1};
// A process number, blanks and a line end.
constexpr std::size_t kHolderLength = 11;

/// A temporary's name is its target's, which ends in ".plist", and what replaceFile adds.
bool isLeftoverName(const std::string& name) {
  constexpr std::string_view kPrefix = "com.quorvil.wl.";
  constexpr std::string_view kEnding = ".plist";
  const std::size_t ending = name.find(kEnding, kPrefix.size());
  return name.starts_with(kPrefix) && ending != std::string::npos &&
         isTemporaryFor(std::string_view(name).substr(0, ending + kEnding.size()), name);
}

bool isOursAndOld(const fs::path& path) {
  struct stat status = {};
  return ::lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         status.st_uid == ::geteuid() &&
         std::chrono::system_clock::now() -
                 std::chrono::system_clock::from_time_t(status.st_mtim.tv_sec) >
             kLeftoverAge;
}

}  // namespace

WriterTurns::WriterTurns(fs::path folder, FileSystem& system, std::chrono::milliseconds patience)
    : mFolder(std::move(folder)), mSystem(system), mPatience(patience) {}

Result<WriterTurns::Turn> WriterTurns::take() {
  if (!mThreads.try_lock_for(mPatience)) {
    return failed("another file is still being written in " + mFolder.string());
  }
  if (mDepth == 0) {
    Status locked = openLock();
    if (locked) locked = waitForLock();
    if (!locked) {
      mLock.close();
      mThreads.unlock();
      return locked.failure();
    }
    removeLeftovers();
  }
  ++mDepth;
  return Turn(*this);
}

void WriterTurns::end() {
  if (--mDepth == 0) mLock.close();
  mThreads.unlock();
}

Status WriterTurns::openLock() {
  if (Status made = createFolder(mFolder, mSystem); !made) return made;
  const fs::path path = mFolder / kLockName;
  const auto open = [&] {
    return mSystem.open(path, O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                        S_IRUSR | S_IWUSR);
  };
  mLock.reset(uninterrupted(open));
  struct stat folder = {};
  struct stat lock = {};
  const bool isForeign = ::stat(mFolder.c_str(), &folder) == 0 &&
                         ::lstat(path.c_str(), &lock) == 0 && folder.st_uid != lock.st_uid;
  if (mLock.get() >= 0 && isForeign) {
    // What the superuser makes, the folder's owner must be able to open.
    [[maybe_unused]] const int ignored = ::fchown(mLock.get(), folder.st_uid, folder.st_gid);
  } else if (isForeign && folder.st_uid == ::geteuid() && mSystem.unlink(path) == 0) {
    // Somebody else, who may write here too, left a lock that keeps the owner out.
    mLock.reset(uninterrupted(open));
  }
  return mLock.get() >= 0 ? done() : systemFailure("cannot take turns with other writers at", path);
}

Status WriterTurns::waitForLock() {
  const auto deadline = SteadyClock::now() + mPatience;
  while (uninterrupted([&] { return mSystem.lock(mLock.get()); }) != 0) {
    if (errno != EWOULDBLOCK) {
      return systemFailure("cannot take turns with other writers at", mFolder / kLockName);
    }
    // Who waited in vain for a holder does not wait for the same one again.
    if (SteadyClock::now() >= deadline || holderText() == mStuck) {
      mStuck = holderText();
      return failed("process " + std::to_string(intValue(holderText())) +
                    " keeps the settings in " + mFolder.string() +
                    " to itself: let it go on, or end it");
    }
    std::this_thread::sleep_for(kPause);
  }
  mStuck.reset();
  sayWhoHasIt();
  return done();
}

void WriterTurns::sayWhoHasIt() {
  std::array<char, kHolderLength + 1> text{};
  std::snprintf(text.data(), text.size(), "%-*d\n", static_cast<int>(kHolderLength) - 1,
                ::getpid());
  const std::string_view self(text.data(), kHolderLength);
  // It only helps others to name us; without it they wait all the same.
  if (holderText() != self) {
    [[maybe_unused]] const ssize_t ignored = ::pwrite(mLock.get(), self.data(), self.size(), 0);
  }
}

std::string WriterTurns::holderText() const {
  std::string text(kHolderLength, '\0');
  const ssize_t length = ::pread(mLock.get(), text.data(), text.size(), 0);
  text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return text;
}

void WriterTurns::removeLeftovers() {
  if (mTidied && SteadyClock::now() - *mTidied < kLeftoverAge) return;
  mTidied = SteadyClock::now();
  std::error_code error;
  for (fs::directory_iterator entry(mFolder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (isLeftoverName(entry->path().filename().string()) && isOursAndOld(entry->path())) {
      mSystem.unlink(entry->path());
    }
  }
}

}  // namespace wayloom
