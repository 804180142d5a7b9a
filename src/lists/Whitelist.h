#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "settings/PropertyList.h"
#include "settings/Result.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// The whitelist file: which applications the user ticked, by display identifier. The list is a
/// copy of the file; each change is made to the file as it is at that moment, and the copy then
/// shows the result. Main thread only.
class Whitelist {
 public:
  /// `files` must outlive this object.
  explicit Whitelist(SettingsFiles& files) : mFiles(files) {}

  /// A missing or damaged file is an empty list; one that cannot be read leaves the list as it was.
  [[nodiscard]] Status load();
  /// Whether the file is the one that was last read or written here.
  bool isCurrent() const { return mVersion == mFiles.currentVersion(SettingsFile::Whitelist); }

  /// The file's values by identifier, those of applications that are gone included.
  const PropertyList::Dictionary& entries() const { return mEntries; }
  /// False for an application that was never ticked.
  bool isTicked(std::string_view bundle) const;

  /// Turns the application's tick over, as the list has it, and writes the whole file, other
  /// entries as they are there. An identifier never leaves it. A failure changes nothing.
  [[nodiscard]] Status toggle(const std::string& bundle);

  /// The identifiers that are ticked, as the list has it.
  std::set<std::string, std::less<>> ticked() const;
  /// Ticks these applications and no others, and writes the whole file. As with a touch, an
  /// identifier never leaves it, and an entry that already says so stays as it is.
  [[nodiscard]] Status tickOnly(const std::set<std::string, std::less<>>& bundles);

 private:
  [[nodiscard]] Status change(const std::function<void(PropertyList::Dictionary&)>& edit);

  SettingsFiles& mFiles;
  PropertyList::Dictionary mEntries;
  std::optional<FileVersion> mVersion;
};

}  // namespace wayloom
