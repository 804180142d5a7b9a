#pragma once

#include <chrono>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "settings/Descriptor.h"
#include "settings/FileSystem.h"
#include "settings/Result.h"

namespace wayloom {

/// Lets one writer at a time, of all processes and threads, read, change and write the files of a
/// folder. It holds a lock file of its own there, which only the folder's owner can open, so nobody
/// who may merely read the files can keep writers waiting. Any thread may call it.
class WriterTurns {
 public:
  /// A writer's turn; the next one's begins when it is gone.
  class Turn {
   public:
    explicit Turn(WriterTurns& turns) : mTurns(&turns) {}
    Turn(Turn&& other) noexcept : mTurns(std::exchange(other.mTurns, nullptr)) {}
    Turn& operator=(Turn&&) = delete;
    ~Turn() {
      if (mTurns != nullptr) mTurns->end();
    }

   private:
    WriterTurns* mTurns;
  };

  static constexpr const char* kLockName = ".com.quorvil.wl.lock";

  WriterTurns(std::filesystem::path folder, FileSystem& system, std::chrono::milliseconds patience);

  /// Waits for the turn, but no longer than the patience; the failure then names the process that
  /// has it. Whoever has the turn may take it again. The folder is created when it is missing, and
  /// what writers left there that were killed is removed.
  Result<Turn> take();

 private:
  void end();
  Status openLock();
  Status waitForLock();
  void sayWhoHasIt();
  std::string holderText() const;
  void removeLeftovers();

  const std::filesystem::path mFolder;
  FileSystem& mSystem;
  const std::chrono::milliseconds mPatience;
  std::recursive_timed_mutex mThreads;
  int mDepth = 0;
  Descriptor mLock;
  /// What the lock file said of the last holder that was waited for in vain.
  std::optional<std::string> mStuck;
  std::optional<std::chrono::steady_clock::time_point> mTidied;
};

}  // namespace wayloom
