#include "fixed/FixedLocation.h"
#include "fuzz/Fuzzing.h"
#include "lists/Favorites.h"
#include "lists/Whitelist.h"
#include "platform/ChangeNotice.h"
#include "route/RouteFile.h"

using namespace wayloom;

namespace {

class NoNotice : public ChangeNotice {
 public:
  void post(std::string_view) noexcept override {}
};

void checkFavorites(SettingsFiles& files) {
  Favorites favorites(files);
  require(bool(favorites.load()));
  const PropertyList::Array before = favorites.entries();
  for (std::size_t i = 0; i < before.size(); ++i) (void)favorites.name(i);
  if (!favorites.add("Home", {57.7, 11.97}, "unnamed")) return;
  require(bool(favorites.load()) && favorites.entries().size() == before.size() + 1);
  require(favorites.name(before.size()) == "Home");
  require(bool(favorites.removeAt(before.size())));
  require(favorites.entries().size() == before.size());
  if (!before.empty()) (void)favorites.choose(0);
}

void checkWhitelist(SettingsFiles& files) {
  Whitelist whitelist(files);
  require(bool(whitelist.load()));
  const std::size_t others = whitelist.entries().size() - whitelist.entries().count("a.desktop");
  const bool isTicked = whitelist.isTicked("a.desktop");
  if (!whitelist.toggle("a.desktop")) return;
  require(bool(whitelist.load()) && whitelist.isTicked("a.desktop") != isTicked);
  require(whitelist.entries().size() == others + 1);
}

void checkLocation(SettingsFiles& files) {
  NoNotice notice;
  FixedLocation fixed(files, notice);
  require(bool(fixed.refresh()));
  if (!fixed.centerMoved({57.7, 11.97}) || !fixed.hasSettings()) return;
  const auto state = readFixedLocation(files);
  require(state && state->hasCoordinate && state->coordinate == Coordinate{57.7, 11.97});
}

void checkRoute(SettingsFiles& files) {
  RouteFile file(files);
  const auto route = file.load();
  require(bool(route));
  (void)route->start();
  (void)route->startText();
  if (!route->points) return;
  for (std::size_t i = 0; i < route->points->count(); ++i) (void)route->points->at(i);
  const auto changed = file.change(*route, {{{"e", PropertyList("0")}}, std::nullopt});
  if (!changed) return;
  const auto again = file.load();
  require(again && again->points && again->points->count() == route->points->count());
}

}  // namespace

/// Every settings file with these bytes: each can be read, and a change leaves what else it held.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  static const MemoryFolder folder;
  folder.clear();
  SettingsFiles files(folder.path());
  for (const SettingsFile name : {SettingsFile::Master, SettingsFile::Location, SettingsFile::Route,
                                  SettingsFile::Favorites, SettingsFile::Whitelist}) {
    writeFile(files.path(name), textOf(bytes, count));
  }
  require(bool(files.readMasterMode()));
  checkRoute(files);
  checkLocation(files);
  checkWhitelist(files);
  checkFavorites(files);
  return 0;
}
