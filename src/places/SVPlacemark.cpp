#include "places/SVPlacemark.h"

#include <cmath>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string_view>

#include "settings/TextConversions.h"

namespace wayloom {

namespace {

using nlohmann::json;

constexpr std::string_view kMissing = "(null)";

/// The value for a key; null when there is none or `dictionary` is something else.
const json& value(const json& dictionary, const char* key) {
  static const json null;
  if (!dictionary.is_object()) return null;
  const auto found = dictionary.find(key);
  return found == dictionary.end() ? null : *found;
}

std::optional<std::string> text(const json& dictionary, const char* key) {
  const json& found = value(dictionary, key);
  if (!found.is_string()) return std::nullopt;
  return found.get_ref<const std::string&>();
}

double number(const json& dictionary, const char* key) {
  const json& found = value(dictionary, key);
  if (found.is_number()) return found.get<double>();
  if (found.is_string()) return doubleValue(found.get_ref<const std::string&>());
  return 0;
}

Coordinate coordinateIn(const json& dictionary) {
  return {number(dictionary, "lat"), number(dictionary, "lng")};
}

}  // namespace

SVPlacemark::SVPlacemark(const json& dictionary)
    : formattedAddress(text(dictionary, "formatted_address")) {
  const json& components = value(dictionary, "address_components");
  if (components.is_array()) {
    for (const json& component : components) readComponent(component);
  }
  readGeometry(value(dictionary, "geometry"));
}

void SVPlacemark::readComponent(const json& component) {
  const json& types = value(component, "types");
  if (!types.is_array()) return;
  const auto isAny = [&types](std::initializer_list<const char*> names) {
    for (const json& type : types) {
      for (const char* name : names) {
        if (type == name) return true;
      }
    }
    return false;
  };
  const auto longName = text(component, "long_name");
  if (isAny({"street_number"})) subThoroughfare = longName;
  if (isAny({"route"})) thoroughfare = longName;
  if (isAny({"administrative_area_level_3", "sublocality", "neighborhood"})) subLocality = longName;
  if (isAny({"locality"})) locality = longName;
  if (isAny({"administrative_area_level_2"})) subAdministrativeArea = longName;
  if (isAny({"administrative_area_level_1"})) {
    administrativeArea = longName;
    administrativeAreaCode = text(component, "short_name");
  }
  if (isAny({"country"})) {
    country = longName;
    ISOcountryCode = text(component, "short_name");
  }
  if (isAny({"postal_code"})) postalCode = longName;
}

void SVPlacemark::readGeometry(const json& geometry) {
  const json& position = value(geometry, "location");
  if (position.is_object()) location = coordinate = coordinateIn(position);
  const json& bounds = value(geometry, "bounds");
  const Coordinate northeast = coordinateIn(value(bounds, "northeast"));
  const Coordinate southwest = coordinateIn(value(bounds, "southwest"));
  region = {coordinate,
            {std::abs(northeast.latitude - southwest.latitude),
             std::abs(northeast.longitude - southwest.longitude)}};
}

std::optional<std::string> SVPlacemark::name() const {
  if (subThoroughfare && thoroughfare) return *subThoroughfare + " " + *thoroughfare;
  if (thoroughfare) return thoroughfare;
  if (subLocality) return subLocality;
  if (locality) return *locality + ", " + administrativeAreaCode.value_or(std::string(kMissing));
  if (administrativeArea) return administrativeArea;
  return country;
}

std::string SVPlacemark::description() const {
  // The list of fields ends at the first one that is missing outright, which can only be this one.
  if (!formattedAddress) return "{\n}";
  const std::string position =
      formatReal(coordinate.latitude) + ", " + formatReal(coordinate.longitude);
  const struct {
    const char* key;
    const std::optional<std::string>& value;
  } fields[] = {{"formattedAddress", formattedAddress},
                {"subThoroughfare", subThoroughfare},
                {"thoroughfare", thoroughfare},
                {"subLocality", subLocality},
                {"locality", locality},
                {"subAdministrativeArea", subAdministrativeArea},
                {"administrativeArea", administrativeArea},
                {"postalCode", postalCode},
                {"country", country},
                {"ISOcountryCode", ISOcountryCode},
                {"coordinate", position}};
  std::string lines = "{\n";
  for (const auto& [key, value] : fields) {
    lines += std::string("    ") + key + " = ";
    lines += value ? *value : kMissing;
    lines += ";\n";
  }
  return lines + "}";
}

}  // namespace wayloom
