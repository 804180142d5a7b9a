#pragma once

#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/ChangeNotice.h"
#include "platform/Directions.h"
#include "platform/Geocoder.h"
#include "platform/RunLoop.h"
#include "platform/WebRequests.h"
#include "regions/RegionStore.h"
#include "settings/Result.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// How a command ends, as the shell sees it.
enum class ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

/// One answer of a command, in both forms; only the form asked for is printed.
struct Answer {
  std::string text;
  nlohmann::json json;
};

/// What the commands share: the files, the notice, the regions and the way to answer. Services are
/// made when first needed, so that a command pays only for what it uses. Main thread only.
class CommandLine {
 public:
  struct Options {
    std::optional<std::filesystem::path> root;
    std::optional<std::filesystem::path> regions;
    /// Ask the online service of services.json instead of the regions for places and addresses.
    bool online = false;
    bool json = false;
  };

  /// `system` must outlive this object.
  explicit CommandLine(const Options& options, FileSystem& system = FileSystem::machine());
  ~CommandLine();

  SettingsFiles& files() { return mFiles; }
  ChangeNotice& notice();
  Geocoder& geocoder();
  Directions& directions();
  RunLoop& loop() { return mLoop; }
  /// The installed regions; warns of those that cannot be used when asked for the first time.
  const RegionStore& regions();
  const Options& options() const { return mOptions; }

  /// Prints the answer on standard output. Like a failure, it ends the command.
  ExitStatus answer(const Answer& answer) const;
  /// Prints one line on standard error that says why, and what to do.
  ExitStatus fail(const std::string& why) const;
  /// The same for what went wrong, or is refused.
  ExitStatus fail(const Failure& failure) const { return fail(failure.message); }
  ExitStatus wrongUsage(const std::string& why) const;
  /// A warning on standard error; the command goes on.
  void warn(const std::string& what) const;

 private:
  std::unique_ptr<Geocoder> makeOnlineGeocoder();
  /// Names each damaged settings file that was read, once: it reads as nothing, which a person
  /// should know.
  void warnOfDamage() const;

  Options mOptions;
  SettingsFiles mFiles;
  mutable std::set<SettingsFile> mNamed;
  RunLoop mLoop;
  std::unique_ptr<ChangeNotice> mNotice;
  std::unique_ptr<WebRequests> mRequests;
  std::optional<RegionStore> mRegions;
  std::unique_ptr<Geocoder> mGeocoder;
  std::unique_ptr<Directions> mDirections;
};

}  // namespace wayloom
