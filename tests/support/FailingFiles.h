#pragma once

#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <map>
#include <string>
#include <sys/stat.h>

#include "settings/FileSystem.h"

namespace wayloom {

/// The machine's files, of which one call fails: the one of this kind and number, counted from 1.
/// An error of 0 cuts a read or a write short instead.
class FailingFiles : public FileSystem {
 public:
  struct Fault {
    std::string call;
    int number = 0;
    int error = 0;
  };

  Fault fault;
  std::map<std::string, int> calls;
  bool hasFailed = false;
  /// What to do before a call, for tests that look at the folder meanwhile.
  std::function<void(const std::string& call)> before;

  int open(const std::filesystem::path& path, int flags, mode_t mode) override {
    return fails("open") ? -1 : FileSystem::open(path, flags, mode);
  }
  ssize_t read(int descriptor, void* bytes, std::size_t count) override {
    if (fails("read")) return -1;
    return FileSystem::read(descriptor, bytes, isShort("short read", count) ? 1 : count);
  }
  ssize_t write(int descriptor, const void* bytes, std::size_t count) override {
    if (fails("write")) return -1;
    return FileSystem::write(descriptor, bytes, isShort("short write", count) ? 1 : count);
  }
  /// Nothing is put on disk: no test pulls the plug.
  int sync(int descriptor) override {
    struct stat status = {};
    ::fstat(descriptor, &status);
    return fails(S_ISDIR(status.st_mode) ? "sync folder" : "sync file") ? -1 : 0;
  }
  int lock(int descriptor) override { return fails("lock") ? -1 : FileSystem::lock(descriptor); }
  int rename(const std::filesystem::path& from, const std::filesystem::path& to) override {
    return fails("rename") ? -1 : FileSystem::rename(from, to);
  }
  int link(const std::filesystem::path& from, const std::filesystem::path& to) override {
    return fails("link") ? -1 : FileSystem::link(from, to);
  }
  int makeFolder(const std::filesystem::path& path, mode_t mode) override {
    return fails("make folder") ? -1 : FileSystem::makeFolder(path, mode);
  }

 private:
  bool isHit(const std::string& call) {
    if (before) before(call);
    const bool isHit = ++calls[call] == fault.number && call == fault.call;
    hasFailed = hasFailed || isHit;
    return isHit;
  }
  bool fails(const std::string& call) {
    const bool isFailing = isHit(call);
    if (isFailing) errno = fault.error;
    return isFailing;
  }
  bool isShort(const std::string& call, std::size_t count) { return count > 1 && isHit(call); }
};

}  // namespace wayloom
