#pragma once

#include <filesystem>

#include "regions/Database.h"
#include "regions/RegionFile.h"
#include "settings/Result.h"

namespace wayloom {

/// Makes one region file. It grows beside its target under another name and takes the target's
/// place, complete, in commit(); a writer destroyed before that leaves nothing behind. Owned by
/// whoever builds the region; one thread at a time.
class RegionWriter {
 public:
  static Result<RegionWriter> create(const std::filesystem::path& target, const RegionInfo& info);

  RegionWriter(RegionWriter&& other) noexcept;
  RegionWriter& operator=(RegionWriter&&) = delete;
  ~RegionWriter();

  /// The database under construction, inside a transaction that commit() ends.
  Database& database() { return mDatabase; }

  /// Finishes the file and puts it in the target's place. Statements must be gone by now. The
  /// writer is of no use afterwards.
  Status commit();

 private:
  RegionWriter(std::filesystem::path target, std::filesystem::path temporary, Database database);
  Status writeHead(const RegionInfo& info);

  std::filesystem::path mTarget;
  /// Empty once the file is no longer ours to remove.
  std::filesystem::path mTemporary;
  Database mDatabase;
};

}  // namespace wayloom
