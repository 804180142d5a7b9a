#include "regions/RegionWriter.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <set>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "settings/ReplaceFile.h"

namespace wayloom {

namespace {

std::string plainNumber(double value) {
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  return {buffer.data(), end};
}

// A name that nobody else gives to a file: what has it may be removed.
constexpr std::string_view kMark = ".wayloom-writes-";
constexpr std::string_view kRandom = "XXXXXX";

std::filesystem::path temporaryPattern(const std::filesystem::path& target) {
  std::string name = '.' + target.filename().string();
  return target.parent_path() / name.append(kMark).append(kRandom);
}

bool isTemporary(const std::filesystem::path& path) {
  const std::string name = path.filename().string();
  const std::size_t tail = kMark.size() + kRandom.size();
  return name.starts_with('.') && name.size() > tail &&
         name.compare(name.size() - tail, kMark.size(), kMark) == 0;
}

// Removes what writers left that were killed: files that no writer holds a lock on.
void removeLeftovers(const std::filesystem::path& folder) {
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (!isTemporary(entry->path()) || !entry->is_regular_file(error)) continue;
    const Descriptor file(::open(entry->path().c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (file.get() >= 0 && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0) {
      ::unlink(entry->path().c_str());
    }
  }
}

/// The temporary files of this process.
struct Unfinished {
  std::mutex mutex;
  std::set<std::filesystem::path> files;
  bool isOneInPlace = false;
};

Unfinished& unfinished() {
  static Unfinished all;
  return all;
}

void removeUnfinished(const std::filesystem::path& file) {
  const std::lock_guard lock(unfinished().mutex);
  ::unlink(file.c_str());
  unfinished().files.erase(file);
}

std::filesystem::path folderOf(const std::filesystem::path& target) {
  return target.has_parent_path() ? target.parent_path() : ".";
}

}  // namespace

// An empty file of an unpredictable name that the store does not take for a region.
Result<RegionWriter::Temporary> RegionWriter::makeTemporary(const std::filesystem::path& target) {
  removeLeftovers(folderOf(target));
  std::string pattern = temporaryPattern(target).string();
  const std::lock_guard guard(unfinished().mutex);
  auto lock = std::make_unique<Descriptor>(::mkostemp(pattern.data(), O_CLOEXEC));
  if (lock->get() < 0) return systemFailure("cannot create", target);
  ::flock(lock->get(), LOCK_EX);
  ::fchmod(lock->get(), S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH);
  unfinished().files.insert(pattern);
  return Temporary{pattern, std::move(lock)};
}

RegionWriter::RegionWriter(std::filesystem::path target, Temporary temporary, Database database)
    : mTarget(std::move(target)),
      mTemporary(std::move(temporary)),
      mDatabase(std::move(database)) {}

RegionWriter::RegionWriter(RegionWriter&& other) noexcept
    : mTarget(std::move(other.mTarget)),
      mTemporary(std::exchange(other.mTemporary, {})),
      mDatabase(std::move(other.mDatabase)) {}

RegionWriter::~RegionWriter() {
  if (!mTemporary.path.empty()) removeUnfinished(mTemporary.path);
}

Result<RegionWriter> RegionWriter::create(const std::filesystem::path& target,
                                          const RegionInfo& info) {
  if (target.extension() != kRegionExtension) {
    return Failure{target.string() + " does not end in " + kRegionExtension};
  }
  if (info.name.empty() || !isValid(info.bounds)) {
    return Failure{"a region needs a name and bounds on the globe"};
  }
  auto temporary = makeTemporary(target);
  if (!temporary) return temporary.failure();
  auto database = Database::openForBuilding(temporary->path);
  if (!database) {
    removeUnfinished(temporary->path);
    return Failure{"cannot write " + target.string() + ": " + database.failure().message};
  }
  RegionWriter writer(target, std::move(*temporary), std::move(*database));
  if (auto status = writer.writeHead(info); !status) return status.failure();
  return writer;
}

Status RegionWriter::writeHead(const RegionInfo& info) {
  auto status = mDatabase.execute(
      "PRAGMA application_id = " + std::to_string(kRegionApplicationId) +
      "; PRAGMA user_version = " + std::to_string(kRegionVersion) +
      "; BEGIN; CREATE TABLE meta(key TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID");
  if (!status) return status;
  auto insert = mDatabase.prepare("INSERT INTO meta(key, value) VALUES (?1, ?2)");
  if (!insert) return insert.failure();
  const std::array<std::pair<std::string_view, std::string>, 6> rows = {{
      {"name", info.name},
      {"attribution", info.attribution},
      {"west", plainNumber(info.bounds.west)},
      {"south", plainNumber(info.bounds.south)},
      {"east", plainNumber(info.bounds.east)},
      {"north", plainNumber(info.bounds.north)},
  }};
  for (const auto& [key, value] : rows) {
    status = insert->bind(1, key).bind(2, value).run();
    if (!status) return status;
  }
  return done();
}

Status RegionWriter::commit() {
  // The tables' statistics spare every reader a bad plan. Pages that building left empty go.
  if (auto status = mDatabase.execute("ANALYZE; COMMIT; VACUUM"); !status) return status;
  if (auto status = mDatabase.close(); !status) return status;
  const Descriptor file(::open(mTemporary.path.c_str(), O_RDWR | O_CLOEXEC));
  if (file.get() < 0 || ::fsync(file.get()) != 0) return systemFailure("cannot write", mTarget);
  const std::lock_guard lock(unfinished().mutex);
  auto status = putInPlace(mTemporary.path, mTarget);
  unfinished().isOneInPlace = unfinished().isOneInPlace || status;
  return status;
}

bool RegionWriter::abandonAll() {
  std::unique_lock lock(unfinished().mutex);
  if (unfinished().isOneInPlace) return false;
  for (const auto& file : unfinished().files) ::unlink(file.c_str());
  // Held until the process has ended.
  (void)lock.release();
  return true;
}

}  // namespace wayloom
