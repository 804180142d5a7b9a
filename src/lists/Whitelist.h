#pragma once

#include <string>
#include <string_view>

#include "settings/PropertyList.h"
#include "settings/Result.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// The whitelist file: which applications the user ticked, by display identifier. The list is a
/// copy of the file that only load() reads. Main thread only.
class Whitelist {
 public:
  /// `files` must outlive this object.
  explicit Whitelist(SettingsFiles& files) : mFiles(files) {}

  /// A missing or unreadable file is an empty list.
  void load();

  /// The file's values by identifier, those of applications that are gone included.
  const PropertyList::Dictionary& entries() const { return mEntries; }
  /// False for an application that was never ticked.
  bool isTicked(std::string_view bundle) const;

  /// Turns the application's tick over and writes the whole list, other entries as they were. An
  /// identifier never leaves the list; the tick stays turned over even when the write fails.
  [[nodiscard]] Status toggle(const std::string& bundle);

 private:
  SettingsFiles& mFiles;
  PropertyList::Dictionary mEntries;
};

}  // namespace wayloom
