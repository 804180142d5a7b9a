#include "CityList.h"

#include <protozero/pbf_reader.hpp>
#include <stdexcept>

namespace wayloom {

namespace {

enum Field : protozero::pbf_tag_type {
  kId = 1,
  kName = 2,
  kCountry = 3,
  kFeatureCode = 7,
  kAdminCode = 8,
  kPopulation = 9,
  kLongitudeStep = 10,
  kLatitudeStep = 11,
};

struct Position {
  std::int64_t longitude = 0;
  std::int64_t latitude = 0;
};

constexpr double kUnitsPerDegree = 1e5;
constexpr std::int64_t kWholeTurn = 36'000'000;

void step(std::int64_t& value, std::int64_t by) {
  if (by < -kWholeTurn || by > kWholeTurn) throw std::range_error("step out of range");
  value += by;
}

City readCity(protozero::pbf_reader message, Position& position) {
  City city;
  while (message.next()) {
    switch (message.tag()) {
      case kId:
        city.id = message.get_sint64();
        break;
      case kName:
        city.name = message.get_string();
        break;
      case kCountry:
        city.country = message.get_string();
        break;
      case kFeatureCode:
        city.featureCode = message.get_string();
        break;
      case kAdminCode:
        city.adminCode = message.get_string();
        break;
      case kPopulation:
        city.population = message.get_int64();
        break;
      case kLongitudeStep:
        step(position.longitude, message.get_sint64());
        break;
      case kLatitudeStep:
        step(position.latitude, message.get_sint64());
        break;
      default:
        message.skip();
    }
  }
  city.coordinate = {static_cast<double>(position.latitude) / kUnitsPerDegree,
                     static_cast<double>(position.longitude) / kUnitsPerDegree};
  if (!isOnGlobe(city.coordinate)) throw std::range_error("position out of range");
  return city;
}

}  // namespace

std::optional<std::vector<City>> readCityList(std::string_view bytes) {
  try {
    std::vector<City> cities;
    Position position;
    const char* next = bytes.data();
    const char* const end = next + bytes.size();
    while (next != end) {
      const std::uint64_t length = protozero::decode_varint(&next, end);
      if (length > static_cast<std::uint64_t>(end - next)) return {};
      cities.push_back(readCity({next, static_cast<std::size_t>(length)}, position));
      next += length;
    }
    return cities;
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace wayloom
