#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "lists/Whitelist.h"
#include "settings/PropertyListFile.h"
#include "settings/WriterTurns.h"

namespace wayloom {

/// Ticks that the user keeps under names, in a file of the application's own: a property list with
/// an array of identifiers for each name. Each operation goes to the file as it is then; a damaged
/// one counts as none, and is kept under a further name when it is replaced. Main thread only.
class WhitelistSets {
 public:
  /// `system` must outlive this object.
  explicit WhitelistSets(const std::filesystem::path& file = defaultFile(),
                         FileSystem& system = FileSystem::machine());
  static std::filesystem::path defaultFile();

  struct Set {
    std::string name;
    /// How many applications it ticks.
    std::size_t count = 0;
  };
  /// By name.
  Result<std::vector<Set>> all() const;

  /// Keeps the whitelist's ticks, as last read, under a name, in place of what it kept before.
  [[nodiscard]] Status save(std::string_view name, const Whitelist& whitelist);
  /// Ticks what a set ticks, and nothing else.
  [[nodiscard]] Status use(std::string_view name, Whitelist& whitelist) const;
  [[nodiscard]] Status remove(std::string_view name);

 private:
  Result<PropertyList::Dictionary> load() const;

  PropertyListFile mFile;
  WriterTurns mTurns;
};

}  // namespace wayloom
