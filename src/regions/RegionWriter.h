#pragma once

#include <filesystem>
#include <memory>

#include "regions/Database.h"
#include "regions/RegionFile.h"
#include "settings/Descriptor.h"
#include "settings/Result.h"

namespace wayloom {

/// Makes one region file. It grows beside its target under another name and takes the target's
/// place, complete, in commit(); a writer destroyed before that leaves nothing behind, and what one
/// left that was killed goes when the next is made. Owned by whoever builds the region; one thread
/// at a time.
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

  /// For who ends this process while a thread of it writes: removes what is not finished and lets
  /// nothing be begun or finished any more. False, with nothing done, once a region is in its
  /// place.
  static bool abandonAll();

 private:
  struct Temporary {
    std::filesystem::path path;
    /// Holds a lock that says that the file is being written.
    std::unique_ptr<Descriptor> lock;
  };

  static Result<Temporary> makeTemporary(const std::filesystem::path& target);
  RegionWriter(std::filesystem::path target, Temporary temporary, Database database);
  Status writeHead(const RegionInfo& info);

  std::filesystem::path mTarget;
  /// Its path is empty in a writer that was moved from.
  Temporary mTemporary;
  Database mDatabase;
};

}  // namespace wayloom
