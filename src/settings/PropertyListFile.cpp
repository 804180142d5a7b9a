#include "settings/PropertyListFile.h"

#include <cerrno>
#include <sys/stat.h>
#include <system_error>
#include <utility>

#include "settings/PropertyListFormat.h"
#include "settings/ReplaceFile.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;
using Outcome = FileReading::Outcome;

constexpr int kLastSetAsideNumber = 999;

bool isTaken(const fs::path& path) {
  struct stat status = {};
  return ::lstat(path.c_str(), &status) == 0;
}

/// Gives the file at `path` a further name, under which it outlives its replacement, and puts that
/// name on disk.
Status keepUnderFurtherName(const fs::path& path, fs::path& furtherName, FileSystem& system) {
  const std::string what = "cannot set aside the damaged";
  for (int number = 1; number <= kLastSetAsideNumber; ++number) {
    furtherName = path;
    furtherName += ".damaged-" + std::to_string(number);
    if (isTaken(furtherName)) continue;
    if (system.link(path, furtherName) != 0) {
      if (errno == EEXIST) continue;
      // Some file systems have no links, and some files may not get one: it then moves aside.
      const bool mayMove = errno == EPERM || errno == ENOTSUP || errno == EMLINK;
      if (!mayMove || system.rename(path, furtherName) != 0) return systemFailure(what, path);
    }
    return syncFolder(path.parent_path(), system) ? done() : Status(systemFailure(what, path));
  }
  return failed(what + " " + path.string() + ": " + std::to_string(kLastSetAsideNumber) +
                " are kept already, remove some");
}

/// Takes the further name away again from a file that was not replaced after all.
void takeBack(const fs::path& path, const fs::path& furtherName, FileSystem& system) {
  if (furtherName.empty() || !isTaken(furtherName)) return;
  std::error_code error;
  if (!isTaken(path)) {
    system.rename(furtherName, path);
  } else if (fs::equivalent(path, furtherName, error)) {
    system.unlink(furtherName);
  }
}

}  // namespace

PropertyListFile::PropertyListFile(fs::path path, Root root, FileSystem& system)
    : mPath(std::move(path)), mRoot(root), mSystem(system) {}

PropertyListFile::Contents PropertyListFile::read() const {
  forget();
  FileReading reading = readFile(mPath, kMaximumPropertyListBytes, mSystem);
  switch (reading.outcome) {
    case Outcome::Missing:
      return {};
    case Outcome::Failed:
      return {State::Unreadable, {}, std::move(reading.problem)};
    case Outcome::TooLarge:
      return damaged("it is too large for a property list");
    case Outcome::Complete:
      break;
  }
  ParsedPropertyList parsed = parsePropertyList(reading.bytes);
  if (!parsed.value) return damaged(std::move(parsed.damage));
  if (!isRightRoot(*parsed.value)) {
    return damaged(mRoot == Root::Array ? "the root is no array" : "the root is no dictionary");
  }
  setSound(reading.version);
  return {State::Loaded, std::move(*parsed.value), {}};
}

PropertyListFile::Contents PropertyListFile::damaged(std::string problem) const {
  const std::lock_guard lock(mMutex);
  mDamage = Damage{problem, {}};
  return {State::Damaged, {}, std::move(problem)};
}

Status PropertyListFile::write(const PropertyList& value) {
  if (!isRightRoot(value)) {
    return failed("a value of the wrong type for " + mPath.string());
  }
  const SerializedPropertyList serialized = serializePropertyList(value);
  if (!serialized.bytes) {
    return failed("cannot write " + mPath.string() + ": " + serialized.problem);
  }
  return writeBytes(*serialized.bytes);
}

Status PropertyListFile::writeBytes(std::string_view bytes) {
  fs::path furtherName;
  Status result = setAsideIfDamaged(furtherName);
  if (result) result = replaceFile(mPath, bytes, mSystem);
  setSound(result ? versionAt(mPath) : std::nullopt);
  if (!result) takeBack(mPath, furtherName, mSystem);
  const std::lock_guard lock(mMutex);
  if (result && mDamage && !furtherName.empty()) mDamage->keptAs = furtherName;
  return result;
}

std::optional<FileVersion> PropertyListFile::soundVersion() const {
  const std::lock_guard lock(mMutex);
  return mSound;
}

std::optional<PropertyListFile::Damage> PropertyListFile::damage() const {
  const std::lock_guard lock(mMutex);
  return mDamage;
}

void PropertyListFile::forget() const {
  const std::lock_guard lock(mMutex);
  mSound.reset();
  if (mDamage && mDamage->keptAs.empty()) mDamage.reset();
}

void PropertyListFile::setSound(const std::optional<FileVersion>& version) const {
  const std::lock_guard lock(mMutex);
  mSound = version;
}

bool PropertyListFile::isRightRoot(const PropertyList& value) const {
  return mRoot == Root::Array ? value.get<PropertyList::Array>() != nullptr
                              : value.get<PropertyList::Dictionary>() != nullptr;
}

Status PropertyListFile::setAsideIfDamaged(fs::path& furtherName) const {
  if (const auto sound = soundVersion(); sound && sound == versionAt(mPath)) return done();
  const Contents contents = read();
  if (contents.state == State::Unreadable) {
    return failed("cannot read " + mPath.string() + ", so it is not replaced: " + contents.problem);
  }
  return contents.state == State::Damaged ? keepUnderFurtherName(mPath, furtherName, mSystem)
                                          : done();
}

}  // namespace wayloom
