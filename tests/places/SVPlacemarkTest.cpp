#include <initializer_list>
#include <rapidjson/document.h>
#include <string>
#include <utility>
#include <vector>

#include "places/SVPlacemark.h"

namespace wayloom {
namespace {

SVPlacemark parsed(const std::string& text) {
  rapidjson::Document document;
  document.Parse(text.data(), text.size());
  EXPECT_FALSE(document.HasParseError()) << text;
  return SVPlacemark(document);
}

/// A result with one component for each entry: types, then long name; the short name is "s-" and
/// the long one.
SVPlacemark withComponents(
    std::initializer_list<std::pair<std::vector<const char*>, const char*>> components) {
  std::string result;
  for (const auto& [types, name] : components) {
    std::string list;
    for (const char* type : types) list.append(list.empty() ? "\"" : ", \"").append(type) += '"';
    result.append(result.empty() ? "{" : ", {");
    result.append("\"types\": [").append(list).append("], \"long_name\": \"").append(name);
    result.append("\", \"short_name\": \"s-").append(name).append("\"}");
  }
  return parsed("{\"address_components\": [" + result + "]}");
}

TEST(SVPlacemarkTest, FillsEachFieldFromItsComponent) {
  const std::pair<std::vector<const char*>, std::optional<std::string> SVPlacemark::*> fields[] = {
      {{"street_number"}, &SVPlacemark::subThoroughfare},
      {{"route"}, &SVPlacemark::thoroughfare},
      {{"neighborhood", "political"}, &SVPlacemark::subLocality},
      {{"political", "locality"}, &SVPlacemark::locality},
      {{"administrative_area_level_2"}, &SVPlacemark::subAdministrativeArea},
      {{"administrative_area_level_1"}, &SVPlacemark::administrativeArea},
      {{"country"}, &SVPlacemark::country},
      {{"postal_code"}, &SVPlacemark::postalCode}};
  for (const auto& [types, field] : fields) {
    EXPECT_EQ(withComponents({{types, "it"}}).*field, "it") << types.back();
  }
  EXPECT_EQ(withComponents({{{"country"}, "it"}}).ISOcountryCode, "s-it");
  EXPECT_EQ(withComponents({{{"administrative_area_level_1"}, "it"}}).administrativeAreaCode,
            "s-it");
}

TEST(SVPlacemarkTest, NamesItselfByTheMostPrecisePart) {
  using Types = std::vector<const char*>;
  const Types number = {"street_number"}, route = {"route"}, part = {"sublocality"},
              city = {"locality"}, state = {"administrative_area_level_1"}, land = {"country"};
  const std::pair<SVPlacemark, std::optional<std::string>> cases[] = {
      {withComponents({{number, "12"}, {route, "Main St"}, {part, "p"}}), "12 Main St"},
      {withComponents({{route, "Main St"}, {part, "p"}, {city, "c"}}), "Main St"},
      {withComponents({{number, "12"}, {part, "p"}, {city, "c"}}), "p"},
      {withComponents({{city, "c"}, {state, "st"}, {land, "l"}}), "c, s-st"},
      {withComponents({{city, "c"}, {land, "l"}}), "c, (null)"},
      {withComponents({{state, "st"}, {land, "l"}}), "st"},
      {withComponents({{land, "l"}}), "l"},
      {withComponents({{number, "12"}}), std::nullopt},
      {withComponents({{route, ""}, {land, "l"}}), ""},
  };
  for (const auto& [place, name] : cases) EXPECT_EQ(place.name(), name) << place.description();
}

TEST(SVPlacemarkTest, ReadsPositionAndSpans) {
  const SVPlacemark place = parsed(R"({"geometry": {
    "location": {"lat": "57.5", "lng": " 11.25 degrees"},
    "bounds": {"northeast": {"lat": 58, "lng": -179}, "southwest": {"lat": "57", "lng": 179.5}}}})");
  EXPECT_EQ(place.location, (Coordinate{57.5, 11.25}));
  EXPECT_EQ(place.coordinate, (Coordinate{57.5, 11.25}));
  EXPECT_EQ(place.region, (MapRegion{{57.5, 11.25}, {1, 358.5}}));
}

TEST(SVPlacemarkTest, ReadsWhatIsMissingOrMistypedAsNothing) {
  const MapRegion nowhere;
  const MapRegion noSpan = {{1, 2}, {0, 0}};
  const std::pair<const char*, MapRegion> cases[] = {
      {"{}", nowhere},
      {"7", nowhere},
      {R"({"geometry": {"location": "here"}})", nowhere},
      {R"({"geometry": {"location": {"lat": "nan", "lng": "inf"}}})", nowhere},
      {R"({"geometry": {"location": {"lat": "0x10", "lng": "north"}}})", nowhere},
      {R"({"geometry": {"location": {"lat": null, "lng": {}}}})", nowhere},
      {R"({"geometry": {"location": {"lat": 1, "lng": 2}, "bounds": 5}})", noSpan},
      {R"({"geometry": {"location": {"lat": 1, "lng": 2}, "bounds": {"northeast": {"lat": 3}}}})",
       {{1, 2}, {3, 0}}},
      {R"({"formatted_address": 5, "address_components": {"types": ["route"]}})", nowhere},
      {R"({"address_components": [null, 5, "x", [], {"types": "route", "long_name": "x"},
                                  {"types": [null, 5, "route"], "long_name": {}}]})",
       nowhere},
  };
  for (const auto& [text, region] : cases) {
    const SVPlacemark place = parsed(text);
    SVPlacemark expected;
    expected.region = region;
    expected.coordinate = region.center;
    expected.location = place.location;
    EXPECT_EQ(place, expected) << text;
  }
  EXPECT_FALSE(parsed(R"({"geometry": {"location": "here"}})").location);
  EXPECT_EQ(parsed(R"({"geometry": {"location": {}}})").location, Coordinate());
}

}  // namespace
}  // namespace wayloom
