#pragma once

#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "platform/ChangeNotice.h"
#include "platform/Directions.h"
#include "platform/Geocoder.h"
#include "platform/RunLoop.h"
#include "platform/WebRequests.h"
#include "regions/RegionStore.h"
#include "settings/Descriptor.h"
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

  explicit CommandLine(const Options& options);
  ~CommandLine();

  SettingsFiles& files() { return mFiles; }
  /// Waits until no other wayloomctl changes the files below the root, and then keeps the others
  /// waiting until this one ends. To be called before reading what is to be changed.
  void takeTurn();
  ChangeNotice& notice();
  Geocoder& geocoder();
  Directions& directions();
  RunLoop& loop() { return mLoop; }
  /// The installed regions; warns of those that cannot be used when asked for the first time.
  const RegionStore& regions();
  const Options& options() const { return mOptions; }

  /// Prints the answer on standard output.
  ExitStatus answer(const Answer& answer) const;
  /// Prints one line on standard error that says why, and what to do.
  ExitStatus fail(const std::string& why) const;
  ExitStatus wrongUsage(const std::string& why) const;
  /// A warning on standard error; the command goes on.
  void warn(const std::string& what) const;
  /// A warning when the file cannot be read: it is read as nothing, which a person should know.
  void warnOfDamage(SettingsFile name) const;

 private:
  std::unique_ptr<Geocoder> makeOnlineGeocoder();

  Options mOptions;
  SettingsFiles mFiles;
  Descriptor mTurn;
  RunLoop mLoop;
  std::unique_ptr<ChangeNotice> mNotice;
  std::unique_ptr<WebRequests> mRequests;
  std::optional<RegionStore> mRegions;
  std::unique_ptr<Geocoder> mGeocoder;
  std::unique_ptr<Directions> mDirections;
};

}  // namespace wayloom
