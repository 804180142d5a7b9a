#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace wayloom {

/// Which online services the user turned on, and where they are: what services.json says. Nothing
/// is online without that file. A value; any thread may read it.
class OnlineServices {
 public:
  /// $XDG_CONFIG_HOME/wayloom/services.json, by default under ~/.config; empty without a home.
  static std::filesystem::path defaultFile();

  /// Reads the file. A missing file turns everything off; so does a damaged one, with an `error`.
  static OnlineServices read(const std::filesystem::path& file);

  /// The base address of a service ("geocoding"), without a slash at its end; empty when the
  /// service is off.
  const std::string& address(std::string_view service) const;

  /// Empty, or one line that says what is wrong with the file.
  const std::string& error() const { return mError; }

 private:
  static OnlineServices damaged(const std::filesystem::path& file, const std::string& reason);

  std::map<std::string, std::string, std::less<>> mAddresses;
  std::string mError;
};

}  // namespace wayloom
