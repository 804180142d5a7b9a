#include "cli/CommandLine.h"

#include <iostream>

#include "cli/TextForms.h"
#include "places/PlaceTextGeocoder.h"
#include "places/WebGeocoder.h"
#include "platform/CurlWebRequests.h"
#include "platform/OnlineServices.h"
#include "platform/PreferredLanguages.h"
#include "platform/SystemNotices.h"
#include "regions/RegionDirectories.h"
#include "regions/RegionGeocoder.h"
#include "roads/RegionDirections.h"
#include "settings/SettingsRoot.h"

namespace wayloom {

CommandLine::CommandLine(const Options& options, FileSystem& system)
    : mOptions(options), mFiles(settingsRoot(options.root), SettingsFiles::kPatience, system) {}

CommandLine::~CommandLine() = default;

ChangeNotice& CommandLine::notice() {
  if (!mNotice) mNotice = std::make_unique<SystemNotices>(noticeCommand());
  return *mNotice;
}

Geocoder& CommandLine::geocoder() {
  if (!mGeocoder) {
    auto names =
        mOptions.online ? makeOnlineGeocoder() : std::make_unique<RegionGeocoder>(regions(), mLoop);
    mGeocoder = std::make_unique<PlaceTextGeocoder>(std::move(names), mLoop, preferredLanguage());
  }
  return *mGeocoder;
}

Directions& CommandLine::directions() {
  if (!mDirections) mDirections = std::make_unique<RegionDirections>(regions(), mLoop);
  return *mDirections;
}

std::unique_ptr<Geocoder> CommandLine::makeOnlineGeocoder() {
  const OnlineServices services = OnlineServices::read(OnlineServices::defaultFile());
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
  warnOfDamage();
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
  warnOfDamage();
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

void CommandLine::warnOfDamage() const {
  for (const SettingsFile name : {SettingsFile::Master, SettingsFile::Location, SettingsFile::Route,
                                  SettingsFile::Favorites, SettingsFile::Whitelist}) {
    const auto damage = mFiles.file(name).damage();
    if (!damage || !mNamed.insert(name).second) continue;
    warn(mFiles.path(name).string() + " is damaged and reads as nothing: " + damage->problem +
         (damage->keptAs.empty() ? "" : "; it was kept as " + damage->keptAs.string()));
  }
}

}  // namespace wayloom
