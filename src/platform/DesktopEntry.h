#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wayloom {

/// What a desktop entry file says about an application.
struct DesktopEntry {
  /// False where the entry itself says that it is something else, or deleted.
  bool isApplication = true;
  /// In the first of the locales that has one; empty when the entry has none at all.
  std::string name;
  /// A name for the icon theme, or an absolute path; empty when the entry has none.
  std::string icon;
};

/// Reads the text of a desktop entry file; nothing when it holds no desktop entry. `locales` are
/// names as localeNames() gives them. Any thread may call it.
std::optional<DesktopEntry> parseDesktopEntry(std::string_view text,
                                              const std::vector<std::string>& locales);

}  // namespace wayloom
