#pragma once

#include <algorithm>
#include <fcntl.h>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "settings/FileSystem.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {

/// The machine's files, with a record of what would survive a power cut: of a file's bytes those
/// that were synced, and of names given and taken in a folder since its last sync any selection, in
/// any order. Files that were there at the beginning are on disk.
class PowerCutFiles : public FileSystem {
 public:
  /// Bytes by path; none for a file whose bytes were not synced.
  using Disk = std::map<std::string, std::optional<std::string>>;

  /// Called before each call that changes something, and to be called at the end, with each disk
  /// that a cut at this moment could leave.
  std::function<void(const Disk&)> check;

  void forEachDisk(const std::function<void(const Disk&)>& visit) const {
    std::vector<Change> order = mPending;
    std::sort(order.begin(), order.end());
    do {
      // Each beginning of each order: what a journal, or the lack of one, may have let through.
      for (std::size_t count = 0; count <= order.size(); ++count) {
        Names names = mDurable;
        for (std::size_t at = 0; at < count; ++at) apply(order[at], names);
        Disk disk;
        for (const auto& [path, file] : names)
          disk[path] = mFiles[static_cast<std::size_t>(file)].synced;
        visit(disk);
      }
    } while (std::next_permutation(order.begin(), order.end()));
  }

  int open(const std::filesystem::path& path, int flags, mode_t mode) override {
    const bool creates = (flags & O_CREAT) != 0;
    if (creates) cut();
    const bool isNew = creates && !std::filesystem::exists(path);
    const int descriptor = FileSystem::open(path, flags, mode);
    if (descriptor < 0) return descriptor;
    mOpen[descriptor] = path;
    if (isNew) {
      mFiles.push_back({});
      mPending.push_back({path, static_cast<int>(mFiles.size()) - 1});
      mNow[path] = static_cast<int>(mFiles.size()) - 1;
    } else if (std::filesystem::is_regular_file(path) && !mNow.contains(path)) {
      const std::string bytes = bytesOf(path);
      mFiles.push_back({bytes, bytes});
      mNow[path] = mDurable[path] = static_cast<int>(mFiles.size()) - 1;
    }
    return descriptor;
  }
  ssize_t write(int descriptor, const void* bytes, std::size_t count) override {
    cut();
    mFiles[static_cast<std::size_t>(mNow[mOpen[descriptor]])].written.append(
        static_cast<const char*>(bytes), count);
    return FileSystem::write(descriptor, bytes, count);
  }
  int sync(int descriptor) override {
    cut();
    const std::string path = mOpen[descriptor];
    if (!std::filesystem::is_directory(path)) {
      File& file = mFiles[static_cast<std::size_t>(mNow[path])];
      file.synced = file.written;
      return 0;
    }
    std::erase_if(mPending, [&](const Change& change) {
      if (std::filesystem::path(change.path).parent_path() != path) return false;
      apply(change, mDurable);
      return true;
    });
    return 0;
  }
  int rename(const std::filesystem::path& from, const std::filesystem::path& to) override {
    cut();
    const int file = mNow[from];
    mPending.push_back({to, file, from});
    mNow.erase(from);
    mNow[to] = file;
    return FileSystem::rename(from, to);
  }
  int link(const std::filesystem::path& from, const std::filesystem::path& to) override {
    cut();
    mPending.push_back({to, mNow[from]});
    mNow[to] = mNow[from];
    return FileSystem::link(from, to);
  }

 private:
  struct File {
    std::string written;
    std::optional<std::string> synced;
  };
  /// A name that a file gets, and the one that it loses thereby.
  struct Change {
    std::string path;
    int file = 0;
    std::string former = {};
    auto operator<=>(const Change&) const = default;
  };
  using Names = std::map<std::string, int>;

  static void apply(const Change& change, Names& names) {
    if (!change.former.empty()) names.erase(change.former);
    names[change.path] = change.file;
  }
  void cut() const {
    if (check) forEachDisk(check);
  }

  std::vector<File> mFiles;
  std::map<int, std::string> mOpen;
  Names mNow, mDurable;
  std::vector<Change> mPending;
};

}  // namespace wayloom
