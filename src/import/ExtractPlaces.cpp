#include "import/ExtractPlaces.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <utility>

namespace wayloom {

namespace {

constexpr std::int64_t kMostPeople = 100'000'000;

constexpr std::array kSettlementKinds = {"city",   "town",          "village",
                                         "suburb", "hamlet",        "quarter",
                                         "farm",   "neighbourhood", "isolated_dwelling"};

// What has a name of its own that somebody may look for.
bool isSight(const OsmTags& tags) {
  for (const char* key : {"aerialway", "aeroway", "amenity", "craft", "historic", "leisure",
                          "office", "shop", "tourism"}) {
    if (tags.contains(key)) return true;
  }
  return isOneOf(tagOf(tags, "railway"), {"station", "halt"}) ||
         isOneOf(tagOf(tags, "natural"), {"peak", "water", "spring", "cave_entrance"}) ||
         isOneOf(tagOf(tags, "mountain_pass"), {"yes"}) ||
         isOneOf(tagOf(tags, "place"), {"locality", "square"});
}

std::vector<std::string> otherNames(const OsmTags& tags) {
  std::vector<std::string> names;
  for (const char* key : {"alt_name", "int_name", "name:en", "official_name", "short_name"}) {
    const std::string_view name = tagOf(tags, key);
    if (!name.empty()) names.emplace_back(name);
  }
  return names;
}

std::int64_t peopleOf(const OsmTags& tags) {
  const std::string_view text = tagOf(tags, "population");
  std::int64_t people = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), people);
  if (error != std::errc() || end != text.data() + text.size()) return 0;
  return std::clamp<std::int64_t>(people, 0, kMostPeople);
}

// "Ringweg 5"; empty for what has no house number.
std::string addressOf(const OsmTags& tags) {
  const std::string_view number = tagOf(tags, "addr:housenumber");
  std::string_view street = tagOf(tags, "addr:street");
  if (street.empty()) street = tagOf(tags, "addr:place");
  if (number.empty() || street.empty()) return {};
  return std::string(street) + ' ' + std::string(number);
}

Coordinate middleOf(const Line& line) {
  const RegionBounds bounds = boundsOf(line);
  return {(bounds.south + bounds.north) / 2, (bounds.west + bounds.east) / 2};
}

}  // namespace

void ExtractPlaces::addPoint(const OsmTags& tags, Coordinate position) {
  const std::string_view kind = tagOf(tags, "place");
  const std::string_view name = tagOf(tags, "name");
  const bool isSettlement =
      std::find(kSettlementKinds.begin(), kSettlementKinds.end(), kind) != kSettlementKinds.end();
  if (!isSettlement || name.empty()) return addSpot(tags, position);
  IndexedPlace indexed;
  indexed.place = {PlaceKind::kSettlement, std::string(name), "", "", "", position, peopleOf(tags)};
  indexed.otherNames = otherNames(tags);
  // Until it is written, the context keeps the kind.
  indexed.otherContext = kind;
  mSettlements.push_back(std::move(indexed));
}

void ExtractPlaces::addLine(const OsmTags& tags, const Line& line) {
  const std::string_view highway = tagOf(tags, "highway");
  const std::string_view name = tagOf(tags, "name");
  if (!highway.empty() && highway != "platform" && !name.empty()) {
    mWays.push_back({std::string(name), line});
  }
}

void ExtractPlaces::addArea(const OsmTags& tags, const std::vector<GroundPolygon>& polygons) {
  if (!tags.contains("highway")) addSpot(tags, middleOf(polygons.front().front()));
}

void ExtractPlaces::addSpot(const OsmTags& tags, Coordinate position) {
  const std::string address = addressOf(tags);
  const std::string city(tagOf(tags, "addr:city"));
  const std::string name(tagOf(tags, "name"));
  if (!address.empty())
    mSpots.push_back({address, city, std::string(tagOf(tags, "addr:postcode")), position});
  if (!name.empty() && isSight(tags)) mSpots.push_back({name, city, address, position});
}

void ExtractPlaces::writeStreets(PlaceWriter& writer, const Settlements& settlements) {
  // A road through several villages is a street of each.
  std::map<const Place*, std::vector<NamedWay>> byPlace;
  for (NamedWay& way : mWays) {
    byPlace[settlements.nearest(way.line[way.line.size() / 2])].push_back(std::move(way));
  }
  mWays.clear();
  for (auto& [place, ways] : byPlace) {
    for (MergedStreet& street : mergeStreets(std::move(ways))) {
      IndexedPlace indexed;
      indexed.place = {PlaceKind::kStreet, std::move(street.name), "", "", "", street.middle, 0};
      if (place) settlements.locate(*place, indexed.place);
      indexed.lines = std::move(street.lines);
      writer.add(std::move(indexed));
    }
  }
}

void ExtractPlaces::writeSpots(PlaceWriter& writer, const Settlements& settlements) {
  // A house with several doors or shops has its address several times.
  std::set<std::tuple<std::string, std::string, int, int>> known;
  for (Spot& spot : mSpots) {
    IndexedPlace indexed;
    indexed.place = {PlaceKind::kAddress, std::move(spot.name), "", "", "", spot.position, 0};
    if (const Place* place = settlements.nearest(spot.position)) {
      settlements.locate(*place, indexed.place);
    }
    if (!spot.city.empty()) indexed.place.locality = std::move(spot.city);
    const auto hundredths = [](double degrees) { return static_cast<int>(degrees * 100); };
    const bool isNew =
        known
            .emplace(indexed.place.name, indexed.place.locality, hundredths(spot.position.latitude),
                     hundredths(spot.position.longitude))
            .second;
    if (!isNew) continue;
    indexed.otherContext = std::move(spot.context);
    writer.add(std::move(indexed));
  }
  mSpots.clear();
}

Status ExtractPlaces::write(Database& database, PlaceIndex& installed) {
  auto writer = PlaceWriter::create();
  if (!writer) return writer.failure();
  Settlements settlements;
  for (IndexedPlace& indexed : mSettlements) {
    if (const auto known = installed.areaAt(indexed.place.coordinate)) {
      indexed.place.division = known->division;
      indexed.place.country = known->country;
    }
    settlements.add(indexed.place, std::exchange(indexed.otherContext, {}));
    writer->add(std::move(indexed));
  }
  mSettlements.clear();
  writeStreets(*writer, settlements);
  writeSpots(*writer, settlements);
  return writer->write(database);
}

}  // namespace wayloom
