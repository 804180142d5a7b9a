#include "import/ExtractPlaces.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <utility>

#include "settings/TrimmedText.h"

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
         isOneOf(tagOf(tags, "public_transport"), {"station"}) ||
         isOneOf(tagOf(tags, "natural"), {"peak", "water", "spring", "cave_entrance"}) ||
         isOneOf(tagOf(tags, "mountain_pass"), {"yes"}) ||
         isOneOf(tagOf(tags, "place"), {"locality", "square"});
}

// In the languages of the program, and what people say besides.
constexpr std::array kNameKeys = {"alt_name", "int_name",     "loc_name",     "name:de",
                                  "name:en",  "name:es",      "name:fr",      "name:ja",
                                  "name:zh",  "name:zh-Hans", "name:zh-Hant", "official_name",
                                  "old_name", "short_name"};

std::vector<std::string> otherNames(const OsmTags& tags) {
  std::vector<std::string> names;
  for (const char* key : kNameKeys) {
    std::string_view several = tagOf(tags, key);
    while (!several.empty()) {
      const std::size_t end = std::min(several.find(';'), several.size());
      if (end > 0) names.emplace_back(several.substr(0, end));
      several.remove_prefix(std::min(end + 1, several.size()));
    }
  }
  return names;
}

// A postcode says where it is by its digits; nothing for what has none.
std::string postcodeOf(const OsmTags& tags) {
  constexpr std::size_t kLongest = 12;
  std::string code = trimmedText(tagOf(tags, "addr:postcode"));
  if (code.empty()) code = trimmedText(tagOf(tags, "postal_code"));
  const bool isOne = code.size() <= kLongest && code.find(';') == std::string::npos &&
                     code.find_first_of("0123456789") != std::string::npos;
  return isOne ? code : std::string();
}

std::string withoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

// The one of some positions that lies most in their middle.
Coordinate middlemost(const std::vector<Coordinate>& positions) {
  Coordinate mean;
  for (const Coordinate& position : positions) {
    mean.latitude += position.latitude / static_cast<double>(positions.size());
    mean.longitude += position.longitude / static_cast<double>(positions.size());
  }
  return *std::min_element(positions.begin(), positions.end(), [&](Coordinate a, Coordinate b) {
    return distanceMetres(a, mean) < distanceMetres(b, mean);
  });
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
    for (auto& other : otherNames(tags)) mStreetNames[mWays.back().name].insert(std::move(other));
  }
}

void ExtractPlaces::addArea(const OsmTags& tags, const std::vector<GroundPolygon>& polygons) {
  if (!tags.contains("highway")) addSpot(tags, middleOf(polygons.front().front()));
}

void ExtractPlaces::addSpot(const OsmTags& tags, Coordinate position) {
  const std::string address = addressOf(tags);
  const std::string city(tagOf(tags, "addr:city"));
  const std::string name(tagOf(tags, "name"));
  const std::string postcode = postcodeOf(tags);
  if (!postcode.empty()) mPostcodes[postcode].push_back(position);
  if (!address.empty()) {
    mSpots.push_back({PlaceKind::kAddress, address, {}, city, postcode, position});
  }
  if (!name.empty() && isSight(tags)) {
    mSpots.push_back({PlaceKind::kPointOfInterest, name, otherNames(tags), city,
                      address + ' ' + postcode, position});
  }
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
      if (const auto others = mStreetNames.find(indexed.place.name); others != mStreetNames.end()) {
        indexed.otherNames.assign(others->second.begin(), others->second.end());
      }
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
    indexed.place = {spot.kind, std::move(spot.name), "", "", "", spot.position, 0};
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
    indexed.otherNames = std::move(spot.otherNames);
    indexed.otherContext = std::move(spot.context);
    writer.add(std::move(indexed));
  }
  mSpots.clear();
}

void ExtractPlaces::writePostcodes(PlaceWriter& writer, const Settlements& settlements) {
  for (const auto& [code, positions] : mPostcodes) {
    IndexedPlace indexed;
    indexed.place = {PlaceKind::kPostcode, code, "", "", "", middlemost(positions), 0};
    if (const Place* place = settlements.nearest(indexed.place.coordinate)) {
      settlements.locate(*place, indexed.place);
    }
    indexed.otherNames = {withoutBlanks(code)};
    writer.add(std::move(indexed));
  }
  mPostcodes.clear();
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
  writePostcodes(*writer, settlements);
  return writer->write(database);
}

}  // namespace wayloom
