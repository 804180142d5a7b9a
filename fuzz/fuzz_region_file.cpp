#include "fuzz/Fuzzing.h"
#include "import/PlaceNames.h"
#include "import/RegionImport.h"
#include "regions/PlaceIndex.h"
#include "roads/Router.h"

using namespace wayloom;

namespace {

constexpr char kExtract[] = R"(<osm version='0.6'>
<node id='1' lat='47' lon='9'><tag k='place' v='town'/><tag k='name' v='Dorf'/></node>
<node id='2' lat='47.001' lon='9.001'/><node id='3' lat='47.002' lon='9'/>
<way id='1'><nd ref='1'/><nd ref='2'/><nd ref='3'/><tag k='highway' v='primary'/>
<tag k='name' v='Ringweg'/></way></osm>)";

// A sound region file of one town and one street.
std::string soundRegion(const MemoryFolder& folder) {
  const auto extract = folder.path() / "sound.osm";
  writeFile(extract, kExtract);
  const auto goOn = [](std::string_view, double) { return true; };
  const auto region = importRegion(extract, folder.path(), "a", RegionStore({}), goOn);
  require(bool(region));
  std::ifstream file(region->path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void checkRegion(const RegionStore& store) {
  require(store.regions().size() + store.refused().size() == 1);
  for (const RefusedRegion& refused : store.refused()) require(!refused.reason.empty());
  for (const Region& region : store.regions()) {
    require(!region.info.name.empty() && isValid(region.info.bounds));
    for (const auto& label : labelsOf(region, {-1e8, -1e8, 1e8, 1e8})) {
      require(label.size > 0 && label.firstZoom >= 0);
    }
  }
  auto index = PlaceIndex::open(store);
  require(bool(index));
  for (const char* text : {"dorf", "ring", "d 5"}) {
    for (const Place& place : index->search(text, Coordinate{47, 9})) {
      require(std::abs(place.coordinate.latitude) <= 90);
    }
  }
  (void)index->placeAt({47, 9});
  const auto routes = Router(store).plan({47, 9}, {47.002, 9}, 1);
  require(!routes || routes->front().polyline.size() >= 2);
}

}  // namespace

/// A region file with some of its bytes changed, each by three bytes for the place and one for the
/// value: it is refused, or everything that is read from it is sound.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  static const MemoryFolder folder;
  static const std::string sound = soundRegion(folder);
  std::string damaged = sound;
  for (; count >= 4; bytes += 4, count -= 4) {
    const std::size_t place = bytes[0] | bytes[1] << 8 | bytes[2] << 16;
    damaged[place % damaged.size()] = static_cast<char>(bytes[3]);
  }
  writeFile(folder.path() / "a.region", damaged);
  checkRegion(RegionStore({folder.path()}));
  return 0;
}
