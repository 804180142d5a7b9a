#include "cli/CommandLine.h"

#include <fcntl.h>
#include <iostream>
#include <sys/file.h>

#include "cli/TextForms.h"
#include "places/WebGeocoder.h"
#include "platform/CurlWebRequests.h"
#include "platform/PreferredLanguage.h"
#include "platform/RegionDirections.h"
#include "platform/RegionGeocoder.h"
#include "platform/Services.h"
#include "platform/SystemNotices.h"
#include "regions/RegionDirectories.h"
#include "settings/SettingsRoot.h"

namespace wayloom {

CommandLine::CommandLine(const Options& options)
    : mOptions(options), mFiles(settingsRoot(options.root)) {}

CommandLine::~CommandLine() = default;

void CommandLine::takeTurn() {
  const std::filesystem::path folder = mFiles.path(SettingsFile::Master).parent_path();
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  mTurn.reset(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // Without a lock the write itself is as whole as ever.
  if (mTurn.get() >= 0) (void)::flock(mTurn.get(), LOCK_EX);
}

ChangeNotice& CommandLine::notice() {
  if (!mNotice) mNotice = std::make_unique<SystemNotices>(noticeCommand());
  return *mNotice;
}

Geocoder& CommandLine::geocoder() {
  if (!mGeocoder && mOptions.online) mGeocoder = makeOnlineGeocoder();
  if (!mGeocoder) mGeocoder = std::make_unique<RegionGeocoder>(regions(), mLoop);
  return *mGeocoder;
}

Directions& CommandLine::directions() {
  if (!mDirections) mDirections = std::make_unique<RegionDirections>(regions(), mLoop);
  return *mDirections;
}

std::unique_ptr<Geocoder> CommandLine::makeOnlineGeocoder() {
  const Services services = Services::read(Services::defaultFile());
  if (!services.error().empty()) warn(services.error());
  mRequests = std::make_unique<CurlWebRequests>(mLoop);
  return std::make_unique<WebGeocoder>(
      SVGeocoderEnvironment{*mRequests, mLoop, services.address("geocoding"), preferredLanguage});
}

const RegionStore& CommandLine::regions() {
  if (mRegions) return *mRegions;
  mRegions.emplace(regionDirectories(mOptions.regions));
  for (const RefusedRegion& refused : mRegions->refused()) {
    warn("region " + refused.path.string() + " is left out: " + refused.reason);
  }
  return *mRegions;
}

ExitStatus CommandLine::answer(const Answer& answer) const {
  if (mOptions.json) {
    // Texts come from files; what is no UTF-8 in them must not stop the answer.
    std::cout << answer.json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
  } else {
    std::cout << answer.text << '\n';
  }
  std::cout.flush();
  return std::cout ? ExitStatus::Done : fail("cannot write the answer");
}

ExitStatus CommandLine::fail(const std::string& why) const {
  warn(why);
  return ExitStatus::Failed;
}

ExitStatus CommandLine::wrongUsage(const std::string& why) const {
  warn(why);
  return ExitStatus::WrongUsage;
}

void CommandLine::warn(const std::string& what) const {
  std::cerr << "wayloomctl: " << oneLine(what) << '\n';
}

void CommandLine::warnOfDamage(SettingsFile name) const {
  const auto contents = mFiles.file(name).read();
  if (contents.state != PropertyListFile::State::Damaged) return;
  warn(mFiles.path(name).string() + " is damaged and reads as nothing: " + contents.damage);
}

}  // namespace wayloom
