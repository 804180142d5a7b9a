#include "places/SVPlacemark.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <rapidjson/document.h>
#include <string_view>

#include "settings/TextConversions.h"

namespace wayloom {

namespace {

using Value = rapidjson::Value;

constexpr std::string_view kMissing = "(null)";

/// The value for a key; null when there is none or `dictionary` is something else.
const Value& value(const Value& dictionary, const char* key) {
  static const Value null;
  if (!dictionary.IsObject()) return null;
  const auto found = dictionary.FindMember(key);
  return found == dictionary.MemberEnd() ? null : found->value;
}

std::string_view view(const Value& text) {
  return {text.GetString(), text.GetStringLength()};
}

std::optional<std::string> text(const Value& dictionary, const char* key) {
  const Value& found = value(dictionary, key);
  if (!found.IsString()) return std::nullopt;
  return std::string(view(found));
}

double number(const Value& dictionary, const char* key) {
  const Value& found = value(dictionary, key);
  if (found.IsNumber()) return found.GetDouble();
  return found.IsString() ? doubleValue(view(found)) : 0;
}

Coordinate coordinateIn(const Value& dictionary) {
  return {number(dictionary, "lat"), number(dictionary, "lng")};
}

}  // namespace

SVPlacemark::SVPlacemark(const Value& dictionary)
    : formattedAddress(text(dictionary, "formatted_address")) {
  const Value& components = value(dictionary, "address_components");
  if (components.IsArray()) {
    for (const Value& component : components.GetArray()) readComponent(component);
  }
  readGeometry(value(dictionary, "geometry"));
}

void SVPlacemark::readComponent(const Value& component) {
  const Value& types = value(component, "types");
  if (!types.IsArray()) return;
  const auto isAny = [&types](std::initializer_list<std::string_view> names) {
    for (const Value& type : types.GetArray()) {
      if (!type.IsString()) continue;
      if (std::find(names.begin(), names.end(), view(type)) != names.end()) return true;
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

void SVPlacemark::readGeometry(const Value& geometry) {
  const Value& position = value(geometry, "location");
  if (position.IsObject()) location = coordinate = coordinateIn(position);
  const Value& bounds = value(geometry, "bounds");
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
